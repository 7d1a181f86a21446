// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#ifndef BENCHMAIN_H
#define BENCHMAIN_H

#include <QStringList>

/// The words of a benchmark's command line: a few of its own, the others Google Benchmark's.
class ProgramWords
{
public:
    ProgramWords(int argc, char **argv);

    /// Takes "OPTION VALUE" or "OPTION=VALUE" out of the words; empty if it is not there.
    QString take(const QString &option);

    /// Runs all registered benchmarks with the words that are left, `defaults` before them, so that
    /// the operator's words win. Says nothing but errors, since the program prints its own table.
    /// Returns the program's exit code.
    int runBenchmarks(const QStringList &defaults) const;

private:
    QStringList words;
};

#endif // BENCHMAIN_H
