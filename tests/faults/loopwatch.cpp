// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "loopwatch.h"

#include "processortime.h"

#include <QAbstractEventDispatcher>

#include <algorithm>

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
}

double LoopWatch::longestMs()
{
    turn();
    return longest;
}

void LoopWatch::turn()
{
    const double now = ProcessorTime::spentMs();
    longest = std::max(longest, now - lastTurn);
    lastTurn = now;
}
