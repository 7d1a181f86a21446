// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "portlister.h"

#include <QHash>
#include <QSerialPortInfo>

namespace {

/// By the name of the port, as the last listing found them.
QHash<QString, QString> &detailsFound()
{
    static QHash<QString, QString> details;
    return details;
}

QString detailsOf(const QSerialPortInfo &port)
{
    QStringList parts{port.description(), port.manufacturer()};
    parts.removeAll(QString());
    return parts.join(QStringLiteral(", "));
}

} // namespace

QStringList systemSerialPorts()
{
    QStringList names;
    detailsFound().clear();
    const QList<QSerialPortInfo> ports = QSerialPortInfo::availablePorts();
    for (const QSerialPortInfo &port : ports) {
        names.append(port.portName());
        detailsFound().insert(port.portName(), detailsOf(port));
    }
    return names;
}

QString systemPortDetails(const QString &port) { return detailsFound().value(port); }
