// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#ifndef FIRSTPAINT_H
#define FIRSTPAINT_H

#include <QEvent>
#include <QObject>
#include <QTimer>
#include <QWidget>

#include <cstdio>
#include <cstdlib>
#include <ctime>

/// Ends the program as soon as the window is painted, saying when (nanoseconds of the system's
/// steady clock) and how many nanoseconds of the processor it took.
class FirstPaint : public QObject
{
public:
    explicit FirstPaint(QWidget &window) { window.installEventFilter(this); }

    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() == QEvent::Paint && !isPainting) {
            isPainting = true;
            QTimer::singleShot(0, this, &FirstPaint::tell); // after all that is in the window
        }
        return false;
    }

private:
    static void tell()
    {
        std::printf("%lld %lld\n", nanoseconds(CLOCK_MONOTONIC),
                    nanoseconds(CLOCK_PROCESS_CPUTIME_ID));
        std::fflush(stdout);
        std::_Exit(0);
    }

    static long long nanoseconds(clockid_t clock)
    {
        timespec now{};
        clock_gettime(clock, &now);
        return static_cast<long long>(now.tv_sec) * 1000000000 + now.tv_nsec;
    }

    bool isPainting = false;
};

#endif // FIRSTPAINT_H
