// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "appearance.h"
#include "dialoghand.h"
#include "logcapture.h"
#include "readybench.h"

#include <QAbstractButton>
#include <QMessageBox>
#include <QPushButton>
#include <QRadioButton>

namespace {

using BoxHand = DialogHand<QMessageBox>;

void press(QMessageBox &box, QMessageBox::StandardButton button) { box.button(button)->click(); }

const char resetQuestion[] =
    "This will reset the TAL-VERO settings to factory default, discarding your changes. Are you "
    "sure you'd like to proceed?";

} // namespace

class DeviceActionsTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { giveProgramStyle(); }

    void factoryResetAsks();
    void factoryResetIsSentOnYesAndClosesTheLink();
    void factoryResetIsNotSent_data();
    void factoryResetIsNotSent();
    void factoryResetIsNotAnnouncedWhenTheLinkWasLostMeanwhile();
    void refusedFactoryResetKeepsTheLink();
    void factoryResetOvertakesAChangeThatWaits();
    void saveToDeviceIsSentWithoutAQuestion();
    void saveToDeviceOvertakesAChangeThatWaits();
    void refusedSaveIsShown();
    void theAutosaveSwitchIsHiddenAndDormant();
};

void DeviceActionsTest::factoryResetAsks()
{
    ReadyBench bench;
    QString title;
    QString text;
    QMessageBox::StandardButtons buttons;
    QMessageBox::Icon icon = QMessageBox::NoIcon;
    QMessageBox::StandardButton defaultButton = QMessageBox::NoButton;
    QMessageBox::StandardButton escapeButton = QMessageBox::NoButton;
    const BoxHand hand([&](QMessageBox &box) {
        title = box.windowTitle();
        text = box.text();
        buttons = box.standardButtons();
        icon = box.icon();
        defaultButton = box.standardButton(box.defaultButton());
        escapeButton = box.standardButton(box.escapeButton());
        press(box, QMessageBox::Cancel);
    });
    bench.click("resetSettings");
    QCOMPARE(hand.count(), 1);
    QCOMPARE(title, QString("Reset Settings"));
    QCOMPARE(text, QString(resetQuestion));
    QCOMPARE(buttons, QMessageBox::Yes | QMessageBox::Cancel);
    QCOMPARE(icon, QMessageBox::Question);
    QCOMPARE(defaultButton, QMessageBox::Cancel);
    QCOMPARE(escapeButton, QMessageBox::Cancel);
}

void DeviceActionsTest::factoryResetIsSentOnYesAndClosesTheLink()
{
    ReadyBench bench(false, [](SounderSettings &settings) { settings.high.pulse = 30; });
    QCOMPARE(bench.text("highPulseEdit"), QString("30"));
    const BoxHand hand([](QMessageBox &box) { press(box, QMessageBox::Yes); });
    LogCapture log;
    bench.click("resetSettings");
    QVERIFY(log.contains("Yes was clicked"));
    QCOMPARE(bench.info(), QString("Sending Factory Reset to Device"));
    QCOMPARE(bench.infoColour(), QString("black"));
    QTRY_COMPARE(bench.info(), QString("Sending Factory Reset to Device ... Success"));
    QCOMPARE(bench.settingCommands(), QByteArrayList{"*R345678"});
    QVERIFY2(!bench.showsConnected(), "the link outlives the reset");
    QVERIFY2(!bench.holdsPort(), "the port is still open");
    bench.reconnect();
    QCOMPARE(bench.text("highPulseEdit"), QString("16"));
}

void DeviceActionsTest::factoryResetIsNotSent_data()
{
    QTest::addColumn<int>("key");
    QTest::newRow("after Cancel") << 0;
    QTest::newRow("after Escape, which is taken for Cancel") << int(Qt::Key_Escape);
    QTest::newRow("after Return, pressed in a hurry") << int(Qt::Key_Return);
}

void DeviceActionsTest::factoryResetIsNotSent()
{
    QFETCH(int, key);
    ReadyBench bench;
    const QString info = bench.info();
    const BoxHand hand([key](QMessageBox &box) {
        if (key != 0) {
            QTest::keyClick(&box, Qt::Key(key));
        } else {
            press(box, QMessageBox::Cancel);
        }
    });
    LogCapture log;
    bench.click("resetSettings");
    QCOMPARE(hand.count(), 1);
    QVERIFY(log.contains("Cancel was clicked"));
    QVERIFY(!log.contains("Sending "));
    QCOMPARE(bench.info(), info);
    QVERIFY(bench.showsConnected());
}

void DeviceActionsTest::factoryResetIsNotAnnouncedWhenTheLinkWasLostMeanwhile()
{
    ReadyBench bench;
    const BoxHand hand([&bench](QMessageBox &box) {
        bench.sounder.hangUp();
        QVERIFY(QTest::qWaitFor([&bench] { return !bench.showsConnected(); }));
        press(box, QMessageBox::Yes);
    });
    bench.click("resetSettings");
    QCOMPARE(hand.count(), 1);
    QCOMPARE(bench.info(), QString("Lost Connection To Device"));
}

void DeviceActionsTest::refusedFactoryResetKeepsTheLink()
{
    ReadyBench bench;
    bench.device().setFault("refuse", 1);
    const BoxHand hand([](QMessageBox &box) { press(box, QMessageBox::Yes); });
    bench.click("resetSettings");
    QTRY_COMPARE(bench.info(), QString("Sending Factory Reset to Device ... Received Error - "
                                       "Command Not Applied"));
    QCOMPARE(bench.infoColour(), QString("Red"));
    QVERIFY(bench.showsConnected());
}

/// The link closes behind the reset, and the change that waited is dropped.
void DeviceActionsTest::factoryResetOvertakesAChangeThatWaits()
{
    ReadyBench bench;
    bench.timer("commandTimer")->setInterval(500);
    const BoxHand hand([](QMessageBox &box) { press(box, QMessageBox::Yes); });
    bench.click("highPulseUp");
    bench.click("resetSettings");
    QTRY_VERIFY(!bench.showsConnected());
    QTRY_VERIFY(!bench.hasPendingChange());
    QCOMPARE(bench.settingCommands(), QByteArrayList{"*R345678"});
}

void DeviceActionsTest::saveToDeviceIsSentWithoutAQuestion()
{
    ReadyBench bench;
    bench.click("highPulseUp");
    QVERIFY(bench.settles());
    bench.device().clearTranscript();
    const BoxHand hand([](QMessageBox &box) { box.reject(); });
    bench.click("saveSettingsToDevice");
    QCOMPARE(bench.info(), QString("Sending Save Command to Device"));
    QCOMPARE(bench.infoColour(), QString("black"));
    QTRY_COMPARE(bench.info(), QString("Sending Save Command to Device ... Success"));
    QCOMPARE(bench.infoColour(), QString("Green"));
    QCOMPARE(bench.settingCommands(), QByteArrayList{"*F345678"});
    QCOMPARE(bench.device().keptSettings().high.pulse, 17);
    QCOMPARE(hand.count(), 0);
    QVERIFY(bench.showsConnected());
}

void DeviceActionsTest::saveToDeviceOvertakesAChangeThatWaits()
{
    ReadyBench bench;
    bench.timer("commandTimer")->setInterval(500);
    bench.click("highPulseUp");
    bench.click("saveSettingsToDevice");
    QTRY_COMPARE(bench.info(), QString("Sending Save Command to Device ... Success"));
    QCOMPARE(bench.takeCommands(), (QByteArrayList{"*F345678", "*p17...H"}));
    QCOMPARE(bench.device().keptSettings().high.pulse, 16);
}

void DeviceActionsTest::refusedSaveIsShown()
{
    ReadyBench bench;
    bench.device().setFault("refuse", 1);
    bench.click("saveSettingsToDevice");
    QTRY_COMPARE(bench.info(), QString("Sending Save Command to Device ... Received Error - "
                                       "Command Not Applied"));
}

void DeviceActionsTest::theAutosaveSwitchIsHiddenAndDormant()
{
    ReadyBench bench;
    auto *const autosave = bench.find<QRadioButton>("autoSave");
    QVERIFY(autosave->isHidden());
    for (const bool on : {true, false}) {
        LogCapture log;
        autosave->setAutoExclusive(false);
        autosave->setChecked(on);
        QCOMPARE(log.texts(), QStringList{QString("Autosave is  %1").arg(on ? "true" : "false")});
    }
    QVERIFY(!bench.hasPendingChange());
    bench.click("highPulseUp");
    QCOMPARE(bench.takeCommands(), QByteArrayList{"*p17...H"});
}

QTEST_MAIN(DeviceActionsTest)
#include "tst_deviceactions.moc"
