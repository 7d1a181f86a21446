// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#ifndef LOOPWATCH_H
#define LOOPWATCH_H

#include "processortime.h"

#include <QObject>

/// How long the window is away: the processor time that its thread spends between two turns of the
/// event loop, in which no click would be answered.
class LoopWatch : public QObject
{
    Q_OBJECT

public:
    LoopWatch();

    /// Begins anew.
    void reset();

    /// The longest absence since then, in milliseconds; the one that lasts counts.
    double longestMs();

private:
    void turn();

    ProcessorTime::Stopwatch sinceTurn;
    double longest = 0;
};

#endif // LOOPWATCH_H
