// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "appearance.h"
#include "benchmain.h"
#include "depthgraph.h"
#include "mainwindow.h"
#include "measurements.h"

#include <QApplication>
#include <QComboBox>
#include <QEventLoop>
#include <QLabel>
#include <QLineEdit>
#include <QProcess>
#include <QPushButton>
#include <QSignalSpy>
#include <QTextStream>
#include <QtTest>

#include <benchmark/benchmark.h>

#include <sys/resource.h>

namespace {

constexpr int secondsPerWindow = 5;
constexpr int windowsPerRun = 4;
constexpr int pingsPerSecond = 10;

double secondsOfProcessor()
{
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    const auto seconds = [](const timeval &time) {
        return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) * 1e-6;
    };
    return seconds(usage.ru_utime) + seconds(usage.ru_stime);
}

/// The simulated sounder as a program of its own, so that its work is not counted.
class SounderProgram
{
public:
    SounderProgram()
    {
        program.start(QCoreApplication::applicationDirPath() + "/../bin/tal-vero-sounder",
                      {"--fit", "dual", "--rate", "9600", "--format", "SONARMITE DUAL"});
        if (program.waitForReadyRead()) {
            path = QString::fromLocal8Bit(program.readLine()).trimmed();
        }
    }

    ~SounderProgram()
    {
        program.kill();
        program.waitForFinished();
    }

    SounderProgram(const SounderProgram &) = delete;
    SounderProgram &operator=(const SounderProgram &) = delete;

    QString path;

private:
    QProcess program;
};

/// The program's window with a sounder that pings ten times a second, and a full chart.
class StreamingProgram
{
public:
    explicit StreamingProgram(bool graphShown)
        : window([this] { return QStringList{sounder.path}; })
        , told(&window, SIGNAL(gotDepths(float, float)))
    {
        window.show();
        works = connectToSounder() && askForPings();
        fillGraph();
        if (graphShown) {
            window.findChild<QPushButton *>("openGraph")->click();
        }
        QTest::qWait(1000); // the opening is not the streaming
    }

    /// The share of one processor core in percent over some seconds; negative if the depths do not
    /// come ten times a second.
    double measure()
    {
        told.clear();
        const double before = secondsOfProcessor();
        QEventLoop loop;
        QTimer::singleShot(secondsPerWindow * 1000, Qt::PreciseTimer, &loop, &QEventLoop::quit);
        loop.exec();
        const double used = secondsOfProcessor() - before;
        const bool streams = qAbs(told.size() - pingsPerSecond * secondsPerWindow) <= 3;
        return works && streams ? 100.0 * used / secondsPerWindow : -1.0;
    }

private:
    bool connectToSounder()
    {
        window.findChild<QComboBox *>("portComboBox")->setCurrentText(sounder.path);
        window.findChild<QComboBox *>("baudComboBox")->setCurrentText("9600");
        auto *const connectButton = window.findChild<QPushButton *>("connectToDevice");
        connectButton->click();
        return QTest::qWaitFor([this] { return !told.isEmpty(); }, 15000) &&
               connectButton->text() == "Disconnect";
    }

    bool askForPings()
    {
        auto *const pings = window.findChild<QLineEdit *>("pingEdit");
        pings->setText(QString::number(pingsPerSecond));
        QTest::keyClick(pings, Qt::Key_Return);
        const auto info = [this] { return window.findChild<QLabel *>("infoLabel")->text(); };
        return QTest::qWaitFor([&] { return info().contains("Success"); });
    }

    static void fillGraph()
    {
        for (QWidget *widget : QApplication::topLevelWidgets()) {
            if (auto *const graph = qobject_cast<depthGraph *>(widget)) {
                for (int i = 0; i < DepthChartData::maxSamples; ++i) {
                    const float depth = 5.0F + static_cast<float>(i % 200) / 40.0F;
                    graph->addData(depth, depth + 0.3F);
                }
            }
        }
    }

    SounderProgram sounder;
    MainWindow window;
    QSignalSpy told;
    bool works = false;
};

void stream(benchmark::State &state, bool graphShown, const QString &row, Measurements &measured)
{
    StreamingProgram program(graphShown);
    while (state.KeepRunning()) {
        const double percent = program.measure();
        if (percent < 0.0) {
            state.SkipWithError("the sounder does not stream ten dual depths a second");
            return;
        }
        state.SetIterationTime(percent / 100.0 * secondsPerWindow);
        measured.add(row, "whole program", percent);
    }
}

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_LOGGING_RULES", "default.debug=false;default.warning=false");
    prepareForHighDensity();
    startWithoutOpenGl();
    QApplication application(argc, argv);
    giveProgramStyle();
    Measurements measured(QStringLiteral("percent of one processor core"), 2);
    const QStringList rows = {"graph hidden", "graph open, 974x685"};
    for (const QString &row : rows) {
        benchmark::RegisterBenchmark(
            qPrintable(row),
            [&](benchmark::State &state) { stream(state, row != rows.first(), row, measured); })
            ->Iterations(windowsPerRun)
            ->UseManualTime();
    }
    const int exitCode = ProgramWords(argc, argv).runBenchmarks({});
    QTextStream(stdout) << measured.table(
        "Ten dual depths a second on " + QGuiApplication::platformName(), rows, {"whole program"});
    return exitCode;
}
