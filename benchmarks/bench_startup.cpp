// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "benchmain.h"
#include "measurements.h"

#include <QCoreApplication>
#include <QProcess>
#include <QTextStream>

#include <benchmark/benchmark.h>

#include <ctime>
#include <optional>

namespace {

constexpr char wall[] = "until the first picture";
constexpr char processor[] = "of the processor";

/// Both in seconds.
struct StartTimes
{
    double wall;
    double processor;
};

double steadySeconds()
{
    timespec now{};
    clock_gettime(CLOCK_MONOTONIC, &now);
    return static_cast<double>(now.tv_sec) + static_cast<double>(now.tv_nsec) * 1e-9;
}

/// Starts the program and waits until its window is painted; nothing if it is not.
std::optional<StartTimes> startOnce(const QString &name)
{
    QProcess program;
    program.setStandardErrorFile(QProcess::nullDevice());
    const double before = steadySeconds();
    program.start(QCoreApplication::applicationDirPath() + "/startup/" + name, QStringList());
    if (!program.waitForFinished()) {
        program.kill();
        program.waitForFinished();
        return std::nullopt;
    }
    const QList<QByteArray> told = program.readAllStandardOutput().trimmed().split(' ');
    if (told.size() != 2) {
        return std::nullopt;
    }
    return StartTimes{static_cast<double>(told.at(0).toLongLong()) * 1e-9 - before,
                      static_cast<double>(told.at(1).toLongLong()) * 1e-9};
}

void start(benchmark::State &state, const QString &name, Measurements &measured)
{
    while (state.KeepRunning()) {
        const auto times = startOnce(name);
        if (!times) {
            state.SkipWithError("the program showed no window");
            return;
        }
        state.SetIterationTime(times->wall);
        measured.add(name, wall, times->wall * 1000.0);
        measured.add(name, processor, times->processor * 1000.0);
    }
}

void printTable(const Measurements &measured, const QStringList &rows)
{
    QTextStream out(stdout);
    out << measured.table("Starting", rows, {wall, processor}) << "Ratios of the medians:";
    for (const char *column : {wall, processor}) {
        const double empty = measured.median(rows.first(), column);
        const double program = measured.median(rows.last(), column);
        out << "  " << column << ' '
            << QString::number(empty > 0.0 ? program / empty : 0.0, 'f', 2);
    }
    out << '\n';
}

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    const QStringList rows = {"start_empty", "start_program"};
    Measurements measured(QStringLiteral("ms"), 1);
    for (const QString &row : rows) {
        startOnce(row); // once, so that the files are in memory
        benchmark::RegisterBenchmark(qPrintable(row),
                                     [&](benchmark::State &state) { start(state, row, measured); })
            ->Iterations(1)
            ->UseManualTime()
            ->Unit(benchmark::kMillisecond);
    }
    const int exitCode = ProgramWords(argc, argv)
                             .runBenchmarks({"--benchmark_repetitions=20",
                                             "--benchmark_enable_random_interleaving=true"});
    printTable(measured, rows);
    return exitCode;
}
