// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "depthchart.h"

#include <QFont>
#include <QFontMetrics>
#include <QImage>
#include <QPainter>
#include <QPen>

#include <algorithm>
#include <cmath>

namespace {

constexpr double drawableShare = 0.9; // of the height; the range fills it
constexpr double topShare = 0.05;     // of the height, above depth 0
constexpr double scaleShare = 1.1;    // the scale goes on below the range

QPen solidPen(const QColor &colour, double width)
{
    return {colour, width, Qt::SolidLine, Qt::SquareCap, Qt::RoundJoin};
}

QPen dashedPen(const QColor &colour)
{
    QPen pen;
    pen.setDashPattern({8, 8, 8, 8});
    pen.setColor(colour);
    return pen;
}

/// Made once: a chart sets its pens up to 2300 times.
struct Pens
{
    const QPen hfDot = solidPen(QColor(0, 0, 255), 3.0);
    const QPen lfDot = solidPen(QColor(255, 0, 0), 3.0);
    const QPen lfBelowHf = solidPen(QColor(64, 192, 255), 1.0);
    const QPen lfAboveHf = solidPen(QColor(255, 192, 192), 1.0);
    const QPen grid = QPen(Qt::darkGray);
    const QPen label = QPen(Qt::black);
    const QPen maxDepth = dashedPen(Qt::darkBlue);
};

const Pens &pens()
{
    static const Pens made;
    return made;
}

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

/// From the data to pixels, for a canvas of this size.
class Geometry
{
public:
    Geometry(const QSize &canvas, const DepthChartData &chart)
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

void drawConnector(QPainter &painter, double x, double hfY, double lfY, const DepthSample &sample)
{
    painter.setPen(sample.lf > sample.hf ? pens().lfBelowHf : pens().lfAboveHf);
    painter.drawLine(wholePixel(x), wholePixel(hfY), wholePixel(x), wholePixel(lfY));
}

void drawSample(QPainter &painter, double x, const Geometry &geometry, const DepthSample &sample)
{
    const double hfY = geometry.y(static_cast<double>(sample.hf));
    const double lfY = geometry.y(static_cast<double>(sample.lf));
    if (hasDepth(sample.hf)) {
        painter.setPen(pens().hfDot);
        painter.drawPoint(QPointF(x, hfY));
        if (hasDepth(sample.lf) && sample.hf != 0.0F && sample.lf != 0.0F) {
            drawConnector(painter, x, hfY, lfY, sample);
        }
    }
    if (hasDepth(sample.lf)) {
        painter.setPen(pens().lfDot);
        painter.drawPoint(QPointF(x, lfY));
    }
}

/// The newest sample stands at the right edge: x runs from there to the left.
void drawSamples(QImage &canvas, const Geometry &geometry, const DepthChartData &chart)
{
    QPainter painter(&canvas);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(geometry.width, geometry.top());
    painter.scale(-1.0, 1.0);
    int i = 0;
    for (const DepthSample &sample : chart.samples) {
        drawSample(painter, geometry.x(i), geometry, sample);
        ++i;
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

void drawScale(QPainter &painter, const Geometry &geometry, const DepthChartData &chart)
{
    const QFont font(QStringLiteral("MS Shell Dlg 2"), 9, QFont::Bold);
    const double textOffset = QFontMetrics(font).height() * 0.4;
    const double step = scaleStep(chart.graphRange);
    const double end = chart.graphRange * scaleShare * static_cast<double>(chart.unitFactor);
    painter.setFont(font);
    for (int mark = 0; mark < end; mark = static_cast<int>(mark + step)) {
        const double y = geometry.yOfMark(mark);
        painter.setPen(pens().grid);
        painter.drawLine(QPointF(geometry.width * 0.975, y), QPointF(geometry.width * 0.1, y));
        painter.setPen(pens().label);
        painter.drawText(wholePixel(geometry.width * 0.01), wholePixel(y + textOffset),
                         QString::number(mark) + QLatin1Char(' ') + chart.unitSuffix);
    }
}

void drawMaxDepth(QPainter &painter, const Geometry &geometry, const DepthChartData &chart)
{
    const double y = geometry.y(chart.maxDepthLine);
    painter.setPen(pens().maxDepth);
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
    return left.graphRange == right.graphRange && left.maxDepthLine == right.maxDepthLine &&
           left.unitFactor == right.unitFactor && left.unitSuffix == right.unitSuffix &&
           left.samples == right.samples;
}

void drawDepthChart(QImage &canvas, const DepthChartData &data)
{
    if (canvas.isNull()) {
        return;
    }
    canvas.fill(Qt::white);
    const Geometry geometry(canvas.size(), data);

    // All pixels are opaque. The many strokes are twice as fast on a format that knows it; text is
    // smoothed by another rule there on some systems.
    QImage opaque = viewOf(canvas, QImage::Format_RGB32);
    drawSamples(opaque, geometry, data);

    QImage withText = viewOf(canvas, QImage::Format_ARGB32);
    QPainter painter(&withText);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(0.0, geometry.top());
    drawScale(painter, geometry, data);
    drawMaxDepth(painter, geometry, data);
}
