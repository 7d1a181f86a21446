// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#ifndef COMMANDLOG_H
#define COMMANDLOG_H

#include <QByteArrayList>
#include <QMap>
#include <QString>

/// What a simulated sounder has received, for tests to look at. The lists keep the newest entries
/// only, so that a run of days does not fill the memory.
class CommandLog
{
public:
    /// Bytes heard at the right rate.
    void addRaw(const QByteArray &bytes);
    /// One command as the device took it.
    void addCommand(const QByteArray &command);
    /// Counts this kind so many times more.
    void count(const QString &kind, int times = 1);
    /// Forgets everything, the counts too.
    void clear();

    /// What was added, oldest first, and how often each kind was counted.
    const QByteArrayList &commands() const { return taken; }
    const QByteArray &raw() const { return heard; }
    const QMap<QString, int> &counts() const { return kinds; }

private:
    QByteArrayList taken;
    QByteArray heard;
    QMap<QString, int> kinds;
};

#endif // COMMANDLOG_H
