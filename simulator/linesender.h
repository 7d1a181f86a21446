// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#ifndef LINESENDER_H
#define LINESENDER_H

#include <QByteArray>
#include <QList>

#include <chrono>

/// The device's transmitter: lines wait their turn and leave character by character at the speed of
/// the line. Nothing but time moves it.
class LineSender
{
public:
    using Milliseconds = std::chrono::milliseconds;

    struct Line
    {
        QByteArray bytes;            ///< with its line end; may be empty
        bool isSounding = false;     ///< may be thrown away when too many wait
        bool byteByByte = false;     ///< no two of its bytes leave in one call
        bool waitsForOthers = false; ///< leaves together with the lines behind it
        bool holdsRate = false;      ///< the rate must not change before it has left
    };

    /// `paced`: a character takes ten bits; otherwise a whole line leaves with each call.
    explicit LineSender(bool paced)
        : isPaced(paced)
    {}

    void add(const Line &line, Milliseconds now);

    /// The bytes that have left since the last call, at `rate` bits a second.
    QByteArray take(int rate, Milliseconds now);

    bool isEmpty() const { return lines.isEmpty(); }

    /// Whether a line that holds the rate has yet to leave.
    bool holdsRate() const;

    void clear();

private:
    void dropOldSoundings();
    bool isWaiting(Milliseconds now) const;
    QByteArray takeTogether(Milliseconds now);
    int allowance(int rate, Milliseconds now);

    bool isPaced;
    QList<Line> lines;
    Milliseconds headSince{0}; ///< when the first line came to the front
    Milliseconds busySince{0}; ///< since when characters follow each other without a gap
    int busyRate = 0;
    qint64 busyBytes = 0; ///< characters that have left since then
};

#endif // LINESENDER_H
