// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "serialsounder.h"

namespace {

/// What a port still holds when it says that it has written everything: a few characters.
constexpr qint64 drainMs = 30;

/// More bytes than these waiting in the port means that the line does not take them.
constexpr qint64 mostWaiting = 1024;

} // namespace

SerialSounder::SerialSounder(const QString &portName, const SounderOptions &options,
                             QObject *parent)
    : SounderLine(options, parent)
    , name(portName)
{
    port.setPortName(portName);
    port.setBaudRate(model().lineRate());
    if (!port.open(QIODevice::ReadWrite)) {
        problem = port.errorString();
        return;
    }
    connect(&port, &QSerialPort::readyRead, this, [this] { hear(port.readAll()); });
    connect(&port, &QSerialPort::errorOccurred, this, &SerialSounder::handleError);
    quiet.start();
    start();
}

void SerialSounder::hangUp()
{
    if (port.isOpen()) {
        port.close();
        stop();
    }
}

int SerialSounder::rateOnLine() { return port.baudRate(); }

SounderLine::Listener SerialSounder::listener()
{
    return followRate() && port.bytesToWrite() <= mostWaiting ? Listener::Ready : Listener::Behind;
}

int SerialSounder::send(const QByteArray &bytes)
{
    quiet.restart();
    return static_cast<int>(std::max<qint64>(0, port.write(bytes)));
}

/// Returns whether the port runs at the device's rate. It changes over only when the answer at the
/// old rate has left it.
bool SerialSounder::followRate()
{
    if (port.baudRate() == model().lineRate()) {
        return true;
    }
    if (port.bytesToWrite() > 0 || !quiet.hasExpired(drainMs)) {
        return false;
    }
    return port.setBaudRate(model().lineRate());
}

/// A vanished port raises its error again and again until it is closed, which must not happen
/// within the signal.
void SerialSounder::handleError(QSerialPort::SerialPortError error)
{
    switch (error) {
    case QSerialPort::NoError:
    case QSerialPort::NotOpenError:
    case QSerialPort::TimeoutError:
    case QSerialPort::UnsupportedOperationError:
        return;
    default:
        break;
    }
    problem = port.errorString();
    QMetaObject::invokeMethod(this, &SerialSounder::hangUp, Qt::QueuedConnection);
}
