// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "soakmeter.h"

#include <QDir>
#include <QFile>

#include <chrono>
#include <ctime>
#include <malloc.h>
#include <unistd.h>

namespace {

using namespace std::chrono_literals;

constexpr std::chrono::milliseconds beatInterval = 10ms;
constexpr double intervalMs = beatInterval.count();

constexpr qint64 bytesPerKib = 1024;

double processMs()
{
    timespec time{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_nsec) / 1e6;
}

qint64 residentKib()
{
    QFile file(QStringLiteral("/proc/self/statm"));
    if (!file.open(QIODevice::ReadOnly)) {
        return 0;
    }
    const qint64 pages = file.readAll().split(' ').value(1).toLongLong();
    return pages * sysconf(_SC_PAGESIZE) / bytesPerKib;
}

/// What is in use of the heap, large blocks that the system maps apart included.
qint64 heapKib()
{
    const struct mallinfo2 info = mallinfo2();
    return static_cast<qint64>(info.uordblks + info.hblkhd) / bytesPerKib;
}

/// The listing itself has the folder open.
int openFiles()
{
    constexpr auto all = QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot;
    return int(QDir(QStringLiteral("/proc/self/fd")).entryList(all).size()) - 1;
}

} // namespace

SoakMeter::SoakMeter(QObject *parent)
    : QObject(parent)
{
    heartbeat.setTimerType(Qt::PreciseTimer);
    heartbeat.setInterval(beatInterval);
    secondHand.setInterval(1s);
    connect(&heartbeat, &QTimer::timeout, this, &SoakMeter::beat);
    connect(&secondHand, &QTimer::timeout, this, &SoakMeter::sample);
}

void SoakMeter::start()
{
    clock.start();
    sinceBeat.lap();
    sampleCpuMs = processMs();
    heartbeat.start();
    secondHand.start();
}

void SoakMeter::beat()
{
    const double nowMs = static_cast<double>(clock.nsecsElapsed()) / 1e6;
    current.absenceMs = std::max(current.absenceMs, nowMs - beatAtMs - intervalMs);
    current.absenceCpuMs = std::max(current.absenceCpuMs, sinceBeat.lap());
    beatAtMs = nowMs;
    emit beaten();
}

void SoakMeter::sample()
{
    const double nowMs = static_cast<double>(clock.nsecsElapsed()) / 1e6;
    const double cpuMs = processMs();
    current.seconds = nowMs / 1e3;
    current.cpuPercent = 100.0 * (cpuMs - sampleCpuMs) / (nowMs - sampleAtMs);
    current.residentKib = residentKib();
    current.heapKib = heapKib();
    current.openFiles = openFiles();
    sampleAtMs = nowMs;
    sampleCpuMs = cpuMs;
    emit sampled(current);
    current = {};
}
