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

/// Blue, red and what lies between the two; neither the scale nor a grey frame.
int colouredPixels(const QImage &picture)
{
    const QImage image = picture.convertToFormat(QImage::Format_RGB32);
    const auto isColoured = [](QRgb pixel) {
        constexpr int noticeable = 40;
        return qAbs(qRed(pixel) - qBlue(pixel)) > noticeable;
    };
    std::ptrdiff_t count = 0;
    for (int y = 0; y < image.height(); ++y) {
        const auto *const line = reinterpret_cast<const QRgb *>(image.constScanLine(y));
        count += std::count_if(line, line + image.width(), isColoured);
    }
    return static_cast<int>(count);
}

/// Whether the window of this maker's chart shows the scene, and another picture after another
/// ping.
bool drawsTheScene(const ChartMaker &maker, const SceneColumn &column, const QString &folder)
{
    ChartScene scene = column.make();
    const auto chart = maker.make(sizes[0], scene);
    drawNextPing(*chart, scene);
    const QImage before = chart->picture();
    drawNextPing(*chart, scene);
    const QImage picture = chart->picture();

    const int coloured = colouredPixels(picture);
    const bool isMeantWhite = qstrcmp(maker.name, "floor") == 0;
    const bool isDrawn = isMeantWhite
                             ? coloured == 0
                             : coloured > 2 * DepthChartData::maxSamples && picture != before;
    const QString name = QString(maker.name) + ", " + column.name;
    QTextStream(stdout) << name.leftJustified(50) << picture.width() << 'x' << picture.height()
                        << ", " << coloured << " coloured pixels"
                        << (isDrawn ? "\n" : ", which is WRONG\n");
    const bool isKept =
        folder.isEmpty() || picture.save(QDir(folder).filePath(name + QStringLiteral(".png")));
    return isDrawn && isKept && picture.size() == sizes[0];
}

/// Whoever draws nothing wins every race: nobody may start then.
bool allDrawTheScene(const std::vector<ChartMaker> &makers, const QString &folder)
{
    bool everybody = folder.isEmpty() || QDir().mkpath(folder);
    for (const ChartMaker &maker : makers) {
        for (const SceneColumn &column : scenes) {
            everybody = drawsTheScene(maker, column, folder) && everybody;
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
