// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "chartcomparison.h"
#include "chartscenes.h"
#include "depthchart.h"

#include <QImage>
#include <QtTest>

namespace {

constexpr float none = DepthChartData::noDepth;

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

class TestDepthChart : public QObject
{
    Q_OBJECT

private slots:
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

void TestDepthChart::everyPixelIsOpaque()
{
    DepthChartData chart;
    chart.samples = samplesOf(768, 5, [](int i, int) {
        return DepthSample{float(i) * 0.005F, 4.5F - float(i) * 0.004F};
    });
    for (const QImage::Format format : {QImage::Format_RGB32, QImage::Format_ARGB32}) {
        const QImage picture = drawnChart({400, 300}, chart, format);
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
    const QImage picture = drawnChart({768, 400}, chart);
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
        return drawnChart({800, 400}, chart);
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
    const QImage empty = drawnChart({800, 400}, chart);
    const auto connectorAt = [&](float hf, float lf) {
        chart.samples = samplesOf(768, 10, [&](int, int) { return DepthSample{hf, lf}; });
        return drawnChart({800, 400}, chart).pixel(400, 110); // between the marks at 2 and 3
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
    QCOMPARE(gridLines(drawnChart({974, 1000}, chart)), linesInSight);
}

void TestDepthChart::maxDepthLineBeyondTheRangeIsNotSeen()
{
    DepthChartData chart;
    chart.graphRange = 100;
    chart.maxDepthLine = 120;
    const QImage beyond = drawnChart({600, 400}, chart);
    chart.maxDepthLine = 1000000;
    QVERIFY(beyond == drawnChart({600, 400}, chart));
    chart.maxDepthLine = 97;
    QVERIFY2(beyond != drawnChart({600, 400}, chart), "no dashed line within the range either");
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
    const QImage picture = drawnChart({768, 400}, chart);
    QCOMPARE(picture.pixel(384, 110), qRgb(255, 255, 255)); // depth 2.5
    QVERIFY2(picture.pixel(384, 290) != qRgb(255, 255, 255), "no connector at depth 7.5");
}

void TestDepthChart::rangeOfNothingShowsAllDepthsAtTheTop()
{
    DepthChartData chart;
    chart.graphRange = 0;
    chart.samples = samplesOf(6, 0, [](int i, int) { return DepthSample{float(i), none}; });
    QCOMPARE(drawnChart({800, 400}, chart).pixel(794, 19), qRgb(0, 0, 255));
}

QTEST_MAIN(TestDepthChart)
#include "tst_depthchart.moc"
