// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#ifndef RECEIVEBUFFER_H
#define RECEIVEBUFFER_H

#include <QByteArray>
#include <QString>

#include <array>
#include <optional>

/// The characters received and not yet cut into lines.
///
/// Its cost follows the bytes that arrive, whatever they are: each byte is searched once for each
/// kind of line end, however long its line grows, and taking a line does not move the backlog. Its
/// memory follows what waits, which has a bound: an adapter that ignores its rate may bring more
/// than is ever taken.
class ReceiveBuffer
{
public:
    /// The bytes that wait at most. A sounder at 115200 needs 24 minutes for them.
    static constexpr int mostBytes = 16 * 1024 * 1024;

    /// How a line can end: "\r\n", "\r" or "\n".
    enum LineEnd { CarriageReturnLineFeed, CarriageReturn, LineFeed };

    /// Every kind of line end, in the order in which lines are to be looked for: the pair goes
    /// before its halves.
    static constexpr std::array<LineEnd, 3> lineEnds{CarriageReturnLineFeed, CarriageReturn,
                                                     LineFeed};

    /// Adds what has arrived, as it came. What then waits beyond `mostBytes` is dropped, the oldest
    /// first, and with it all up to the end of the line that it falls into, even if that end is
    /// still to come. Returns the number of bytes dropped.
    int append(const QByteArray &received);

    /// Takes the text before the first line end of this kind, together with the line end. Carriage
    /// returns and line feeds at the front of the text are left out, which may leave it empty. A
    /// byte becomes one character (Latin-1), so that noise survives as it came.
    ///
    /// Nothing is taken when there is no such line end, or when the buffer begins with it: what is
    /// left over from the line before is dropped with the line that follows it.
    std::optional<QString> takeLine(LineEnd lineEnd);

    /// Forgets everything that waits.
    void clear();

    /// The bytes that wait.
    int size() const { return static_cast<int>(bytes.size()) - head; }

    /// Bytes examined and moved since construction: the measure of what receiving costs.
    qint64 workDone() const { return work; }

private:
    /// Where one kind of line end was found, or from where to search on for it; an index into
    /// `bytes`.
    struct Search
    {
        int position = 0;
        bool found = false;
    };

    int find(LineEnd lineEnd);
    Search examine(LineEnd lineEnd, int from);
    int dropThroughLineEnd(int from);
    void compact();
    void giveBackMemory();

    QByteArray bytes;
    int head = 0;              // what lies before it has been taken
    bool dropsTheLine = false; // up to the next line end nothing is kept
    std::array<Search, lineEnds.size()> searches;
    qint64 work = 0;
};

#endif // RECEIVEBUFFER_H
