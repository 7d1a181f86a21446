// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "chartscene.h"

#include <cmath>

namespace {

constexpr int roomBelow = 5; // metres, as depthGraph::setMaxDepth leaves for multiples of five

/// Two swells and the echo sounder's scatter, which is no random number: runs must be comparable.
float swell(int ping)
{
    const auto x = static_cast<float>(ping);
    return std::sin(x / 90.0F) * 0.8F + std::sin(x / 23.0F) * 0.2F;
}

float scatter(int ping) { return static_cast<float>(ping * 7919 % 101) / 1000.0F; }

DepthSample rollingPing(int ping)
{
    const float hf = 12.5F + 7.0F * swell(ping) + scatter(ping);
    return {hf, hf + 0.3F + scatter(ping + 1)};
}

DepthSample longPing(int ping)
{
    return {2.0F + 0.2F * swell(ping) + scatter(ping), 33.0F + 0.5F * swell(ping) + scatter(ping)};
}

} // namespace

ChartScene ChartScene::rollingBed() { return {rollingPing, 20}; }

ChartScene ChartScene::longConnectors() { return {longPing, 30}; }

ChartScene::ChartScene(Bed bedOfScene, int maxDepth)
    : bed(bedOfScene)
{
    data.maxDepthLine = maxDepth;
    data.graphRange = maxDepth + roomBelow;
    while (data.samples.size() < DepthChartData::maxSamples) {
        scroll();
    }
}

DepthSample ChartScene::scroll()
{
    if (data.samples.size() == DepthChartData::maxSamples) {
        data.samples.removeLast();
    }
    data.samples.prepend(bed(pingCount++));
    return data.samples.first();
}
