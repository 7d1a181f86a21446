// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "windowbench.h"

#include <QApplication>
#include <QEventLoop>

#include <benchmark/benchmark.h>

namespace {

/// Runs the event loop, busily, until the window shows everything that a fresh connection asks for.
void waitUntilFilled(WindowBench &bench)
{
    while (!bench.text("temperatureLabel").contains("Temperature")) {
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
}

/// From the click on Connect to the last control filled, the simulated sounder speaking at
/// `state.range(0)` bits a second. Most of it is the time that the bytes take on the line.
void connectUntilFilled(benchmark::State &state)
{
    SounderOptions options = WindowBench::quietSounder();
    options.rate = static_cast<int>(state.range(0));
    WindowBench bench(options);
    const QString rate = QString::number(options.rate);
    while (state.KeepRunning()) {
        bench.pressConnect(rate);
        waitUntilFilled(bench);
        state.PauseTiming();
        bench.click("connectToDevice"); // disconnects
        state.ResumeTiming();
    }
}

BENCHMARK(connectUntilFilled)
    ->Arg(9600)
    ->Arg(115200)
    ->Iterations(10)
    ->UseRealTime()
    ->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_LOGGING_RULES", "default.debug=false");
    QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) {
        return 2;
    }
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
