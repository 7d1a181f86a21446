// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "portlister.h"

#include <QSerialPortInfo>

QStringList systemSerialPorts()
{
    QStringList names;
    const QList<QSerialPortInfo> ports = QSerialPortInfo::availablePorts();
    for (const QSerialPortInfo &port : ports) {
        names.append(port.portName());
    }
    return names;
}
