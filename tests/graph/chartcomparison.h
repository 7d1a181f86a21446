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

/// By how many of the 255 steps of a colour two pixels lie apart, in the colour where they do most.
int stepsApart(QRgb one, QRgb other);

/// Compares pictures of the program with a painter's, pixel by pixel, and counts.
class PainterComparison
{
public:
    /// The first pixel that is not the painter's, in words; empty if there is none. Qt 5.15's
    /// painter makes the very same pixels, a later one may round by QtDifferences::painterSteps
    /// otherwise.
    QByteArray difference(const QImage &actual, const QImage &painted);

    /// Says in the test's output how much has been compared, and what has differed.
    void report() const;

private:
    QByteArray differenceInLine(const QImage &actual, const QImage &painted, int y);

    qint64 pictures = 0;
    qint64 pixels = 0;
    qint64 differing = 0;
    int largest = 0; // steps
};

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
    void report() const { pictures.report(); }

private:
    QByteArray difference(const QSize &size, const DepthChartData &chart,
                          std::initializer_list<QImage::Format> formats);

    PainterComparison pictures;
    bool isRgb32Next = true;
};

#endif // CHARTCOMPARISON_H
