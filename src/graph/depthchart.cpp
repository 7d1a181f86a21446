// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "depthchart.h"

#include "pixelstrokes.h"

#include <QFont>
#include <QFontMetrics>
#include <QImage>
#include <QPainter>
#include <QPen>

#include <algorithm>
#include <cmath>
#include <vector>

namespace {

constexpr double drawableShare = 0.9; // of the height; the range fills it
constexpr double topShare = 0.05;     // of the height, above depth 0
constexpr double scaleShare = 1.1;    // the scale goes on below the range

QPen dashedPen(const QColor &colour)
{
    QPen pen;
    pen.setDashPattern({8, 8, 8, 8});
    pen.setColor(colour);
    return pen;
}

constexpr QRgb hfDot = qRgb(0, 0, 255);
constexpr QRgb lfDot = qRgb(255, 0, 0);
constexpr QRgb lfBelowHf = qRgb(64, 192, 255);
constexpr QRgb lfAboveHf = qRgb(255, 192, 192);
constexpr QRgb grid = qRgb(128, 128, 128);

/// Keeps coordinates that no screen reaches within what a painter and an integer can hold.
double bounded(double coordinate)
{
    constexpr double farOutside = 1e6;
    return std::clamp(coordinate, -farOutside, farOutside);
}

int wholePixel(double coordinate) { return static_cast<int>(bounded(coordinate)); }

double rangeInUnits(const DepthChartData &chart)
{
    return static_cast<double>(static_cast<float>(chart.graphRange) * chart.unitFactor);
}

/// From the data to pixels, for a canvas of this size in them.
class Geometry
{
public:
    Geometry(const QSizeF &canvas, const DepthChartData &chart)
        : width(canvas.width())
        , height(canvas.height())
        , unitFactor(static_cast<double>(chart.unitFactor))
        , pixelsPerUnit(height * drawableShare / rangeInUnits(chart))
        , pixelsPerSample(width / DepthChartData::maxSamples)
    {
        if (!std::isfinite(pixelsPerUnit)) {
            pixelsPerUnit = 0.0; // a range of 0 has no scale
        }
    }

    double top() const { return height * topShare; }
    double x(int sample) const { return sample * pixelsPerSample; }
    double y(double metres) const { return bounded(metres * pixelsPerUnit * unitFactor); }
    double yOfMark(int shownUnits) const { return shownUnits * pixelsPerUnit; }

    double width;
    double height;

private:
    double unitFactor;
    double pixelsPerUnit;
    double pixelsPerSample;
};

bool hasDepth(float depth) { return depth != DepthChartData::noDepth; }

constexpr double dotReach = 4.0; // half a dot, and more, at a device pixel ratio of 1

/// The rows of all strokes of a ping, which reach so far around its depths; empty if it has none.
PixelRange rowsOf(const DepthSample &sample, const Geometry &geometry, double reach)
{
    PixelRange rows;
    for (const float depth : {sample.hf, sample.lf}) {
        if (hasDepth(depth)) {
            const double y = geometry.y(static_cast<double>(depth)) + geometry.top();
            rows = rows.united({wholePixel(y - reach), wholePixel(y + reach)});
        }
    }
    return rows;
}

/// One ping's strokes on the canvas.
struct PlacedSample
{
    PixelStrokes::DotColumn column;
    double hfY;
    double lfY;
    int connectorX;
    double connectorHfY;
    double connectorLfY;
    QRgb connectorColour;
    bool hasHf;
    bool hasLf;
    bool hasConnector;
    PixelRange rows;
};

PlacedSample placed(const DepthSample &sample, int index, const Geometry &geometry, double reach,
                    const PixelStrokes &strokes)
{
    const double x = geometry.x(index);
    const double hfY = geometry.y(static_cast<double>(sample.hf));
    const double lfY = geometry.y(static_cast<double>(sample.lf));
    PlacedSample result;
    result.column = strokes.dotColumn(x);
    result.hfY = hfY + geometry.top();
    result.lfY = lfY + geometry.top();
    result.connectorX = wholePixel(geometry.width) - wholePixel(x);
    result.connectorHfY = wholePixel(hfY) + geometry.top();
    result.connectorLfY = wholePixel(lfY) + geometry.top();
    result.connectorColour = sample.lf > sample.hf ? lfBelowHf : lfAboveHf;
    result.hasHf = hasDepth(sample.hf);
    result.hasLf = hasDepth(sample.lf);
    result.hasConnector = result.hasHf && result.hasLf && sample.hf != 0.0F && sample.lf != 0.0F;
    result.rows = rowsOf(sample, geometry, reach);
    return result;
}

/// The newest sample stands at the right edge, older ones to the left.
std::vector<PlacedSample> placedSamples(const DepthChartData &chart, const Geometry &geometry,
                                        double reach, const PixelStrokes &strokes)
{
    std::vector<PlacedSample> samples;
    samples.reserve(static_cast<std::size_t>(chart.samples.size()));
    for (int i = 0; i < chart.samples.size(); ++i) {
        samples.push_back(placed(chart.samples.at(i), i, geometry, reach, strokes));
    }
    return samples;
}

void drawSample(PixelStrokes &strokes, const PlacedSample &sample)
{
    if (sample.hasHf) {
        strokes.dot(sample.column, sample.hfY, hfDot);
    }
    if (sample.hasConnector) {
        strokes.verticalLine(sample.connectorX, sample.connectorHfY, sample.connectorLfY,
                             sample.connectorColour);
    }
    if (sample.hasLf) {
        strokes.dot(sample.column, sample.lfY, lfDot);
    }
}

/// As many rows as the processor's cache holds beside other things.
int rowsInBand(const QImage &canvas)
{
    constexpr int bytesInBand = 512 * 1024;
    return std::max(1, bytesInBand / static_cast<int>(canvas.bytesPerLine()));
}

/// Draws the samples on white. Two long connectors share most of their pixels' cache lines, but a
/// big picture's column does not fit into the cache: so they are drawn band by band.
void drawSamples(PixelStrokes &strokes, const std::vector<PlacedSample> &samples,
                 const PixelRange &rows, int band)
{
    for (int begin = rows.begin; begin < rows.end; begin += band) {
        const int end = std::min(begin + band, rows.end);
        strokes.limitToRows(begin, end);
        strokes.wipe();
        for (const PlacedSample &sample : samples) {
            if (sample.rows.begin < end && sample.rows.end > begin) {
                drawSample(strokes, sample);
            }
        }
    }
}

/// The distance between two marks of the scale. It follows the range in metres also when the scale
/// counts feet, which then has about three times as many marks.
double scaleStep(int graphRange)
{
    constexpr struct
    {
        double below;
        double step;
    } steps[] = {{2.5, 1}, {10, 5}, {30, 10}, {80, 50}, {150, 100}, {250, 150}};

    const double sixth = graphRange * scaleShare / 6;
    for (const auto &choice : steps) {
        if (sixth < choice.below) {
            return choice.step;
        }
    }
    return sixth;
}

/// The lines are drawn in the canvas's pixels, the texts in the chart's own: a painter makes them
/// as large as the screen is dense. A line lies over the text of the mark above it.
void drawScale(QPainter &painter, PixelStrokes &strokes, const Geometry &inPixels,
               const Geometry &geometry, const DepthChartData &chart)
{
    const QFont font(QStringLiteral("MS Shell Dlg 2"), 9, QFont::Bold);
    const double textOffset = QFontMetrics(font).height() * 0.4;
    const double step = scaleStep(chart.graphRange);
    const double end = chart.graphRange * scaleShare * static_cast<double>(chart.unitFactor);
    painter.setFont(font);
    for (int mark = 0; mark < end; mark = static_cast<int>(mark + step)) {
        strokes.horizontalLine(inPixels.width * 0.1, inPixels.width * 0.975,
                               inPixels.yOfMark(mark) + inPixels.top(), grid);
        painter.setPen(Qt::black);
        painter.drawText(wholePixel(geometry.width * 0.01),
                         wholePixel(geometry.yOfMark(mark) + textOffset),
                         QString::number(mark) + QLatin1Char(' ') + chart.unitSuffix);
    }
}

void drawMaxDepth(QPainter &painter, const Geometry &geometry, const DepthChartData &chart)
{
    const double y = geometry.y(chart.maxDepthLine);
    painter.setPen(dashedPen(Qt::darkBlue));
    painter.drawLine(QPointF(0.0, y), QPointF(geometry.width, y));
}

/// The same pixels in another format.
QImage viewOf(QImage &canvas, QImage::Format format)
{
    return {canvas.bits(), canvas.width(), canvas.height(), canvas.bytesPerLine(), format};
}

} // namespace

bool operator==(const DepthChartData &left, const DepthChartData &right)
{
    return haveTheSameScale(left, right) && left.samples == right.samples;
}

bool haveTheSameScale(const DepthChartData &left, const DepthChartData &right)
{
    return left.graphRange == right.graphRange && left.maxDepthLine == right.maxDepthLine &&
           left.unitFactor == right.unitFactor && left.unitSuffix == right.unitSuffix;
}

PixelRange PixelRange::united(const PixelRange &other) const
{
    if (isEmpty() || other.isEmpty()) {
        return isEmpty() ? other : *this;
    }
    return {std::min(begin, other.begin), std::max(end, other.end)};
}

void drawDepthChart(QImage &canvas, const DepthChartData &data)
{
    drawDepthChart(canvas, data, {0, canvas.height()});
}

void drawDepthChart(QImage &canvas, const DepthChartData &data, const PixelRange &rows)
{
    if (canvas.isNull() || rows.isEmpty()) {
        return;
    }
    const double ratio = canvas.devicePixelRatio();
    const Geometry inPixels(canvas.size(), data);
    const Geometry geometry(QSizeF(canvas.size()) / ratio, data);

    PixelStrokes strokes(canvas);
    drawSamples(strokes, placedSamples(data, inPixels, dotReach * ratio, strokes), rows,
                rowsInBand(canvas));
    strokes.limitToRows(rows.begin, rows.end);

    // Text is smoothed by another rule on an image without transparency on some systems.
    QImage withText = viewOf(canvas, QImage::Format_ARGB32);
    QPainter painter(&withText);
    painter.setClipRect(0, rows.begin, canvas.width(), rows.end - rows.begin);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(ratio, ratio);
    painter.translate(0.0, geometry.top());
    drawScale(painter, strokes, inPixels, geometry, data);
    drawMaxDepth(painter, geometry, data);
}

std::vector<PixelRange> sampleRows(const QSize &canvas, double ratio, const DepthChartData &data,
                                   int strips)
{
    std::vector<PixelRange> rows(static_cast<std::size_t>(strips));
    const Geometry geometry(canvas, data);
    const double stripsPerPixel = strips / geometry.width;
    const double reach = dotReach * ratio;
    for (int i = 0; i < data.samples.size(); ++i) {
        const PixelRange touched = rowsOf(data.samples.at(i), geometry, reach);
        const double x = geometry.width - geometry.x(i);
        const int first = std::max(wholePixel((x - reach) * stripsPerPixel), 0);
        const int last = std::min(wholePixel((x + reach) * stripsPerPixel), strips - 1);
        for (int strip = first; strip <= last; ++strip) {
            PixelRange &ofStrip = rows[static_cast<std::size_t>(strip)];
            ofStrip = ofStrip.united(touched);
        }
    }
    return rows;
}
