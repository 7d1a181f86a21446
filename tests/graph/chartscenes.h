// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#ifndef CHARTSCENES_H
#define CHARTSCENES_H

#include "depthchart.h"

#include <QVector>

#include <functional>

/// Gives the sample of this index, 0 the newest, for a chart of this range in metres.
using SampleOf = std::function<DepthSample(int index, int range)>;

/// What a survey may look like.
struct Scene
{
    const char *name;
    int count; ///< samples
    SampleOf sampleOf;
};

/// From an empty chart to a full one, with gaps, zeros and depths beyond the range.
const QVector<Scene> &scenes();

/// The scene of this name; the test program ends if there is none.
const Scene &scene(const char *name);

QList<DepthSample> samplesOf(int count, int range, const SampleOf &sampleOf);

/// The chart of a scene as the window would set it up for a maximum depth within this range; in
/// feet if `imperial`.
DepthChartData chartOf(const Scene &scene, int range, bool imperial);

void setUnit(DepthChartData &chart, bool imperial);

#endif // CHARTSCENES_H
