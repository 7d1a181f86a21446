// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "chartcomparison.h"

#include "depthchart.h"
#include "plainchart.h"
#include "qtdifferences.h"

#include <QDebug>

#include <algorithm>
#include <cstdlib>
#include <cstring>

namespace {

QByteArray hex(QRgb pixel) { return QByteArray::number(pixel, 16).rightJustified(8, '0'); }

QByteArray differenceAt(int x, int y, QRgb actual, QRgb expected)
{
    return "pixel " + QByteArray::number(x) + "," + QByteArray::number(y) + " is " + hex(actual) +
           " instead of " + hex(expected);
}

QByteArray firstDifferenceInLine(const QImage &actual, const QImage &expected, int y)
{
    for (int x = 0; x < actual.width(); ++x) {
        if (actual.pixel(x, y) != expected.pixel(x, y)) {
            return differenceAt(x, y, actual.pixel(x, y), expected.pixel(x, y));
        }
    }
    return {};
}

/// It may look the same where this says no: RGB32 has bits that nobody sees.
bool isSameLine(const QImage &one, const QImage &other, int y)
{
    const std::size_t lineBytes = static_cast<std::size_t>(one.width()) * sizeof(QRgb);
    return std::memcmp(one.constScanLine(y), other.constScanLine(y), lineBytes) == 0;
}

/// What `inLine(y)` says of the first line of which it says anything.
template <typename InLine>
QByteArray firstInLines(const QImage &actual, const QImage &expected, const InLine &inLine)
{
    if (actual.size() != expected.size()) {
        return "the sizes differ";
    }
    for (int y = 0; y < expected.height(); ++y) {
        const QByteArray found = isSameLine(actual, expected, y) ? QByteArray() : inLine(y);
        if (!found.isEmpty()) {
            return found;
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
    return firstInLines(actual, expected,
                        [&](int y) { return firstDifferenceInLine(actual, expected, y); });
}

int stepsApart(QRgb one, QRgb other)
{
    return std::max({std::abs(qRed(one) - qRed(other)), std::abs(qGreen(one) - qGreen(other)),
                     std::abs(qBlue(one) - qBlue(other))});
}

QByteArray PainterComparison::difference(const QImage &actual, const QImage &painted)
{
    ++pictures;
    pixels += qint64(painted.width()) * painted.height();
    return firstInLines(actual, painted,
                        [&](int y) { return differenceInLine(actual, painted, y); });
}

QByteArray PainterComparison::differenceInLine(const QImage &actual, const QImage &painted, int y)
{
    for (int x = 0; x < actual.width(); ++x) {
        const int steps = stepsApart(actual.pixel(x, y), painted.pixel(x, y));
        differing += steps > 0 ? 1 : 0;
        largest = std::max(largest, steps);
        if (steps > QtDifferences::painterSteps) {
            return differenceAt(x, y, actual.pixel(x, y), painted.pixel(x, y));
        }
    }
    return {};
}

void PainterComparison::report() const
{
    qInfo("%lld pictures compared with a painter's: of %lld pixels %lld differ, by %d of 255 steps "
          "at most",
          pictures, pixels, differing, largest);
}

QByteArray ChartComparison::difference(const QSize &size, const DepthChartData &chart)
{
    return difference(size, chart, {QImage::Format_RGB32, QImage::Format_ARGB32});
}

QByteArray ChartComparison::differenceOnOneCanvas(const QSize &size, const DepthChartData &chart)
{
    return difference(size, chart, {isRgb32Next ? QImage::Format_RGB32 : QImage::Format_ARGB32});
}

QByteArray ChartComparison::difference(const QSize &size, const DepthChartData &chart,
                                       std::initializer_list<QImage::Format> formats)
{
    const QImage expected = plainChart(size, chart);
    for (const QImage::Format format : formats) {
        const QByteArray found = pictures.difference(drawnChart(size, chart, format), expected);
        if (!found.isEmpty()) {
            return QByteArray(format == QImage::Format_RGB32 ? "RGB32: " : "ARGB32: ") + found;
        }
        isRgb32Next = format != QImage::Format_RGB32;
    }
    return {};
}
