// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "chartcomparison.h"
#include "chartscenes.h"

#include <QtTest>

#include <algorithm>
#include <cmath>
#include <random>

namespace {

constexpr float none = DepthChartData::noDepth;
constexpr quint32 seeds[] = {20260117, 1, 7, 42, 768, 974, 1000, 65521};

/// Charts that nobody thought of, the same in every run.
class RandomCharts
{
public:
    explicit RandomCharts(quint32 seed)
        : generator(seed)
    {}

    int number(int from, int to) { return std::uniform_int_distribution<int>(from, to)(generator); }

    /// Depths in centimetres over all of the chart and beyond, as sounders send them.
    DepthSample anywhere(int range)
    {
        const auto depth = [&] {
            return number(0, 9) == 0 ? none : float(number(0, range * 120)) / 100.0F;
        };
        return {depth(), depth()};
    }

    /// Depths of any float, some of them zero or none, LF close to HF.
    DepthSample alongABed(int index, int range)
    {
        const float bed = float(range) * (0.5F + 0.4F * float(std::sin(index * slope)));
        const float hf = bed + float(number(-1000, 1000)) * 1e-4F;
        const float lf = hf + float(number(-300, 900)) * 1e-3F;
        return {number(0, 40) == 0 ? none : std::max(0.0F, hf),
                number(0, 40) == 0 ? none : std::max(0.0F, lf)};
    }

    DepthChartData chart()
    {
        DepthChartData chart;
        const bool isUnusual = number(0, 4) == 0;
        chart.graphRange = isUnusual ? number(1, 100) : 5 * number(1, 20);
        chart.maxDepthLine = number(0, 130);
        setUnit(chart, number(0, 1) == 1);
        slope = number(1, 40) / 400.0;
        const bool isBed = number(0, 1) == 1;
        const int count = number(0, 2) == 0 ? number(0, 768) : 768;
        chart.samples = samplesOf(count, chart.graphRange, [&](int i, int range) {
            return isBed ? alongABed(i, range) : anywhere(range);
        });
        return chart;
    }

private:
    std::mt19937 generator;
    double slope = 0.1;
};

} // namespace

class TestDepthChartRandom : public QObject
{
    Q_OBJECT

private slots:
    void chartsOfAnySizeAreThePlainOnes_data();
    void chartsOfAnySizeAreThePlainOnes();
    void chartsOfTheWindowsSizeAreThePlainOnes_data();
    void chartsOfTheWindowsSizeAreThePlainOnes();
    void cleanupTestCase() { comparison.report(); }

private:
    ChartComparison comparison;
};

void TestDepthChartRandom::chartsOfAnySizeAreThePlainOnes_data()
{
    QTest::addColumn<quint32>("seed");
    for (const quint32 seed : seeds) {
        QTest::addRow("seed %u", seed) << seed;
    }
}

void TestDepthChartRandom::chartsOfAnySizeAreThePlainOnes()
{
    QFETCH(quint32, seed);
    RandomCharts random(seed);
    for (int round = 0; round < 60; ++round) {
        const DepthChartData chart = random.chart();
        const QSize size(random.number(1, 1100), random.number(1, 700));
        const QByteArray difference = comparison.differenceOnOneCanvas(size, chart);
        QVERIFY2(difference.isEmpty(),
                 "chart " + QByteArray::number(round) + " of the seed: " + difference);
    }
}

void TestDepthChartRandom::chartsOfTheWindowsSizeAreThePlainOnes_data()
{
    chartsOfAnySizeAreThePlainOnes_data();
}

void TestDepthChartRandom::chartsOfTheWindowsSizeAreThePlainOnes()
{
    QFETCH(quint32, seed);
    RandomCharts random(~seed);
    for (const QSize &size : {QSize(974, 650), QSize(1920, 1000), QSize(1904, 1010)}) {
        for (int round = 0; round < 10; ++round) {
            const QByteArray difference = comparison.differenceOnOneCanvas(size, random.chart());
            QVERIFY2(difference.isEmpty(),
                     "chart " + QByteArray::number(round) + " of this size: " + difference);
        }
    }
}

QTEST_MAIN(TestDepthChartRandom)
#include "tst_depthchartrandom.moc"
