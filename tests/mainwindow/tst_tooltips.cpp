// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

// What the controls tell under the pointer.

#include "appearance.h"
#include "controltips.h"
#include "fieldtips.h"
#include "portchooser.h"
#include "readybench.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QHelpEvent>
#include <QRadioButton>
#include <QToolTip>

using namespace ControlRules;

namespace {

/// What is shown when the pointer rests on the middle of the widget, as Qt's own timer asks for it.
QString hovered(QWidget *widget)
{
    const QString before = QStringLiteral("what the pointer told before");
    QToolTip::showText(widget->mapToGlobal(QPoint()), before);
    const QPoint place = widget->rect().center();
    QHelpEvent help(QEvent::ToolTip, place, widget->mapToGlobal(place));
    QApplication::sendEvent(widget, &help);
    return QToolTip::text() == before ? QString() : QToolTip::text();
}

State connectedState()
{
    State state;
    state.link = SessionState::Connected;
    return state;
}

} // namespace

Q_DECLARE_METATYPE(State)

class TestToolTips : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { giveProgramStyle(); }

    void locksOfAChannel_data();
    void locksOfAChannel();
    void locksOfWhatIsCommon();
    void groupWithoutLockIsUsable();
    void rangeOfAField_data();
    void rangeOfAField();
    void lockedControlTellsWhy_data();
    void lockedControlTellsWhy();
    void offlineEverythingOfTheUnitAsksForAConnection();
    void channelThatTheUnitLacksTellsSo();
    void fixedFormatIsNamed();
    void toolTipOfAnotherStaysUntilSomethingChanges();
    void portEntriesTellTheirDetails();
    void detailsAreShownAsTheyAre();
    void detailsCostNoListing();
    void withoutAPortTheListTellsWhatToCheck();
};

void TestToolTips::locksOfAChannel_data()
{
    QTest::addColumn<State>("state");
    QTest::addColumn<QVector<int>>("locks"); // enable, mode, gain law, inputs, manual settings
    const auto all = [](Lock lock) { return QVector<int>(5, int(lock)); };
    const int none = int(Lock::None);
    QTest::newRow("offline") << State() << all(Lock::NotConnected);
    State state = connectedState();
    QTest::newRow("on") << state << all(Lock::None);
    state.high.automatic = true;
    QTest::newRow("automatic") << state
                               << QVector<int>{none, none, none, none, int(Lock::Automatic)};
    state.formatFixesOptions = true;
    const int fixed = int(Lock::FixedFormat);
    QTest::newRow("automatic with a fixed format")
        << state << QVector<int>{none, fixed, fixed, none, int(Lock::Automatic)};
    state.high.switchedOn = false;
    const int off = int(Lock::SwitchedOff);
    QTest::newRow("switched off") << state << QVector<int>{none, off, off, off, off};
    state.high.resting = true;
    state.high.switchHeld = true;
    QTest::newRow("resting") << state << all(Lock::Resting);
    state.high.fitted = false;
    QTest::newRow("not fitted") << state << all(Lock::NotFitted);
    state.link = SessionState::Searching;
    QTest::newRow("searching") << state << all(Lock::NotConnected);
}

void TestToolTips::locksOfAChannel()
{
    QFETCH(State, state);
    QFETCH(QVector<int>, locks);
    const ChannelLocks of = ControlRules::locks(state).high;
    QCOMPARE(
        (QVector<int>{int(of.enable), int(of.mode), int(of.tvg), int(of.inputs), int(of.manual)}),
        locks);
}

void TestToolTips::locksOfWhatIsCommon()
{
    State state;
    QCOMPARE(locks(state).connection, Lock::None);
    QCOMPARE(locks(state).device, Lock::NotConnected);
    QCOMPARE(locks(state).outputRate, Lock::NotConnected);
    state.link = SessionState::Connected;
    QCOMPARE(locks(state).connection, Lock::Connected);
    QCOMPARE(locks(state).device, Lock::None);
    QCOMPARE(locks(state).outputRate, Lock::None);
    state.formatFixesOptions = true;
    QCOMPARE(locks(state).device, Lock::None);
    QCOMPARE(locks(state).outputRate, Lock::FixedFormat);
}

void TestToolTips::groupWithoutLockIsUsable()
{
    Locks some;
    some.connection = Lock::Connected;
    some.high.manual = Lock::Automatic;
    some.low = {Lock::NotFitted, Lock::NotFitted, Lock::NotFitted, Lock::NotFitted,
                Lock::NotFitted};
    const Usable groups = usable(some);
    QCOMPARE(groups.common, CommonGroups(CommonGroup::Device) | CommonGroup::OutputRate);
    QVERIFY(!groups.high.testFlag(ChannelGroup::Manual));
    QVERIFY(groups.high.testFlag(ChannelGroup::Inputs));
    QCOMPARE(groups.low, ChannelGroups());
}

void TestToolTips::rangeOfAField_data()
{
    QTest::addColumn<QString>("widget");
    QTest::addColumn<QString>("metric");
    QTest::addColumn<QString>("imperial");
    const auto add = [](const char *widget, const char *metric, const char *imperial) {
        QTest::newRow(widget) << widget << metric << imperial;
    };
    add("pingEdit", "From 1 to 10", "From 1 to 10");
    add("pingUp", "From 1 to 10", "From 1 to 10");
    add("soundVelocityEdit", "From 1300 to 1750 m/s", "From 4265 to 5741 ft/s");
    add("maxDepthDown", "From 3 to 100 m", "From 10 to 328 ft");
    add("highDraft", "From 0.00 to 100.00 m", "From 0.00 to 328.08 ft");
    add("lowIndexUp", "From 0.00 to 100.00 m", "From 0.00 to 328.08 ft");
    add("highFreq", "From 190 to 210 kHz", "From 190 to 210 kHz");
    add("lowFreqDown", "From 30 to 36 kHz", "From 30 to 36 kHz");
    add("highBlank", "From 0.30 to 10.00 m", "From 0.98 to 32.81 ft");
    add("lowBlank", "From 0.50 to 10.00 m", "From 1.64 to 32.81 ft");
    add("highBlankUp", "From 0.30 to 10.00 m", "From 1.00 to 30.00 ft");
    add("lowBlankUp", "From 0.50 to 10.00 m", "From 2.00 to 30.00 ft");
    add("highPulseUp", "From 1 to 34", "From 1 to 34");
    add("lowGainDown", "From 30 to 100%", "From 30 to 100%");
    add("highDetectUp", "From 1 to 75%", "From 1 to 75%");
}

void TestToolTips::rangeOfAField()
{
    QFETCH(QString, widget);
    for (const bool imperial : {false, true}) {
        ReadyBench bench(imperial);
        bench.openTab(widget.startsWith("low") ? "low" : "high");
        QTEST(hovered(bench.find<QWidget>(widget)), imperial ? "imperial" : "metric");
    }
}

void TestToolTips::lockedControlTellsWhy_data()
{
    QTest::addColumn<QString>("press");
    QTest::addColumn<QString>("control");
    QTest::addColumn<QString>("reason");
    QTest::newRow("Auto: slider") << "highAutoRadio"
                                  << "highGainSlider"
                                  << "Auto and Shallow mode set this: choose Manual to change it";
    QTest::newRow("Auto: button") << "highAutoRadio"
                                  << "highGainUp"
                                  << "Auto and Shallow mode set this: choose Manual to change it";
    QTest::newRow("Auto: edit") << "highAutoRadio"
                                << "highDraft"
                                << "From 0.00 to 100.00 m";
    QTest::newRow("off: edit") << "disableHF"
                               << "highDraft"
                               << "The high frequency is switched off";
    QTest::newRow("off: option") << "disableHF"
                                 << "highManualRadio"
                                 << "The high frequency is switched off";
    QTest::newRow("off: switch") << "disableHF"
                                 << "enableHF"
                                 << "";
    QTest::newRow("connected: list") << "highManualRadio"
                                     << "portComboBox"
                                     << "Disconnect to change this";
    QTest::newRow("connected: unit") << "highManualRadio"
                                     << "imperialRadio"
                                     << "Disconnect to change this";
    QTest::newRow("Shallow: the other channel")
        << "highShallowRadio"
        << "enableLF"
        << "Rests while the high frequency is in Shallow mode";
}

void TestToolTips::lockedControlTellsWhy()
{
    QFETCH(QString, press);
    QFETCH(QString, control);
    ReadyBench bench;
    bench.click(press);
    bench.openTab(control.endsWith("LF") ? "low" : "high");
    QTEST(hovered(bench.find<QWidget>(control)), "reason");
    if (press == "disableHF") {
        bench.click("enableHF");
        QVERIFY2(hovered(bench.find<QWidget>("highDraft")).startsWith("From"), "still locked");
    }
}

void TestToolTips::offlineEverythingOfTheUnitAsksForAConnection()
{
    WindowBench bench;
    for (const char *control : {"pingUp", "maxDepthEdit", "highDraft", "highShallowRadio",
                                "formatComboBox", "newBaudComboBox", "saveSettingsToDevice"}) {
        QCOMPARE(hovered(bench.find<QWidget>(control)),
                 QString("Connect to the TAL-VERO to use this"));
    }
    QCOMPARE(hovered(bench.find<QWidget>("baudComboBox")), QString());
}

void TestToolTips::channelThatTheUnitLacksTellsSo()
{
    ReadyBench bench(false, {}, ReadyBench::quickSounder(SounderFit::HighOnly));
    bench.openTab("low");
    for (const char *control : {"enableLF", "lowAutoRadio", "lowGainUp", "lowDraft"}) {
        QCOMPARE(hovered(bench.find<QWidget>(control)), QString("This unit has no low frequency"));
    }
}

void TestToolTips::fixedFormatIsNamed()
{
    ReadyBench bench;
    bench.choose("formatComboBox", "KESTROLA");
    for (const char *control : {"newBaudComboBox", "highAutoRadio", "highOffTvg"}) {
        QCOMPARE(hovered(bench.find<QWidget>(control)), QString("Fixed by KESTROLA"));
    }
    QCOMPARE(hovered(bench.find<QWidget>("formatComboBox")), QString());
}

void TestToolTips::toolTipOfAnotherStaysUntilSomethingChanges()
{
    QWidget area;
    QWidget edit(&area);
    ControlTips tips;
    tips.setOwn(&edit, "From 1 to 2");
    edit.setToolTip("Press Return to send");
    tips.lock(&area, QString());
    tips.setOwn(&edit, "From 1 to 2");
    QCOMPARE(edit.toolTip(), QString("Press Return to send"));
    tips.lock(&area, "Not now");
    QCOMPARE(edit.toolTip(), QString("Not now"));
    QCOMPARE(area.toolTip(), QString("Not now"));
    tips.lock(&area, QString());
    QCOMPARE(edit.toolTip(), QString("From 1 to 2"));
    QCOMPARE(area.toolTip(), QString());
}

void TestToolTips::portEntriesTellTheirDetails()
{
    MainWindow window(
        [] {
            return QStringList{"COM3", "COM4"};
        },
        nullptr, [](const QString &port) { return "Adapter of " + port; });
    auto *const list = window.findChild<QComboBox *>("portComboBox");
    window.show();
    list->showPopup();
    QVERIFY(QTest::qWaitForWindowExposed(list->view()->window()));
    const QModelIndex entry = list->model()->index(2, 0);
    QWidget *const viewport = list->view()->viewport();
    const QPoint place = list->view()->visualRect(entry).center();
    QHelpEvent help(QEvent::ToolTip, place, viewport->mapToGlobal(place));
    QApplication::sendEvent(viewport, &help);
    QCOMPARE(QToolTip::text(), QString("Adapter of COM4"));
    list->hidePopup();
}

void TestToolTips::detailsAreShownAsTheyAre()
{
    QCOMPARE(literalToolTip("USB Serial, FTDI"), QString("USB Serial, FTDI"));
    const QString shown = literalToolTip("<b>USB</b> <img src=x>");
    QCOMPARE(shown, QString("<span>&lt;b&gt;USB&lt;/b&gt; &lt;img src=x&gt;</span>"));
}

void TestToolTips::detailsCostNoListing()
{
    int listed = 0;
    QComboBox list;
    PortChooser chooser(
        list,
        [&listed] {
            ++listed;
            return QStringList{"COM1", "COM2"};
        },
        [](const QString &port) { return port + "!"; });
    chooser.updateSerialPorts();
    QCOMPARE(listed, 1);
    QCOMPARE(list.itemData(0, Qt::ToolTipRole), QVariant());
    QCOMPARE(list.itemData(2, Qt::ToolTipRole).toString(), QString("COM2!"));
}

void TestToolTips::withoutAPortTheListTellsWhatToCheck()
{
    QStringList ports;
    MainWindow window([&ports] { return ports; });
    auto *const list = window.findChild<QComboBox *>("portComboBox");
    window.show();
    QVERIFY(hovered(list).startsWith("No serial port found. Check that the cable"));
    ports << "COM7";
    QMetaObject::invokeMethod(&window, "updateSerialPorts");
    QCOMPARE(hovered(list), QString());
    ports.clear();
    QMetaObject::invokeMethod(&window, "updateSerialPorts");
    QVERIFY(hovered(list).startsWith("No serial port found."));
}

QTEST_MAIN(TestToolTips)
#include "tst_tooltips.moc"
