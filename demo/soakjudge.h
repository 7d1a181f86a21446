// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#ifndef SOAKJUDGE_H
#define SOAKJUDGE_H

#include "soakmeter.h"
#include "soaktally.h"

#include <QStringList>
#include <QVector>

/// Says of a soak's figures whether the program may go on like that for days.
class SoakJudge
{
public:
    /// What is too much.
    struct Limits
    {
        double settleS = 300;      ///< caches fill meanwhile; growth counts from then on
        qint64 growthKib = 2048;   ///< of the memory, resident and allocated alike
        double absenceCpuMs = 100; ///< processor time in one absence of the window's thread
        int files = 2;             ///< more open files than at the end of settling
    };

    explicit SoakJudge(const Limits &itsLimits)
        : limits(itsLimits)
    {}

    void add(const SoakSample &sample) { samples.append(sample); }

    /// What is wrong, a line each; empty if nothing is.
    QStringList complaints(const SoakTally::Counts &changes) const;

    /// The figures in a few lines.
    QStringList summary(const SoakTally::Counts &changes) const;

    /// Whether the soak lasted long enough after settling to speak of growth.
    bool canTellGrowth() const;

private:
    template <typename Value>
    Value settled(Value SoakSample::*field) const;
    template <typename Value>
    Value last(Value SoakSample::*field) const;
    template <typename Value>
    Value most(Value SoakSample::*field) const;
    QString growth(const char *name, qint64 SoakSample::*field) const;
    int firstSettled() const;

    Limits limits;
    QVector<SoakSample> samples;
};

#endif // SOAKJUDGE_H
