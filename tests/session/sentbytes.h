// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#ifndef SENTBYTES_H
#define SENTBYTES_H

#include "rawpty.h"
#include "serialportlayer.h"

#include <QCoreApplication>
#include <QDeadlineTimer>

/// Takes from the line all that has gone out through the open port since the last call. A last word
/// sent behind it shows that nothing more will come.
inline QByteArray takeSentBytes(SerialPortLayer &port, RawPty &line)
{
    const QByteArray lastWord = "(end of words)";
    constexpr int patienceMs = 10000;
    const QDeadlineTimer patience(patienceMs);
    port.sendCommand(lastWord);
    while (!line.received().endsWith(lastWord)) {
        if (patience.hasExpired()) {
            return "(the line stays silent)";
        }
        QCoreApplication::processEvents(QEventLoop::AllEvents, 1);
    }
    QByteArray sent = line.received();
    sent.chop(lastWord.size());
    line.clearReceived();
    return sent;
}

#endif // SENTBYTES_H
