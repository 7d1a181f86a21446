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
    for (int i = 0; i < chart.samples.size(); ++i) {
        const float hf = chart.samples.at(i).hf;
        const float lf = chart.samples.at(i).lf;
        const double x = i * xStep;
        if (hf != noDepth) {
            painter.setPen(strokePen(QColor(0, 0, 255), 3.0 * ratio));
            painter.drawPoint(QPointF(x, double(hf) * yScale * unit));
            if (lf != noDepth && hf != 0.0F && lf != 0.0F) {
                painter.setPen(
                    strokePen(lf > hf ? QColor(64, 192, 255) : QColor(255, 192, 192), ratio));
                painter.drawLine(int(x), int(double(hf) * yScale * unit), int(x),
                                 int(double(lf) * yScale * unit));
            }
        }
        if (lf != noDepth) {
            painter.setPen(strokePen(QColor(255, 0, 0), 3.0 * ratio));
            painter.drawPoint(QPointF(x, double(lf) * yScale * unit));
        }
    }
}

double plainStep(int graphRange)
{
    const double s = (graphRange * 1.1) / 6;
    return s < 2.5 ? 1 : s < 10 ? 5 : s < 30 ? 10 : s < 80 ? 50 : s < 150 ? 100 : s < 250 ? 150 : s;
}

void plainScale(QPainter &painter, const DepthChartData &chart, double yScale, double w)
{
    const QFont font("MS Shell Dlg 2", 9, 75);
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
    canvas.fill(Qt::white);
    const double h = size.height();
    const double range = double(float(chart.graphRange) * chart.unitFactor);

    QPainter painter(&canvas);
    painter.setRenderHint(QPainter::Antialiasing, true);
    painter.translate(size.width(), h * 0.05);
    painter.scale(-1, 1);
    plainSamples(painter, chart, (h * 0.9) / range, double(size.width()) / 768, ratio);

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
    return canvas;
}
