// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#ifndef PROCESSORTIME_H
#define PROCESSORTIME_H

#include <QFile>

#include <algorithm>
#include <ctime>

/// What work costs, whoever else uses the machine. On a virtual machine the time that its host took
/// from it counts as the thread's own, at times most of a second.
namespace ProcessorTime {

/// This thread's processor time so far, in milliseconds.
inline double spentMs()
{
    timespec time{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_nsec) / 1e6;
}

/// The time that the host has taken from this machine's processors so far, in milliseconds; 0 where
/// it does not tell.
inline double stolenMs()
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

/// Counts this thread's processor time without what was stolen meanwhile.
class Stopwatch
{
public:
    /// Since the start or the last call, in milliseconds.
    double lap()
    {
        const double now = spentMs();
        const double stolen = stolenMs();
        const double work = std::max(now - lastSpent - (stolen - lastStolen), 0.0);
        lastSpent = spentMs(); // not the reading of what was stolen
        lastStolen = stolen;
        return work;
    }

private:
    double lastStolen = stolenMs();
    double lastSpent = spentMs();
};

/// The least that `act` costs, in milliseconds: what it costs every time shows in each of five
/// attempts, what the machine did meanwhile does not. The first below `enough` is the last.
template <typename Act>
double leastMs(double enough, const Act &act)
{
    constexpr int attempts = 5;
    double least = 0;
    for (int attempt = 0; attempt < attempts && (attempt == 0 || least >= enough); ++attempt) {
        Stopwatch watch;
        act();
        const double work = watch.lap();
        least = attempt == 0 ? work : std::min(least, work);
    }
    return least;
}

/// What is allowed to something that must not cost more than `limit`: twice that, since processor
/// time, too, grows where a cache is shared, and sixty times in a build that is not optimised, as
/// those with sanitizers or counted lines are, and under valgrind.
inline double allowed(double limit)
{
#ifdef __OPTIMIZE__
    return qEnvironmentVariableIsSet("TALVERO_UNDER_VALGRIND") ? 60 * limit : 2 * limit;
#else
    return 60 * limit;
#endif
}

} // namespace ProcessorTime

#endif // PROCESSORTIME_H
