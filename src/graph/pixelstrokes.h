// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#ifndef PIXELSTROKES_H
#define PIXELSTROKES_H

#include <QRgb>
#include <QtGlobal>

class QImage;
struct DotExtent;

/// Draws the strokes of the strip chart straight into the pixels of an image: upright or lying, of
/// one opaque colour, antialiased. Every pixel becomes what QPainter's antialiasing makes of the
/// same stroke; a chart has thousands of them, and a painter spends most of its time preparing
/// each. One drawing of 768 pings of both channels on 1920 x 1000 pixels, median of the processor
/// time in ms (`scripts/benchmark chart --time processor`, Qt 5.15.8):
///
///                                        rolling bed    long connectors
///     QPainter, stroke by stroke             5.4             35.1
///     QPainter, a colour in one call         3.8             33.6   (and another order of strokes)
///     this                                   1.3              3.2
///     QPainter at a ratio of 2               8.6            160.0
///     this at a ratio of 2                   1.4              6.4
///
/// All coordinates are the image's, in pixels, y downwards; what lies outside is cut off. The image
/// is opaque, of the format RGB32 or ARGB32, with less than 32,767 pixels a side; it shares its
/// pixels with no other and outlives this object.
class PixelStrokes
{
public:
    /// The pens of 3 and 1 px are as many times as wide as the canvas's device pixel ratio says. At
    /// ratio 1 they are the painter's own; at others they may differ from it by a few shades.
    explicit PixelStrokes(QImage &canvas);

    /// From here on only the rows from `begin` to before `end` are drawn on. A picture drawn band
    /// by band finds the pixels that its strokes share still in the processor's cache.
    void limitToRows(int begin, int end);

    /// Makes these rows white.
    void wipe();

    /// Where a dot stands across the image. The two dots of one ping share it.
    struct DotColumn
    {
        double centre;
        double halfHeight;
        double widthByHeight;
    };

    /// The column `distance` to the left of the image's right edge, for a chart that grows from
    /// there: a point's stroke is a hair longer on its older side.
    DotColumn dotColumn(double distance) const;

    /// A point of the pen 3 px wide with a square cap.
    void dot(const DotColumn &column, double y, QRgb colour);

    /// A line of the pen 1 px wide with square caps, on the border between the pixel columns `x` -
    /// 1 and `x`. From a point to itself it is one pixel.
    void verticalLine(int x, double y1, double y2, QRgb colour);

    /// A line of the same pen from `x1` to the larger `x2`.
    void horizontalLine(double x1, double x2, double y, QRgb colour);

private:
    void rectangle(const DotExtent &columns, const DotExtent &rows, QRgb colour);
    void broadLine(double x1, double y1, double x2, double y2, QRgb colour);
    void verticalRun(int x, int beginRow, int endRow, int share, QRgb colour);
    void horizontalRun(int y, int beginColumn, int endColumn, unsigned coverage, QRgb colour);
    QRgb *row(int y) { return pixels + y * stride; }
    bool hasColumn(int x) const { return x >= 0 && x < width; }

    /// Whether the strokes are a painter's own.
    bool isPlain() const { return ratio == 1.0; }

    QRgb *pixels;
    qptrdiff stride; // in pixels
    int width;
    int height;
    int rowsBegin = 0;
    int rowsEnd;
    double ratio; // pixels of the canvas in one of the pens'
};

#endif // PIXELSTROKES_H
