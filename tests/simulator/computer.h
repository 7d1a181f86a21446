// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#ifndef COMPUTER_H
#define COMPUTER_H

#include <QSerialPort>

/// The computer at the other end of a sounder's cable, with a real serial port.
struct Computer
{
    explicit Computer(const QString &portName, int rate = 9600)
    {
        port.setPortName(portName);
        port.setBaudRate(rate);
        QObject::connect(&port, &QSerialPort::readyRead, &port,
                         [this] { heard += port.readAll(); });
        // A pulled cable raises errors without end until the port is closed.
        QObject::connect(
            &port, &QSerialPort::errorOccurred, &port,
            [this](QSerialPort::SerialPortError error) {
                hasFailed = hasFailed || error != QSerialPort::NoError;
                if (hasFailed) {
                    port.close();
                }
            },
            Qt::QueuedConnection);
        port.open(QIODevice::ReadWrite);
    }

    void send(const QByteArray &bytes) { port.write(bytes); }

    QSerialPort port;
    QByteArray heard;
    bool hasFailed = false;
};

#endif // COMPUTER_H
