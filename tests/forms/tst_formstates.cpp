// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "eyes.h"
#include "formbench.h"
#include "formeyes.h"
#include "qtdifferences.h"

#include <QPushButton>

#include <cmath>

namespace {

/// Brings a control into the state that a style sheet names.
void bringInto(QWidget *widget, const QString &state)
{
    auto *button = qobject_cast<QAbstractButton *>(widget);
    auto *slider = qobject_cast<QSlider *>(widget);
    const QPoint place = slider != nullptr ? handleOf(slider).center() : widget->rect().center();
    widget->setEnabled(state != QLatin1String("disabled"));
    if (state == QLatin1String("hover") || state == QLatin1String("pressed")) {
        moveMouseTo(widget, place);
    }
    if (state == QLatin1String("pressed") && button != nullptr) {
        button->setDown(true);
    } else if (state == QLatin1String("pressed")) {
        QTest::mousePress(widget->window()->windowHandle(), Qt::LeftButton, {},
                          widget->mapTo(widget->window(), place));
    }
}

QImage lookOf(const QByteArray &control, const QString &state)
{
    FormBench form;
    if (!form.show({1136, 800})) {
        return {};
    }
    auto *widget = form.find(control);
    bringInto(widget, state);
    const auto *slider = qobject_cast<QSlider *>(widget);
    return seen(widget, slider != nullptr ? handleOf(slider) : widget->rect());
}

/// From the first to the last column of the grip on a slider's handle, in pixels of the form. The
/// handle's shading runs downwards, so that a row of it has one colour but for the grip.
struct Grip
{
    double left;
    double right;
};

Grip gripOn(const QImage &handle)
{
    const double density = handle.devicePixelRatio();
    const int row = handle.height() / 2;
    const int beside = static_cast<int>(std::lround(5 * density));
    const int plain = qGray(handle.pixel(beside, row));
    int first = handle.width();
    int last = 0;
    for (int x = beside; x < handle.width() - beside; ++x) {
        if (std::abs(qGray(handle.pixel(x, row)) - plain) > 10) {
            first = std::min(first, x);
            last = x;
        }
    }
    return {first / density, (last + 1) / density};
}

/// What the screen shows of the widget, each pixel where it falls on the screen.
QImage partOfWholeWindow(QWidget *widget)
{
    const QImage whole = widget->window()->grab().toImage();
    const double density = whole.devicePixelRatio();
    const QRectF place(widget->mapTo(widget->window(), QPoint(0, 0)), widget->size());
    return whole.copy(QRectF(place.topLeft() * density, place.size() * density).toAlignedRect());
}

int darkPixels(const QImage &image)
{
    int dark = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            dark += qGray(image.pixel(x, y)) < 200;
        }
    }
    return dark;
}

} // namespace

class tst_FormStates : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        QtDifferences::askForHighDensity();
        wearProgramStyle();
    }

    void statesCanBeToldApartByEveryEye_data();
    void statesCanBeToldApartByEveryEye();
    void sliderGripKeepsItsSize_data();
    void sliderGripKeepsItsSize();
    void separatorIsDrawnInItsWholeLength_data();
    void separatorIsDrawnInItsWholeLength();
};

void tst_FormStates::statesCanBeToldApartByEveryEye_data()
{
    QTest::addColumn<QStringList>("states");
    // That the mouse is over a blue button is told by the hand that it becomes, and by a hint of
    // light only.
    for (const char *button : {"connectToDevice", "resetSettings", "openGraph"}) {
        QTest::newRow(button) << QStringList{"enabled", "disabled", "pressed"};
    }
    for (const char *withHover : {"highGainSlider", "pingUp", "pingDown"}) {
        QTest::newRow(withHover) << QStringList{"enabled", "disabled", "hover", "pressed"};
    }
    for (const char *other :
         {"highDraft", "maxDepthEdit", "portComboBox", "highEnableInfo", "saveSettingsToDevice"}) {
        QTest::newRow(other) << QStringList{"enabled", "disabled"};
    }
}

void tst_FormStates::statesCanBeToldApartByEveryEye()
{
    QFETCH(QStringList, states);
    const double enough = 0.08;
    QList<QImage> looks;
    for (const QString &state : qAsConst(states)) {
        looks << lookOf(QTest::currentDataTag(), state);
    }
    for (int i = 0; i < states.size(); ++i) {
        for (int j = i + 1; j < states.size(); ++j) {
            QCOMPARE(looks.at(i).size(), looks.at(j).size());
            for (const Eyes &eyes : everyEye) {
                const double part = plainlyDifferent(eyes, looks.at(i), looks.at(j));
                QVERIFY2(part >= enough, qPrintable(QString("%1 and %2 look alike to %3: %4 %")
                                                        .arg(states.at(i), states.at(j), eyes.name)
                                                        .arg(100 * part)));
            }
        }
    }
}

void tst_FormStates::sliderGripKeepsItsSize_data()
{
    QTest::addColumn<bool>("enabled");
    QTest::newRow("enabled") << true;
    QTest::newRow("disabled") << false;
}

void tst_FormStates::sliderGripKeepsItsSize()
{
    QFETCH(bool, enabled);
    FormBench form;
    QVERIFY(form.show({1136, 800}));
    QSlider *const slider = form.ui.highGainSlider;
    slider->setEnabled(enabled);
    const QRect handle = handleOf(slider);
    const Grip grip = gripOn(seen(slider, handle));
    const double width = grip.right - grip.left;
    QVERIFY2(std::abs(width - 14) <= 1.5, qPrintable(QString("%1 wide").arg(width)));
    const double middle = (grip.left + grip.right) / 2;
    QVERIFY2(std::abs(middle - handle.width() / 2.0) <= 1.5,
             qPrintable(QString("in the middle of %1").arg(middle)));
}

void tst_FormStates::separatorIsDrawnInItsWholeLength_data()
{
    QTest::addColumn<int>("page");
    for (const char *line : {"line", "line_2", "line_3", "line_4"}) {
        QTest::newRow(line) << 0;
    }
    QTest::newRow("line_5") << 1;
}

// Where a line falls between the pixels of a dense screen depends on its place.
void tst_FormStates::separatorIsDrawnInItsWholeLength()
{
    QFETCH(int, page);
    FormBench form;
    form.ui.h->setCurrentIndex(page);
    auto *line = form.find<QFrame>(QTest::currentDataTag());
    for (const QSize size : {QSize(1136, 800), QSize(1137, 801), QSize(1138, 802)}) {
        QVERIFY(form.show(size));
        const QImage drawn = partOfWholeWindow(line);
        const int length = std::max(drawn.width(), drawn.height());
        QVERIFY2(darkPixels(drawn) >= length * 9 / 10,
                 qPrintable(QString("%1 of %2 px").arg(darkPixels(drawn)).arg(length)));
    }
}

QTEST_MAIN(tst_FormStates)
#include "tst_formstates.moc"
