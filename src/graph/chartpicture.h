// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#ifndef CHARTPICTURE_H
#define CHARTPICTURE_H

#include "depthchart.h"

#include <QImage>
#include <QRegion>

#include <vector>

/// A picture of the chart that is kept: the next one is drawn over it, where samples stood or stand
/// now, since nothing else changes from ping to ping.
class ChartPicture
{
public:
    /// Draws the chart in this size in pixels, for a screen of this device pixel ratio.
    void draw(const QSize &size, const DepthChartData &chart, double ratio = 1.0);

    /// Null before the first drawing. Whoever shares its pixels keeps them as they are; the next
    /// drawing then costs a copy.
    const QImage &image() const { return canvas; }

    /// The chart that it shows.
    const DepthChartData &chart() const { return drawn; }

    /// Where this picture may differ from another, in pixels: no pixel outside of it does.
    QRegion difference(const ChartPicture &other) const;

private:
    bool hasTheSameGround(const QSize &size, double ratio, const DepthChartData &chart) const;

    QImage canvas;
    DepthChartData drawn;
    std::vector<PixelRange> rows; // of the samples, strip by strip
};

#endif // CHARTPICTURE_H
