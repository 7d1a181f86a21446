// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "benchmain.h"
#include "measurements.h"

#include <QCoreApplication>
#include <QProcess>
#include <QTextStream>
#include <QVector>

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

struct Row
{
    QString name;
    QString program;
    bool withoutOpenGl;
};

/// Starts the program and waits until its window is painted; nothing if it is not.
std::optional<StartTimes> startOnce(const Row &row)
{
    QProcess program;
    if (row.withoutOpenGl) {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert("QT_XCB_GL_INTEGRATION", "none");
        program.setProcessEnvironment(environment);
    }
    program.setStandardErrorFile(QProcess::nullDevice());
    const double before = steadySeconds();
    program.start(QCoreApplication::applicationDirPath() + "/startup/" + row.program,
                  QStringList());
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

void start(benchmark::State &state, const Row &row, Measurements &measured)
{
    while (state.KeepRunning()) {
        const auto times = startOnce(row);
        if (!times) {
            state.SkipWithError("the program showed no window");
            return;
        }
        state.SetIterationTime(times->wall);
        measured.add(row.name, wall, times->wall * 1000.0);
        measured.add(row.name, processor, times->processor * 1000.0);
    }
}

/// How much longer the program takes than each of the empty windows.
void printTable(const Measurements &measured, const QVector<Row> &rows)
{
    QStringList names;
    for (const Row &row : rows) {
        names << row.name;
    }
    QTextStream out(stdout);
    out << measured.table("Starting", names, {wall, processor});
    const QString program = names.takeLast();
    for (const QString &empty : qAsConst(names)) {
        out << "Ratios of the medians to \"" << empty << "\":";
        for (const char *column : {wall, processor}) {
            const double base = measured.median(empty, column);
            const double ratio = base > 0.0 ? measured.median(program, column) / base : 0.0;
            out << "  " << column << ' ' << QString::number(ratio, 'f', 2);
        }
        out << '\n';
    }
}

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    const QVector<Row> rows = {
        {"an empty window", "start_empty", false},
        {"an empty window, without OpenGL", "start_empty", true},
        {"the program", "start_program", false},
    };
    Measurements measured(QStringLiteral("ms"), 1);
    for (const Row &row : rows) {
        startOnce(row); // once, so that the files are in memory
        benchmark::RegisterBenchmark(
            qPrintable(row.name),
            [row, &measured](benchmark::State &state) { start(state, row, measured); })
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
