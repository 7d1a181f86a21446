// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#ifndef COPYOFPROGRAM_H
#define COPYOFPROGRAM_H

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QProcess>

/// Runs a copy of this test program, with the same words, in `folder`, which is made if it is
/// missing; `furnish` puts there what must stand beside it, and says whether it could. The copy's
/// result, or 1 if it cannot be made.
template <typename Furnish>
int runCopyIn(const QString &folder, const Furnish &furnish)
{
    const QString program = QCoreApplication::applicationFilePath();
    const QString copy = folder + '/' + QFileInfo(program).fileName();
    if (!QDir().mkpath(folder) || !QFile::copy(program, copy) || !furnish()) {
        qCritical("the private copy cannot be made");
        return 1;
    }
    return QProcess::execute(copy, QCoreApplication::arguments().mid(1));
}

#endif // COPYOFPROGRAM_H
