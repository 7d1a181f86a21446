// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#ifndef SERIALPORTLAYER_H
#define SERIALPORTLAYER_H

#include "receivebuffer.h"

#include <QElapsedTimer>
#include <QObject>
#include <QSerialPort>
#include <QString>
#include <QStringList>
#include <QTimer>

/// The one serial link to the echo sounder: opens and closes the port, sends commands at the length
/// that the device reads, cuts what arrives into lines, and watches for silence. It knows nothing
/// of what the lines mean.
///
/// The port runs with 8 data bits, no parity, one stop bit and no flow control. Nothing here waits:
/// reading, writing and both timers live on the event loop.
class SerialPortLayer : public QObject
{
    Q_OBJECT

public:
    /// The port is closed and no timer runs.
    explicit SerialPortLayer(QObject *parent = nullptr);

    /// Closes the port if it is open.
    ~SerialPortLayer() override;

    SerialPortLayer(const SerialPortLayer &) = delete;
    SerialPortLayer &operator=(const SerialPortLayer &) = delete;

    /// Opens `portName` at `baudRate` and sends the wake-up text. False, after connectionFailed(),
    /// when the port cannot be opened; nothing else changes then, but openTrouble() tells why.
    bool openPort();

    /// Why openPort() has failed last, in the operator's words; empty after it has succeeded.
    const QString &openTrouble() const { return trouble; }

    /// Closes the port and forgets a line that was only half received. The lines in `receivedLines`
    /// stay for their reader.
    void closePort();

    /// True from setConnected() to closePort(): the far end has named itself as a sounder.
    bool isConnected() const;

    /// Called by the reader of the lines when it has recognised the device.
    void setConnected();

    /// Writes one command. The device reads commands of eight characters: a shorter text is padded
    /// with the digits 0, 1, 2, …, which carry no meaning; a longer one goes out unchanged, and no
    /// terminator is added. While the port is closed the command is dropped without a trace.
    void sendCommand(QString command);

    /// The port to open: a name as the system lists it, or the full path of a terminal.
    QString portName;

    /// The rate to open it at, in decimal digits: "4800" to "115200".
    QString baudRate;

    /// Not used by the link.
    QString unused;

    /// Complete lines without their terminators, oldest first. The reader takes them from the
    /// front, normally upon gotData().
    QStringList receivedLines;

    // The order of the signals and slots is fixed: others may refer to them by index.
signals:
    /// A keep-alive went unanswered.
    void lostDevice();

    /// Never emitted.
    void commandTimeout();

    /// One line has been appended to `receivedLines`; emitted once for each.
    void gotData();

    /// Never emitted.
    void gotDeviceType();

    /// Nothing arrived within 2 s of a command. Also emitted, at once and then every 2 s until
    /// closePort(), when the port itself has failed (its cable was pulled).
    void gotTimeout();

    /// The port could not be opened.
    void connectionFailed();

public slots:
    /// The answer to the last command is overdue.
    void timeout();

    /// Takes what has arrived. One call yields at most three lines, one for each kind of line end;
    /// further complete lines wait for the next arrival, as many as a ReceiveBuffer keeps. The log
    /// tells once a second how much it does not keep.
    void readData();

    /// Sends the keep-alive: nothing has been sent or received for 10 s.
    void checkConnection();

private:
    /// What has become of a port that failed: it is noticed in the port's own handler, dropped from
    /// the event loop, and reported until the link is closed.
    enum class PortFault { None, Noticed, Dropped };

    bool openDevice();
    void handlePortError(QSerialPort::SerialPortError error);
    void dropFailedPort();
    void logDropped(int bytes);

    ReceiveBuffer rxBuffer;
    QSerialPort port;
    QTimer timeoutTimer;
    QTimer checkTimer;
    bool connected = false;
    bool checkPending = false;
    PortFault portFault = PortFault::None;
    QString trouble;
    qint64 droppedBytes = 0; ///< of which the log does not tell yet
    QElapsedTimer sinceDropsLogged;
};

#endif // SERIALPORTLAYER_H
