// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#ifndef DEPTHCHART_H
#define DEPTHCHART_H

#include <QList>
#include <QString>

#include <vector>

class QImage;
class QSize;

/// The depths that one ping gave, in metres.
struct DepthSample
{
    float hf; ///< high-frequency channel, or DepthChartData::noDepth
    float lf; ///< low-frequency channel, or DepthChartData::noDepth
};
Q_DECLARE_TYPEINFO(DepthSample, Q_PRIMITIVE_TYPE);

inline bool operator==(const DepthSample &left, const DepthSample &right)
{
    return left.hf == right.hf && left.lf == right.lf;
}

/// All that the strip chart shows.
struct DepthChartData
{
    /// The most samples kept; also the number of steps across the chart.
    static constexpr int maxSamples = 768;

    /// Stands for "no value on this channel". A genuine depth of 1000 m cannot be told from it.
    static constexpr float noDepth = 1000.0F;

    /// Newest first, at most `maxSamples`.
    QList<DepthSample> samples;

    /// Appended to the numbers of the scale: "m" or "ft".
    QString unitSuffix = QStringLiteral("m");

    /// The depth in metres at the bottom of the chart's drawable nine tenths.
    int graphRange = 5;

    /// The depth in metres of the dashed line.
    int maxDepthLine = 5;

    /// From metres to the unit shown.
    float unitFactor = 1.0F;
};

/// Whether both give the same picture.
bool operator==(const DepthChartData &left, const DepthChartData &right);

/// Whether both have the same scale and line of the maximum depth; their samples may differ.
bool haveTheSameScale(const DepthChartData &left, const DepthChartData &right);

/// Rows or columns of a picture, from `begin` to before `end`.
struct PixelRange
{
    int begin = 0;
    int end = 0;

    bool isEmpty() const { return begin >= end; }
    /// The smallest range that holds both.
    PixelRange united(const PixelRange &other) const;
};

/// Draws the chart over all of the canvas, whose size divided by its device pixel ratio is the
/// chart's: strokes and text grow with the ratio. The newest sample at the
/// right edge, older ones to the left, the high-frequency depths as blue and the low-frequency
/// depths as red dots with a connector between the two, then the scale and the dashed line of the
/// maximum depth. Depths that are no numbers must not be in the data.
///
/// The canvas has the format RGB32 or ARGB32; every pixel is opaque afterwards. An empty canvas
/// stays as it is.
void drawDepthChart(QImage &canvas, const DepthChartData &data);

/// The same for these rows only; the others stay as they are.
void drawDepthChart(QImage &canvas, const DepthChartData &data, const PixelRange &rows);

/// The rows on which samples are drawn on a canvas of this size in pixels and of this device pixel
/// ratio, `strips` times for as many upright strips of equal width,
/// from left to right; perhaps a few rows more. Where no sample is drawn, pictures of the same
/// scale and size are the same.
std::vector<PixelRange> sampleRows(const QSize &canvas, double ratio, const DepthChartData &data,
                                   int strips);

#endif // DEPTHCHART_H
