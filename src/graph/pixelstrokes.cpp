// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "pixelstrokes.h"

#include "qtdifferences.h"

#include <QImage>

#include <algorithm>
#include <cmath>
#include <cstring>

// The order of the operations and the bits at which a fraction is cut off are QPainter's: only so
// do both come to the same pixel at every position.

namespace {

constexpr unsigned opaque = 255;
constexpr QRgb white = qRgb(255, 255, 255);

/// Each of the four bytes of a pixel times `share` / 255, rounded.
constexpr QRgb scaled(QRgb colour, unsigned share)
{
    constexpr unsigned evenBytes = 0x00ff00ff;
    constexpr unsigned half = 0x00800080;
    unsigned even = (colour & evenBytes) * share;
    even = ((even + ((even >> 8) & evenBytes) + half) >> 8) & evenBytes;
    unsigned odd = ((colour >> 8) & evenBytes) * share;
    odd = (odd + ((odd >> 8) & evenBytes) + half) & ~evenBytes;
    return odd | even;
}

/// A colour that covers `coverage` / 255 of a pixel.
class Ink
{
public:
    Ink(QRgb colour, unsigned coverage)
        : share(scaled(colour, coverage))
        , rest(opaque - coverage)
    {}

    QRgb over(QRgb paper) const { return share + scaled(paper, rest); }

private:
    QRgb share;
    unsigned rest;
};

// Dots

constexpr double dotWidth = 3.0; // of the pen
constexpr int dotFraction = 16;  // bits of a dot's edges behind the point
constexpr int dotUnit = 1 << dotFraction;

struct Stretch
{
    double from;
    double to;
};

/// Cuts off what lies outside 0 to `size`. Both ends are reckoned as shares of the stretch's
/// length, as a painter does it: another way would round differently, and a pixel could differ.
Stretch cutByShare(const Stretch &stretch, int size)
{
    const auto within = [size](double x) { return x >= 0.0 && x <= size; };
    if (within(stretch.from) && within(stretch.to)) {
        return stretch;
    }
    const double length = stretch.to - stretch.from;
    const double byLength = 1 / length;
    const double low = (0.0 - stretch.from) * byLength;
    const double high = (size - stretch.from) * byLength;
    const double begin = std::clamp(std::min(low, high), 0.0, 1.0);
    const double end = std::clamp(std::max(low, high), 0.0, 1.0);
    return {stretch.from + length * begin, stretch.from + length * end};
}

} // namespace

/// The pixels that a dot covers along one axis, the outer ones in part.
struct DotExtent
{
    /// Cut to an image of this size.
    DotExtent(double from, double to, int size)
        : begin(std::clamp(from, 0.0, double(size)))
        , end(std::clamp(to, 0.0, double(size)))
        , first(static_cast<int>(begin))
        , last(static_cast<int>(end))
        , ofFirst((first + 1) * dotUnit - static_cast<int>(begin * dotUnit))
        , ofLast(static_cast<int>(end * dotUnit) - last * dotUnit)
    {}

    /// The rim may leave too little of a dot to draw.
    bool isEmpty() const { return end - begin < 1 / 64.; }

    double begin;
    double end;
    int first;
    int last;
    int ofFirst; // in `dotUnit`s
    int ofLast;
};

namespace {

/// Of a pixel covered so far in height and width, in `dotUnit`s. A byte, as in a painter.
unsigned dotCoverage(int height, int width)
{
    const qint64 area = qint64(height) * (width * qint64(opaque));
    return static_cast<quint8>(area >> (2 * dotFraction));
}

/// What a dot that lies within one column covers of it, in `dotUnit`s.
int ofOnlyColumn(const DotExtent &columns)
{
    const int bothSides = columns.ofFirst + columns.ofLast;
    return QtDifferences::coversOneColumnTwice ? bothSides : bothSides - dotUnit;
}

/// What a row of a dot leaves on its pixels, of which `height` is covered.
class DotRowInks
{
public:
    DotRowInks(const DotExtent &itsColumns, int height, QRgb colour)
        : columns(itsColumns)
        , left(colour, dotCoverage(height, columns.first == columns.last ? ofOnlyColumn(columns)
                                                                         : columns.ofFirst))
        , between(colour, dotCoverage(height, dotUnit))
        , right(colour, dotCoverage(height, columns.ofLast))
    {}

    void inkOn(QRgb *row) const
    {
        row[columns.first] = left.over(row[columns.first]);
        for (int x = columns.first + 1; x < columns.last; ++x) {
            row[x] = between.over(row[x]);
        }
        if (columns.first != columns.last && columns.ofLast > 0) {
            row[columns.last] = right.over(row[columns.last]);
        }
    }

private:
    const DotExtent &columns;
    Ink left;
    Ink between;
    Ink right;
};

// Lines

constexpr int lineFraction = 6; // bits of a line's coordinates behind the point
constexpr int lineUnit = 1 << lineFraction;

int lineCoordinate(double coordinate) { return static_cast<int>(coordinate * lineUnit); }
int wholePart(int coordinate) { return coordinate >> lineFraction; }
int fraction(int coordinate) { return coordinate & (lineUnit - 1); }

/// A painter follows a line this far beyond the image.
double nearImage(double coordinate, int size) { return std::clamp(coordinate, -1.0, size + 1.0); }

/// The pixels that a line covers along its length, with caps of half a pixel at both ends: whole
/// ones between a first and a last that are covered in part.
struct LineAlong
{
    LineAlong(double from, double to)
        : begin(lineCoordinate(from) - lineUnit / 2)
        , end(lineCoordinate(to) + lineUnit / 2)
        , first(wholePart(begin))
        , last(wholePart(end))
        , ofFirst(first == last ? end - begin : lineUnit - fraction(begin))
        , ofLast(first == last ? 0 : fraction(end))
    {}

    int begin;
    int end;
    int first;
    int last;
    int ofFirst; // in `lineUnit`s
    int ofLast;
};

/// The two pixels side by side that a line covers across its length.
struct LineAcross
{
    explicit LineAcross(double position)
        : begin(lineCoordinate(position) - lineUnit / 2)
        , first(wholePart(begin))
        , ofSecond(static_cast<unsigned>(fraction(begin)) * 4)
        , ofFirst(opaque - ofSecond)
    {}

    int begin;
    int first;
    unsigned ofSecond; // of `opaque`
    unsigned ofFirst;
};

unsigned partOf(unsigned coverage, int share)
{
    return (coverage * static_cast<unsigned>(share)) >> lineFraction;
}

void inkColumn(QRgb *top, qptrdiff stride, int rows, const Ink &ink)
{
    for (int i = 0; i < rows; ++i) {
        QRgb &pixel = top[i * stride];
        pixel = ink.over(pixel);
    }
}

/// Two columns side by side. The paper of a column seldom changes: what came of the pair above
/// holds for the pair below.
void inkColumnPair(QRgb *top, qptrdiff stride, int rows, const Ink &left, const Ink &right)
{
    QRgb paper[2] = {white, white};
    QRgb inked[2] = {left.over(white), right.over(white)};
    for (int i = 0; i < rows; ++i) {
        QRgb *const pair = top + i * stride;
        if (std::memcmp(pair, paper, sizeof paper) != 0) {
            std::memcpy(paper, pair, sizeof paper);
            inked[0] = left.over(paper[0]);
            inked[1] = right.over(paper[1]);
        }
        std::memcpy(pair, inked, sizeof inked);
    }
}

} // namespace

PixelStrokes::PixelStrokes(QImage &canvas)
    : pixels(reinterpret_cast<QRgb *>(canvas.bits()))
    , stride(canvas.bytesPerLine() / qptrdiff(sizeof(QRgb)))
    , width(canvas.width())
    , height(canvas.height())
    , rowsEnd(height)
    , ratio(canvas.devicePixelRatio())
{}

void PixelStrokes::limitToRows(int begin, int end)
{
    rowsBegin = std::max(begin, 0);
    rowsEnd = std::min(end, height);
}

void PixelStrokes::wipe()
{
    for (int y = rowsBegin; y < rowsEnd; ++y) {
        std::fill_n(row(y), width, white);
    }
}

PixelStrokes::DotColumn PixelStrokes::dotColumn(double distance) const
{
    constexpr double pointLength = 1 / 63.;
    const double begin = width - distance;
    const double end = width - (distance + pointLength);
    double widthByLength = dotWidth * ratio / std::abs(end - begin);
    const double cap = 0.5 * widthByLength * (end - begin);
    const Stretch seen = cutByShare({begin - cap, end + cap}, width);
    const double length = seen.from - seen.to;
    if (length == 0.0) {
        return {};
    }
    widthByLength *= std::sqrt((begin - end) * (begin - end) / (length * length));
    return {(seen.from + seen.to) * 0.5, widthByLength * (std::abs(length) * 0.5),
            1 / widthByLength};
}

void PixelStrokes::dot(const DotColumn &column, double y, QRgb colour)
{
    const double top = y - column.halfHeight;
    const double bottom = y + column.halfHeight;
    const double halfWidth = 0.5 * column.widthByHeight * (bottom - top);
    const DotExtent rows(top, bottom, height);
    const DotExtent columns(column.centre - halfWidth, column.centre + halfWidth, width);
    rectangle(columns, rows, colour);
}

void PixelStrokes::rectangle(const DotExtent &columns, const DotExtent &rows, QRgb colour)
{
    const bool isInBand = rows.first < rowsEnd && rows.last >= rowsBegin;
    if (!isInBand || rows.isEmpty() || columns.isEmpty()) {
        return;
    }
    const auto inkRow = [&](int at, const DotRowInks &inks) {
        if (at >= rowsBegin && at < rowsEnd) {
            inks.inkOn(row(at));
        }
    };
    const bool isOneRow = rows.first == rows.last;
    inkRow(rows.first,
           {columns, isOneRow ? rows.ofFirst + rows.ofLast - dotUnit : rows.ofFirst, colour});
    const DotRowInks whole(columns, dotUnit, colour);
    const int end = std::min(rows.last, rowsEnd);
    for (int at = std::max(rows.first + 1, rowsBegin); at < end; ++at) {
        whole.inkOn(row(at));
    }
    if (!isOneRow) {
        inkRow(rows.last, {columns, rows.ofLast, colour});
    }
}

/// A line of the thin pen where that is wider than a pixel.
void PixelStrokes::broadLine(double x1, double y1, double x2, double y2, QRgb colour)
{
    const double cap = ratio / 2;
    rectangle({std::min(x1, x2) - cap, std::max(x1, x2) + cap, width},
              {std::min(y1, y2) - cap, std::max(y1, y2) + cap, height}, colour);
}

void PixelStrokes::verticalLine(int x, double y1, double y2, QRgb colour)
{
    if (!isPlain()) {
        broadLine(x, y1, x, y2, colour);
        return;
    }
    if (y1 == y2) {
        const int y = qRound(y1);
        if (hasColumn(x) && y >= rowsBegin && y < rowsEnd) {
            row(y)[x] = colour;
        }
        return;
    }
    const double top = nearImage(std::min(y1, y2), height);
    const double bottom = nearImage(std::max(y1, y2), height);
    const LineAlong rows(top, bottom);
    verticalRun(x, rows.first, rows.first + 1, rows.ofFirst, colour);
    verticalRun(x, rows.first + 1, rows.last, lineUnit, colour);
    verticalRun(x, rows.last, rows.last + 1, rows.ofLast, colour);
}

void PixelStrokes::verticalRun(int x, int beginRow, int endRow, int share, QRgb colour)
{
    const int begin = std::max(beginRow, rowsBegin);
    const int rows = std::min(endRow, rowsEnd) - begin;
    if (rows <= 0) {
        return;
    }
    const LineAcross columns(x);
    const Ink left(colour, partOf(columns.ofFirst, share));
    const Ink right(colour, partOf(columns.ofSecond, share));
    if (hasColumn(x - 1) && hasColumn(x)) {
        inkColumnPair(row(begin) + x - 1, stride, rows, left, right);
    } else if (hasColumn(x - 1)) {
        inkColumn(row(begin) + x - 1, stride, rows, left);
    } else if (hasColumn(x)) {
        inkColumn(row(begin) + x, stride, rows, right);
    }
}

void PixelStrokes::horizontalLine(double x1, double x2, double y, QRgb colour)
{
    if (!isPlain()) {
        broadLine(x1, y, x2, y, colour);
        return;
    }
    if (y < -1.0 || y > height + 1.0) {
        return;
    }
    const LineAlong columns(nearImage(x1, width), nearImage(x2, width));
    const LineAcross rows(y);
    const struct
    {
        int row;
        unsigned coverage;
    } halves[] = {{rows.first, rows.ofFirst}, {rows.first + 1, rows.ofSecond}};
    for (const auto &half : halves) {
        const auto run = [&](int begin, int end, int share) {
            horizontalRun(half.row, begin, end, partOf(half.coverage, share), colour);
        };
        run(columns.first, columns.first + 1, columns.ofFirst);
        run(columns.first + 1, columns.last, lineUnit);
        run(columns.last, columns.last + 1, columns.ofLast);
    }
}

void PixelStrokes::horizontalRun(int y, int beginColumn, int endColumn, unsigned coverage,
                                 QRgb colour)
{
    if (y < rowsBegin || y >= rowsEnd) {
        return;
    }
    const Ink ink(colour, coverage);
    QRgb *const pixel = row(y);
    const int end = std::min(endColumn, width);
    for (int x = std::max(beginColumn, 0); x < end; ++x) {
        pixel[x] = ink.over(pixel[x]);
    }
}
