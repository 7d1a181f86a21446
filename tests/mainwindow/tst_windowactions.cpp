// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

// The menu button, the graph button, and what becomes of the window itself.

#include "linkwatch.h"
#include "logcapture.h"
#include "rawbench.h"
#include "toplevels.h"

#include <QComboBox>
#include <QLabel>
#include <QtTest>

using namespace LinkWatch;

namespace {

const QString maximized = QStringLiteral("Window has been maximized");
const QString restored = QStringLiteral("Window has been restored");

/// Maximizes and lets the window system confirm it, as it has long done when the operator goes on.
void maximize(MainWindow &window)
{
    window.showMaximized();
    QCoreApplication::processEvents();
    QTRY_VERIFY(window.isMaximized());
}

bool isShown(WindowBench &bench, const QString &name)
{
    return bench.find<QWidget>(name)->isVisible();
}

} // namespace

class TestWindowActions : public QObject
{
    Q_OBJECT

private slots:
    void menuButtonHidesTheFooter();
    void menuButtonShowsTheFooterAgain();

    void graphButtonShowsTheGraph();
    void graphButtonShowsAClosedGraphAgain();
    void graphHasWhatCameWhileItWasHidden();

    void maximizingIsLogged();
    void restoringBringsTheStartingSizeBack();
    void minimizingIsNoRestoring();
    void resizingByHandIsNotUndone();
    void everyResizeStartsTheGraceAnew();

    void closingClosesGraphAndHelp();
    void closingWhileConnectedLeavesThePortFree();
};

void TestWindowActions::menuButtonHidesTheFooter()
{
    WindowBench bench;
    QVERIFY(isShown(bench, "widget_40"));
    bench.click("hamburgerButton");
    QVERIFY(!isShown(bench, "widget_40"));
    QVERIFY2(isShown(bench, "hamburgerButton"), "nothing is left to bring the footer back");
    QCOMPARE(bench.find<QWidget>("scrollAreaWidgetContents")->minimumHeight(), 600);
}

void TestWindowActions::menuButtonShowsTheFooterAgain()
{
    WindowBench bench;
    bench.click("hamburgerButton");
    bench.click("hamburgerButton");
    QVERIFY(isShown(bench, "widget_40"));
    QCOMPARE(bench.find<QWidget>("scrollAreaWidgetContents")->minimumHeight(), 800);
    const bool hasUpdater = !bench.find<QWidget>("BootloadButton")->isHidden();
    QCOMPARE(bench.find<QWidget>("widget_40")->minimumHeight(), hasUpdater ? 100 : 80);
}

void TestWindowActions::graphButtonShowsTheGraph()
{
    RawBench bench;
    QVERIFY(bench.connectByBanner());
    auto *const graph = topLevel<depthGraph>();
    QVERIFY(!graph->isVisible());
    bench.click("openGraph");
    QVERIFY(graph->isVisible());
    QVERIFY(bench.window.isVisible());
}

void TestWindowActions::graphButtonShowsAClosedGraphAgain()
{
    RawBench bench;
    QVERIFY(bench.connectByBanner());
    auto *const graph = topLevel<depthGraph>();
    bench.click("openGraph");
    bench.click("openGraph"); // a second press changes nothing
    QVERIFY(graph->isVisible());
    graph->close();
    QVERIFY(!graph->isVisible());
    bench.click("openGraph");
    QVERIFY(graph->isVisible());
    QCOMPARE(topLevel<depthGraph>(), graph);
}

void TestWindowActions::graphHasWhatCameWhileItWasHidden()
{
    RawBench bench;
    QVERIFY(bench.connectByBanner());
    bench.say(" et B 00123 00131");
    QTRY_COMPARE(bench.text("highDepthLabel"), QString("HF Depth: 1.23"));
    bench.click("openGraph");
    QStringList texts;
    const QList<QLabel *> labels = topLevel<depthGraph>()->findChildren<QLabel *>();
    for (const QLabel *label : labels) {
        texts.append(label->text());
    }
    QVERIFY2(!texts.filter("1.23").isEmpty(), qPrintable(texts.join(" | ")));
    QVERIFY2(!texts.filter("1.31").isEmpty(), qPrintable(texts.join(" | ")));
}

void TestWindowActions::maximizingIsLogged()
{
    WindowBench bench;
    const LogCapture log;
    maximize(bench.window);
    QCOMPARE(log.count(maximized), 1);
    QCOMPARE(log.count(restored), 0);
    bench.window.showMaximized();
    QCOMPARE(log.count(maximized), 1);
}

void TestWindowActions::restoringBringsTheStartingSizeBack()
{
    WindowBench bench;
    bench.window.resize(1000, 700);
    maximize(bench.window);
    const LogCapture log;
    bench.window.showNormal();
    QTRY_COMPARE(bench.window.size(), QSize(1136, 800));
    QVERIFY(!QTest::qWaitFor([&] { return bench.window.size() != QSize(1136, 800); }, 300));
    QCOMPARE(log.count(restored), 1);
    QCOMPARE(log.count(maximized), 0);
}

void TestWindowActions::minimizingIsNoRestoring()
{
    WindowBench bench;
    maximize(bench.window);
    const LogCapture log;
    bench.window.showMinimized();
    QTRY_VERIFY(bench.window.isMinimized());
    QCOMPARE(log.count(restored), 0);
}

void TestWindowActions::resizingByHandIsNotUndone()
{
    WindowBench bench;
    const LogCapture log;
    bench.window.resize(1000, 700);
    QVERIFY(!QTest::qWaitFor([&] { return bench.window.size() != QSize(1000, 700); }, 300));
    QCOMPARE(log.count(restored), 0);
}

void TestWindowActions::everyResizeStartsTheGraceAnew()
{
    WindowBench bench;
    QTimer *const grace = bench.timer("resizeTimer");
    QTRY_VERIFY2(!grace->isActive(), "it began when the window opened and never ends");
    bench.window.resize(1000, 700);
    QVERIFY(grace->isActive());
    grace->setTimerType(Qt::PreciseTimer); // others round the time that they have left
    grace->setInterval(60000);
    QTRY_VERIFY(grace->remainingTime() < 59900);
    const int before = grace->remainingTime();
    bench.window.resize(1010, 700);
    QVERIFY(grace->remainingTime() > before);
}

void TestWindowActions::closingClosesGraphAndHelp()
{
    RawBench bench;
    QVERIFY(bench.connectByBanner());
    bench.click("openGraph");
    bench.click("selectRateInfo");
    QVERIFY(topLevel<depthGraph>()->isVisible());
    QVERIFY(topLevel<InfoForm>()->isVisible());
    QVERIFY2(bench.window.close(), "the window refuses to close");
    QVERIFY(!bench.window.isVisible());
    QVERIFY(!topLevel<depthGraph>()->isVisible());
    QVERIFY(!topLevel<InfoForm>()->isVisible());
}

void TestWindowActions::closingWhileConnectedLeavesThePortFree()
{
    const RawPty line;
    {
        MainWindow window([&line] { return QStringList{line.slavePath()}; });
        window.findChild<QComboBox *>("portComboBox")->setCurrentIndex(1);
        window.findChild<QComboBox *>("baudComboBox")->setCurrentText("9600");
        window.show();
        QTest::mouseClick(window.findChild<QWidget *>("connectToDevice"), Qt::LeftButton);
        QVERIFY(!isFree(line.slavePath()));
        window.close();
    }
    QVERIFY2(isFree(line.slavePath()), "the program ends and still holds the port");
}

QTEST_MAIN(TestWindowActions)

#include "tst_windowactions.moc"
