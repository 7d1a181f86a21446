// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#ifndef PLAINCHART_H
#define PLAINCHART_H

#include <QImage>

struct DepthChartData;

/// The chart drawn in the plainest way, step by step on one painter: the program must give the same
/// pixels by whatever shorter way it takes. `size` is in pixels; pens and text are `ratio` times as
/// large.
QImage plainChart(const QSize &size, const DepthChartData &chart, double ratio = 1.0);

/// In which order a plain painter draws the strokes.
enum class StrokeOrder {
    PingByPing, ///< as they must lie upon each other
    Batched,    ///< all of a colour at once: as quick as a painter gets, but pings cover each other
                ///< otherwise
};

/// The same over an opaque canvas, whose device pixel ratio must be 1.
void drawPlainChart(QImage &canvas, const DepthChartData &chart, double ratio = 1.0,
                    StrokeOrder order = StrokeOrder::PingByPing);

#endif // PLAINCHART_H
