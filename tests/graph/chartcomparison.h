// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#ifndef CHARTCOMPARISON_H
#define CHARTCOMPARISON_H

#include <QByteArray>
#include <QImage>

#include <initializer_list>

struct DepthChartData;

/// The chart as the program draws it on a canvas of this format.
QImage drawnChart(const QSize &size, const DepthChartData &chart,
                  QImage::Format format = QImage::Format_RGB32);

/// The first pixel that differs, in words; empty if the pictures are the same.
QByteArray firstDifference(const QImage &actual, const QImage &expected);

/// Compares charts of the program with the plain ones, pixel by pixel, and counts.
class ChartComparison
{
public:
    /// Draws the chart on both kinds of canvas. Returns where it is not the plain one, empty if it
    /// is.
    QByteArray difference(const QSize &size, const DepthChartData &chart);

    /// The same on one kind of canvas and on the other by turns: for many charts of the same sort.
    QByteArray differenceOnOneCanvas(const QSize &size, const DepthChartData &chart);

    /// Says in the test's output how much has been compared.
    void report() const;

private:
    QByteArray difference(const QSize &size, const DepthChartData &chart,
                          std::initializer_list<QImage::Format> formats);

    qint64 charts = 0;
    qint64 pixels = 0;
};

#endif // CHARTCOMPARISON_H
