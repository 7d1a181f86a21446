// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "chartcomparison.h"

#include "depthchart.h"
#include "plainchart.h"

#include <QDebug>

#include <cstring>

namespace {

QByteArray hex(QRgb pixel) { return QByteArray::number(pixel, 16).rightJustified(8, '0'); }

QByteArray firstDifferenceInLine(const QImage &actual, const QImage &expected, int y)
{
    for (int x = 0; x < actual.width(); ++x) {
        if (actual.pixel(x, y) != expected.pixel(x, y)) {
            return "pixel " + QByteArray::number(x) + "," + QByteArray::number(y) + " is " +
                   hex(actual.pixel(x, y)) + " instead of " + hex(expected.pixel(x, y));
        }
    }
    return {};
}

} // namespace

QImage drawnChart(const QSize &size, const DepthChartData &chart, QImage::Format format)
{
    QImage canvas(size, format);
    canvas.fill(Qt::magenta); // whatever is not drawn over shows
    drawDepthChart(canvas, chart);
    return canvas;
}

QByteArray firstDifference(const QImage &actual, const QImage &expected)
{
    if (actual.size() != expected.size()) {
        return "the sizes differ";
    }
    const std::size_t lineBytes = static_cast<std::size_t>(expected.width()) * sizeof(QRgb);
    for (int y = 0; y < expected.height(); ++y) {
        if (std::memcmp(actual.constScanLine(y), expected.constScanLine(y), lineBytes) != 0) {
            const QByteArray difference = firstDifferenceInLine(actual, expected, y);
            if (!difference.isEmpty()) {
                return difference; // else only the unused bits of RGB32 differ
            }
        }
    }
    return {};
}

QByteArray ChartComparison::difference(const QSize &size, const DepthChartData &chart)
{
    return difference(size, chart, {QImage::Format_RGB32, QImage::Format_ARGB32});
}

QByteArray ChartComparison::differenceOnOneCanvas(const QSize &size, const DepthChartData &chart)
{
    return difference(size, chart,
                      {charts % 2 == 0 ? QImage::Format_RGB32 : QImage::Format_ARGB32});
}

QByteArray ChartComparison::difference(const QSize &size, const DepthChartData &chart,
                                       std::initializer_list<QImage::Format> formats)
{
    const QImage expected = plainChart(size, chart);
    for (const QImage::Format format : formats) {
        const QByteArray found = firstDifference(drawnChart(size, chart, format), expected);
        if (!found.isEmpty()) {
            return QByteArray(format == QImage::Format_RGB32 ? "RGB32: " : "ARGB32: ") + found;
        }
        ++charts;
        pixels += qint64(size.width()) * size.height();
    }
    return {};
}

void ChartComparison::report() const
{
    qInfo("%lld charts compared with the plain ones: %lld pixels, all the same", charts, pixels);
}
