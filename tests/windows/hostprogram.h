// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#ifndef HOSTPROGRAM_H
#define HOSTPROGRAM_H

#include <QStringList>
#include <QTemporaryDir>

/// A program of the machine under Wine, which plays the other end of a COM port: pseudo-terminals
/// are there, not on Windows. It ends with this object.
class HostProgram
{
public:
    /// Starts it in a folder of its own; see saidSomething(). The path is the machine's.
    explicit HostProgram(const QString &program, const QStringList &words);
    ~HostProgram();

    HostProgram(const HostProgram &) = delete;
    HostProgram &operator=(const HostProgram &) = delete;

    /// Ends it and waits until it is gone; false if it does not go.
    bool end();

    /// Waits for its first words; false if none come.
    bool saidSomething() const;

    /// A file in its folder as Windows programs see it; it goes with this object.
    QString file(const QString &name) const { return folder.filePath(name); }

    /// A path on the machine as Windows programs see it.
    static QString asSeenFromWindows(const QString &path);

private:
    bool isRunning() const;

    QTemporaryDir folder;
};

#endif // HOSTPROGRAM_H
