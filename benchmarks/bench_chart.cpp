// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "appearance.h"
#include "benchmain.h"
#include "chartundertest.h"
#include "measurements.h"
#include "stopwatch.h"

#include <QApplication>
#include <QDir>
#include <QTextStream>

#include <benchmark/benchmark.h>

#include <algorithm>

namespace {

constexpr int redrawsPerTurn = 5;
constexpr int warmUpRedraws = 2;

struct SceneColumn
{
    const char *name;
    ChartScene (*make)();
};

constexpr SceneColumn scenes[] = {{"rolling bed", ChartScene::rollingBed},
                                  {"long connectors", ChartScene::longConnectors}};

const QSize sizes[] = {{974, 650}, {1920, 1000}, {3840, 2000}};

QString columnName(const QSize &size, const SceneColumn &scene)
{
    return QStringLiteral("%1x%2 %3").arg(size.width()).arg(size.height()).arg(scene.name);
}

std::vector<ChartMaker> allMakers()
{
    std::vector<ChartMaker> makers = ownChartMakers();
#ifdef TALVERO_HAS_QWT
    const std::vector<ChartMaker> qwt = qwtChartMakers();
    makers.insert(makers.end(), qwt.begin(), qwt.end());
#endif
#ifdef TALVERO_HAS_QCUSTOMPLOT
    const std::vector<ChartMaker> customPlot = customPlotChartMakers();
    makers.insert(makers.end(), customPlot.begin(), customPlot.end());
#endif
    return makers;
}

void drawNextPing(ChartUnderTest &chart, ChartScene &scene)
{
    scene.scroll();
    chart.takeDepths(scene);
    chart.redraw();
}

int pixelsNotWhite(const QImage &picture)
{
    const QImage image = picture.convertToFormat(QImage::Format_RGB32);
    int count = 0;
    for (int y = 0; y < image.height(); ++y) {
        const auto *const line = reinterpret_cast<const QRgb *>(image.constScanLine(y));
        count += static_cast<int>(std::count_if(line, line + image.width(),
                                                [](QRgb pixel) { return pixel != 0xffffffff; }));
    }
    return count;
}

/// Whoever draws nothing wins every race: nobody may start whose picture does not show the scene.
bool allDrawTheScene(const std::vector<ChartMaker> &makers, const QString &folder)
{
    bool everybody = true;
    for (const ChartMaker &maker : makers) {
        for (const SceneColumn &column : scenes) {
            ChartScene scene = column.make();
            const auto chart = maker.make(sizes[0], scene);
            drawNextPing(*chart, scene);
            const QImage picture = chart->picture();
            const int inked = pixelsNotWhite(picture);
            const bool isMeantWhite = qstrcmp(maker.name, "floor") == 0;
            const bool isDrawn = isMeantWhite ? inked == 0 : inked > 2 * DepthChartData::maxSamples;
            QTextStream(stdout) << QString(maker.name).leftJustified(32) << column.name << ": "
                                << picture.width() << 'x' << picture.height() << ", " << inked
                                << " pixels drawn" << (isDrawn ? "\n" : ", which is WRONG\n");
            everybody = everybody && isDrawn && picture.size() == sizes[0];
            if (!folder.isEmpty()) {
                picture.save(
                    QDir(folder).filePath(QString(maker.name) + ", " + column.name + ".png"));
            }
        }
    }
    return everybody;
}

/// Everybody's turns, in random order, and the times of every single redraw.
class Race
{
public:
    Race(const std::vector<ChartMaker> &chartMakers, Stopwatch::Time time)
        : makers(chartMakers)
        , kind(time)
    {
        for (const ChartMaker &maker : makers) {
            for (const QSize &size : sizes) {
                for (const SceneColumn &scene : scenes) {
                    registerTurn(maker, size, scene);
                }
            }
        }
    }

    void printTables() const
    {
        QStringList rows;
        for (const ChartMaker &maker : makers) {
            rows.append(maker.name);
        }
        for (const SceneColumn &scene : scenes) {
            QStringList columns;
            for (const QSize &size : sizes) {
                columns.append(columnName(size, scene));
            }
            QTextStream(stdout) << measured.table("One redraw", rows, columns);
        }
    }

private:
    void registerTurn(const ChartMaker &maker, const QSize &size, const SceneColumn &scene)
    {
        const QString name = QString(maker.name) + '/' + columnName(size, scene);
        const auto turn = [this, &maker, size, &scene](benchmark::State &state) {
            takeTurn(state, maker, size, scene);
        };
        benchmark::RegisterBenchmark(qPrintable(name), turn)
            ->Iterations(redrawsPerTurn)
            ->UseManualTime()
            ->Unit(benchmark::kMillisecond);
    }

    /// A few redraws of a chart that is full, each after one more ping.
    void takeTurn(benchmark::State &state, const ChartMaker &maker, const QSize &size,
                  const SceneColumn &column)
    {
        ChartScene scene = column.make();
        const auto chart = maker.make(size, scene);
        for (int i = 0; i < warmUpRedraws; ++i) {
            drawNextPing(*chart, scene);
        }
        while (state.KeepRunning()) {
            scene.scroll();
            chart->takeDepths(scene);
            const Stopwatch watch(kind);
            chart->redraw();
            const double seconds = watch.seconds();
            state.SetIterationTime(seconds);
            measured.add(maker.name, columnName(size, column), seconds * 1000.0);
        }
    }

    const std::vector<ChartMaker> &makers;
    Stopwatch::Time kind;
    Measurements measured{QStringLiteral("ms"), 2};
};

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_LOGGING_RULES", "default.debug=false;default.warning=false");
    QApplication application(argc, argv);
    giveProgramStyle();
    ProgramWords words(argc, argv);
    const QString folder = words.take("--pictures");
    const bool processorTime = words.take("--time") == "processor";
    const std::vector<ChartMaker> makers = allMakers();
    if (!allDrawTheScene(makers, folder)) {
        return 1;
    }
    Race race(makers, processorTime ? Stopwatch::Time::processor : Stopwatch::Time::wall);
    const int exitCode = words.runBenchmarks(
        {"--benchmark_repetitions=12", "--benchmark_enable_random_interleaving=true"});
    race.printTables();
    return exitCode;
}
