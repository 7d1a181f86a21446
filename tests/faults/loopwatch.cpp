// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "loopwatch.h"

#include "processortime.h"

#include <QAbstractEventDispatcher>
#include <QFile>

#include <algorithm>

namespace {

/// The time that the host has taken from this machine's processors, in milliseconds; 0 where it
/// does not tell.
double stolenMs()
{
    QFile stat(QStringLiteral("/proc/stat"));
    if (!stat.open(QIODevice::ReadOnly)) {
        return 0;
    }
    constexpr int stolenAt = 8; // "cpu user nice system idle iowait irq softirq steal"
    constexpr double msPerTick = 10;
    const QByteArrayList words = stat.readLine().simplified().split(' ');
    return words.size() > stolenAt ? words.at(stolenAt).toDouble() * msPerTick : 0;
}

} // namespace

LoopWatch::LoopWatch()
{
    connect(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::awake, this,
            &LoopWatch::turn);
    reset();
}

void LoopWatch::reset()
{
    longest = 0;
    lastTurn = ProcessorTime::spentMs();
    lastStolen = stolenMs();
}

double LoopWatch::longestMs()
{
    turn();
    return longest;
}

void LoopWatch::turn()
{
    const double now = ProcessorTime::spentMs();
    const double stolen = stolenMs();
    longest = std::max(longest, now - lastTurn - (stolen - lastStolen));
    lastTurn = ProcessorTime::spentMs(); // not the reading of what was stolen
    lastStolen = stolen;
}
