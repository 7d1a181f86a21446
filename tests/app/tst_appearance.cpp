// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "appearance.h"
#include "mainwindow.h"
#include "myproxystyle.h"

#include <QSignalSpy>
#include <QtTest>

/// The program from its start to its end, as main() runs it.
class TestAppearance : public QObject
{
    Q_OBJECT

private slots:
    void denseDisplaysAreAskedForBeforeTheApplicationExists();
    void programHasItsOwnStyle();
    void darkDesktopBringsNoWhiteTextToTheLightWindow();
    void closingTheWindowEndsTheProgramWithAllOthersOpen();
};

void TestAppearance::denseDisplaysAreAskedForBeforeTheApplicationExists()
{
    QVERIFY(QApplication::testAttribute(Qt::AA_EnableHighDpiScaling));
    QVERIFY(QApplication::testAttribute(Qt::AA_UseHighDpiPixmaps));
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
