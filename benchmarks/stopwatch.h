// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#ifndef STOPWATCH_H
#define STOPWATCH_H

#include <ctime>

/// Runs from its making on.
class Stopwatch
{
public:
    /// What passes on the wall is what an operator waits for. On a machine that others use at the
    /// same time, the processor's time of this program alone says more.
    enum class Time { wall = CLOCK_MONOTONIC, processor = CLOCK_PROCESS_CPUTIME_ID };

    explicit Stopwatch(Time kind = Time::wall)
        : clock(static_cast<clockid_t>(kind))
        , start(now())
    {}

    double seconds() const { return now() - start; }

private:
    double now() const
    {
        timespec time{};
        clock_gettime(clock, &time);
        return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) * 1e-9;
    }

    clockid_t clock;
    double start;
};

#endif // STOPWATCH_H
