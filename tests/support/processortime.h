// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#ifndef PROCESSORTIME_H
#define PROCESSORTIME_H

#include <ctime>

/// What work costs, whoever else uses the machine.
namespace ProcessorTime {

/// This thread's processor time so far, in milliseconds.
inline double spentMs()
{
    timespec time{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_nsec) / 1e6;
}

/// What is allowed to something that must not cost more than `limit`: twice that, since processor
/// time, too, grows where a cache is shared, and ten times that under a sanitizer.
inline double allowed(double limit)
{
#ifdef __SANITIZE_ADDRESS__
    return 10 * limit;
#else
    return 2 * limit;
#endif
}

} // namespace ProcessorTime

#endif // PROCESSORTIME_H
