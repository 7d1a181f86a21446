// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "appearance.h"
#include "logcapture.h"
#include "sliderbench.h"
#include "wirereckoning.h"

#include <memory>

class SlidersTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { giveProgramStyle(); }
    void cleanupTestCase()
    {
        for (auto &bench : benches) {
            bench.reset();
        }
    }

    void aButtonStepsItsSlider_data();
    void aButtonStepsItsSlider();
    void aDragToAnEndSendsTheLimit_data();
    void aDragToAnEndSendsTheLimit();
    void aDragBetweenTheEndsSendsWhatTheLabelShows_data();
    void aDragBetweenTheEndsSendsWhatTheLabelShows();
    void aKeyMovesASliderByItsStep_data();
    void aKeyMovesASliderByItsStep();
    void aStepBeyondTheRangeIsIgnored_data();
    void aStepBeyondTheRangeIsIgnored();
    void gainUpIsIgnoredAt98AndReaches100From95_data() { addChannels(); }
    void gainUpIsIgnoredAt98AndReaches100From95();
    void gainIsNotSnappedToTheStepsOfItsButtons_data() { addChannels(); }
    void gainIsNotSnappedToTheStepsOfItsButtons();
    void theSlidersOwnSignalQueuesTheChangeASecondTime_data() { addChannels(); }
    void theSlidersOwnSignalQueuesTheChangeASecondTime();
    void theRoadOfAStepIsLogged();

private:
    static void addChannels();
    static void addSliders();
    SliderBench &benchOf(const QString &channel, bool imperial);

    std::unique_ptr<SliderBench> benches[2]; ///< metric, imperial; connecting anew takes its time
};

SliderBench &SlidersTest::benchOf(const QString &channel, bool imperial)
{
    if (!benches[imperial]) {
        benches[imperial] = std::make_unique<SliderBench>(imperial);
    }
    benches[imperial]->useChannel(channel);
    return *benches[imperial];
}

/// All eight sliders in both units: only the blanking sliders have a unit, but none may be
/// converted by mistake.
void SlidersTest::addSliders()
{
    QTest::addColumn<QString>("channel");
    QTest::addColumn<bool>("imperial");
    QTest::addColumn<SliderNames>("names");
    for (const QString &channel : channels) {
        for (const SliderNames &names : {pulse, gain, detect, blanking}) {
            for (const bool imperial : {false, true}) {
                QTest::addRow("%s %s, %s", qPrintable(channel), names.slider,
                              imperial ? "imperial" : "metric")
                    << channel << imperial << names;
            }
        }
    }
}

void SlidersTest::addChannels()
{
    QTest::addColumn<QString>("channel");
    for (const QString &channel : channels) {
        QTest::addRow("%s channel", qPrintable(channel)) << channel;
    }
}

void SlidersTest::aButtonStepsItsSlider_data()
{
    QTest::addColumn<QString>("channel");
    QTest::addColumn<bool>("imperial");
    QTest::addColumn<SliderNames>("names");
    QTest::addColumn<int>("start");
    QTest::addColumn<QString>("direction");
    QTest::addColumn<QString>("label");
    QTest::addColumn<QByteArray>("wire");
    struct Step
    {
        SliderNames names;
        int starts[2]; ///< metric, imperial
        const char *direction;
        const char *labels[2];
        const char *wires[2];
    };
    const Step steps[] = {
        {pulse, {16, 16}, "Up", {"17", "17"}, {"*p17", "*p17"}},
        {pulse, {16, 16}, "Down", {"15", "15"}, {"*p15", "*p15"}},
        {gain, {75, 75}, "Up", {"80%", "80%"}, {"*g071", "*g071"}},
        {gain, {75, 75}, "Down", {"70%", "70%"}, {"*g057", "*g057"}},
        {detect, {49, 49}, "Up", {"50%", "50%"}, {"*t050", "*t050"}},
        {detect, {49, 49}, "Down", {"48%", "48%"}, {"*t048", "*t048"}},
        {blanking, {120, 393}, "Up", {"1.30 m", "4.03 ft"}, {"*m01300", "*m01228"}},
        {blanking, {120, 393}, "Down", {"1.10 m", "3.83 ft"}, {"*m01100", "*m01167"}},
    };
    for (const QString &channel : channels) {
        for (const Step &step : steps) {
            for (const bool imperial : {false, true}) {
                QTest::addRow("%s %s %s, %s", qPrintable(channel), step.names.buttons,
                              step.direction, imperial ? "imperial" : "metric")
                    << channel << imperial << step.names << step.starts[imperial]
                    << QString(step.direction) << QString(step.labels[imperial])
                    << marked(channel, step.wires[imperial]);
            }
        }
    }
}

void SlidersTest::aButtonStepsItsSlider()
{
    QFETCH(QString, channel);
    QFETCH(bool, imperial);
    QFETCH(SliderNames, names);
    QFETCH(QString, direction);
    QFETCH(QString, label);
    QFETCH(int, start);
    SliderBench &bench = benchOf(channel, imperial);
    bench.place(names, start);
    bench.press(names, direction);
    QCOMPARE(bench.label(names), label);
    QVERIFY2(bench.hasPendingChange(), "the change is not queued");
    QTEST(bench.takeCommands().join(' '), "wire");
    QCOMPARE(bench.info(),
             QString("Setting %1 to %2 ... Success").arg(prettyNameOf(channel, names), label));
    QCOMPARE(bench.infoColour(), QString("Green"));
}

namespace {

struct EndOfRange
{
    SliderNames names;
    double place; ///< 0: left, 1: right
    const char *label;
    const char *wire;
};

constexpr EndOfRange endsOfBoth[] = {
    {pulse, 0, "1", "*p01"},    {pulse, 1, "34", "*p34"},   {gain, 0, "30%", "*g000"},
    {gain, 1, "100%", "*g100"}, {detect, 0, "1%", "*t001"}, {detect, 1, "75%", "*t075"},
};

struct BlankingEnd
{
    const char *channel;
    bool imperial;
    EndOfRange end;
};

// The low channel's slider begins higher than the high channel's, in either unit.
constexpr BlankingEnd blankingEnds[] = {
    {"high", false, {blanking, 0, "0.30 m", "*m00300"}},
    {"low", false, {blanking, 0, "0.50 m", "*m00500"}},
    {"high", true, {blanking, 0, "1.00 ft", "*m00304"}},
    {"low", true, {blanking, 0, "2.00 ft", "*m00609"}},
    {"high", false, {blanking, 1, "10.00 m", "*m10000"}},
    {"low", false, {blanking, 1, "10.00 m", "*m10000"}},
    {"high", true, {blanking, 1, "30.00 ft", "*m09144"}},
    {"low", true, {blanking, 1, "30.00 ft", "*m09144"}},
};

void addEnd(const QString &channel, bool imperial, const EndOfRange &end)
{
    QTest::addRow("%s %s to the %s, %s", qPrintable(channel), end.names.slider,
                  end.place > 0 ? "right" : "left", imperial ? "imperial" : "metric")
        << channel << imperial << end.names << end.place << QString(end.label)
        << marked(channel, end.wire);
}

} // namespace

void SlidersTest::aDragToAnEndSendsTheLimit_data()
{
    QTest::addColumn<QString>("channel");
    QTest::addColumn<bool>("imperial");
    QTest::addColumn<SliderNames>("names");
    QTest::addColumn<double>("place");
    QTest::addColumn<QString>("label");
    QTest::addColumn<QByteArray>("wire");
    for (const QString &channel : channels) {
        for (const EndOfRange &end : endsOfBoth) {
            addEnd(channel, false, end);
            addEnd(channel, true, end);
        }
    }
    for (const BlankingEnd &row : blankingEnds) {
        addEnd(row.channel, row.imperial, row.end);
    }
}

void SlidersTest::aDragToAnEndSendsTheLimit()
{
    QFETCH(QString, channel);
    QFETCH(bool, imperial);
    QFETCH(SliderNames, names);
    QFETCH(double, place);
    SliderBench &bench = benchOf(channel, imperial);
    bench.place(names, bench.slider(names)->minimum() + 12);
    bench.hand(names).dragTo(place);
    QTEST(bench.label(names), "label");
    QTEST(bench.takeCommands().join(' '), "wire");
    QVERIFY2(bench.info().endsWith("Success"), qPrintable(bench.info()));
}

void SlidersTest::aDragBetweenTheEndsSendsWhatTheLabelShows_data() { addSliders(); }

void SlidersTest::aDragBetweenTheEndsSendsWhatTheLabelShows()
{
    QFETCH(QString, channel);
    QFETCH(bool, imperial);
    QFETCH(SliderNames, names);
    SliderBench &bench = benchOf(channel, imperial);
    for (const double place : {0.8, 0.3}) {
        bench.hand(names).dragTo(place);
        const int position = bench.slider(names)->value();
        const bool isBlanking = names.slider == QString(blanking.slider);
        const QString shown =
            isBlanking ? QString::number(position / 100.0, 'f', 2) : QString::number(position);
        QCOMPARE(bench.label(names), shown + unitOf(names, imperial));
        QCOMPARE(bench.takeCommands().join(' '),
                 WireReckoning::command((channel + names.buttons).toLatin1(), shown.toLatin1(),
                                        imperial));
    }
}

void SlidersTest::aKeyMovesASliderByItsStep_data()
{
    QTest::addColumn<QString>("channel");
    QTest::addColumn<SliderNames>("names");
    QTest::addColumn<int>("arrowStep");
    QTest::addColumn<int>("pageStep");
    struct Steps
    {
        SliderNames names;
        int arrow;
        int highPage;
        int lowPage;
    };
    // The pulse and blanking sliders of the low channel page in larger steps than the high ones.
    const Steps rows[] = {
        {pulse, 1, 1, 10}, {gain, 1, 5, 5}, {detect, 3, 5, 5}, {blanking, 1, 5, 10}};
    for (const Steps &row : rows) {
        QTest::addRow("high %s", row.names.slider)
            << "high" << row.names << row.arrow << row.highPage;
        QTest::addRow("low %s", row.names.slider) << "low" << row.names << row.arrow << row.lowPage;
    }
}

void SlidersTest::aKeyMovesASliderByItsStep()
{
    QFETCH(QString, channel);
    QFETCH(SliderNames, names);
    QFETCH(int, arrowStep);
    QFETCH(int, pageStep);
    SliderBench &bench = benchOf(channel, false);
    bench.place(names, bench.slider(names)->minimum() + 12);
    const int start = bench.slider(names)->value();
    bench.hand(names).press(Qt::Key_Right);
    QCOMPARE(bench.slider(names)->value(), start + arrowStep);
    bench.hand(names).press(Qt::Key_PageUp);
    QCOMPARE(bench.slider(names)->value(), start + arrowStep + pageStep);
    bench.hand(names).press(Qt::Key_Left);
    bench.hand(names).press(Qt::Key_PageDown);
    QCOMPARE(bench.slider(names)->value(), start);
    QCOMPARE(bench.takeCommands().size(), 1);
}

void SlidersTest::aStepBeyondTheRangeIsIgnored_data() { addSliders(); }

void SlidersTest::aStepBeyondTheRangeIsIgnored()
{
    QFETCH(QString, channel);
    QFETCH(bool, imperial);
    QFETCH(SliderNames, names);
    SliderBench &bench = benchOf(channel, imperial);
    const std::pair<Qt::Key, const char *> ends[] = {{Qt::Key_End, "Up"}, {Qt::Key_Home, "Down"}};
    for (const auto &[key, beyond] : ends) {
        bench.hand(names).press(key);
        bench.takeCommands();
        const QString label = bench.label(names);
        const QString info = bench.info();
        const int position = bench.slider(names)->value();
        bench.press(names, beyond);
        QVERIFY2(!bench.hasPendingChange(), "a step out of the range is queued");
        QCOMPARE(bench.label(names), label);
        QCOMPARE(bench.slider(names)->value(), position);
        QCOMPARE(bench.info(), info);
    }
}

void SlidersTest::gainUpIsIgnoredAt98AndReaches100From95()
{
    QFETCH(QString, channel);
    SliderBench &bench = benchOf(channel, false);
    QVERIFY(bench.hand(gain).walkTo(98));
    QCOMPARE(bench.takeCommands().join(' '), marked(channel, "*g097"));
    bench.press(gain, "Up");
    QVERIFY(!bench.hasPendingChange());
    QCOMPARE(bench.label(gain), QString("98%"));
    QVERIFY(bench.hand(gain).walkTo(95));
    QCOMPARE(bench.takeCommands().join(' '), marked(channel, "*g093"));
    bench.press(gain, "Up");
    QCOMPARE(bench.label(gain), QString("100%"));
    QCOMPARE(bench.takeCommands().join(' '), marked(channel, "*g100"));
}

void SlidersTest::gainIsNotSnappedToTheStepsOfItsButtons()
{
    QFETCH(QString, channel);
    SliderBench &bench = benchOf(channel, false);
    bench.place(gain, 75);
    bench.hand(gain).press(Qt::Key_Right);
    QCOMPARE(bench.label(gain), QString("76%"));
    QCOMPARE(bench.takeCommands().join(' '), marked(channel, "*g066"));
    bench.press(gain, "Up");
    QCOMPARE(bench.label(gain), QString("81%"));
    QCOMPARE(bench.takeCommands().join(' '), marked(channel, "*g073"));
}

void SlidersTest::theSlidersOwnSignalQueuesTheChangeASecondTime()
{
    QFETCH(QString, channel);
    SliderBench &bench = benchOf(channel, false);
    for (const SliderNames &names : {pulse, gain, detect, blanking}) {
        bench.place(names, bench.slider(names)->minimum() + 12);
        LogCapture log;
        bench.press(names, "Up");
        QCOMPARE(log.count("trigger change "), 2);
        QCOMPARE(bench.takeCommands().size(), 1);
        const QString key = '"' + channel + names.buttons + '"';
        QVERIFY2(log.contains("uniquify :  (" + key + ", " + key + ")"), qPrintable(key));
        QVERIFY2(log.contains("result is  (" + key + ")"), qPrintable(key));
    }
}

void SlidersTest::theRoadOfAStepIsLogged()
{
    SliderBench &bench = benchOf("high", false);
    bench.place(gain, 75);
    LogCapture log;
    bench.press(gain, "Up");
    const QStringList texts = log.texts();
    const QStringList road{"\"highGain\"", "Changing  \"highGain\"  to  \"80\"", "res is  80",
                           "Triggering", "trigger change  \"highGain\"  to  \"80\""};
    QCOMPARE(texts.mid(0, road.size()), road);
    QVERIFY(bench.settles());
}

QTEST_MAIN(SlidersTest)
#include "tst_sliders.moc"
