// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#ifndef SOAKMETER_H
#define SOAKMETER_H

#include "processortime.h"

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>

/// What the program used up in one second.
struct SoakSample
{
    double seconds = 0;      ///< since the meter's start
    qint64 residentKib = 0;  ///< memory that the system holds for the process
    qint64 heapKib = 0;      ///< of it, what the program has allocated and not given back
    double cpuPercent = 0;   ///< of one processor, all threads
    int openFiles = 0;       ///< file descriptors
    double absenceMs = 0;    ///< the longest time for which the window answered to nothing
    double absenceCpuMs = 0; ///< the most processor time that its thread took in such a time
};

/// Measures this process, each second. The window's absence is measured by a heartbeat: how much
/// later than it should have the event loop come to it. The wall clock counts what other programs
/// take from a shared machine, too; the thread's processor time counts the program's own work, as
/// far as the host of a virtual machine tells what it took away.
class SoakMeter : public QObject
{
    Q_OBJECT

public:
    explicit SoakMeter(QObject *parent = nullptr);

    /// To be called in the window's thread.
    void start();

signals:
    /// Every 10 ms, as far as the event loop comes to it.
    void beaten();

    void sampled(const SoakSample &sample);

private:
    void beat();
    void sample();

    QTimer heartbeat;
    QTimer secondHand;
    QElapsedTimer clock;
    ProcessorTime::Stopwatch sinceBeat;
    double beatAtMs = 0;
    double sampleAtMs = 0;
    double sampleCpuMs = 0;
    SoakSample current;
};

#endif // SOAKMETER_H
