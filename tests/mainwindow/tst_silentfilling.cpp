// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "appearance.h"
#include "logcapture.h"
#include "readybench.h"

namespace {

/// Every value differs from what the window shows at its start.
void makeUnusual(SounderSettings &settings)
{
    settings.pings = 2;
    settings.velocityMmS = 1444000;
    settings.maxDepthMm = 77000;
    settings.format = Orvando;
    settings.highOn = settings.lowOn = false;
    for (ChannelSettings *channel : {&settings.high, &settings.low}) {
        channel->mode = 'm';
        channel->gain = 30;
        channel->tvg = 'N';
        channel->blankingMm = 2500;
        channel->draftMm = 1234;
        channel->indexMm = 567;
        channel->pulse = 7;
        channel->detect = 9;
    }
    settings.high.freqKHz = 207;
    settings.low.freqKHz = 31;
}

struct Shown
{
    const char *name;
    const char *metric;
    const char *imperial;
};

constexpr Shown shownValues[] = {
    {"pingEdit", "2", "2"},         {"soundVelocityEdit", "1444", "4738"},
    {"maxDepthEdit", "77", "253"},  {"formatComboBox", "ORVANDO", "ORVANDO"},
    {"highPulseEdit", "7", "7"},    {"lowGainEdit", "51%", "51%"},
    {"highDetectEdit", "9%", "9%"}, {"highBlankEdit", "2.50 m", "8.20 ft"},
    {"lowBlank", "2.50", "8.20"},   {"lowDraft", "1.23", "4.05"},
    {"highIndex", "0.57", "1.86"},  {"highFreq", "207", "207"},
    {"lowFreq", "31", "31"},
};

} // namespace

/// What the sounder reports goes into the window and not back to the sounder.
class SilentFillingTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { giveProgramStyle(); }

    void fillingFromTheReplySendsNothing_data();
    void fillingFromTheReplySendsNothing();
    void aSecondReplyThatChangesEverythingSendsNothing();
    void aSwitchOfTheUnitBetweenConnectionsSendsNothing();
    void aClickOnTheGreyedUnitChangesNothing();
    void editsActAfterTheFilling();
};

void SilentFillingTest::fillingFromTheReplySendsNothing_data()
{
    QTest::addColumn<bool>("imperial");
    QTest::newRow("metric") << false;
    QTest::newRow("imperial") << true;
}

void SilentFillingTest::fillingFromTheReplySendsNothing()
{
    QFETCH(bool, imperial);
    LogCapture log;
    ReadyBench bench(imperial, makeUnusual);
    for (const Shown &shown : shownValues) {
        QCOMPARE(bench.text(shown.name), QString(imperial ? shown.imperial : shown.metric));
    }
    for (const char *radio : {"disableHF", "disableLF", "highOffTvg", "lowManualRadio"}) {
        QVERIFY2(bench.isChecked(radio), radio);
    }
    QVERIFY(!log.contains("trigger change "));
    QVERIFY(!bench.hasPendingChange());
    QCOMPARE(bench.info(), QString("Connected to TAL-VERO"));
    const QMap<QString, int> counts = bench.device().counts();
    for (const char *kind : {"set", "enable", "disable"}) {
        QVERIFY2(counts.value(kind) == 0, kind);
    }
}

void SilentFillingTest::aSecondReplyThatChangesEverythingSendsNothing()
{
    ReadyBench bench(false, makeUnusual);
    bench.click("connectToDevice");
    bench.device().settings() = factorySettings(SounderFit::Dual);
    LogCapture log;
    bench.reconnect();
    QCOMPARE(bench.text("highPulseEdit"), QString("16"));
    QVERIFY(bench.isChecked("enableHF") && bench.isChecked("enableLF"));
    QVERIFY(!log.contains("trigger change "));
    QCOMPARE(log.count("Sending "), 5); // wake-up, probe and the three requests
}

void SilentFillingTest::aSwitchOfTheUnitBetweenConnectionsSendsNothing()
{
    ReadyBench bench(false, makeUnusual);
    bench.click("connectToDevice");
    LogCapture log;
    bench.click("imperialRadio");
    bench.click("metricRadio");
    bench.click("imperialRadio");
    QVERIFY(!bench.hasPendingChange());
    bench.reconnect();
    QCOMPARE(bench.text("highDraft"), QString("4.05"));
    QVERIFY(!log.contains("trigger change "));
    QCOMPARE(log.count("Sending "), 5);
}

void SilentFillingTest::aClickOnTheGreyedUnitChangesNothing()
{
    ReadyBench bench;
    bench.click("imperialRadio");
    QVERIFY(bench.isChecked("metricRadio"));
    QCOMPARE(bench.text("maxDepthLabel"), QString("Max Depth (m)"));
}

void SilentFillingTest::editsActAfterTheFilling()
{
    ReadyBench bench(true, makeUnusual);
    bench.click("enableHF");
    QVERIFY(bench.settles());
    bench.device().clearTranscript();
    bench.click("highBlankUp");
    QCOMPARE(bench.takeCommands(), QByteArrayList{"*m02529H"});
    QCOMPARE(bench.info(), QString("Setting High Frequency Blanking to 8.30 ft ... Success"));
}

QTEST_MAIN(SilentFillingTest)
#include "tst_silentfilling.moc"
