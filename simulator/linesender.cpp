// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "linesender.h"

#include <algorithm>
#include <limits>

namespace {

/// More soundings than these waiting means that the line is slower than the sounder.
constexpr int mostSoundings = 20;

/// A line that waits for others goes with the third one, or alone after a while.
constexpr int togetherCount = 3;
constexpr std::chrono::milliseconds togetherWait{250};

/// A start bit, eight data bits, a stop bit.
constexpr qint64 bitsPerCharacter = 10;

} // namespace

void LineSender::add(const Line &line, Milliseconds now)
{
    if (lines.isEmpty()) {
        headSince = now;
        busySince = now;
        busyBytes = 0;
    }
    lines << line;
    dropOldSoundings();
}

QByteArray LineSender::take(int rate, Milliseconds now)
{
    if (!lines.isEmpty() && lines.first().waitsForOthers) {
        return isWaiting(now) ? QByteArray() : takeTogether(now);
    }
    QByteArray left;
    int allowed = allowance(rate, now);
    while (!lines.isEmpty() && !lines.first().waitsForOthers) {
        Line &head = lines.first();
        if (head.byteByByte) {
            allowed = std::min(allowed, left.isEmpty() ? 1 : 0);
        }
        const int count = std::min(allowed, static_cast<int>(head.bytes.size()));
        left += head.bytes.left(count);
        head.bytes.remove(0, count);
        allowed -= count;
        if (!head.bytes.isEmpty()) {
            break;
        }
        headSince = now;
        const bool maySpeedChange = lines.takeFirst().holdsRate;
        if (maySpeedChange || (!isPaced && !left.isEmpty())) {
            break;
        }
    }
    busyBytes += left.size();
    return left;
}

bool LineSender::holdsRate() const
{
    return std::any_of(lines.begin(), lines.end(), [](const Line &line) { return line.holdsRate; });
}

void LineSender::clear() { lines.clear(); }

/// The first line stays: it may have left in part.
void LineSender::dropOldSoundings()
{
    const auto isSounding = [](const Line &line) { return line.isSounding; };
    const auto second = lines.begin() + 1;
    if (std::count_if(second, lines.end(), isSounding) > mostSoundings) {
        lines.erase(std::find_if(second, lines.end(), isSounding));
    }
}

bool LineSender::isWaiting(Milliseconds now) const
{
    return lines.size() < togetherCount && now - headSince < togetherWait;
}

QByteArray LineSender::takeTogether(Milliseconds now)
{
    QByteArray left;
    while (!lines.isEmpty()) {
        const Line line = lines.takeFirst();
        left += line.bytes;
        if (line.holdsRate) {
            break;
        }
    }
    headSince = now;
    busyRate = 0;
    return left;
}

/// How many more characters the line can have carried by now.
int LineSender::allowance(int rate, Milliseconds now)
{
    if (!isPaced) {
        return std::numeric_limits<int>::max();
    }
    if (rate != busyRate) {
        busyRate = rate;
        busySince = headSince;
        busyBytes = 0;
    }
    const qint64 carried = (now - busySince).count() * rate / (bitsPerCharacter * 1000);
    return static_cast<int>(
        std::clamp<qint64>(carried - busyBytes, 0, std::numeric_limits<int>::max()));
}
