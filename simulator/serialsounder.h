// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#ifndef SERIALSOUNDER_H
#define SERIALSOUNDER_H

#include "sounderline.h"

#include <QSerialPort>

/// A simulated sounder at a real serial port: one end of a null-modem pair, or the port of a second
/// computer. The port runs at the device's rate; what comes at another rate is noise by itself.
class SerialSounder : public SounderLine
{
    Q_OBJECT

public:
    /// Opens the port; see isOpen() and errorText().
    SerialSounder(const QString &portName, const SounderOptions &options,
                  QObject *parent = nullptr);

    QString portPath() const override { return name; }
    bool isOpen() const override { return port.isOpen(); }
    void hangUp() override;

    /// Why the port could not be opened, or was lost.
    QString errorText() const { return problem; }

protected:
    int rateOnLine() override;
    Listener listener() override;
    int send(const QByteArray &bytes) override;

private:
    void handleError(QSerialPort::SerialPortError error);
    bool followRate();

    QString name; ///< as given: the port itself knows a shorter one
    QSerialPort port;
    QElapsedTimer quiet; ///< since the last bytes were handed to the port
    QString problem;
};

#endif // SERIALSOUNDER_H
