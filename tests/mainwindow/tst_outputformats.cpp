// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "outputformat.h"
#include "surveybench.h"

#include <QtTest>

#include <memory>

namespace {

using Bottom = SurveyBench::Bottom;

constexpr float none = DepthChartData::noDepth;

/// Where the bottom is at two pings, elsewhere for each format: a depth that stayed from the one
/// before would show. Odd millimetres are rounded on their way.
QList<Bottom> bottomsFor(const QString &format)
{
    const int metres = 1000 * DepthFormats::number(format);
    return {{7'836 + metres, 8'900 + metres}, {8'343 + metres, 9'104 + metres}};
}

/// A depth in centimetres as the sounder must send it.
int sentCm(int bottomMm, int addedMm) { return (bottomMm + addedMm + 5) / 10; }

/// The same in metres or feet as the operator must read it.
QString readable(int cm, bool imperial)
{
    return QString::number(imperial ? cm * 3.28084 / 100 : cm / 100.0, 'f', 2);
}

/// What one ping sends, in centimetres.
struct Sent
{
    int high;
    int low;

    float highM() const { return float(high) / 100; }
    float lowM() const { return float(low) / 100; }
};

/// NMEA DBT is the depth below the transducer, all other formats send that below the surface.
Sent sent(const Bottom &bottom, const QString &format)
{
    const bool isBelowTransducer = format == "NMEA DBT";
    return {sentCm(*bottom.high, isBelowTransducer ? 0 : SurveyBench::highDraftMm),
            sentCm(*bottom.low,
                   SurveyBench::lowIndexMm + (isBelowTransducer ? 0 : SurveyBench::lowDraftMm))};
}

/// A unit, and which of its channels the operator has left on.
struct Unit
{
    const char *name;
    SounderFit fit;
    bool highOn;
    bool lowOn;
};

constexpr Unit dual{"dual unit", SounderFit::Dual, true, true};
constexpr Unit dualLowOff{"dual unit, low off", SounderFit::Dual, true, false};
constexpr Unit dualHighOff{"dual unit, high off", SounderFit::Dual, false, true};
constexpr Unit highOnly{"high only unit", SounderFit::HighOnly, true, false};
constexpr Unit lowOnly{"low only unit", SounderFit::LowOnly, false, true};

/// What the operator reads of a format. "H" and "L" stand for the depths that were sent.
struct Reading
{
    const char *format;
    const char *highLabel;
    const char *lowLabel;
    const char *inGraph; ///< the channels of which the graph gets a depth
};

constexpr char transducer[] = "(Depth Below Transducer)";

/// A format with room for one depth carries the high channel.
constexpr Reading ofBothChannels[] = {
    {"ODOM", "HF Depth: H", "LF Depth: L", "HL"},
    {"NMEA DBT", "HF Depth: H", transducer, "H"},
    {"NMEA DBS", "HF Depth: H", "", "H"},
    {"ORVANDO", "HF Depth: H", "LF Depth: L", "HL"},
    {"DESO 25", "HF Depth: H", "LF Depth: L", "HL"},
    {"KESTROLA", "HF Depth: H", "LF Depth: L", "HL"},
    {"SONARMITE OLD", "HF Depth: H", "", "H"},
    {"SONARMITE NEW", "HF Depth: H", "", "H"},
    {"SONARMITE DUAL", "HF Depth: H", "LF Depth: L", "HL"},
};

/// A channel that is off reads like one that the unit lacks.
constexpr Reading ofHighChannel[] = {
    {"ODOM", "HF Depth: H", "", "H"},           {"NMEA DBT", "HF Depth: H", transducer, "H"},
    {"NMEA DBS", "HF Depth: H", "", "H"},       {"ORVANDO", "HF Depth: H", "", "H"},
    {"DESO 25", "HF Depth: H", "", "H"},        {"KESTROLA", "HF Depth: H", "", "H"},
    {"SONARMITE OLD", "HF Depth: H", "", "H"},  {"SONARMITE NEW", "HF Depth: H", "", "H"},
    {"SONARMITE DUAL", "HF Depth: H", "", "H"},
};

/// An NMEA depth always stands in the first label, whichever channel it is of. The one depth of
/// SONARMITE OLD and NEW counts as the high channel's, which is not there: it is not shown.
constexpr Reading ofLowChannel[] = {
    {"ODOM", "", "LF Depth: L", "L"},
    {"NMEA DBT", "LF Depth: L", transducer, "L"},
    {"NMEA DBS", "LF Depth: L", "", "L"},
    {"ORVANDO", "", "LF Depth: L", "L"},
    {"DESO 25", "", "LF Depth: L", "L"},
    {"KESTROLA", "", "LF Depth: L", "L"},
    {"SONARMITE OLD", "", "", ""},
    {"SONARMITE NEW", "", "", ""},
    {"SONARMITE DUAL", "", "LF Depth: L", "L"},
};

} // namespace

Q_DECLARE_METATYPE(Unit)
Q_DECLARE_METATYPE(Reading)

/// The depths of a survey in every output format, from the sounder's transducers to what the
/// operator reads in the window and above the graph, and to the dots of the graph.
class TestOutputFormats : public QObject
{
    Q_OBJECT

private slots:
    void depthsSentAreTheDepthsRead_data();
    void depthsSentAreTheDepthsRead();
    void cleanup();
    void cleanupTestCase() { bench.reset(); }

private:
    void useUnit(SounderFit fit);
    bool hasSwitched(const QString &channel, bool on);
    int expectSamples(const Reading &reading, const QList<Sent> &pings);

    std::unique_ptr<SurveyBench> bench; // serves all rows of its fit
    SounderFit benchFit = SounderFit::Dual;
    float lastLow = none; // of the last DESO 25 sentence of the low channel
};

void TestOutputFormats::depthsSentAreTheDepthsRead_data()
{
    QTest::addColumn<Unit>("unit");
    QTest::addColumn<bool>("imperial");
    QTest::addColumn<Reading>("reading");
    const auto rows = [](const Unit &unit, bool imperial, const auto &readings) {
        QStringList withoutReading = OutputFormats::names();
        for (const Reading &reading : readings) {
            withoutReading.removeOne(reading.format);
            QTest::addRow("%s, %s, %s", unit.name, reading.format, imperial ? "ft" : "m")
                << unit << imperial << reading;
        }
        QCOMPARE(withoutReading.join(", "), QString());
    };
    rows(dual, false, ofBothChannels);
    rows(dualLowOff, false, ofHighChannel);
    rows(dualHighOff, false, ofLowChannel);
    rows(dual, true, ofBothChannels);
    rows(highOnly, false, ofHighChannel);
    rows(highOnly, true, ofHighChannel);
    rows(lowOnly, false, ofLowChannel);
    rows(lowOnly, true, ofLowChannel);
}

void TestOutputFormats::depthsSentAreTheDepthsRead()
{
    QFETCH(Unit, unit);
    QFETCH(bool, imperial);
    QFETCH(Reading, reading);
    useUnit(unit.fit);
    bench->showUnit(imperial);
    QVERIFY2(hasSwitched("high", unit.highOn) && hasSwitched("low", unit.lowOn),
             "the sounder did not switch its channels");
    QVERIFY2(bench->chooseFormat(reading.format), "the sounder did not take the format");

    const QList<Bottom> bottoms = bottomsFor(reading.format);
    const QList<Sent> pings{sent(bottoms.at(0), reading.format),
                            sent(bottoms.at(1), reading.format)};
    const int pairs = expectSamples(reading, pings);
    QVERIFY2(bench->ping(bottoms, pairs), "the graph was told of more or fewer depths than sent");

    const QString high = readable(pings.last().high, imperial);
    const QString low = readable(pings.last().low, imperial);
    const auto filledIn = [&](const char *text) {
        return QString(text).replace(": H", ": " + high).replace(": L", ": " + low);
    };
    QCOMPARE(bench->labels(),
             QStringList({filledIn(reading.highLabel), filledIn(reading.lowLabel)}));
    const QString channels = reading.inGraph;
    const QString end = imperial ? "ft</b>" : "m</b>";
    QCOMPARE(bench->graphTexts().first(),
             channels.contains('H') ? "High Frequency Depth: <b>" + high + end : QString());
    QCOMPARE(bench->graphTexts().last(),
             channels.contains('L') ? "Low Frequency Depth: <b>" + low + end : QString());
    QVERIFY2(bench->graphShowsExpectedSamples(), "the graph's dots are not the depths sent");
}

/// What is wrong in a graph stays in it: the next row needs another.
void TestOutputFormats::cleanup()
{
    if (QTest::currentTestFailed()) {
        bench.reset();
    }
}

void TestOutputFormats::useUnit(SounderFit fit)
{
    if (!bench || benchFit != fit) {
        bench.reset();
        bench = std::make_unique<SurveyBench>(fit);
        benchFit = fit;
        lastLow = none;
    }
}

/// Has the operator press Enable or Disable of the channel ("high" or "low") if need be.
bool TestOutputFormats::hasSwitched(const QString &channel, bool on)
{
    const auto isOn = [this, &channel] {
        return bench->device().settings().isOn(channel == "high" ? SounderChannel::High
                                                                 : SounderChannel::Low);
    };
    if (isOn() != on) {
        bench->openTab(channel);
        bench->click((on ? "enable" : "disable") + QString(channel == "high" ? "HF" : "LF"));
    }
    return QTest::qWaitFor([=] { return isOn() == on; });
}

/// Enters what the graph must hold after these pings. Returns how often it is told.
int TestOutputFormats::expectSamples(const Reading &reading, const QList<Sent> &pings)
{
    const QString channels = reading.inGraph;
    const bool isPair = QString("DESO 25") == reading.format && channels == "HL";
    for (const Sent &ping : pings) {
        const float high = channels.contains('H') ? ping.highM() : none;
        const float low = channels.contains('L') ? ping.lowM() : none;
        if (isPair) { // the sentence of the high channel comes first, with the low depth of before
            bench->expectedSamples.prepend({high, lastLow});
            lastLow = low;
        }
        bench->expectedSamples.prepend({high, low});
    }
    return pings.size() * (isPair ? 2 : 1);
}

QTEST_MAIN(TestOutputFormats)

#include "tst_outputformats.moc"
