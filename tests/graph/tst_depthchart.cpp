// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "depthchart.h"
#include "plainchart.h"

#include <QImage>
#include <QtTest>

#include <cmath>
#include <functional>
#include <random>

namespace {

QByteArray firstDifference(const QImage &actual, const QImage &expected)
{
    if (actual.size() != expected.size()) {
        return "the sizes differ";
    }
    for (int y = 0; y < actual.height(); ++y) {
        for (int x = 0; x < actual.width(); ++x) {
            if (actual.pixel(x, y) != expected.pixel(x, y)) {
                return QStringLiteral("pixel %1,%2 is %3 instead of %4")
                    .arg(x)
                    .arg(y)
                    .arg(actual.pixel(x, y), 8, 16)
                    .arg(expected.pixel(x, y), 8, 16)
                    .toLatin1();
            }
        }
    }
    return {};
}

QImage drawn(const QSize &size, const DepthChartData &chart,
             QImage::Format format = QImage::Format_RGB32)
{
    QImage canvas(size, format);
    canvas.fill(Qt::magenta);
    drawDepthChart(canvas, chart);
    return canvas;
}

using SampleOf = std::function<DepthSample(int index, int range)>;

QList<DepthSample> samplesOf(int count, int range, const SampleOf &sampleOf)
{
    QList<DepthSample> samples;
    for (int i = 0; i < count; ++i) {
        samples << sampleOf(i, range);
    }
    return samples;
}

/// Depths along a gently rolling sea bed, from none to beyond the range.
float bed(int index, int range, double phase)
{
    return float(range * (0.55 + 0.5 * std::sin(index / 30.0 + phase)));
}

struct Scene
{
    const char *name;
    int count;
    SampleOf sampleOf;
};

constexpr float none = DepthChartData::noDepth;

const QVector<Scene> &scenes()
{
    static const QVector<Scene> all{
        {"empty", 0, {}},
        {"one ping", 1,
         [](int, int r) {
             return DepthSample{float(r) * 0.5F, float(r) * 0.6F};
         }},
        {"full", 768,
         [](int i, int r) {
             return DepthSample{bed(i, r, 0), bed(i, r, 0.2)};
         }},
        {"767 pings, LF above HF", 767,
         [](int i, int r) {
             return DepthSample{bed(i, r, 0) * 1.1F, bed(i, r, 0)};
         }},
        {"equal depths", 100,
         [](int i, int r) {
             return DepthSample{bed(i, r, 0), bed(i, r, 0)};
         }},
        {"HF only", 768,
         [](int i, int r) {
             return DepthSample{bed(i, r, 0), none};
         }},
        {"LF only", 768,
         [](int i, int r) {
             return DepthSample{none, bed(i, r, 0)};
         }},
        {"gaps", 400,
         [](int i, int r) {
             return DepthSample{i % 7 < 2 ? none : bed(i, r, 0), i % 5 == 0 ? none : bed(i, r, 1)};
         }},
        {"no depths", 50,
         [](int, int) {
             return DepthSample{none, none};
         }},
        {"zeros", 300,
         [](int i, int r) {
             return DepthSample{i % 3 == 0 ? 0.0F : bed(i, r, 0), i % 4 == 0 ? 0.0F : bed(i, r, 1)};
         }},
        {"whole metres", 300,
         [](int i, int r) {
             return DepthSample{float(i % (r + 2)), float((i * 7) % (r + 3))};
         }},
        {"far beyond the range", 60,
         [](int i, int r) {
             return DepthSample{float(r) * (1.0F + float(i)), 990.0F - float(i)};
         }},
    };
    return all;
}

void setUnit(DepthChartData &chart, bool imperial)
{
    chart.unitFactor = imperial ? 3.28084F : 1.0F;
    chart.unitSuffix = imperial ? "ft" : "m";
}

int gridLines(const QImage &picture)
{
    const int x = picture.width() / 2;
    int lines = 0;
    bool onLine = false;
    for (int y = 0; y < picture.height(); ++y) {
        const bool grey = qGray(picture.pixel(x, y)) < 230;
        lines += grey && !onLine;
        onLine = grey;
    }
    return lines;
}

} // namespace

Q_DECLARE_METATYPE(DepthChartData)

class TestDepthChart : public QObject
{
    Q_OBJECT

private slots:
    void everyPixelIsThePlainOne_data();
    void everyPixelIsThePlainOne();
    void randomChartsAreThePlainOnes();
    void everyPixelIsOpaque();
    void newestAtTheRightOldestAtTheLeft();
    void zeroDepthHasADotAndNoConnector();
    void connectorTellsWhichChannelIsDeeper();
    void gridIsLabelledEvery_data();
    void gridIsLabelledEvery();
    void maxDepthLineBeyondTheRangeIsNotSeen();
    void emptyCanvasStaysEmpty();
    void connectorToAnEndlessDepthLeadsDown();
    void rangeOfNothingShowsAllDepthsAtTheTop();
};

void TestDepthChart::everyPixelIsThePlainOne_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<DepthChartData>("chart");
    const QSize sizes[] = {{974, 650}, {601, 333}, {97, 61}, {1, 1}};
    for (const QSize &size : sizes) {
        for (const int range : {5, 25, 35, 100}) {
            for (const bool imperial : {false, true}) {
                for (const Scene &scene : scenes()) {
                    DepthChartData chart;
                    chart.graphRange = range;
                    chart.maxDepthLine = range == 100 ? 120 : range - 5;
                    setUnit(chart, imperial);
                    chart.samples = samplesOf(scene.count, range, scene.sampleOf);
                    QTest::addRow("%s, %dx%d, range %d %s", scene.name, size.width(), size.height(),
                                  range, qPrintable(chart.unitSuffix))
                        << size << chart;
                }
            }
        }
    }
}

void TestDepthChart::everyPixelIsThePlainOne()
{
    QFETCH(QSize, size);
    QFETCH(DepthChartData, chart);
    const QImage expected = plainChart(size, chart);
    const QByteArray difference = firstDifference(drawn(size, chart), expected);
    QVERIFY2(difference.isEmpty(), difference);
    const QByteArray onArgb = firstDifference(drawn(size, chart, QImage::Format_ARGB32), expected);
    QVERIFY2(onArgb.isEmpty(), onArgb);
}

void TestDepthChart::randomChartsAreThePlainOnes()
{
    std::mt19937 generator(20260117);
    const auto number = [&](int from, int to) {
        return std::uniform_int_distribution<int>(from, to)(generator);
    };
    const auto depth = [&] { return number(0, 9) == 0 ? none : float(number(0, 12000)) / 100.0F; };
    for (int round = 0; round < 150; ++round) {
        DepthChartData chart;
        chart.graphRange = 5 * number(1, 20);
        chart.maxDepthLine = number(0, 130);
        setUnit(chart, number(0, 1) == 1);
        chart.samples = samplesOf(number(0, 768), 0, [&](int, int) {
            return DepthSample{depth(), depth()};
        });
        const QSize size(number(1, 700), number(1, 500));
        const QByteArray difference = firstDifference(drawn(size, chart), plainChart(size, chart));
        QVERIFY2(difference.isEmpty(), "round " + QByteArray::number(round) + ": " + difference);
    }
}

void TestDepthChart::everyPixelIsOpaque()
{
    DepthChartData chart;
    chart.samples = samplesOf(768, 5, scenes().at(2).sampleOf);
    for (const QImage::Format format : {QImage::Format_RGB32, QImage::Format_ARGB32}) {
        const QImage picture = drawn({400, 300}, chart, format);
        for (int y = 0; y < picture.height(); ++y) {
            const auto *line = reinterpret_cast<const QRgb *>(picture.constScanLine(y));
            for (int x = 0; x < picture.width(); ++x) {
                QCOMPARE(qAlpha(line[x]), 255);
            }
        }
    }
}

void TestDepthChart::newestAtTheRightOldestAtTheLeft()
{
    DepthChartData chart;
    chart.graphRange = 10;
    chart.samples = samplesOf(768, 10, [](int i, int) {
        return DepthSample{i == 0 ? 2.5F : none, i == 767 ? 7.5F : none};
    });
    const QImage picture = drawn({768, 400}, chart);
    // Depth 0 lies at 20, depth 10 at 380; between the marks at 2 and 3, and at 7 and 8.
    QCOMPARE(picture.pixel(767, 110), qRgb(0, 0, 255));
    QCOMPARE(picture.pixel(1, 290), qRgb(255, 0, 0));
}

void TestDepthChart::zeroDepthHasADotAndNoConnector()
{
    DepthChartData chart;
    chart.graphRange = 10;
    chart.maxDepthLine = 1000; // out of sight
    // The fifth sample stands right of the grid, at 794.8; depth 0 lies at 20, depth 5.5 at 218.
    const auto withSample = [&](float hf, float lf) {
        chart.samples = samplesOf(4, 10, [](int, int) { return DepthSample{none, none}; });
        chart.samples << DepthSample{none, none} << DepthSample{hf, lf};
        return drawn({800, 400}, chart);
    };
    const QImage hfZero = withSample(0.0F, 5.5F);
    const QImage lfZero = withSample(5.5F, 0.0F);
    QCOMPARE(hfZero.pixel(794, 19), qRgb(0, 0, 255));
    QCOMPARE(lfZero.pixel(794, 19), qRgb(255, 0, 0));
    for (const QImage &picture : {hfZero, lfZero}) {
        for (int x = 790; x < 800; ++x) {
            QVERIFY2(picture.pixel(x, 100) == qRgb(255, 255, 255), "a connector from depth 0");
        }
    }
    QVERIFY2(withSample(0.01F, 5.5F).pixel(794, 100) != qRgb(255, 255, 255), "no connector at all");
}

void TestDepthChart::connectorTellsWhichChannelIsDeeper()
{
    DepthChartData chart;
    chart.graphRange = 10;
    const QImage empty = drawn({800, 400}, chart);
    const auto connectorAt = [&](float hf, float lf) {
        chart.samples = samplesOf(768, 10, [&](int, int) { return DepthSample{hf, lf}; });
        return drawn({800, 400}, chart).pixel(400, 110); // between the marks at 2 and 3
    };
    const QRgb lfDeeper = connectorAt(1.5F, 4.5F);
    const QRgb hfDeeper = connectorAt(4.5F, 1.5F);
    QVERIFY2(qBlue(lfDeeper) == 255 && qRed(lfDeeper) < 255, "not light blue");
    QVERIFY2(qRed(hfDeeper) == 255 && qBlue(hfDeeper) < 255, "not light red");
    QCOMPARE(empty.pixel(400, 110), qRgb(255, 255, 255));
}

void TestDepthChart::gridIsLabelledEvery_data()
{
    QTest::addColumn<int>("range");
    QTest::addColumn<bool>("imperial");
    QTest::addColumn<int>("linesInSight");
    QTest::newRow("range 5 m: every metre, 0 to 5") << 5 << false << 6;
    QTest::newRow("range 5 m in feet: every foot, 0 to 17") << 5 << true << 18;
    QTest::newRow("range 10 m: every metre, 0 to 10") << 10 << false << 11;
    QTest::newRow("range 15 m: every 5 m, 0 to 15") << 15 << false << 4;
    QTest::newRow("range 50 m: every 5 m, 0 to 50") << 50 << false << 11;
    QTest::newRow("range 55 m: every 10 m, 0 to 50") << 55 << false << 6;
    QTest::newRow("range 100 m: every 10 m, 0 to 100") << 100 << false << 11;
    QTest::newRow("range 100 m in feet: every 10 ft, 340 the last in sight") << 100 << true << 35;
}

void TestDepthChart::gridIsLabelledEvery()
{
    QFETCH(int, range);
    QFETCH(bool, imperial);
    QFETCH(int, linesInSight);
    DepthChartData chart;
    chart.graphRange = range;
    chart.maxDepthLine = 1000; // out of sight
    setUnit(chart, imperial);
    QCOMPARE(gridLines(drawn({974, 1000}, chart)), linesInSight);
}

void TestDepthChart::maxDepthLineBeyondTheRangeIsNotSeen()
{
    DepthChartData chart;
    chart.graphRange = 100;
    chart.maxDepthLine = 120;
    const QImage beyond = drawn({600, 400}, chart);
    chart.maxDepthLine = 1000000;
    QVERIFY(beyond == drawn({600, 400}, chart));
    chart.maxDepthLine = 97;
    QVERIFY2(beyond != drawn({600, 400}, chart), "no dashed line within the range either");
}

void TestDepthChart::emptyCanvasStaysEmpty()
{
    QImage canvas;
    drawDepthChart(canvas, {});
    QVERIFY(canvas.isNull());
}

void TestDepthChart::connectorToAnEndlessDepthLeadsDown()
{
    DepthChartData chart;
    chart.graphRange = 10;
    chart.samples = samplesOf(768, 10, [](int, int) { return DepthSample{1e30F, 4.5F}; });
    const QImage picture = drawn({768, 400}, chart);
    QCOMPARE(picture.pixel(384, 110), qRgb(255, 255, 255)); // depth 2.5
    QVERIFY2(picture.pixel(384, 290) != qRgb(255, 255, 255), "no connector at depth 7.5");
}

void TestDepthChart::rangeOfNothingShowsAllDepthsAtTheTop()
{
    DepthChartData chart;
    chart.graphRange = 0;
    chart.samples = samplesOf(6, 0, [](int i, int) { return DepthSample{float(i), none}; });
    QCOMPARE(drawn({800, 400}, chart).pixel(794, 19), qRgb(0, 0, 255));
}

QTEST_MAIN(TestDepthChart)
#include "tst_depthchart.moc"
