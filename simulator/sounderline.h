// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#ifndef SOUNDERLINE_H
#define SOUNDERLINE_H

#include "soundermodel.h"

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>

/// A simulated sounder at the end of some line: it keeps the model's clock, carries the bytes both
/// ways and keeps the device's memory in its file. What the line is, a subclass says. It lives in
/// the event loop and never blocks it.
class SounderLine : public QObject
{
    Q_OBJECT

public:
    explicit SounderLine(const SounderOptions &options, QObject *parent = nullptr);

    SounderModel &model() { return device; }
    const SounderModel &model() const { return device; }

    /// The name by which a program opens the other end; stays after hangUp().
    virtual QString portPath() const = 0;

    /// False if the line could not be made, and after hangUp().
    virtual bool isOpen() const = 0;

    /// The cable is pulled.
    virtual void hangUp() = 0;

signals:
    /// The device has taken a command: eight characters from "*" on.
    void commandReceived(const QByteArray &command);

    /// A command has changed what model().settings() holds.
    void settingsChanged();

    /// Bytes came down the line, at whatever rate.
    void bytesReceived(const QByteArray &bytes);

    /// Bytes went up the line, as the other end sees them.
    void bytesSent(const QByteArray &bytes);

    /// The line is gone, pulled by hangUp() or by itself.
    void hungUp();

protected:
    /// To be called by the subclass once its line is open, and when it is open again.
    void start();

    /// To be called by the subclass when bytes have arrived.
    void hear(const QByteArray &bytes);

    /// To be called by the subclass when its line is gone; emits hungUp().
    void stop();

    /// The rate of the other side in bits a second, 0 if it is none that the device could use.
    virtual int rateOnLine() = 0;

    enum class Listener { Absent, Behind, Ready };

    /// Whether anybody is there to hear: what is sent to nobody is lost, as on a real cable; for
    /// somebody who is behind with reading, the device's bytes wait.
    virtual Listener listener() = 0;

    /// Sends what the line takes at once; returns the number of bytes.
    virtual int send(const QByteArray &bytes) = 0;

private:
    void tick();
    bool speak();
    std::chrono::milliseconds now() const;
    void keepMemory();

    SounderModel device;
    QString memoryFile;
    int timesRemembered = 0;
    QElapsedTimer clock;
    QTimer timer;
    QByteArray unsent;
};

#endif // SOUNDERLINE_H
