// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "chartpicture.h"

#include "chartcomparison.h"
#include "chartscenes.h"
#include "plainchart.h"

#include <QtTest>

#include <array>
#include <cmath>
#include <random>

namespace {

constexpr QSize usualSize{320, 210};

DepthSample bedAt(int ping)
{
    const auto bottom = static_cast<float>(12.0 + 4.0 * std::sin(ping / 60.0));
    return {bottom, bottom + 0.4F};
}

/// A survey on the way: every step takes a ping in, and now and then the operator changes
/// something.
class Survey
{
public:
    explicit Survey(unsigned seed)
        : random(seed)
    {
        chart.graphRange = 25;
        chart.maxDepthLine = 20;
    }

    void step()
    {
        takePing();
        switch (random() % 12) {
        case 0:
            size = QSize(1 + int(random() % 400), 1 + int(random() % 300));
            break;
        case 1:
            chart.graphRange = 5 * (1 + int(random() % 20));
            break;
        case 2:
            chart.maxDepthLine = int(random() % 120);
            break;
        case 3:
            setUnit(chart, random() % 2 == 0);
            break;
        default:
            break;
        }
    }

    DepthChartData chart;
    QSize size = usualSize;

private:
    void takePing()
    {
        const auto depth = [this] {
            return random() % 8 == 0 ? DepthChartData::noDepth
                                     : static_cast<float>(random() % 4000) / 100.0F;
        };
        if (chart.samples.size() >= 40 && random() % 10 == 0) {
            chart.samples.clear();
        }
        chart.samples.prepend({depth(), depth()});
    }

    std::mt19937 random;
};

DepthChartData rollingBed(int pings)
{
    DepthChartData chart;
    chart.graphRange = 25;
    chart.maxDepthLine = 20;
    for (int i = pings; i > pings - DepthChartData::maxSamples; --i) {
        chart.samples << bedAt(i);
    }
    return chart;
}

/// Where the pictures differ and should not, in words; empty if nowhere.
QString differenceOutside(const QRegion &region, const QImage &left, const QImage &right)
{
    for (int y = 0; y < left.height(); ++y) {
        for (int x = 0; x < left.width(); ++x) {
            if (left.pixel(x, y) != right.pixel(x, y) && !region.contains(QPoint(x, y))) {
                return QStringLiteral("pixel %1,%2").arg(x).arg(y);
            }
        }
    }
    return {};
}

qint64 pixelsIn(const QRegion &region)
{
    qint64 pixels = 0;
    for (const QRect &part : region) {
        pixels += qint64(part.width()) * part.height();
    }
    return pixels;
}

} // namespace

class TestChartPicture : public QObject
{
    Q_OBJECT

private slots:
    void hasNoImageBeforeTheFirstDrawing();
    void everyPictureOfASurveyIsThePlainOne_data();
    void everyPictureOfASurveyIsThePlainOne();
    void nothingDiffersOutsideTheDifference_data();
    void nothingDiffersOutsideTheDifference();
    void onARollingBedLittleDiffers();
    void picturesOfTwoScalesDifferEverywhere();
    void sharedPixelsStay();
    void remembersItsChart();
    void cleanupTestCase() { comparison.report(); }

private:
    PainterComparison comparison;
};

void TestChartPicture::hasNoImageBeforeTheFirstDrawing()
{
    QVERIFY(ChartPicture().image().isNull());
}

void TestChartPicture::everyPictureOfASurveyIsThePlainOne_data()
{
    QTest::addColumn<unsigned>("seed");
    for (const unsigned seed : {1U, 7U, 42U, 768U}) {
        QTest::addRow("seed %u", seed) << seed;
    }
}

void TestChartPicture::everyPictureOfASurveyIsThePlainOne()
{
    QFETCH(unsigned, seed);
    Survey survey(seed);
    ChartPicture picture;
    for (int i = 0; i < 200; ++i) {
        survey.step();
        picture.draw(survey.size, survey.chart);
        const QByteArray difference =
            comparison.difference(picture.image(), plainChart(survey.size, survey.chart));
        QVERIFY2(difference.isEmpty(), qPrintable(QStringLiteral("step %1: ").arg(i) + difference));
    }
}

void TestChartPicture::nothingDiffersOutsideTheDifference_data()
{
    everyPictureOfASurveyIsThePlainOne_data();
}

void TestChartPicture::nothingDiffersOutsideTheDifference()
{
    QFETCH(unsigned, seed);
    Survey survey(seed);
    std::array<ChartPicture, 2> pictures;
    for (std::size_t i = 0; i < 200; ++i) {
        survey.step();
        ChartPicture &next = pictures.at(i % 2);
        const ChartPicture &before = pictures.at(1 - i % 2);
        next.draw(survey.size, survey.chart);
        if (before.image().size() == next.image().size()) {
            const QString place =
                differenceOutside(next.difference(before), next.image(), before.image());
            QVERIFY2(place.isEmpty(), qPrintable(QStringLiteral("step %1: ").arg(i) + place));
        }
    }
}

void TestChartPicture::onARollingBedLittleDiffers()
{
    ChartPicture before;
    ChartPicture next;
    before.draw({960, 600}, rollingBed(1000));
    next.draw({960, 600}, rollingBed(1001));
    QVERIFY(before.image() != next.image());
    QVERIFY2(pixelsIn(next.difference(before)) < 960 * 600 / 4, "a ping paints the window anew");
}

void TestChartPicture::picturesOfTwoScalesDifferEverywhere()
{
    ChartPicture metres;
    ChartPicture feet;
    DepthChartData chart = rollingBed(1000);
    metres.draw(usualSize, chart);
    setUnit(chart, true);
    feet.draw(usualSize, chart);
    QCOMPARE(feet.difference(metres), QRegion(QRect(QPoint(), usualSize)));
}

// The window's label still shows the pixels, or somebody has taken a copy.
void TestChartPicture::sharedPixelsStay()
{
    ChartPicture picture;
    picture.draw(usualSize, rollingBed(1000));
    const QImage taken = picture.image();
    const QImage expected = taken.copy();
    picture.draw(usualSize, rollingBed(1020));
    QCOMPARE(taken, expected);
    QCOMPARE(comparison.difference(picture.image(), plainChart(usualSize, rollingBed(1020))),
             QByteArray());
}

void TestChartPicture::remembersItsChart()
{
    ChartPicture picture;
    picture.draw(usualSize, rollingBed(1000));
    QVERIFY(picture.chart() == rollingBed(1000));
    QVERIFY(!(picture.chart() == rollingBed(1001)));
}

QTEST_MAIN(TestChartPicture)
#include "tst_chartpicture.moc"
