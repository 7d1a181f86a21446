// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "chartcomparison.h"
#include "chartscenes.h"
#include "qtdifferences.h"

#include <QtTest>

Q_DECLARE_METATYPE(DepthChartData)

namespace {

constexpr float none = DepthChartData::noDepth;

/// A chart 400 high whose range is 45 m shows a metre as exactly 8 pixels, and depth 0 exactly at
/// 20. So depths that a float holds exactly stand at exact fractions of a pixel.
constexpr int exactHeight = 400;
constexpr int exactRange = 45;
constexpr float pixelsPerMetre = 8.0F;

/// A stroke is rasterised in 64ths of a pixel. Finer fractions show how it rounds to them.
constexpr int fractions = 256;

DepthChartData exactChart(const SampleOf &sampleOf)
{
    DepthChartData chart;
    chart.graphRange = exactRange;
    chart.maxDepthLine = 1000; // out of sight
    chart.samples = samplesOf(DepthChartData::maxSamples, exactRange, sampleOf);
    return chart;
}

/// The depth that stands so many pixels, and so many 256ths of one, below depth 0.
float depthAt(int pixels, int fraction)
{
    return (float(pixels) + float(fraction) / fractions) / pixelsPerMetre;
}

void addChartColumns()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<DepthChartData>("chart");
}

/// Widths by the step from sample to sample that they give: whole pixels, halves, quarters,
/// eighths, steps that no fraction is equal to, and those (784, 832, 416) of which a multiple that
/// should be whole comes out a hair below.
constexpr int stepWidths[] = {768, 1536, 384,  1152, 192, 576, 96,
                              769, 767,  1000, 601,  784, 832, 416};

} // namespace

/// Holds the program's chart against the plain one, pixel by pixel, where rounding could differ.
class TestDepthChartPixels : public QObject
{
    Q_OBJECT

private slots:
    void sceneIsThePlainOne_data();
    void sceneIsThePlainOne();
    void sceneOfManyWidthsIsThePlainOne_data();
    void sceneOfManyWidthsIsThePlainOne();
    void everyRangeIsThePlainOne_data();
    void everyRangeIsThePlainOne();
    void dotsAtEveryFractionOfAPixel_data();
    void dotsAtEveryFractionOfAPixel();
    void connectorsOfEveryLength_data();
    void connectorsOfEveryLength();
    void dotsCutByTheEdges_data();
    void dotsCutByTheEdges();
    void dotsOnTopOfEachOther();
    void tinyCharts();
    void oneWrongPixelIsFound();
    void nothingPassesForThePaintersThatIsNot();
    void cleanupTestCase() { comparison.report(); }

private:
    ChartComparison comparison;
};

void TestDepthChartPixels::sceneIsThePlainOne_data()
{
    addChartColumns();
    for (const QSize &size : {QSize(974, 650), QSize(601, 333), QSize(97, 61), QSize(1, 1)}) {
        for (const int range : {5, 25, 35, 100}) {
            for (const bool imperial : {false, true}) {
                for (const Scene &scene : scenes()) {
                    QTest::addRow("%s, %dx%d, range %d %s", scene.name, size.width(), size.height(),
                                  range, imperial ? "ft" : "m")
                        << size << chartOf(scene, range, imperial);
                }
            }
        }
    }
}

void TestDepthChartPixels::sceneIsThePlainOne()
{
    QFETCH(QSize, size);
    QFETCH(DepthChartData, chart);
    const QByteArray difference = comparison.difference(size, chart);
    QVERIFY2(difference.isEmpty(), difference);
}

void TestDepthChartPixels::sceneOfManyWidthsIsThePlainOne_data()
{
    addChartColumns();
    for (const QSize &size : {QSize(1920, 1000), QSize(768, 400), QSize(769, 401), QSize(1000, 500),
                              QSize(1536, 300), QSize(384, 700), QSize(3840, 200)}) {
        for (const bool imperial : {false, true}) {
            for (const Scene &scene : scenes()) {
                QTest::addRow("%s, %dx%d, %s", scene.name, size.width(), size.height(),
                              imperial ? "ft" : "m")
                    << size << chartOf(scene, 35, imperial);
            }
        }
    }
}

void TestDepthChartPixels::sceneOfManyWidthsIsThePlainOne() { sceneIsThePlainOne(); }

void TestDepthChartPixels::everyRangeIsThePlainOne_data()
{
    addChartColumns();
    // Unusual ones: below 0 there is no scale, beyond 100 it takes its larger steps.
    QList<int> ranges{-25, 1, 2, 7, 33, 64, 99, 200, 300, 500, 1000, 2000};
    for (int range = 5; range <= 100; range += 5) {
        ranges << range;
    }
    for (const int range : qAsConst(ranges)) {
        for (const bool imperial : {false, true}) {
            for (const char *name : {"full", "gaps", "whole metres"}) {
                QTest::addRow("%s, range %d %s", name, range, imperial ? "ft" : "m")
                    << QSize(416, 500) << chartOf(scene(name), range, imperial);
            }
        }
    }
}

void TestDepthChartPixels::everyRangeIsThePlainOne() { sceneIsThePlainOne(); }

void TestDepthChartPixels::dotsAtEveryFractionOfAPixel_data()
{
    QTest::addColumn<int>("width");
    for (const int width : stepWidths) {
        QTest::addRow("%d wide", width) << width;
    }
}

/// The rows of dots lie so far apart that neighbours do not cover each other.
void TestDepthChartPixels::dotsAtEveryFractionOfAPixel()
{
    QFETCH(int, width);
    for (int shift = 0; shift < 4; ++shift) {
        const DepthChartData hf = exactChart([shift](int i, int) {
            return DepthSample{depthAt(5 + i % 40 * 9, (i * 5 + shift * 64) % fractions), none};
        });
        const DepthChartData lf = exactChart([shift](int i, int) {
            return DepthSample{none, depthAt(5 + i % 40 * 9, (i + shift * 64) % fractions)};
        });
        for (const DepthChartData &chart : {hf, lf}) {
            const QByteArray difference = comparison.difference({width, exactHeight}, chart);
            QVERIFY2(difference.isEmpty(), difference);
        }
    }
}

void TestDepthChartPixels::connectorsOfEveryLength_data() { dotsAtEveryFractionOfAPixel_data(); }

/// From nothing at all (both ends in the same pixel) over one pixel to most of the chart, up and
/// down, and past the bottom.
void TestDepthChartPixels::connectorsOfEveryLength()
{
    QFETCH(int, width);
    const auto connectors = [](int shortest, bool isDownward) {
        return exactChart([=](int i, int) {
            const float from = depthAt(3 + i % 23, i * 7 % fractions);
            const float to = depthAt(3 + i % 23 + shortest + i / 16, i * 11 % fractions);
            return isDownward ? DepthSample{from, to} : DepthSample{to, from};
        });
    };
    for (const int shortest : {0, 30, 340, 370}) {
        for (const bool isDownward : {true, false}) {
            const QByteArray difference =
                comparison.difference({width, exactHeight}, connectors(shortest, isDownward));
            QVERIFY2(difference.isEmpty(), difference);
        }
    }
}

void TestDepthChartPixels::dotsCutByTheEdges_data()
{
    QTest::addColumn<QSize>("size");
    for (const int width : {768, 600, 384, 100, 50, 13}) {
        for (const int height : {400, 60, 31, 20, 10, 3}) {
            QTest::addRow("%dx%d", width, height) << QSize(width, height);
        }
    }
}

/// Depth 0 lies 5 % below the top edge: in a low chart its dots are cut. So are the first dots by
/// the right edge, the last ones by the left edge and those near 95 % by the bottom edge.
void TestDepthChartPixels::dotsCutByTheEdges()
{
    QFETCH(QSize, size);
    const float pixel = exactRange / (float(size.height()) * 0.9F); // in metres
    const float bottom = float(size.height()) * 0.95F * pixel;
    DepthChartData chart = exactChart([=](int i, int) {
        const float inside = float(i % 97) * pixel / 16;
        return DepthSample{inside, bottom + 3 * pixel - inside};
    });
    QByteArray difference = comparison.difference(size, chart);
    QVERIFY2(difference.isEmpty(), difference);
    for (DepthSample &sample : chart.samples) {
        sample.hf = none; // now without the connectors
    }
    difference = comparison.difference(size, chart);
    QVERIFY2(difference.isEmpty(), difference);
}

/// Dots and connectors of both colours cover parts of the same pixels, and a later one lets an
/// earlier one shine through.
void TestDepthChartPixels::dotsOnTopOfEachOther()
{
    for (const int width : {60, 96, 192, 350, 384, 768}) {
        for (int apart = 0; apart < 8; ++apart) {
            const DepthChartData chart = exactChart([apart](int i, int) {
                const int fraction = i * 37;
                return DepthSample{depthAt(20, fraction % fractions),
                                   depthAt(20, (fraction + apart * 100) % (4 * fractions))};
            });
            const QByteArray difference = comparison.difference({width, exactHeight}, chart);
            QVERIFY2(difference.isEmpty(), difference);
        }
    }
}

/// Every size meets a quarter of the scenes, every scene every width and every height.
void TestDepthChartPixels::tinyCharts()
{
    constexpr int largest = 20;
    constexpr int part = 4;
    for (int index = 0; index < scenes().size(); ++index) {
        const DepthChartData chart = chartOf(scenes().at(index), 25, false);
        for (int width = 1; width <= largest; ++width) {
            for (int height = 1 + (index + width) % part; height <= largest; height += part) {
                const QByteArray difference = comparison.difference({width, height}, chart);
                QVERIFY2(difference.isEmpty(), difference);
            }
        }
    }
}

/// Otherwise the comparisons above would prove nothing.
void TestDepthChartPixels::oneWrongPixelIsFound()
{
    const DepthChartData chart = chartOf(scene("full"), 25, false);
    const QImage right = drawnChart({100, 80}, chart);
    QCOMPARE(firstDifference(right, right), QByteArray());
    for (const QPoint &place : {QPoint(0, 0), QPoint(99, 0), QPoint(0, 79), QPoint(99, 79)}) {
        QImage wrong = right;
        wrong.setPixel(place, right.pixel(place) ^ 1U); // one step of blue
        const QByteArray found = firstDifference(wrong, right);
        const QByteArray where =
            "pixel " + QByteArray::number(place.x()) + "," + QByteArray::number(place.y()) + " is ";
        QVERIFY2(found.startsWith(where), found);
    }
}

/// One step too many of blue.
void TestDepthChartPixels::nothingPassesForThePaintersThatIsNot()
{
    const QSize size(100, 80);
    const DepthChartData chart = chartOf(scene("full"), 25, false);
    const QImage right = drawnChart(size, chart);
    const QRgb pixel = right.pixel(99, 79);
    QCOMPARE(pixel, qRgb(255, 255, 255));
    QImage wrong = right;
    wrong.setPixel(99, 79, qRgb(255, 255, 255 - (QtDifferences::painterSteps + 1)));
    PainterComparison pictures;
    QCOMPARE(pictures.difference(right, right), QByteArray());
    QVERIFY(pictures.difference(wrong, right).startsWith("pixel 99,79 is "));
}

QTEST_MAIN(TestDepthChartPixels)
#include "tst_depthchartpixels.moc"
