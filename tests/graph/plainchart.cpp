// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "plainchart.h"

#include "depthchart.h"

#include <QFontMetrics>
#include <QPainter>

namespace {

QPen strokePen(const QColor &colour, qreal width)
{
    return QPen(colour, width, Qt::SolidLine, Qt::SquareCap, Qt::RoundJoin);
}

void plainSamples(QPainter &painter, const DepthChartData &chart, double yScale, double xStep,
                  double ratio)
{
    const float noDepth = DepthChartData::noDepth;
    const double unit = double(chart.unitFactor);
    const QPen hfDot = strokePen(QColor(0, 0, 255), 3.0 * ratio);
    const QPen lfDot = strokePen(QColor(255, 0, 0), 3.0 * ratio);
    const QPen downward = strokePen(QColor(64, 192, 255), ratio);
    const QPen upward = strokePen(QColor(255, 192, 192), ratio);
    for (int i = 0; i < chart.samples.size(); ++i) {
        const float hf = chart.samples.at(i).hf;
        const float lf = chart.samples.at(i).lf;
        const double x = i * xStep;
        if (hf != noDepth) {
            painter.setPen(hfDot);
            painter.drawPoint(QPointF(x, double(hf) * yScale * unit));
            if (lf != noDepth && hf != 0.0F && lf != 0.0F) {
                painter.setPen(lf > hf ? downward : upward);
                painter.drawLine(int(x), int(double(hf) * yScale * unit), int(x),
                                 int(double(lf) * yScale * unit));
            }
        }
        if (lf != noDepth) {
            painter.setPen(lfDot);
            painter.drawPoint(QPointF(x, double(lf) * yScale * unit));
        }
    }
}

/// All strokes of one colour and width.
struct Batch
{
    QPen pen;
    QVector<QPointF> points;
    QVector<QLine> lines;
};

void drawBatch(QPainter &painter, const Batch &batch)
{
    painter.setPen(batch.pen);
    painter.drawLines(batch.lines);
    painter.drawPoints(batch.points.constData(), int(batch.points.size()));
}

void batchedSamples(QPainter &painter, const DepthChartData &chart, double yScale, double xStep,
                    double ratio)
{
    const double unit = double(chart.unitFactor);
    Batch below{strokePen(QColor(64, 192, 255), ratio), {}, {}};
    Batch above{strokePen(QColor(255, 192, 192), ratio), {}, {}};
    Batch hfDots{strokePen(QColor(0, 0, 255), 3.0 * ratio), {}, {}};
    Batch lfDots{strokePen(QColor(255, 0, 0), 3.0 * ratio), {}, {}};
    for (int i = 0; i < chart.samples.size(); ++i) {
        const DepthSample sample = chart.samples.at(i);
        const double x = i * xStep;
        const double hfY = double(sample.hf) * yScale * unit;
        const double lfY = double(sample.lf) * yScale * unit;
        const bool hasHf = sample.hf != DepthChartData::noDepth;
        const bool hasLf = sample.lf != DepthChartData::noDepth;
        if (hasHf) {
            hfDots.points.append({x, hfY});
        }
        if (hasLf) {
            lfDots.points.append({x, lfY});
        }
        if (hasHf && hasLf && sample.hf != 0.0F && sample.lf != 0.0F) {
            (sample.lf > sample.hf ? below : above)
                .lines.append({int(x), int(hfY), int(x), int(lfY)});
        }
    }
    for (const Batch &batch : {below, above, hfDots, lfDots}) {
        drawBatch(painter, batch);
    }
}

double plainStep(int graphRange)
{
    const double s = (graphRange * 1.1) / 6;
    return s < 2.5 ? 1 : s < 10 ? 5 : s < 30 ? 10 : s < 80 ? 50 : s < 150 ? 100 : s < 250 ? 150 : s;
}

void plainScale(QPainter &painter, const DepthChartData &chart, double yScale, double w)
{
    const QFont font("MS Shell Dlg 2", 9, QFont::Bold);
    const double textOffset = QFontMetrics(font).height() * 0.4;
    const double step = plainStep(chart.graphRange);
    for (int i = 0; i < chart.graphRange * 1.1 * double(chart.unitFactor); i = int(i + step)) {
        const double y = i * yScale;
        painter.setPen(Qt::darkGray);
        painter.drawLine(QPointF(w * 0.975, y), QPointF(w * 0.1, y));
        painter.setPen(Qt::black);
        painter.setFont(font);
        painter.drawText(int(w * 0.01), int(y + textOffset),
                         QString::number(i) + " " + chart.unitSuffix);
    }
}

} // namespace

QImage plainChart(const QSize &size, const DepthChartData &chart, double ratio)
{
    QImage canvas(size, QImage::Format_ARGB32);
    drawPlainChart(canvas, chart, ratio);
    return canvas;
}

void drawPlainChart(QImage &canvas, const DepthChartData &chart, double ratio, StrokeOrder order)
{
    const QSize size = canvas.size();
    canvas.fill(Qt::white);
    const double h = size.height();
    const double range = double(float(chart.graphRange) * chart.unitFactor);

    QPainter painter(&canvas);
    painter.setRenderHint(QPainter::Antialiasing, true);
    painter.translate(size.width(), h * 0.05);
    painter.scale(-1, 1);
    const auto samples = order == StrokeOrder::Batched ? batchedSamples : plainSamples;
    samples(painter, chart, (h * 0.9) / range, double(size.width()) / 768, ratio);

    painter.translate(size.width(), 0);
    painter.scale(-1, 1);
    painter.scale(ratio, ratio);
    painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
    const double yScale = (h / ratio * 0.9) / range;
    const double w = size.width() / ratio;
    plainScale(painter, chart, yScale, w);

    QPen dashed;
    dashed.setDashPattern({8, 8, 8, 8});
    dashed.setColor(Qt::darkBlue);
    painter.setPen(dashed);
    const double y = chart.maxDepthLine * yScale * double(chart.unitFactor);
    painter.drawLine(QPointF(0, y), QPointF(w, y));
}
