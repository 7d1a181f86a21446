// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "loopwatch.h"

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
    sinceTurn.lap();
}

double LoopWatch::longestMs()
{
    turn();
    return longest;
}

void LoopWatch::turn() { longest = std::max(longest, sinceTurn.lap()); }
