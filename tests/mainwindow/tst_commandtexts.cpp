// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "fieldbench.h"
#include "logcapture.h"

#include <QtTest>

#include <memory>

namespace {

/// A change, the eight characters that the device receives for it, and what the operator reads.
/// The value after the control's name is what is typed into it or chosen from it; without one the
/// control is clicked.
struct Change
{
    const char *control;
    const char *value;
    const char *command;
    const char *announced;
};

// The device starts at 5 pings, 1500 m/s, 30 m, NMEA DBS, 9600, drafts of 0.40 m, no index, high
// blanking 0.45 m and low 0.50 m, 200 and 33 kHz, gain 75 %, detection 50 %, 16 pulses, manual
// mode, Log 10 high and Log 20 low.
// clang-format off
constexpr Change metricChanges[] = {
    {"pingUp",           "",            "*i06....", "Setting Pings Per Second to 6"},
    {"soundVelocityUp",  "",            "*v501000", "Setting Sound Velocity to 1501 m/s"},
    {"maxDepthUp",       "",            "*s035000", "Setting Maximum Depth to 35 m"},
    {"newBaudComboBox",  "38400",       "*I111...", "Setting Baud Rate to 38400"},
    {"newBaudComboBox",  "115200",      "*I333...", "Setting Baud Rate to 115200"},
    {"formatComboBox",   "ODOM",        "*a1.....", "Setting Output Format to ODOM"},
    {"formatComboBox",   "SONARMITE DUAL", "*a9.....", "Setting Output Format to SONARMITE DUAL"},

    {"highDraftUp",      "",            "*o00500H", "Setting High Frequency Draft to 0.50 m"},
    {"highIndexUp",      "",            "*q00100H", "Setting High Frequency Index to 0.10 m"},
    {"highFreqUp",       "",            "*w0201.H", "Setting High Frequency to 201 kHz"},
    {"highBlankUp",      "",            "*m00550H", "Setting High Frequency Blanking to 0.55 m"},
    {"highPulseUp",      "",            "*p17...H", "Setting High Frequency Pulse Cycles to 17"},
    {"highGainUp",       "",            "*g071..H", "Setting High Frequency Gain to 80%"},
    {"highDetectUp",     "",            "*t051..H", "Setting High Frequency Detection Level to 51%"},
    {"highAutoRadio",    "",            "*ca....H", "Setting High Frequency Sounder Mode to Auto"},
    {"highShallowRadio", "",            "*cs....H", "Setting High Frequency Sounder Mode to Shallow"},
    {"highOffTvg",       "",            "*lN....H", "Setting High Time Variable Gain to OFF"},
    {"highLog20Tvg",     "",            "*lW....H", "Setting High Time Variable Gain to Log 20"},

    {"lowDraftUp",       "",            "*o00500L", "Setting Low Frequency Draft to 0.50 m"},
    {"lowIndexUp",       "",            "*q00100L", "Setting Low Frequency Index to 0.10 m"},
    {"lowFreqUp",        "",            "*w0034.L", "Setting Low Frequency to 34 kHz"},
    {"lowBlankUp",       "",            "*m00600L", "Setting Low Frequency Blanking to 0.60 m"},
    {"lowPulseUp",       "",            "*p17...L", "Setting Low Frequency Pulse Cycles to 17"},
    {"lowGainUp",        "",            "*g071..L", "Setting Low Frequency Gain to 80%"},
    {"lowDetectUp",      "",            "*t051..L", "Setting Low Frequency Detection Level to 51%"},
    {"lowAutoRadio",     "",            "*ca....L", "Setting Low Frequency Sounder Mode to Auto"},
    {"lowShallowRadio",  "",            "*cs....L", "Setting Low Frequency Sounder Mode to Shallow"},
    {"lowOffTvg",        "",            "*lN....L", "Setting Low Time Variable Gain to OFF"},
    {"lowLog10Tvg",      "",            "*lT....L", "Setting Low Time Variable Gain to Log 10"},

    {"highDraft",        "100",         "*o100000", "Setting High Frequency Draft to 100.00 m"},
    {"lowDraft",         "100",         "*o100000", "Setting Low Frequency Draft to 100.00 m"},
    {"highIndex",        "100",         "*q100000", "Setting High Frequency Index to 100.00 m"},
    {"lowIndex",         "100",         "*q100000", "Setting Low Frequency Index to 100.00 m"},
    {"highFreq",         "199.5",       "*w0199.H", "Setting High Frequency to 199.5 kHz"},
};

constexpr Change imperialChanges[] = {
    {"pingUp",            "",        "*i06....", "Setting Pings Per Second to 6"},
    {"soundVelocityEdit", "4921.26", "*v500000", "Setting Sound Velocity to 4921 ft/s"},
    {"maxDepthEdit",      "120",     "*s036576", "Setting Maximum Depth to 120 ft"},
    {"formatComboBox",    "ODOM",    "*a1.....", "Setting Output Format to ODOM"},
    {"highDraft",         "1.64042", "*o00500H", "Setting High Frequency Draft to 1.64 ft"},
    {"lowDraft",          "1.64042", "*o00500L", "Setting Low Frequency Draft to 1.64 ft"},
    {"highIndex",         "1",       "*q00304H", "Setting High Frequency Index to 1.00 ft"},
    {"lowIndex",          "1",       "*q00304L", "Setting Low Frequency Index to 1.00 ft"},
    {"highBlank",         "5",       "*m01524H", "Setting High Frequency Blanking to 5.00 ft"},
    {"lowBlank",          "5",       "*m01524L", "Setting Low Frequency Blanking to 5.00 ft"},
    {"highFreqUp",        "",        "*w0201.H", "Setting High Frequency to 201 kHz"},
    {"lowFreqUp",         "",        "*w0034.L", "Setting Low Frequency to 34 kHz"},
    {"highGainUp",        "",        "*g071..H", "Setting High Frequency Gain to 80%"},
    {"lowDetectUp",       "",        "*t051..L", "Setting Low Frequency Detection Level to 51%"},
    {"lowPulseUp",        "",        "*p17...L", "Setting Low Frequency Pulse Cycles to 17"},
    {"highLog20Tvg",      "",        "*lW....H", "Setting High Time Variable Gain to Log 20"},
};
// clang-format on

} // namespace

class CommandTextsTest : public QObject
{
    Q_OBJECT

private slots:
    void init() { log = std::make_unique<LogCapture>(); }
    void cleanup() { log.reset(); }

    void everyChangeIsPaddedMarkedAndAnnounced_data();
    void everyChangeIsPaddedMarkedAndAnnounced();
    void nothingElseGoesOverTheLine();

private:
    std::unique_ptr<LogCapture> log;
};

namespace {

void make(FieldBench &bench, const QString &control, const QString &value)
{
    bench.showTabOf(control);
    if (value.isEmpty()) {
        bench.click(control);
    } else if (control.endsWith("ComboBox")) {
        bench.choose(control, value);
    } else {
        bench.type(control, value);
    }
}

} // namespace

void CommandTextsTest::everyChangeIsPaddedMarkedAndAnnounced_data()
{
    QTest::addColumn<bool>("imperial");
    QTest::addColumn<QString>("control");
    QTest::addColumn<QString>("value");
    QTest::addColumn<QByteArray>("command");
    QTest::addColumn<QString>("announced");

    const auto addRow = [](const Change &change, bool imperial) {
        QTest::addRow("%s %s, %s", change.control, change.value, imperial ? "imperial" : "metric")
            << imperial << change.control << change.value << QByteArray(change.command)
            << change.announced;
    };
    for (const Change &change : metricChanges) {
        addRow(change, false);
    }
    for (const Change &change : imperialChanges) {
        addRow(change, true);
    }
}

void CommandTextsTest::everyChangeIsPaddedMarkedAndAnnounced()
{
    QFETCH(bool, imperial);
    QFETCH(QString, control);
    QFETCH(QString, value);
    FieldBench bench(imperial ? FieldBench::Unit::Imperial : FieldBench::Unit::Metric);
    bench.device().clearTranscript();
    make(bench, control, value);
    QVERIFY2(bench.awaitAnswer(), qPrintable("the info line stays at " + bench.info()));
    QTEST(bench.announcement(), "announced");
    QFETCH(QByteArray, command);
    QCOMPARE(bench.settingCommands(), QByteArrayList{command});
}

/// The device reads eight characters from "*" on; here are all the bytes.
void CommandTextsTest::nothingElseGoesOverTheLine()
{
    FieldBench bench;
    bench.device().clearTranscript();
    bench.showTabOf("lowPulseUp");
    bench.click("lowPulseUp");
    QVERIFY(bench.awaitAnswer());
    QCOMPARE(bench.device().rawReceived(), QByteArray("*p17...L"));
}

QTEST_MAIN(CommandTextsTest)

#include "tst_commandtexts.moc"
