// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

// The chart on screens with more than one pixel in each of the form's.

#include "chartcomparison.h"
#include "chartpicture.h"
#include "chartscenes.h"
#include "plainchart.h"

#include <QtTest>

#include <algorithm>
#include <array>
#include <cstdlib>

namespace {

/// How far the farthest pixel of two pictures of 32 bits a pixel lies apart, in the steps of one of
/// its colours.
int greatestDifference(const QImage &one, const QImage &other)
{
    int greatest = 0;
    for (int y = 0; y < one.height(); ++y) {
        const auto *const ones = reinterpret_cast<const QRgb *>(one.constScanLine(y));
        const auto *const others = reinterpret_cast<const QRgb *>(other.constScanLine(y));
        for (int x = 0; x < one.width(); ++x) {
            if (ones[x] != others[x]) {
                greatest = std::max(greatest, stepsApart(ones[x], others[x]));
            }
        }
    }
    return greatest;
}

QImage denseChart(const QSize &pixels, const DepthChartData &chart, double ratio)
{
    QImage canvas(pixels, QImage::Format_RGB32);
    canvas.setDevicePixelRatio(ratio);
    canvas.fill(Qt::magenta); // whatever is not drawn over shows
    drawDepthChart(canvas, chart);
    return canvas;
}

/// Nothing outside the region differs between the two.
bool differOnlyIn(const QRegion &region, const QImage &one, const QImage &other)
{
    for (const QRect &part : QRegion(one.rect()) - region) {
        if (one.copy(part) != other.copy(part)) {
            return false;
        }
    }
    return true;
}

void addRatios()
{
    QTest::addColumn<double>("ratio");
    for (const double ratio : {1.25, 1.5, 1.75, 2.0, 3.0}) {
        QTest::addRow("%g", ratio) << ratio;
    }
}

} // namespace

Q_DECLARE_METATYPE(DepthChartData)

class TestChartDensity : public QObject
{
    Q_OBJECT

private slots:
    void chartIsNearlyThePlainOne_data();
    void chartIsNearlyThePlainOne();
    void dotsGrowWithTheRatio_data() { addRatios(); }
    void dotsGrowWithTheRatio();
    void pictureDrawnOverIsThatDrawnAnew_data() { addRatios(); }
    void pictureDrawnOverIsThatDrawnAnew();
    void pictureOfAnotherScreenDiffersEverywhere();
};

void TestChartDensity::chartIsNearlyThePlainOne_data()
{
    QTest::addColumn<double>("ratio");
    QTest::addColumn<DepthChartData>("chart");
    for (const double ratio : {1.25, 1.5, 1.75, 2.0, 3.0}) {
        for (const Scene &scene : scenes()) {
            for (const bool imperial : {false, true}) {
                QTest::addRow("%s at %g in %s", scene.name, ratio, imperial ? "feet" : "metres")
                    << ratio << chartOf(scene, 35, imperial);
            }
        }
    }
}

/// The painter cuts its coordinates off at 64ths of a pixel, the program's broad strokes do not.
void TestChartDensity::chartIsNearlyThePlainOne()
{
    QFETCH(double, ratio);
    QFETCH(DepthChartData, chart);
    const QSize pixels = QSize(600, 400) * ratio;
    const int difference =
        greatestDifference(denseChart(pixels, chart, ratio), plainChart(pixels, chart, ratio));
    constexpr int fewShades = 12;
    QVERIFY2(difference <= fewShades, qPrintable(QString::number(difference)));
}

void TestChartDensity::dotsGrowWithTheRatio()
{
    QFETCH(double, ratio);
    DepthChartData chart;
    chart.maxDepthLine = 1000; // out of sight
    for (int i = 0; i < 400; ++i) {
        chart.samples.append({DepthChartData::noDepth, DepthChartData::noDepth});
    }
    chart.samples[300].lf = 2.5F; // between two marks of the scale
    const QImage canvas = denseChart(QSize(768, 400) * ratio, chart, ratio);
    double red = 0; // pixels' worth of it
    for (int y = 0; y < canvas.height(); ++y) {
        for (int x = canvas.width() / 4; x < canvas.width() * 9 / 10; ++x) {
            const QRgb pixel = canvas.pixel(x, y);
            red += qRed(pixel) == 255 ? (255 - qGreen(pixel)) / 255.0 : 0.0;
        }
    }
    const double expected = 9 * ratio * ratio;
    QVERIFY2(std::abs(red - expected) <= expected * 0.05, qPrintable(QString::number(red)));
}

void TestChartDensity::pictureDrawnOverIsThatDrawnAnew()
{
    QFETCH(double, ratio);
    const QSize pixels = QSize(500, 300) * ratio;
    DepthChartData chart = chartOf(scene("full"), 35, false);
    std::array<ChartPicture, 2> pictures;
    for (std::size_t ping = 0; ping < 40; ++ping) {
        chart.samples.prepend(chart.samples.takeLast());
        ChartPicture &next = pictures.at(ping % 2);
        const ChartPicture &before = pictures.at(1 - ping % 2);
        next.draw(pixels, chart, ratio);
        const QByteArray difference =
            firstDifference(next.image(), denseChart(pixels, chart, ratio));
        QVERIFY2(difference.isEmpty(), difference);
        if (ping > 0) {
            QVERIFY(differOnlyIn(next.difference(before), next.image(), before.image()));
        }
    }
}

void TestChartDensity::pictureOfAnotherScreenDiffersEverywhere()
{
    const DepthChartData chart = chartOf(scene("full"), 35, false);
    const QSize pixels(400, 300);
    ChartPicture here;
    here.draw(pixels, chart, 1.0);
    ChartPicture there;
    there.draw(pixels, chart, 2.0);
    QCOMPARE(there.difference(here), QRegion(QRect(QPoint(), pixels)));
    there.draw(pixels, chart, 1.0); // the window comes over to the first screen
    QCOMPARE(firstDifference(there.image(), here.image()), QByteArray());
}

QTEST_MAIN(TestChartDensity)
#include "tst_chartdensity.moc"
