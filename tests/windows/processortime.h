// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#ifndef PROCESSORTIME_H
#define PROCESSORTIME_H

#include <QtGlobal>

#include <qt_windows.h>

/// What this program has used of the processor, in seconds; std::clock() is no help on Windows,
/// where it goes on while a program waits.
inline double processorSeconds()
{
    FILETIME started;
    FILETIME ended;
    FILETIME kernel;
    FILETIME user;
    GetProcessTimes(GetCurrentProcess(), &started, &ended, &kernel, &user);
    const auto seconds = [](const FILETIME &time) {
        const quint64 ticks = (quint64(time.dwHighDateTime) << 32U) | time.dwLowDateTime;
        return static_cast<double>(ticks) / 1e7; // of 100 ns
    };
    return seconds(kernel) + seconds(user);
}

#endif // PROCESSORTIME_H
