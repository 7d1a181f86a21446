// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#ifndef CHARTSCENE_H
#define CHARTSCENE_H

#include "depthchart.h"

/// A chart full of depths of both channels, which scrolls on ping by ping. The depths are the same
/// in every run.
class ChartScene
{
public:
    /// A bed that rises and falls between 5 m and 20 m, the low frequency a little into the mud:
    /// short connectors, range 25 m.
    static ChartScene rollingBed();

    /// Fish at 2 m for the high frequency, the bed at 33 m for the low one: connectors over nearly
    /// all of the height, range 35 m.
    static ChartScene longConnectors();

    /// What the chart shows now.
    const DepthChartData &chart() const { return data; }

    /// One ping later: the newest depths come in, the oldest go. Returns the newest.
    DepthSample scroll();

    int pings() const { return pingCount; }

private:
    using Bed = DepthSample (*)(int ping);

    ChartScene(Bed bedOfScene, int maxDepth);

    Bed bed;
    int pingCount = 0;
    DepthChartData data;
};

#endif // CHARTSCENE_H
