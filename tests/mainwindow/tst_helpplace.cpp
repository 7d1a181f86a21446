// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

// Where the help opens.

#include "appearance.h"
#include "readybench.h"
#include "windowplace.h"

#include <QScreen>

namespace {

QWidget *helpWindow()
{
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget *window : windows) {
        if (window->inherits("InfoForm")) {
            return window;
        }
    }
    qFatal("there is no help window");
}

} // namespace

class TestHelpPlace : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { giveProgramStyle(); }

    void nearestPlaceWithinAnArea_data();
    void nearestPlaceWithinAnArea();
    void firstHelpIsOverTheMiddleOfTheWindow();
    void laterHelpStaysWhereTheOperatorPutIt();
    void helpIsWithinTheScreen();
    void placingLeavesTheSize();
};

void TestHelpPlace::nearestPlaceWithinAnArea_data()
{
    QTest::addColumn<QRect>("wanted");
    QTest::addColumn<QRect>("expected");
    QTest::newRow("inside") << QRect(50, 60, 200, 100) << QRect(50, 60, 200, 100);
    QTest::newRow("over the right bottom")
        << QRect(700, 550, 200, 100) << QRect(600, 500, 200, 100);
    QTest::newRow("over the left top") << QRect(-30, -5, 200, 100) << QRect(0, 20, 200, 100);
    QTest::newRow("larger than the area") << QRect(100, 100, 900, 700) << QRect(0, 20, 900, 700);
}

void TestHelpPlace::nearestPlaceWithinAnArea()
{
    QFETCH(QRect, wanted);
    QFETCH(QRect, expected);
    QCOMPARE(nearestWithin(wanted, QRect(0, 20, 800, 580)), expected);
}

void TestHelpPlace::firstHelpIsOverTheMiddleOfTheWindow()
{
    WindowBench bench;
    bench.window.setGeometry(100, 60, 600, 600);
    QCoreApplication::processEvents();
    bench.click("selectRateInfo");
    const QPoint difference =
        helpWindow()->frameGeometry().center() - bench.window.frameGeometry().center();
    QVERIFY2(difference.manhattanLength() <= 2,
             qPrintable(QString::number(difference.manhattanLength())));
}

void TestHelpPlace::laterHelpStaysWhereTheOperatorPutIt()
{
    ReadyBench bench;
    bench.click("selectRateInfo");
    helpWindow()->move(20, 30);
    helpWindow()->close();
    bench.click("highModeInfo");
    QCOMPARE(helpWindow()->pos(), QPoint(20, 30));
}

/// The window hangs over the edge, and a longer topic needs more room than the one before.
void TestHelpPlace::helpIsWithinTheScreen()
{
    ReadyBench bench;
    const QRect available = bench.window.screen()->availableGeometry();
    bench.window.move(available.bottomRight() - QPoint(50, 50));
    for (const char *button : {"highEnableInfo", "highModeInfo"}) {
        bench.click(button);
        const QRect help = helpWindow()->frameGeometry();
        QVERIFY2(available.contains(help), qPrintable(QStringLiteral("%1 at %2, %3 is %4 x %5")
                                                          .arg(button)
                                                          .arg(help.x())
                                                          .arg(help.y())
                                                          .arg(help.width())
                                                          .arg(help.height())));
    }
}

void TestHelpPlace::placingLeavesTheSize()
{
    ReadyBench bench;
    for (const char *button : {"selectRateInfo", "commonSettingsInfo", "highEnableInfo"}) {
        bench.click(button);
        QCOMPARE(helpWindow()->size(), helpWindow()->sizeHint());
    }
}

QTEST_MAIN(TestHelpPlace)
#include "tst_helpplace.moc"
