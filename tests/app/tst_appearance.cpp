// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "appearance.h"
#include "mainwindow.h"
#include "myproxystyle.h"
#include "qtdifferences.h"

#include <QFontInfo>
#include <QLabel>
#include <QSignalSpy>
#include <QtTest>

#include <algorithm>

/// The program from its start to its end, as main() runs it.
class TestAppearance : public QObject
{
    Q_OBJECT

private slots:
    void denseDisplaysAreAskedForBeforeTheApplicationExists();
    void windowsStartWithoutOpenGlUnlessItIsAskedFor();
    void programHasItsOwnStyle();
    void darkDesktopBringsNoWhiteTextToTheLightWindow();
    void depthLabelsSpeakInTheFontOfTheWindow();
    void logosHaveThePixelsOfTheScreen_data();
    void logosHaveThePixelsOfTheScreen();
    void closingTheWindowEndsTheProgramWithAllOthersOpen();
};

void TestAppearance::denseDisplaysAreAskedForBeforeTheApplicationExists()
{
    QVERIFY(QtDifferences::isHighDensityAskedFor());
}

void TestAppearance::windowsStartWithoutOpenGlUnlessItIsAskedFor()
{
    constexpr char variable[] = "QT_XCB_GL_INTEGRATION";
    const QByteArray before = qgetenv(variable);
    qunsetenv(variable);
    startWithoutOpenGl();
    QCOMPARE(qgetenv(variable), QByteArray("none"));
    qputenv(variable, "xcb_egl");
    startWithoutOpenGl();
    QCOMPARE(qgetenv(variable), QByteArray("xcb_egl"));
    qputenv(variable, before);
}

void TestAppearance::programHasItsOwnStyle()
{
    auto *const style = qobject_cast<MyProxyStyle *>(QApplication::style());
    QVERIFY(style != nullptr);
    QCOMPARE(style->baseStyle()->objectName(), QString("fusion"));
}

void TestAppearance::darkDesktopBringsNoWhiteTextToTheLightWindow()
{
    QPalette dark;
    dark.setColor(QPalette::WindowText, Qt::white);
    dark.setColor(QPalette::Text, Qt::white);
    QApplication::setPalette(dark);
    giveProgramStyle();
    QVERIFY(QApplication::palette().color(QPalette::WindowText).lightness() < 64);
    QVERIFY(QApplication::palette().color(QPalette::Text).lightness() < 64);
}

// Elsewhere than on Windows the font that the form names is not known, and a system may put any
// font in its place.
void TestAppearance::depthLabelsSpeakInTheFontOfTheWindow()
{
#ifdef Q_OS_WIN
    QSKIP("Windows has the font");
#endif
    const QString named = QStringLiteral("MS Shell Dlg 2");
    QVERIFY2(!QFont::substitutes(named).isEmpty(), "nothing stands for the font");
    QCOMPARE(QFont::substitutes(named).constFirst(), QApplication::font().family().toLower());
    QCOMPARE(QFontInfo(QFont(named, 9)).family(), QFontInfo(QApplication::font()).family());
}

void TestAppearance::logosHaveThePixelsOfTheScreen_data()
{
    QTest::addColumn<QString>("image");
    QTest::newRow("headerLabel") << ":/resourcefiles/images/brimsett-logo-header.png";
    QTest::newRow("footerLabel") << ":/resourcefiles/images/brimsett-logo-footer.png";
}

void TestAppearance::logosHaveThePixelsOfTheScreen()
{
    QFETCH(QString, image);
    const MainWindow window([] { return QStringList(); });
    const QString name = QTest::currentDataTag();
    const QWidgetList widgets = QApplication::allWidgets();
    const auto logo = std::find_if(widgets.begin(), widgets.end(), [&name](const QWidget *widget) {
        return widget->objectName() == name;
    });
    QVERIFY(logo != widgets.end());
    const QSize size = QImage(image).size();
    const QPixmap shown = qobject_cast<QLabel *>(*logo)->pixmap(Qt::ReturnByValue);
    QCOMPARE(shown.size(), size * qApp->devicePixelRatio());
    QCOMPARE((*logo)->sizeHint(), size);
    const bool isDense = qApp->devicePixelRatio() > 1.0;
    const QPixmap drawn(isDense ? QString(image).replace(".png", "@2x.png") : image);
    QPixmap expected = drawn.scaled(shown.size(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    expected.setDevicePixelRatio(shown.devicePixelRatio());
    QCOMPARE(shown.toImage(), expected.toImage());
}

void TestAppearance::closingTheWindowEndsTheProgramWithAllOthersOpen()
{
    const QStringList noPorts;
    MainWindow window([noPorts] { return noPorts; });
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QTest::mouseClick(window.findChild<QWidget *>("selectRateInfo"), Qt::LeftButton);
    const auto shownWindows = [] {
        int shown = 0;
        const QWidgetList windows = QApplication::topLevelWidgets();
        for (const QWidget *candidate : windows) {
            shown += candidate->isVisible() ? 1 : 0;
        }
        return shown;
    };
    QTRY_COMPARE(shownWindows(), 2);
    QSignalSpy lastWindowClosed(qApp, &QApplication::lastWindowClosed);
    QTimer::singleShot(0, &window, &QWidget::close);
    QCOMPARE(QApplication::exec(), 0);
    QCOMPARE(lastWindowClosed.count(), 1);
    QCOMPARE(shownWindows(), 0);
}

int main(int argc, char **argv)
{
    prepareForHighDensity();
    QApplication application(argc, argv);
    giveProgramStyle();
    TestAppearance test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_appearance.moc"
