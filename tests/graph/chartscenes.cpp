// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "chartscenes.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr float none = DepthChartData::noDepth;

/// Depths along a gently rolling sea bed, from none to beyond the range.
float bed(int index, int range, double phase)
{
    return float(range * (0.55 + 0.5 * std::sin(index / 30.0 + phase)));
}

DepthSample onePing(int /*index*/, int range) { return {float(range) * 0.5F, float(range) * 0.6F}; }

DepthSample lfBelow(int i, int range) { return {bed(i, range, 0), bed(i, range, 0.2)}; }

DepthSample lfAbove(int i, int range) { return {bed(i, range, 0) * 1.1F, bed(i, range, 0)}; }

DepthSample equalDepths(int i, int range) { return {bed(i, range, 0), bed(i, range, 0)}; }

DepthSample hfOnly(int i, int range) { return {bed(i, range, 0), none}; }

DepthSample lfOnly(int i, int range) { return {none, bed(i, range, 0)}; }

/// The operator switches channels off and on again.
DepthSample changingChannels(int i, int range)
{
    return {i / 100 % 3 == 0 ? none : bed(i, range, 0), i / 100 % 3 == 1 ? none : bed(i, range, 1)};
}

DepthSample gaps(int i, int range)
{
    return {i % 7 < 2 ? none : bed(i, range, 0), i % 5 == 0 ? none : bed(i, range, 1)};
}

DepthSample noDepths(int /*index*/, int /*range*/) { return {none, none}; }

DepthSample zeros(int i, int range)
{
    return {i % 3 == 0 ? 0.0F : bed(i, range, 0), i % 4 == 0 ? 0.0F : bed(i, range, 1)};
}

DepthSample wholeMetres(int i, int range)
{
    return {float(i % (range + 2)), float((i * 7) % (range + 3))};
}

DepthSample longConnectors(int i, int /*range*/)
{
    return i % 2 == 0 ? DepthSample{2.0F, 33.0F} : DepthSample{33.0F, 2.0F};
}

DepthSample farBeyond(int i, int range)
{
    return {float(range) * (1.0F + float(i)), 990.0F - float(i)};
}

DepthSample atTheBottomEdge(int i, int range)
{
    const float edge = float(range) * 1.0555556F; // 95 % of the height below the top offset
    return {edge * (0.99F + float(i) * 0.00003F), edge * (1.01F - float(i) * 0.00003F)};
}

} // namespace

const QVector<Scene> &scenes()
{
    static const QVector<Scene> all{
        {"empty", 0, onePing},
        {"one ping", 1, onePing},
        {"two pings", 2, lfAbove},
        {"full", 768, lfBelow},
        {"767 pings, LF above HF", 767, lfAbove},
        {"equal depths", 100, equalDepths},
        {"HF only", 768, hfOnly},
        {"LF only", 768, lfOnly},
        {"changing channels", 768, changingChannels},
        {"gaps", 400, gaps},
        {"no depths", 50, noDepths},
        {"zeros", 300, zeros},
        {"whole metres", 300, wholeMetres},
        {"connectors from 2 m to 33 m", 768, longConnectors},
        {"far beyond the range", 60, farBeyond},
        {"at the bottom edge", 768, atTheBottomEdge},
    };
    return all;
}

const Scene &scene(const char *name)
{
    const QVector<Scene> &all = scenes();
    const auto found = std::find_if(all.begin(), all.end(), [name](const Scene &candidate) {
        return qstrcmp(candidate.name, name) == 0;
    });
    if (found == all.end()) {
        qFatal("There is no scene \"%s\"", name);
    }
    return *found;
}

QList<DepthSample> samplesOf(int count, int range, const SampleOf &sampleOf)
{
    QList<DepthSample> samples;
    for (int i = 0; i < count; ++i) {
        samples << sampleOf(i, range);
    }
    return samples;
}

DepthChartData chartOf(const Scene &scene, int range, bool imperial)
{
    DepthChartData chart;
    chart.graphRange = range;
    chart.maxDepthLine = range == 100 ? 120 : range - 5;
    setUnit(chart, imperial);
    chart.samples = samplesOf(scene.count, range, scene.sampleOf);
    return chart;
}

void setUnit(DepthChartData &chart, bool imperial)
{
    chart.unitFactor = imperial ? 3.28084F : 1.0F;
    chart.unitSuffix = imperial ? QStringLiteral("ft") : QStringLiteral("m");
}
