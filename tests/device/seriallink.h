// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#ifndef SERIALLINK_H
#define SERIALLINK_H

#include "logcapture.h"
#include "rawpty.h"
#include "serialportlayer.h"

#include <QSignalSpy>
#include <QTimer>
#include <QtTest>

/// A serial layer wired to a pseudo-terminal, with a spy on each signal that it emits, its log, and
/// timers that keep their time exactly.
struct SerialLink
{
    SerialLink()
    {
        layer.portName = pty.slavePath();
        layer.baudRate = QStringLiteral("9600");
        answerTimer()->setTimerType(Qt::PreciseTimer);
        silenceTimer()->setTimerType(Qt::PreciseTimer);
    }

    /// Opens the port. Afterwards the wake-up text has been received and the log is empty.
    void open()
    {
        QVERIFY2(pty.isOpen(), "the system gave no pseudo-terminal");
        pty.clearReceived();
        QVERIFY(layer.openPort());
        QTRY_COMPARE(pty.received(), QByteArray("*nasdfd\r\n"));
        pty.clearReceived();
        log.clear();
    }

    /// Bytes from the sounder, all at once.
    void arrive(const QByteArray &bytes) { QCOMPARE(pty.write(bytes), bytes.size()); }

    QTimer *answerTimer() { return layer.findChild<QTimer *>(QStringLiteral("timeoutTimer")); }
    QTimer *silenceTimer() { return layer.findChild<QTimer *>(QStringLiteral("checkTimer")); }

    LogCapture log;
    RawPty pty;
    SerialPortLayer layer;
    QSignalSpy gotData{&layer, &SerialPortLayer::gotData};
    QSignalSpy timeouts{&layer, &SerialPortLayer::gotTimeout};
    QSignalSpy lost{&layer, &SerialPortLayer::lostDevice};
    QSignalSpy failed{&layer, &SerialPortLayer::connectionFailed};
};

#endif // SERIALLINK_H
