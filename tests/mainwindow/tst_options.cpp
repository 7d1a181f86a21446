// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "appearance.h"
#include "readybench.h"

namespace {

/// What differs between the channels in names and words.
struct ChannelWords
{
    const char *name;
    const char *radioSuffix;
    const char *modeName;
    const char *tvgName;
    char mark;
};

constexpr ChannelWords channelWords[] = {
    {"high", "HF", "High Frequency Sounder Mode", "High Time Variable Gain", 'H'},
    {"low", "LF", "Low Frequency Sounder Mode", "Low Time Variable Gain", 'L'},
};

QString announced(const QString &setting, const QString &value)
{
    return "Setting " + setting + " to " + value;
}

QByteArray letterCommand(const char *bare, char mark) { return QByteArray(bare) + "...." + mark; }

char &modeOf(SounderSettings &settings, const QString &channel)
{
    return (channel == "high" ? settings.high : settings.low).mode;
}

bool &onOf(SounderSettings &settings, const QString &channel)
{
    return channel == "high" ? settings.highOn : settings.lowOn;
}

bool areasUsable(ReadyBench &bench, const QString &channel)
{
    return bench.isUsable(channel + "ModeColumn") && bench.isUsable(channel + "TvgColumn") &&
           bench.isUsable(channel + "LowerPart");
}

bool areasGreyed(ReadyBench &bench, const QString &channel)
{
    return bench.isGreyed(channel + "ModeColumn") && bench.isGreyed(channel + "TvgColumn") &&
           bench.isGreyed(channel + "LowerPart");
}

} // namespace

class OptionsTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { giveProgramStyle(); }

    void aModeIsSentAndRulesTheManualSettings_data();
    void aModeIsSentAndRulesTheManualSettings();
    void aTvgIsSent_data();
    void aTvgIsSent();
    void aChannelIsSwitchedAtOnceWithoutTheQueue_data();
    void aChannelIsSwitchedAtOnceWithoutTheQueue();
    void aChannelSwitchOvertakesAChangeThatWaits();
    void enablingAChannelLocksItsManualSettingsUnlessManualIsChosen_data();
    void enablingAChannelLocksItsManualSettingsUnlessManualIsChosen();
    void highShallowOnADualUnitRestsTheLowChannel();
    void leavingHighShallowWakesTheLowChannel_data();
    void leavingHighShallowWakesTheLowChannel();
    void leavingHighShallowKeepsALowChannelOffThatWasSwitchedOff();
    void highShallowOnAHighOnlyUnitLeavesTheMissingLowChannelGreyed();
    void lowShallowHasNoEffectOnTheHighChannel();
};

void OptionsTest::aModeIsSentAndRulesTheManualSettings_data()
{
    QTest::addColumn<QString>("channel");
    QTest::addColumn<char>("before");
    QTest::addColumn<QString>("mode");
    QTest::addColumn<bool>("manualUsable");
    QTest::addColumn<QByteArray>("wire");
    QTest::addColumn<QString>("announcement");
    for (const ChannelWords &words : channelWords) {
        const auto add = [&words](char before, const char *mode, bool usable, const char *bare) {
            QTest::addRow("%s %s", words.name, mode)
                << QString(words.name) << before << QString(mode) << usable
                << letterCommand(bare, words.mark) << announced(words.modeName, mode);
        };
        add('m', "Auto", false, "*ca");
        add('m', "Shallow", false, "*cs");
        add('a', "Manual", true, "*cm");
    }
}

void OptionsTest::aModeIsSentAndRulesTheManualSettings()
{
    QFETCH(QString, channel);
    QFETCH(char, before);
    QFETCH(QString, mode);
    QFETCH(bool, manualUsable);
    QFETCH(QString, announcement);
    ReadyBench bench(false, [&](SounderSettings &settings) { modeOf(settings, channel) = before; });
    bench.openTab(channel);
    QCOMPARE(bench.isUsable(channel + "ManualGroup"), !manualUsable);
    bench.click(channel + mode + "Radio");
    QVERIFY2(bench.isChecked(channel + mode + "Radio"), "the radio button does not take the click");
    QCOMPARE(bench.isUsable(channel + "ManualGroup"), manualUsable);
    QCOMPARE(bench.isGreyed(channel + "ManualGroup"), !manualUsable);
    QVERIFY2(bench.isUsable(channel + "InputsGroup"), "the inputs apply in every mode");
    QTEST(bench.takeCommands().join(' '), "wire");
    QCOMPARE(bench.info(), announcement + " ... Success");
}

void OptionsTest::aTvgIsSent_data()
{
    QTest::addColumn<QString>("channel");
    QTest::addColumn<char>("before");
    QTest::addColumn<QString>("radio");
    QTest::addColumn<QByteArray>("wire");
    QTest::addColumn<QString>("announcement");
    for (const ChannelWords &words : channelWords) {
        const auto add = [&words](char before, const char *radio, const char *bare,
                                  const char *word) {
            QTest::addRow("%s %s", words.name, word)
                << QString(words.name) << before << words.name + QString(radio)
                << letterCommand(bare, words.mark) << announced(words.tvgName, word);
        };
        add('T', "OffTvg", "*lN", "OFF");
        add('W', "Log10Tvg", "*lT", "Log 10");
        add('N', "Log20Tvg", "*lW", "Log 20");
    }
}

void OptionsTest::aTvgIsSent()
{
    QFETCH(QString, channel);
    QFETCH(char, before);
    QFETCH(QString, radio);
    QFETCH(QString, announcement);
    ReadyBench bench(false, [before](SounderSettings &settings) {
        settings.high.tvg = settings.low.tvg = before;
    });
    bench.openTab(channel);
    bench.click(radio);
    QVERIFY2(bench.isChecked(radio), "the radio button does not take the click");
    QTEST(bench.takeCommands().join(' '), "wire");
    QCOMPARE(bench.info(), announcement + " ... Success");
}

void OptionsTest::aChannelIsSwitchedAtOnceWithoutTheQueue_data()
{
    QTest::addColumn<QString>("channel");
    QTest::addColumn<QString>("radio");
    QTest::addColumn<bool>("on");
    QTest::addColumn<QByteArray>("wire");
    QTest::addColumn<QString>("announcement");
    QTest::newRow("HF on") << "high"
                           << "enableHF" << true << QByteArray("*bHHHHHHH")
                           << "Enabling High Frequency";
    QTest::newRow("HF off") << "high"
                            << "disableHF" << false << QByteArray("*hHHHHHHH") << "Disabling HF";
    QTest::newRow("LF on") << "low"
                           << "enableLF" << true << QByteArray("*bLLLLLLL")
                           << "Enabling Low Frequency";
    QTest::newRow("LF off") << "low"
                            << "disableLF" << false << QByteArray("*hLLLLLLL") << "Disabling LF";
}

void OptionsTest::aChannelIsSwitchedAtOnceWithoutTheQueue()
{
    QFETCH(QString, channel);
    QFETCH(QString, radio);
    QFETCH(bool, on);
    QFETCH(QString, announcement);
    const QString other = channel == "high" ? "low" : "high";
    ReadyBench bench(false, [&](SounderSettings &settings) { onOf(settings, channel) = !on; });
    bench.openTab(channel);
    QCOMPARE(areasUsable(bench, channel), !on);
    bench.click(radio);
    QCOMPARE(bench.info(), announcement);
    QCOMPARE(bench.infoColour(), QString("black"));
    QVERIFY2(!bench.hasPendingChange(), "the switch waits in the queue");
    QCOMPARE(areasUsable(bench, channel), on);
    QCOMPARE(areasGreyed(bench, channel), !on);
    QVERIFY2(bench.isUsable(channel + "EnableColumn"), "it could not be switched back");
    bench.openTab(other);
    QVERIFY2(areasUsable(bench, other), "the other channel is touched");
    QVERIFY(bench.settles());
    QTEST(bench.device().rawReceived(), "wire"); // nine characters, of which the device reads eight
    QCOMPARE(bench.info(), announcement + " ... Success");
    QCOMPARE(onOf(bench.device().settings(), channel), on);
}

void OptionsTest::aChannelSwitchOvertakesAChangeThatWaits()
{
    ReadyBench bench;
    bench.timer("commandTimer")->setInterval(200);
    bench.click("highPulseUp");
    bench.click("disableLF");
    QCOMPARE(bench.takeCommands(), (QByteArrayList{"*hLLLLLL", "*p17...H"}));
}

void OptionsTest::enablingAChannelLocksItsManualSettingsUnlessManualIsChosen_data()
{
    QTest::addColumn<QString>("channel");
    QTest::addColumn<QString>("enable");
    QTest::addColumn<char>("mode");
    for (const ChannelWords &words : channelWords) {
        for (const char mode : {'a', 's', 'm'}) {
            QTest::addRow("%s in mode %c", words.name, mode)
                << QString(words.name) << "enable" + QString(words.radioSuffix) << mode;
        }
    }
}

void OptionsTest::enablingAChannelLocksItsManualSettingsUnlessManualIsChosen()
{
    QFETCH(QString, channel);
    QFETCH(QString, enable);
    QFETCH(char, mode);
    ReadyBench bench(false, [&](SounderSettings &settings) {
        onOf(settings, channel) = false;
        modeOf(settings, channel) = mode;
    });
    bench.openTab(channel);
    QVERIFY(bench.isGreyed(channel + "ManualGroup"));
    bench.click(enable);
    QCOMPARE(bench.isUsable(channel + "ManualGroup"), mode == 'm');
    QVERIFY(bench.isUsable(channel + "InputsGroup"));
}

void OptionsTest::highShallowOnADualUnitRestsTheLowChannel()
{
    ReadyBench bench;
    bench.click("highShallowRadio");
    bench.openTab("low");
    QVERIFY2(areasGreyed(bench, "low"), "the low channel can still be set");
    QVERIFY2(bench.isGreyed("lowEnableColumn"), "the low channel could be switched on");
    QVERIFY2(bench.isChecked("enableLF"), "the operator's choice is lost");
    QCOMPARE(bench.takeCommands(), QByteArrayList{"*cs....H"});
    QVERIFY2(bench.device().settings().lowOn, "the low channel was switched off in the device");
}

void OptionsTest::leavingHighShallowWakesTheLowChannel_data()
{
    QTest::addColumn<QString>("radio");
    QTest::newRow("to Auto") << "highAutoRadio";
    QTest::newRow("to Manual") << "highManualRadio";
}

void OptionsTest::leavingHighShallowWakesTheLowChannel()
{
    QFETCH(QString, radio);
    ReadyBench bench;
    bench.click("highShallowRadio");
    bench.click(radio);
    bench.openTab("low");
    QVERIFY(areasUsable(bench, "low"));
    QVERIFY(bench.isUsable("lowEnableColumn"));
}

void OptionsTest::leavingHighShallowKeepsALowChannelOffThatWasSwitchedOff()
{
    ReadyBench bench;
    bench.click("disableLF");
    bench.click("highShallowRadio");
    bench.click("highAutoRadio");
    bench.openTab("low");
    QVERIFY2(areasGreyed(bench, "low"), "the low channel was off and is usable now");
    QVERIFY2(bench.isUsable("lowEnableColumn"), "the low channel could not be switched on");
}

void OptionsTest::highShallowOnAHighOnlyUnitLeavesTheMissingLowChannelGreyed()
{
    // Such a unit may report its missing channel as switched on; nothing may come of that either.
    const auto reportLowOn = [](SounderSettings &settings) { settings.lowOn = true; };
    ReadyBench bench(false, reportLowOn, ReadyBench::quickSounder(SounderFit::HighOnly));
    QVERIFY(bench.isChecked("enableLF"));
    bench.click("highShallowRadio");
    bench.click("highAutoRadio");
    bench.openTab("low");
    QVERIFY(areasGreyed(bench, "low"));
    QVERIFY2(bench.isGreyed("lowEnableColumn"), "a channel that is not there can be switched on");
}

/// Deliberately unlike the high channel's Shallow.
void OptionsTest::lowShallowHasNoEffectOnTheHighChannel()
{
    ReadyBench bench;
    bench.openTab("low");
    bench.click("lowShallowRadio");
    QVERIFY(bench.isGreyed("lowManualGroup"));
    QVERIFY(bench.isUsable("lowEnableColumn"));
    bench.openTab("high");
    QVERIFY(areasUsable(bench, "high"));
    QVERIFY(bench.isUsable("highEnableColumn"));
    QCOMPARE(bench.takeCommands(), QByteArrayList{"*cs....L"});
}

QTEST_MAIN(OptionsTest)
#include "tst_options.moc"
