// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "serialportlayer.h"

#include "debuglog.h"
#include "porttrouble.h"
#include "protocol.h"

#include <QSignalBlocker>

#include <algorithm>
#include <chrono>

using namespace std::chrono_literals;

namespace {

constexpr auto answerTime = 2000ms;
constexpr auto silenceTime = 10000ms;
constexpr std::chrono::milliseconds dropsLogPause = 1s;
constexpr int commandLength = 8;

/// What an open port may raise and yet be there. A pulled cable shows itself as one or another of
/// all others, depending on the system and the driver.
constexpr QSerialPort::SerialPortError harmlessErrors[] = {
    QSerialPort::NoError,
    QSerialPort::NotOpenError,
    QSerialPort::TimeoutError,
    QSerialPort::UnsupportedOperationError,
};

bool meansPortIsGone(QSerialPort::SerialPortError error)
{
    return std::find(std::begin(harmlessErrors), std::end(harmlessErrors), error) ==
           std::end(harmlessErrors);
}

} // namespace

SerialPortLayer::SerialPortLayer(QObject *parent)
    : QObject(parent)
    , timeoutTimer(this)
    , checkTimer(this)
{
    timeoutTimer.setObjectName(QStringLiteral("timeoutTimer"));
    timeoutTimer.setInterval(answerTime);
    timeoutTimer.setSingleShot(true);
    checkTimer.setObjectName(QStringLiteral("checkTimer"));
    checkTimer.setInterval(silenceTime);

    connect(&timeoutTimer, SIGNAL(timeout()), this, SLOT(timeout()));
    connect(&checkTimer, SIGNAL(timeout()), this, SLOT(checkConnection()));
    connect(&port, SIGNAL(readyRead()), this, SLOT(readData()));
}

SerialPortLayer::~SerialPortLayer()
{
    port.disconnect(this);
    if (port.isOpen()) {
        port.close();
    }
}

bool SerialPortLayer::openPort()
{
    trouble.clear();
    if (!openDevice()) {
        trouble = PortTrouble::words(PortTrouble::factsOf(port));
        emit connectionFailed();
        return false;
    }
    portFault = PortFault::None;
    sendCommand(QString::fromLatin1(Protocol::Command::wakeUp));
    timeoutTimer.start();
    return true;
}

/// An attempt to open tells by its result how it went; only an open port is watched for errors.
bool SerialPortLayer::openDevice()
{
    const QSignalBlocker attemptIsSilent(port);
    port.setPortName(portName);
    port.setBaudRate(baudRate.toInt());
    port.setDataBits(QSerialPort::Data8);
    port.setParity(QSerialPort::NoParity);
    port.setStopBits(QSerialPort::OneStop);
    port.setFlowControl(QSerialPort::NoFlowControl);
    if (!port.open(QIODevice::ReadWrite)) {
        return false;
    }
    connect(&port, &QSerialPort::errorOccurred, this, &SerialPortLayer::handlePortError,
            Qt::UniqueConnection);
    return true;
}

void SerialPortLayer::closePort()
{
    connected = false;
    portFault = PortFault::None;
    if (port.isOpen()) {
        port.close();
    }
    timeoutTimer.stop();
    checkTimer.stop();
    rxBuffer.clear();
}

bool SerialPortLayer::isConnected() const { return connected; }

void SerialPortLayer::setConnected() { connected = true; }

void SerialPortLayer::sendCommand(QString command)
{
    if (!port.isOpen()) {
        return;
    }
    for (int digit = 0; command.size() < commandLength; ++digit) {
        command += QString::number(digit);
    }
    DEBUG_LOG << "Sending " << command;
    const QByteArray bytes = command.toLocal8Bit();
    if (port.write(bytes) != bytes.size()) {
        DEBUG_LOG << "The serial port did not take the command:" << port.errorString();
    }
    timeoutTimer.start();
    checkTimer.start();
}

void SerialPortLayer::timeout()
{
    DEBUG_LOG << "Timed out am in serialportlayer";
    emit gotTimeout();
    if (checkPending) {
        emit lostDevice();
    }
    rxBuffer.clear();
    if (portFault == PortFault::Dropped) {
        timeoutTimer.start(); // a report may have been spent on an unanswered command
    }
}

void SerialPortLayer::readData()
{
    checkPending = false;
    timeoutTimer.stop();
    logDropped(rxBuffer.append(port.readAll()));
    for (const ReceiveBuffer::LineEnd lineEnd : ReceiveBuffer::lineEnds) {
        if (const auto line = rxBuffer.takeLine(lineEnd)) {
            receivedLines.append(*line);
            emit gotData();
        }
    }
    if (port.isOpen()) { // the reader of a line may have closed it
        checkTimer.start();
    }
}

/// One line a second: a log that grew with a flood would be one more.
void SerialPortLayer::logDropped(int bytes)
{
    droppedBytes += bytes;
    const bool isDue =
        !sinceDropsLogged.isValid() || sinceDropsLogged.hasExpired(dropsLogPause.count());
    if (droppedBytes > 0 && isDue) {
        DEBUG_LOG << "More arrives than can be read: dropped bytes:" << droppedBytes;
        droppedBytes = 0;
        sinceDropsLogged.start();
    }
}

void SerialPortLayer::checkConnection()
{
    sendCommand(QString::fromLatin1(Protocol::Command::keepAlive));
    checkPending = true;
}

/// A port whose far end has vanished stays open and may raise its error at every turn of the event
/// loop. It is silenced here, and closed from the event loop: it is still at work while its signal
/// is handled.
void SerialPortLayer::handlePortError(QSerialPort::SerialPortError error)
{
    if (!meansPortIsGone(error)) {
        return;
    }
    disconnect(&port, &QSerialPort::errorOccurred, this, &SerialPortLayer::handlePortError);
    DEBUG_LOG << "The serial port failed:" << error << port.errorString();
    portFault = PortFault::Noticed;
    QMetaObject::invokeMethod(this, &SerialPortLayer::dropFailedPort, Qt::QueuedConnection);
}

void SerialPortLayer::dropFailedPort()
{
    if (portFault != PortFault::Noticed) {
        return; // the link was closed in the meantime, and perhaps opened again
    }
    portFault = PortFault::Dropped;
    port.close();
    checkTimer.stop();
    timeout();
}
