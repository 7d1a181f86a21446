// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#ifndef PEERSCALE_H
#define PEERSCALE_H

#include "depthchart.h"

#include <QColor>
#include <QFont>
#include <QPen>

/// What the chart's scale is for a plotting library that has scales of its own, and the look of the
/// chart in its terms.
struct PeerScale
{
    explicit PeerScale(const DepthChartData &chart)
        : top(-chart.graphRange * 0.05 / 0.9)
        , bottom(chart.graphRange * 0.95 / 0.9)
        , step(chart.graphRange * 1.1 / 6 < 2.5 ? 1 : 5)
    {}

    double top;
    double bottom;
    int step; ///< for ranges up to 50 m

    static constexpr int dotWidth = 3;
    static constexpr QRgb lfBelowHf = qRgb(64, 192, 255);
    static constexpr QRgb lfAboveHf = qRgb(255, 192, 192);

    static QFont font() { return {QStringLiteral("MS Shell Dlg 2"), 9, QFont::Bold}; }
    static QString text(double mark) { return QString::number(mark) + QStringLiteral(" m"); }

    static QPen dashedPen()
    {
        QPen pen(Qt::darkBlue);
        pen.setDashPattern({8, 8, 8, 8});
        return pen;
    }
};

#endif // PEERSCALE_H
