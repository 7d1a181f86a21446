// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "eyes.h"
#include "qtdifferences.h"
#include "resources.h"

#include <QBitmap>
#include <QDirIterator>
#include <QIcon>
#include <QImageReader>
#include <QPainter>
#include <QPixmap>
#include <QRegion>
#include <QSet>
#include <QTest>

#include <algorithm>
#include <cstdlib>

namespace {

const QString imageFolder = QStringLiteral(":/resourcefiles/images/");
const QString templatePath = QStringLiteral(":/resourcefiles/settings/default.xml");

struct Image
{
    const char *name;
    QSize size;
};

// clang-format off
const Image images[] = {
    {"brimlogo.ico",                   {16, 16}},
    {"brimsett-logo-header.png",       {180, 40}},
    {"brimsett-logo-footer.png",       {122, 28}},
    {"help-icon.png",                  {36, 36}},
    {"info_no_border.png",             {16, 16}},
    {"info_border.png",                {18, 18}},
    {"save_icon.png",                  {20, 20}},
    {"save_icon_blue.png",             {16, 16}},
    {"connected.png",                  {20, 20}},
    {"not_connected.png",              {20, 20}},
    {"connect_button.png",             {20, 20}},
    {"graph_icon.png",                 {20, 20}},
    {"graph_icon_blue.png",            {48, 48}},
    {"hamburger-menu-icon.png",        {24, 24}},
    {"radio_checked.png",              {25, 25}},
    {"radio_unchecked.png",            {25, 25}},
    {"radio_unenabled.png",            {25, 25}},
    {"radio_checked_hover.png",        {25, 25}},
    {"minus_enabled.png",              {25, 25}},
    {"minus_disabled.png",             {25, 25}},
    {"minus_hover.png",                {25, 25}},
    {"minus_pressed.png",              {25, 25}},
    {"plus_enabled.png",               {25, 25}},
    {"plus_disabled.png",              {25, 25}},
    {"plus_hover.png",                 {25, 25}},
    {"plus_pressed.png",               {25, 25}},
    {"slider_scribble.png",            {50, 8}},
    {"slider_scribble_unenabled.png",  {50, 8}},
    {"arrow_down.png",                 {10, 10}},
    {"arrow_down_unenabled.png",       {10, 10}},
    {"ajax-spinner.gif",               {32, 32}},
};
// clang-format on

QString pathOf(const char *name) { return imageFolder + QLatin1String(name); }

QString densePathOf(const char *name)
{
    return pathOf(name).replace(QLatin1String(".png"), QLatin1String("@2x.png"));
}

bool isPng(const char *name) { return QLatin1String(name).endsWith(QLatin1String(".png")); }

/// The image as it stands on a grey form.
QImage onForm(const QString &path)
{
    QImage form(QImage(path).size(), QImage::Format_RGB32);
    form.fill(QColor(244, 244, 244));
    QPainter(&form).drawImage(0, 0, QImage(path));
    return form;
}

/// What an eye that sees no hues sees of it.
QImage seenInGrey(const QString &path)
{
    return onForm(path).convertToFormat(QImage::Format_Grayscale8);
}

/// The smallest part of an image that has all its ink.
QRect inkedPart(const QString &path)
{
    return QRegion(QBitmap::fromImage(QImage(path).createAlphaMask())).boundingRect();
}

int lightness(const QImage &grey, int x, int y) { return qGray(grey.pixel(x, y)); }

/// The lightnesses of an image where nothing shines through it.
QSet<int> inkOf(const QString &path)
{
    const QImage image(path);
    QSet<int> ink;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (qAlpha(image.pixel(x, y)) == 255)
                ink << qGray(image.pixel(x, y));
        }
    }
    return ink;
}

/// The pieces of a drawing that do not touch each other, from left to right.
QVector<QRect> piecesOf(const QString &path)
{
    QVector<QRect> pieces;
    QRegion left(QBitmap::fromImage(QImage(path).createAlphaMask()));
    while (!left.isEmpty()) {
        QRegion piece(*left.begin());
        QRegion grown = piece;
        do {
            piece = grown;
            for (const QRect &row : piece)
                grown += left & row.adjusted(-1, -1, 1, 1);
        } while (grown != piece);
        pieces << piece.boundingRect();
        left -= piece;
    }
    std::sort(pieces.begin(), pieces.end(),
              [](const QRect &one, const QRect &other) { return one.left() < other.left(); });
    return pieces;
}

} // namespace

class ResourcesTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { useTalVeroResources(); }

    void holdsTheThirtyOneImagesAndTheTemplateAndNothingElse();
    void isStillThereAfterBeingAskedForAgain();
    void everyImageLoadsInItsSize_data();
    void everyImageLoadsInItsSize();
    void everyImageLetsTheFormShineThrough_data() { everyImageLoadsInItsSize_data(); }
    void everyImageLetsTheFormShineThrough();
    void denseDisplaysGetTwiceThePixels_data();
    void denseDisplaysGetTwiceThePixels();
    void imagesFitTheDensityOfTheDisplay_data();
    void imagesFitTheDensityOfTheDisplay();
    void programIconHasEverySizeThatDesktopsAskFor();
    void spinnerTurnsForever();
    void headerLogoIsLightAndFooterLogoDark();
    void logosSpellTheProductsName_data();
    void logosSpellTheProductsName();
    void statesDifferForEveryEye_data();
    void statesDifferForEveryEye();
    void stepButtonsDarkenUnderTheHand_data();
    void stepButtonsDarkenUnderTheHand();
    void onlyCheckedRadiosShowADot();
};

void ResourcesTest::holdsTheThirtyOneImagesAndTheTemplateAndNothingElse()
{
    QStringList expected = {templatePath};
    for (const Image &image : images) {
        expected << pathOf(image.name);
        if (isPng(image.name))
            expected << densePathOf(image.name);
    }
    expected.sort();
    QStringList found;
    QDirIterator files(":/resourcefiles", QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext())
        found << files.next();
    found.sort();

    QCOMPARE(int(std::size(images)), 31);
    QCOMPARE(found, expected);
}

void ResourcesTest::isStillThereAfterBeingAskedForAgain()
{
    useTalVeroResources();
    useTalVeroResources();
    QCOMPARE(QDir(imageFolder).entryList({"brimlogo.ico"}), QStringList{"brimlogo.ico"});
    QVERIFY(!QIcon(pathOf("brimlogo.ico")).isNull());
}

void ResourcesTest::everyImageLoadsInItsSize_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QSize>("size");
    for (const Image &image : images)
        QTest::newRow(image.name) << pathOf(image.name) << image.size;
}

void ResourcesTest::everyImageLoadsInItsSize()
{
    QFETCH(QString, path);
    QFETCH(QSize, size);
    QImageReader reader(path);
    const QImage image = reader.read();
    QVERIFY2(!image.isNull(), qPrintable(path + ": " + reader.errorString()));
    QCOMPARE(image.size(), size);
    QCOMPARE(QIcon(path).isNull(), false);
}

void ResourcesTest::everyImageLetsTheFormShineThrough()
{
    QFETCH(QString, path);
    const QImage image = QImage(path).convertToFormat(QImage::Format_ARGB32);
    int clearPixels = 0;
    int inkedPixels = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            clearPixels += qAlpha(image.pixel(x, y)) == 0;
            inkedPixels += qAlpha(image.pixel(x, y)) == 255;
        }
    }
    QVERIFY2(clearPixels > 0, "The image stands in a box of its own background");
    QVERIFY2(inkedPixels > 0, "The image shows nothing");
}

void ResourcesTest::denseDisplaysGetTwiceThePixels_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QSize>("size");
    for (const Image &image : images) {
        if (isPng(image.name))
            QTest::newRow(image.name) << densePathOf(image.name) << 2 * image.size;
    }
}

void ResourcesTest::denseDisplaysGetTwiceThePixels()
{
    QFETCH(QString, path);
    QFETCH(QSize, size);
    QCOMPARE(QImage(path).size(), size);
}

/// Only the PNG images come in two densities; the program's icon and the spinner do not.
void ResourcesTest::imagesFitTheDensityOfTheDisplay_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QSize>("size");
    for (const Image &image : images) {
        if (isPng(image.name))
            QTest::newRow(image.name) << pathOf(image.name) << image.size;
    }
}

void ResourcesTest::imagesFitTheDensityOfTheDisplay()
{
    QFETCH(QString, path);
    QFETCH(QSize, size);
    QtDifferences::askForHighDensity();
    QCOMPARE(QIcon(path).pixmap(size).size(), size * qApp->devicePixelRatio());
}

void ResourcesTest::programIconHasEverySizeThatDesktopsAskFor()
{
    QList<int> widths;
    for (const QSize &size : QIcon(pathOf("brimlogo.ico")).availableSizes())
        widths << size.width();
    std::sort(widths.begin(), widths.end());
    QCOMPARE(widths, (QList<int>{16, 20, 24, 32, 48, 64, 256}));
}

void ResourcesTest::spinnerTurnsForever()
{
    QImageReader reader(pathOf("ajax-spinner.gif"));
    QVERIFY(reader.supportsAnimation());
    QList<QImage> frames;
    while (frames.size() < reader.imageCount()) {
        const QImage frame = reader.read();
        QVERIFY2(!frame.isNull(), qPrintable(reader.errorString()));
        QVERIFY2(!frames.contains(frame), "The spinner stands still or jumps back");
        QVERIFY(reader.nextImageDelay() > 0);
        frames << frame;
    }
    QVERIFY2(frames.size() >= 12, qPrintable(QString("only %1 frames").arg(frames.size())));
    const int endlessly = -1;
    QCOMPARE(reader.loopCount(), endlessly);
}

void ResourcesTest::headerLogoIsLightAndFooterLogoDark()
{
    const QList<int> header = inkOf(pathOf("brimsett-logo-header.png")).values();
    const QList<int> footer = inkOf(pathOf("brimsett-logo-footer.png")).values();
    QVERIFY(*std::min_element(header.begin(), header.end()) > 240);
    QVERIFY(*std::max_element(footer.begin(), footer.end()) < 80);
}

void ResourcesTest::logosSpellTheProductsName_data()
{
    QTest::addColumn<int>("emblemWidth");
    QTest::newRow("brimsett-logo-header.png") << 40;
    QTest::newRow("brimsett-logo-footer.png") << 28;
}

/// Seven capitals of one height, and after the third the hyphen of "TAL-VERO".
void ResourcesTest::logosSpellTheProductsName()
{
    QFETCH(int, emblemWidth);
    QString shape;
    int capital = 0;
    for (const QRect &piece : piecesOf(densePathOf(QTest::currentDataTag()))) {
        if (piece.left() < 2 * emblemWidth)
            continue;
        capital = qMax(capital, piece.height());
        shape += piece.height() * 4 < capital ? '-' : piece.height() >= capital - 1 ? 'X' : '?';
    }
    QCOMPARE(shape, QStringLiteral("XXX-XXXX"));
}

void ResourcesTest::statesDifferForEveryEye_data()
{
    QTest::addColumn<QStringList>("states");
    QTest::newRow("radio button") << QStringList{"radio_checked", "radio_unchecked",
                                                 "radio_unenabled", "radio_checked_hover"};
    for (const char *kind : {"minus", "plus"}) {
        QStringList states;
        for (const char *state : {"_enabled", "_disabled", "_hover", "_pressed"})
            states << kind + QString(state);
        QTest::newRow(kind) << states;
    }
    QTest::newRow("slider grip") << QStringList{"slider_scribble", "slider_scribble_unenabled"};
    QTest::newRow("list arrow") << QStringList{"arrow_down", "arrow_down_unenabled"};
    QTest::newRow("link") << QStringList{"connected", "not_connected", "connect_button"};
}

void ResourcesTest::statesDifferForEveryEye()
{
    QFETCH(QStringList, states);
    for (int i = 0; i < states.size(); ++i) {
        const QString one = imageFolder + states[i] + ".png";
        for (int j = i + 1; j < states.size(); ++j) {
            const QString other = imageFolder + states[j] + ".png";
            const QRect part = inkedPart(one) | inkedPart(other);
            for (const Eyes &eyes : everyEye) {
                const double differing =
                    plainlyDifferent(eyes, onForm(one).copy(part), onForm(other).copy(part));
                QVERIFY2(differing >= 0.1,
                         qPrintable(QString("%1 and %2 look alike to %3: %4 % of the pixels differ")
                                        .arg(states[i], states[j], eyes.name)
                                        .arg(100 * differing)));
            }
        }
    }
}

void ResourcesTest::stepButtonsDarkenUnderTheHand_data()
{
    QTest::addColumn<QString>("kind");
    QTest::newRow("minus") << "minus";
    QTest::newRow("plus") << "plus";
}

void ResourcesTest::stepButtonsDarkenUnderTheHand()
{
    QFETCH(QString, kind);
    const int faceX = 12;
    const int faceY = 5;
    const int plainStep = 40;
    int previous = 255;
    for (const char *state : {"_disabled", "_enabled", "_hover", "_pressed"}) {
        const QImage button = seenInGrey(imageFolder + kind + state + ".png");
        const int face = lightness(button, faceX, faceY);
        const bool firstState = previous == 255;
        QVERIFY2(
            previous - face >= (firstState ? 1 : plainStep),
            qPrintable(QString("%1%2 is %3 after %4").arg(kind, state).arg(face).arg(previous)));
        previous = face;
    }
}

void ResourcesTest::onlyCheckedRadiosShowADot()
{
    const auto dotContrast = [](const char *name) {
        const QImage radio = seenInGrey(pathOf(name));
        const int centre = 12;
        const int besideTheDot = 19;
        return lightness(radio, besideTheDot, centre) - lightness(radio, centre, centre);
    };
    QVERIFY(dotContrast("radio_checked.png") > 100);
    QVERIFY(dotContrast("radio_checked_hover.png") > 60);
    QCOMPARE(dotContrast("radio_unchecked.png"), 0);
    QCOMPARE(dotContrast("radio_unenabled.png"), 0);
}

QTEST_MAIN(ResourcesTest)
#include "tst_resources.moc"
