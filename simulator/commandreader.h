// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#ifndef COMMANDREADER_H
#define COMMANDREADER_H

#include <QByteArray>
#include <QByteArrayList>

/// Cuts a stream of bytes into commands as the device does: a "*" begins one, whatever came before
/// it, and the eighth character ends it. Anything up to the next "*" is filler.
class CommandReader
{
public:
    /// The device's fixed command length in characters.
    static constexpr int commandLength = 8;

    /// Takes bytes; returns the commands that they complete, in order.
    QByteArrayList read(const QByteArray &bytes);

    /// Forgets a command that has begun.
    void clear() { begun.clear(); }

private:
    QByteArray begun;
};

#endif // COMMANDREADER_H
