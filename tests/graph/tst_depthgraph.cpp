// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "graphbench.h"

#include <QLayout>

#include <limits>

namespace {

constexpr float none = DepthChartData::noDepth;

/// How many runs of rows have a dark pixel between these columns.
int runsOfRows(const QImage &canvas, int from, int to)
{
    int runs = 0;
    bool wasDark = false;
    for (int y = 0; y < canvas.height(); ++y) {
        bool isDark = false;
        for (int x = from; x < to; ++x) {
            isDark = isDark || qGray(canvas.pixel(x, y)) < 200;
        }
        runs += isDark && !wasDark ? 1 : 0;
        wasDark = isDark;
    }
    return runs;
}

int textsBelowEachOther(const QImage &canvas)
{
    return runsOfRows(canvas, 0, canvas.width() / 10 - 2);
}

/// Each mark of the scale has a line across the chart.
int marksOf(const QImage &canvas)
{
    const int middle = canvas.width() / 2;
    return runsOfRows(canvas, middle, middle + 1);
}

} // namespace

class TestDepthGraph : public QObject
{
    Q_OBJECT

private slots:
    void slotsAreFoundBySignature_data();
    void slotsAreFoundBySignature();
    void beforeTheFirstDepth();
    void headerIsSmoothedAndWithoutMargins();
    void depthTexts_data();
    void depthTexts();
    void depthsAreDrawnNewestFirst();
    void negativeDepthIsNoDepth();
    void thousandMetresAreNoDepth();
    void modeDiscardsTheOtherChannel_data();
    void modeDiscardsTheOtherChannel();
    void modeLeavesOlderSamplesAlone();
    void sampleBeyondTheLargestNumberPushesOutTheOldest();
    void maximumDepthSetsRangeAndLine_data();
    void maximumDepthSetsRangeAndLine();
    void unknownModeIsRejected_data();
    void unknownModeIsRejected();
    void callsAreLogged();
    void valuesThatAreNoNumbersDoNoHarm();
    void smallestWindowKeepsTheScaleApart_data();
    void smallestWindowKeepsTheScaleApart();
};

void TestDepthGraph::slotsAreFoundBySignature_data()
{
    QTest::addColumn<QByteArray>("signature");
    for (const char *signature : {"addData(float,float)", "setMaxDepth(float)",
                                  "goToImperial(bool)", "setFrequency(QString)", "drawPic()"}) {
        QTest::newRow(signature) << QByteArray(signature);
    }
}

void TestDepthGraph::slotsAreFoundBySignature()
{
    QFETCH(QByteArray, signature);
    QVERIFY(depthGraph::staticMetaObject.indexOfSlot(signature) >= 0);
}

void TestDepthGraph::beforeTheFirstDepth()
{
    GraphBench bench;
    QVERIFY(bench.window.isWindow());
    QVERIFY(!bench.window.isVisible());
    QCOMPARE(bench.window.windowTitle(), QStringLiteral("Depth Graph"));
    QCOMPARE(bench.window.size(), QSize(974, 685));
    QVERIFY2(!bench.window.windowIcon().pixmap(16).isNull(), "no window icon");
    QCOMPARE(bench.hfText(), QStringLiteral("High Frequency Depth:"));
    QCOMPARE(bench.lfText(), QString());
}

void TestDepthGraph::headerIsSmoothedAndWithoutMargins()
{
    GraphBench bench;
    for (const char *name : {"depthGraphFieldHF", "depthGraphFieldLF", "titleLabel"}) {
        QVERIFY2(bench.label(name)->font().styleStrategy() & QFont::PreferAntialias, name);
    }
    for (const QLayout *layout : bench.window.findChildren<QLayout *>()) {
        QCOMPARE(layout->contentsMargins(), QMargins());
    }
}

void TestDepthGraph::depthTexts_data()
{
    QTest::addColumn<bool>("imperial");
    QTest::addColumn<float>("hf");
    QTest::addColumn<float>("lf");
    QTest::addColumn<QString>("hfText");
    QTest::addColumn<QString>("lfText");
    QTest::newRow("12.34 m and 13.1 m")
        << false << 12.34F << 13.1F << "High Frequency Depth: <b>12.34m</b>"
        << "Low Frequency Depth: <b>13.10m</b>";
    QTest::newRow("12.34 m and 13.1 m in feet")
        << true << 12.34F << 13.1F << "High Frequency Depth: <b>40.49ft</b>"
        << "Low Frequency Depth: <b>42.98ft</b>";
    QTest::newRow("0 m and 0 m") << false << 0.0F << 0.0F << "High Frequency Depth: <b>0.00m</b>"
                                 << "Low Frequency Depth: <b>0.00m</b>";
    QTest::newRow("no HF") << false << -1.0F << 13.1F << ""
                           << "Low Frequency Depth: <b>13.10m</b>";
    QTest::newRow("no LF") << false << 12.34F << -0.01F << "High Frequency Depth: <b>12.34m</b>"
                           << "";
}

void TestDepthGraph::depthTexts()
{
    QFETCH(bool, imperial);
    QFETCH(float, hf);
    QFETCH(float, lf);
    GraphBench bench;
    bench.window.goToImperial(imperial);
    bench.window.addData(hf, lf);
    QTEST(bench.hfText(), "hfText");
    QTEST(bench.lfText(), "lfText");
}

void TestDepthGraph::depthsAreDrawnNewestFirst()
{
    GraphBench bench;
    bench.show();
    bench.window.addData(1.0F, 2.0F);
    bench.window.addData(1.5F, 2.5F);
    bench.expected.samples = {{1.5F, 2.5F}, {1.0F, 2.0F}};
    QVERIFY(bench.showsTheChart());
}

void TestDepthGraph::negativeDepthIsNoDepth()
{
    GraphBench bench;
    bench.show();
    bench.window.addData(-1.0F, 2.0F);
    QCOMPARE(bench.hfText(), QString());
    bench.window.addData(1.0F, -0.001F);
    QCOMPARE(bench.lfText(), QString());
    bench.expected.samples = {{1.0F, none}, {none, 2.0F}};
    QVERIFY2(bench.showsTheChart(), "a dot for a channel without depth");
}

void TestDepthGraph::thousandMetresAreNoDepth()
{
    GraphBench bench;
    bench.window.addData(1000.0F, 1000.0F);
    QCOMPARE(bench.hfText(), QString());
    QCOMPARE(bench.lfText(), QString());
}

void TestDepthGraph::modeDiscardsTheOtherChannel_data()
{
    QTest::addColumn<float>("hf");
    QTest::addColumn<float>("lf");
    QTest::newRow("HF") << 1.0F << none;
    QTest::newRow("LF") << none << 2.0F;
    QTest::newRow("dual") << 1.0F << 2.0F;
}

void TestDepthGraph::modeDiscardsTheOtherChannel()
{
    QFETCH(float, hf);
    QFETCH(float, lf);
    GraphBench bench;
    bench.show();
    bench.window.setFrequency(QTest::currentDataTag());
    bench.window.addData(1.0F, 2.0F);
    QCOMPARE(bench.hfText().isEmpty(), hf == none);
    QCOMPARE(bench.lfText().isEmpty(), lf == none);
    bench.expected.samples = {{hf, lf}};
    QVERIFY(bench.showsTheChart());
}

void TestDepthGraph::modeLeavesOlderSamplesAlone()
{
    GraphBench bench;
    bench.show();
    bench.window.addData(1.0F, 2.0F);
    bench.window.setFrequency(QStringLiteral("LF"));
    bench.window.addData(1.0F, 2.0F);
    bench.expected.samples = {{none, 2.0F}, {1.0F, 2.0F}};
    QVERIFY(bench.showsTheChart());
}

void TestDepthGraph::sampleBeyondTheLargestNumberPushesOutTheOldest()
{
    GraphBench bench;
    bench.show();
    bench.window.addData(4.5F, 4.9F);
    for (int i = 1; i < 768; ++i) {
        bench.window.addData(1.0F, 2.0F);
        bench.expected.samples << DepthSample{1.0F, 2.0F};
    }
    bench.expected.samples << DepthSample{4.5F, 4.9F};
    QVERIFY2(bench.showsTheChart(), "768 pings do not fit");
    bench.window.addData(1.0F, 2.0F);
    bench.expected.samples.last() = {1.0F, 2.0F};
    QVERIFY2(bench.showsTheChart(), "the oldest of 769 pings is still there");
}

void TestDepthGraph::maximumDepthSetsRangeAndLine_data()
{
    QTest::addColumn<float>("depth");
    QTest::addColumn<int>("range");
    QTest::addColumn<int>("line");
    QTest::newRow("0") << 0.0F << 5 << 0;
    QTest::newRow("4.9") << 4.9F << 5 << 4;
    QTest::newRow("20") << 20.0F << 25 << 20;
    QTest::newRow("23.7") << 23.7F << 25 << 23;
    QTest::newRow("24.9") << 24.9F << 25 << 24;
    QTest::newRow("25") << 25.0F << 30 << 25;
    QTest::newRow("30") << 30.0F << 35 << 30;
    QTest::newRow("94.9") << 94.9F << 95 << 94;
    QTest::newRow("96.9") << 96.9F << 100 << 96;
    QTest::newRow("97") << 97.0F << 100 << 97;
    QTest::newRow("120, the line below the picture") << 120.0F << 100 << 120;
    QTest::newRow("1e30") << 1e30F << 100 << 1000000000;
    QTest::newRow("infinite") << std::numeric_limits<float>::infinity() << 100 << 1000000000;
}

void TestDepthGraph::maximumDepthSetsRangeAndLine()
{
    QFETCH(float, depth);
    QFETCH(int, range);
    QFETCH(int, line);
    GraphBench bench;
    bench.show();
    bench.window.setMaxDepth(depth);
    bench.window.addData(1.0F, 2.0F);
    bench.expected.samples = {{1.0F, 2.0F}};
    bench.expected.graphRange = range;
    bench.expected.maxDepthLine = line;
    QVERIFY(bench.showsTheChart());
}

void TestDepthGraph::unknownModeIsRejected_data()
{
    QTest::addColumn<QString>("mode");
    QTest::newRow("Dual with a capital D") << "Dual";
    QTest::newRow("lf") << "lf";
    QTest::newRow("blank at the end") << "LF ";
    QTest::newRow("empty") << "";
}

void TestDepthGraph::unknownModeIsRejected()
{
    QFETCH(QString, mode);
    GraphBench bench;
    bench.window.setFrequency(QStringLiteral("HF"));
    bench.log.clear();
    bench.window.setFrequency(mode);
    QCOMPARE(bench.log.texts(), (QStringList{"SETTING FREUQNEYC", "Unknown frequency!?"}));
    bench.window.addData(1.0F, 2.0F);
    QVERIFY2(!bench.hfText().isEmpty() && bench.lfText().isEmpty(), "the mode is no longer HF");
}

void TestDepthGraph::callsAreLogged()
{
    GraphBench bench;
    bench.log.clear();
    bench.window.setMaxDepth(23.5F);
    bench.window.goToImperial(true);
    bench.window.setFrequency(QStringLiteral("dual"));
    QCOMPARE(bench.log.texts(), (QStringList{"Setting Max Depth To 23.5", "GRAPH TO IMPERIAL true",
                                             "SETTING FREUQNEYC"}));
    const char *functions[] = {"depthGraph::setMaxDepth", "depthGraph::goToImperial",
                               "depthGraph::setFrequency"};
    for (int i = 0; i < 3; ++i) {
        const QString line = bench.log.lines().at(i);
        QVERIFY2(line.startsWith("depthgraph.cpp ") && line.contains(functions[i]),
                 qPrintable(line));
    }
}

void TestDepthGraph::valuesThatAreNoNumbersDoNoHarm()
{
    GraphBench bench;
    bench.show();
    constexpr float infinity = std::numeric_limits<float>::infinity();
    constexpr float nan = std::numeric_limits<float>::quiet_NaN();
    bench.window.addData(nan, 2.0F);
    QCOMPARE(bench.hfText(), QString());
    bench.window.addData(1.0F, infinity);
    QCOMPARE(bench.lfText(), QString());
    bench.expected.samples = {{1.0F, none}, {none, 2.0F}};
    QVERIFY(bench.showsTheChart());

    for (const float depth : {nan, infinity, -infinity, 1e30F, -1e30F, -3.0F}) {
        bench.window.setMaxDepth(depth);
        bench.window.addData(1e30F, -1e30F);
        bench.window.drawPic();
    }
    bench.window.setMaxDepth(5.0F);
    bench.window.drawPic();
    QVERIFY(!bench.picture().isNull());
}

void TestDepthGraph::smallestWindowKeepsTheScaleApart_data()
{
    QTest::addColumn<int>("range");
    QTest::addColumn<bool>("imperial");
    for (int range = 5; range <= 100; range += 5) {
        for (const bool imperial : {false, true}) {
            QTest::addRow("%d m in %s", range, imperial ? "feet" : "metres") << range << imperial;
        }
    }
}

/// Feet have three times as many marks as metres: an operator must be able to read each.
void TestDepthGraph::smallestWindowKeepsTheScaleApart()
{
    QFETCH(int, range);
    QFETCH(bool, imperial);
    GraphBench bench;
    bench.show();
    bench.window.resize(bench.window.minimumSize());
    QTRY_COMPARE(bench.window.size(), bench.window.minimumSize());
    DepthChartData chart;
    chart.graphRange = range;
    chart.maxDepthLine = 10000; // out of sight
    chart.unitFactor = imperial ? 3.28084F : 1.0F;
    QImage canvas(bench.label("label")->size(), QImage::Format_RGB32);
    drawDepthChart(canvas, chart);
    // The lowest mark's line may lie below the edge while its text is still seen.
    QVERIFY2(textsBelowEachOther(canvas) >= marksOf(canvas), "two texts run into each other");
}

QTEST_MAIN(TestDepthGraph)
#include "tst_depthgraph.moc"
