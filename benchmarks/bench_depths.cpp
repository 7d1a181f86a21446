// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "appearance.h"
#include "benchmain.h"
#include "measurements.h"
#include "reportbench.h"
#include "stopwatch.h"

#include <QApplication>
#include <QLabel>
#include <QTextStream>

#include <benchmark/benchmark.h>

namespace {

constexpr int sentencesPerTurn = 100;

/// A format of the device's depth sentences. `text` holds "%1" and "%2" for the depths of the high
/// and the low channel, in centimetres with five digits if `wholeCm`, else in metres.
struct Format
{
    const char *name;
    const char *reply; ///< with which the device tells that it uses this format
    const char *text;
    bool wholeCm;
};

constexpr Format formats[] = {{"ODOM", "*i5,a1", " et B %1 %2", true},
                              {"NMEA DBT", "*i5,a2", "$SDDBT,4.0,f,%1,M,0.67,F*2C", false},
                              {"DESO 25, high", "*i5,a5", "DA0000%1 m", false},
                              {"DESO 25, low", "*i5,a5", "DB0000%2 m", false},
                              {"KESTROLA", "*i5,a6", "%2T-94L\t%1T-95H", true},
                              {"SONARMITE DUAL", "*i5,a9", "0 %1 %2 78", false}};

QByteArray depthText(int cm, bool wholeCm)
{
    return wholeCm ? QByteArray::number(cm).rightJustified(5, '0')
                   : QByteArray::number(cm / 100.0, 'f', 2);
}

/// The sentence of this number: its depths differ from those of the sentence before.
QByteArray sentence(const Format &format, int number)
{
    const int cm = 200 + number % 700;
    QByteArray text = format.text;
    text.replace("%1", depthText(cm, format.wholeCm));
    text.replace("%2", depthText(cm + 30, format.wholeCm));
    return text;
}

/// Sees the first and the last moment of a sentence in the program: that in which the event loop
/// calls the serial port because bytes have come, and the first event (or the end of the loop's
/// turn) after the labels have changed. In between the program alone is at work, from reading the
/// port to storing the sample.
class SentenceWatch : public QObject
{
public:
    SentenceWatch(QLabel *high, QLabel *low)
        : highLabel(high)
        , lowLabel(low)
    {
        QCoreApplication::instance()->installEventFilter(this);
    }

    void start()
    {
        before = shownDepths();
        isShown = false;
    }

    /// Notes whether the sentence is shown by now.
    void look()
    {
        if (!isShown && shownDepths() != before) {
            seconds = sinceArrival.seconds();
            isShown = true;
        }
    }

    bool eventFilter(QObject *, QEvent *event) override
    {
        look();
        if (!isShown && event->type() == QEvent::SockAct) {
            sinceArrival = Stopwatch();
        }
        return false;
    }

    bool isShown = false;
    double seconds = 0.0;

private:
    QPair<QString, QString> shownDepths() const { return {highLabel->text(), lowLabel->text()}; }

    QLabel *highLabel;
    QLabel *lowLabel;
    QPair<QString, QString> before;
    Stopwatch sinceArrival;
};

/// The program on a line on which sentences come one by one.
class DepthRoad
{
public:
    DepthRoad(const Format &format, bool imperial, bool graphShown)
        : watch(bench.find<QLabel>("highDepthLabel"), bench.find<QLabel>("lowDepthLabel"))
    {
        bench.click(imperial ? "imperialRadio" : "metricRadio");
        works = bench.connectAs() && bench.tell(format.reply);
        if (graphShown) {
            bench.click("openGraph");
        }
        QCoreApplication::processEvents();
    }

    /// The time of one sentence in seconds; negative if it does not reach the graph's window.
    double pass(const QByteArray &text)
    {
        const QString headerBefore = graphHeader();
        watch.start();
        bench.say(text);
        // No qWaitFor(): it sleeps between its looks.
        const Stopwatch patience;
        while (!watch.isShown && patience.seconds() < 5.0) {
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
            watch.look();
        }
        QCoreApplication::processEvents(); // painting is not a sentence's matter
        return works && watch.isShown && graphHeader() != headerBefore ? watch.seconds : -1.0;
    }

private:
    QString graphHeader()
    {
        QString texts;
        for (const QWidget *window : QApplication::topLevelWidgets()) {
            for (const char *name : {"depthGraphFieldHF", "depthGraphFieldLF"}) {
                const auto *const label = window->findChild<QLabel *>(name);
                texts += label != nullptr ? label->text() : QString();
            }
        }
        return texts;
    }

    ReportBench bench;
    SentenceWatch watch;
    bool works = false;
};

struct Column
{
    const char *name;
    bool imperial;
    bool graphShown;
};

constexpr Column columns[] = {{"metres, graph hidden", false, false},
                              {"feet, graph hidden", true, false},
                              {"metres, graph shown", false, true},
                              {"feet, graph shown", true, true}};

void passSentences(benchmark::State &state, const Format &format, const Column &column,
                   Measurements &measured)
{
    DepthRoad road(format, column.imperial, column.graphShown);
    int number = 0;
    road.pass(sentence(format, number++));
    while (state.KeepRunning()) {
        const double seconds = road.pass(sentence(format, number++));
        if (seconds < 0.0) {
            state.SkipWithError("the depth did not arrive");
            return;
        }
        state.SetIterationTime(seconds);
        measured.add(format.name, column.name, seconds * 1e6);
    }
}

void registerAll(Measurements &measured)
{
    for (const Format &format : formats) {
        for (const Column &column : columns) {
            const QString name = QString(format.name) + '/' + column.name;
            benchmark::RegisterBenchmark(
                qPrintable(name),
                [&](benchmark::State &state) { passSentences(state, format, column, measured); })
                ->Iterations(sentencesPerTurn)
                ->UseManualTime()
                ->Unit(benchmark::kMicrosecond);
        }
    }
}

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_LOGGING_RULES", "default.debug=false;default.warning=false");
    QApplication application(argc, argv);
    giveProgramStyle();
    Measurements measured(QStringLiteral("us"), 1);
    registerAll(measured);
    const int exitCode = ProgramWords(argc, argv)
                             .runBenchmarks({"--benchmark_repetitions=3",
                                             "--benchmark_enable_random_interleaving=true"});
    QStringList rows;
    for (const Format &format : formats) {
        rows.append(format.name);
    }
    QStringList columnNames;
    for (const Column &column : columns) {
        columnNames.append(column.name);
    }
    QTextStream(stdout) << measured.table("One depth sentence, from its bytes to label and sample",
                                          rows, columnNames);
    return exitCode;
}
