// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

// The sounder is set up with the keyboard alone.

#include "appearance.h"
#include "keyhand.h"
#include "rawbench.h"
#include "readybench.h"
#include "toplevels.h"

#include <QRadioButton>
#include <QSlider>

using namespace KeyHand;

namespace {

/// The window with the keyboard at this control, as after Tab.
bool goTo(WindowBench &bench, const QString &control)
{
    bench.window.activateWindow();
    bench.find<QWidget>(control)->setFocus(Qt::TabFocusReason);
    return QTest::qWaitForWindowActive(&bench.window) && focused() == control;
}

} // namespace

class TestKeyboard : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { giveProgramStyle(); }

    void connectsWithoutTheMouse();
    void spaceSteps_data();
    void spaceSteps();
    void arrowChoosesAnOption_data();
    void arrowChoosesAnOption();
    void keyMovesASlider_data();
    void keyMovesASlider();
    void keysOpenTheOtherChannel();
    void keysChooseFromAList();
    void keysLeaveAListUnchanged();
    void spaceOpensHelpAndEscapeLeadsBack();

    void escapeHidesTheGraph();
    void otherKeysLeaveTheGraphOpen();
    void escapeLeavesTheMainWindowOpen_data();
    void escapeLeavesTheMainWindowOpen();

    void lostConnectionLeavesTheKeyboardAtConnect_data();
    void lostConnectionLeavesTheKeyboardAtConnect();
    void disconnectingByKeyLeavesTheKeyboardAtConnect();
    void channelSwitchedOffLeavesTheKeyboardAtItsTab();
    void fixedRateLeavesTheKeyboardNearby();
};

void TestKeyboard::connectsWithoutTheMouse()
{
    WindowBench bench(ReadyBench::quickSounder());
    QVERIFY(goTo(bench, "portComboBox"));
    press(bench.window, Qt::Key_End);
    QCOMPARE(bench.text("portComboBox"), bench.sounder.portPath());
    press(bench.window, Qt::Key_Tab);
    press(bench.window, Qt::Key_9);
    QCOMPARE(bench.text("baudComboBox"), QString("9600"));
    press(bench.window, Qt::Key_Tab);
    press(bench.window, Qt::Key_Space);
    QTRY_VERIFY(bench.text("temperatureLabel").contains("Temperature"));
    QVERIFY(bench.showsConnected());
    QCOMPARE(focused(), QString("connectToDevice"));
}

void TestKeyboard::spaceSteps_data()
{
    QTest::addColumn<QString>("button");
    QTest::addColumn<QString>("field");
    QTest::addColumn<QString>("after");
    const auto stepper = [](const QString &name, const QString &field, const char *down,
                            const char *up) {
        QTest::newRow(qPrintable(name + "Down")) << name + "Down" << field << down;
        QTest::newRow(qPrintable(name + "Up")) << name + "Up" << field << up;
    };
    stepper("ping", "pingEdit", "4", "6");
    stepper("soundVelocity", "soundVelocityEdit", "1499", "1501");
    stepper("highDraft", "highDraft", "0.30", "0.50");
    stepper("highFreq", "highFreq", "199", "201");
    stepper("highGain", "highGainEdit", "70%", "80%");
    stepper("lowPulse", "lowPulseEdit", "15", "17");
    stepper("lowDraft", "lowDraft", "0.30", "0.50");
}

void TestKeyboard::spaceSteps()
{
    QFETCH(QString, button);
    QFETCH(QString, field);
    QFETCH(QString, after);
    ReadyBench bench;
    bench.openTab(button.startsWith("low") ? "low" : "high");
    QVERIFY(goTo(bench, button));
    press(bench.window, Qt::Key_Space);
    QCOMPARE(bench.text(field), after);
    QCOMPARE(bench.takeCommands().size(), 1);
    QCOMPARE(focused(), button);
}

void TestKeyboard::arrowChoosesAnOption_data()
{
    QTest::addColumn<QString>("chosen");
    QTest::addColumn<Qt::Key>("key");
    QTest::addColumn<QString>("next");
    const auto arrow = [](const char *chosen, Qt::Key key, const char *next) {
        QTest::addRow("%s to %s", chosen, next) << chosen << key << next;
    };
    arrow("enableHF", Qt::Key_Down, "disableHF");
    arrow("disableHF", Qt::Key_Up, "enableHF");
    arrow("highManualRadio", Qt::Key_Up, "highAutoRadio");
    arrow("highAutoRadio", Qt::Key_Up, "highShallowRadio");
    arrow("highShallowRadio", Qt::Key_Down, "highAutoRadio");
    arrow("highAutoRadio", Qt::Key_Down, "highManualRadio");
    arrow("highLog10Tvg", Qt::Key_Up, "highOffTvg");
    arrow("highOffTvg", Qt::Key_Down, "highLog10Tvg");
    arrow("highLog10Tvg", Qt::Key_Down, "highLog20Tvg");
    arrow("enableLF", Qt::Key_Down, "disableLF");
    arrow("lowManualRadio", Qt::Key_Up, "lowAutoRadio");
    arrow("lowLog20Tvg", Qt::Key_Up, "lowLog10Tvg");
    arrow("metricRadio", Qt::Key_Left, "imperialRadio");
    arrow("imperialRadio", Qt::Key_Right, "metricRadio");
}

void TestKeyboard::arrowChoosesAnOption()
{
    QFETCH(QString, chosen);
    QFETCH(Qt::Key, key);
    QFETCH(QString, next);
    ReadyBench bench;
    if (chosen.endsWith("ricRadio") || chosen.startsWith("imperial")) {
        bench.click("connectToDevice"); // the unit is chosen before connecting
    }
    bench.openTab(chosen.contains("low") || chosen.endsWith("LF") ? "low" : "high");
    bench.click(chosen);
    QVERIFY(bench.isChecked(chosen));
    QVERIFY(goTo(bench, chosen));
    press(bench.window, key);
    QVERIFY2(bench.isChecked(next), qPrintable("the arrow led to " + focused()));
    QVERIFY(!bench.isChecked(chosen));
    QCOMPARE(focused(), next);
}

void TestKeyboard::keyMovesASlider_data()
{
    QTest::addColumn<QString>("slider");
    QTest::addColumn<Qt::Key>("key");
    QTest::addColumn<int>("by");
    for (const char *channel : {"high", "low"}) {
        const auto row = [channel](const char *slider, const char *word, Qt::Key key, int by) {
            QTest::addRow("%s%s %s", channel, slider, word)
                << QString(channel) + QLatin1String(slider) << key << by;
        };
        row("PulseSlider", "Right", Qt::Key_Right, 1);
        row("GainSlider", "Left", Qt::Key_Left, -1);
        row("GainSlider", "PageUp", Qt::Key_PageUp, 5);
        row("DetectSlider", "Up", Qt::Key_Up, 3);
        row("BlankingSlider", "Right", Qt::Key_Right, 1);
    }
}

void TestKeyboard::keyMovesASlider()
{
    QFETCH(QString, slider);
    QFETCH(Qt::Key, key);
    QFETCH(int, by);
    ReadyBench bench;
    bench.openTab(slider.startsWith("low") ? "low" : "high");
    QVERIFY(goTo(bench, slider));
    const auto *const moved = bench.find<QSlider>(slider);
    const int before = moved->value();
    press(bench.window, key);
    QCOMPARE(moved->value() - before, by);
    QCOMPARE(bench.takeCommands().size(), 1);
}

void TestKeyboard::keysOpenTheOtherChannel()
{
    ReadyBench bench;
    QVERIFY(goTo(bench, "qt_tabwidget_tabbar"));
    press(bench.window, Qt::Key_Right);
    QVERIFY(bench.find<QWidget>("lowFreqTab")->isVisible());
    press(bench.window, Qt::Key_Tab);
    QCOMPARE(focused(), QString("lowEnableInfo"));
    press(bench.window, Qt::Key_Tab, Qt::ControlModifier);
    QVERIFY2(bench.find<QWidget>("highFreqTab")->isVisible(), "Ctrl+Tab from within the page");
    QVERIFY2(bench.find<QWidget>("h")->isAncestorOf(QApplication::focusWidget()),
             qPrintable("the keyboard is at " + focused()));
}

void TestKeyboard::keysChooseFromAList()
{
    ReadyBench bench;
    QVERIFY(goTo(bench, "formatComboBox"));
    auto *const list = bench.find<QComboBox>("formatComboBox");
    press(bench.window, Qt::Key_Space);
    QTRY_VERIFY(list->view()->isVisible());
    const int row = list->currentIndex();
    QTest::keyClick(list->view(), Qt::Key_Down);
    QTest::keyClick(list->view(), Qt::Key_Return);
    QTRY_VERIFY(!list->view()->isVisible());
    QCOMPARE(list->currentIndex(), row + 1);
    QCOMPARE(bench.takeCommands().size(), 1);
    QTRY_COMPARE(focused(), QString("formatComboBox"));
}

void TestKeyboard::keysLeaveAListUnchanged()
{
    ReadyBench bench;
    QVERIFY(goTo(bench, "formatComboBox"));
    auto *const list = bench.find<QComboBox>("formatComboBox");
    const QString before = list->currentText();
    press(bench.window, Qt::Key_Space);
    QTRY_VERIFY(list->view()->isVisible());
    QTest::keyClick(list->view(), Qt::Key_Tab);
    QTest::keyClick(list->view(), Qt::Key_Down);
    QTest::keyClick(list->view(), Qt::Key_Escape);
    QTRY_VERIFY(!list->view()->isVisible());
    QCOMPARE(list->currentText(), before);
    QVERIFY(!bench.hasPendingChange());
    QVERIFY(bench.window.isVisible());
    QTRY_COMPARE(focused(), QString("formatComboBox"));
}

void TestKeyboard::spaceOpensHelpAndEscapeLeadsBack()
{
    ReadyBench bench;
    QVERIFY(goTo(bench, "highModeInfo"));
    press(bench.window, Qt::Key_Space);
    auto *const help = topLevel<InfoForm>();
    QVERIFY(QTest::qWaitForWindowActive(help));
    QTRY_COMPARE(focused(), QString("pushButton"));
    press(*help, Qt::Key_Escape);
    QTRY_VERIFY(!help->isVisible());
    QVERIFY2(bench.window.isVisible(), "Escape closed the main window as well");
    QCOMPARE(nameOf(bench.window.focusWidget()), QString("highModeInfo"));
}

void TestKeyboard::escapeHidesTheGraph()
{
    ReadyBench bench;
    auto *const graph = topLevel<depthGraph>();
    for (int time = 0; time < 2; ++time) {
        QVERIFY(goTo(bench, "openGraph"));
        press(bench.window, Qt::Key_Space);
        QVERIFY(QTest::qWaitForWindowExposed(graph));
        press(*graph, Qt::Key_Escape);
        QTRY_VERIFY2(!graph->isVisible(), "the graph stays open");
        QVERIFY(bench.window.isVisible());
    }
}

void TestKeyboard::otherKeysLeaveTheGraphOpen()
{
    ReadyBench bench;
    bench.click("openGraph");
    auto *const graph = topLevel<depthGraph>();
    QVERIFY(QTest::qWaitForWindowExposed(graph));
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Space, Qt::Key_Tab, Qt::Key_A}) {
        press(*graph, key);
        QVERIFY2(graph->isVisible(), qPrintable(QKeySequence(key).toString()));
    }
}

void TestKeyboard::escapeLeavesTheMainWindowOpen_data()
{
    QTest::addColumn<QString>("control");
    for (const char *control : {"connectToDevice", "highDraft", "highGainSlider", "formatComboBox",
                                "highManualRadio", "qt_tabwidget_tabbar"}) {
        QTest::newRow(control) << control;
    }
}

void TestKeyboard::escapeLeavesTheMainWindowOpen()
{
    QFETCH(QString, control);
    ReadyBench bench;
    QVERIFY(goTo(bench, control));
    press(bench.window, Qt::Key_Escape);
    QVERIFY(bench.window.isVisible());
    QVERIFY(bench.showsConnected());
    QCOMPARE(focused(), control);
    QVERIFY(!bench.hasPendingChange());
}

void TestKeyboard::lostConnectionLeavesTheKeyboardAtConnect_data()
{
    QTest::addColumn<QString>("control");
    for (const char *control : {"pingEdit", "pingUp", "highDraft", "highGainSlider", "enableHF",
                                "formatComboBox", "saveSettingsToDevice", "openGraph"}) {
        QTest::newRow(control) << control;
    }
}

/// Otherwise the next keys would go to nothing, and the next Tab would begin anew at the top.
void TestKeyboard::lostConnectionLeavesTheKeyboardAtConnect()
{
    QFETCH(QString, control);
    ReadyBench bench;
    QVERIFY(goTo(bench, control));
    bench.timer("resizeTimer")->stop();   // a silence during it would be forgiven
    bench.timer("answerTimer")->start(1); // the device has not answered in time
    QTRY_VERIFY(bench.info().contains("Lost Connection"));
    QVERIFY(!bench.isEnabled(control));
    QCOMPARE(focused(), QString("connectToDevice"));
    press(bench.window, Qt::Key_Tab);
    QCOMPARE(focused(), QString("metricRadio"));
}

void TestKeyboard::disconnectingByKeyLeavesTheKeyboardAtConnect()
{
    ReadyBench bench;
    QVERIFY(goTo(bench, "connectToDevice"));
    press(bench.window, Qt::Key_Space);
    QVERIFY(!bench.showsConnected());
    QCOMPARE(focused(), QString("connectToDevice"));
}

void TestKeyboard::channelSwitchedOffLeavesTheKeyboardAtItsTab()
{
    RawBench bench;
    QVERIFY(bench.connectByBanner());
    bench.say("*Hcm");
    QTRY_VERIFY(bench.isEnabled("highGainSlider"));
    QVERIFY(goTo(bench, "highGainSlider"));
    bench.say("*i5,v1500000,s30000,a3,I9600,H0,L1");
    QTRY_VERIFY(!bench.isEnabled("highGainSlider"));
    QCOMPARE(focused(), QString("qt_tabwidget_tabbar"));
}

void TestKeyboard::fixedRateLeavesTheKeyboardNearby()
{
    ReadyBench bench;
    QVERIFY(goTo(bench, "newBaudComboBox"));
    bench.choose("formatComboBox", "KESTROLA");
    QVERIFY(!bench.isEnabled("newBaudComboBox"));
    QCOMPARE(focused(), QString("formatComboBox"));
}

QTEST_MAIN(TestKeyboard)
#include "tst_keyboard.moc"
