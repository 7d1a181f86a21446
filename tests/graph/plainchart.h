// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#ifndef PLAINCHART_H
#define PLAINCHART_H

#include <QImage>

struct DepthChartData;

/// The chart drawn in the plainest way, step by step on one painter: the program must give the same
/// pixels by whatever shorter way it takes.
QImage plainChart(const QSize &size, const DepthChartData &chart);

#endif // PLAINCHART_H
