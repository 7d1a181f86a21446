// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "porttrouble.h"

#include <QFileInfo>

namespace PortTrouble {

Facts factsOf(const QSerialPort &port)
{
    Facts facts{port.error(), port.errorString(), false, QString()};
#ifdef Q_OS_UNIX
    const QString name = port.portName(); // without the folder of the system's own terminals
    const QFileInfo device(name.startsWith(QLatin1Char('/')) ? name : "/dev/" + name);
    facts.isOffLimits = device.exists() && !(device.isReadable() && device.isWritable());
    facts.group = device.group();
#endif
    return facts;
}

QString words(const Facts &facts)
{
    if (facts.error == QSerialPort::DeviceNotFoundError) {
        return QStringLiteral("The port is no longer there. Check the cable, then choose the port "
                              "again.");
    }
    if (facts.error != QSerialPort::PermissionError) {
        return "The system says: " + facts.systemText;
    }
    if (!facts.isOffLimits) {
        return QStringLiteral("Another program is using this port. Close that program, then "
                              "try again.");
    }
    return facts.group.isEmpty() ? QStringLiteral("You have no permission to use this port.")
                                 : "You have no permission to use this port. Join the group \"" +
                                       facts.group + "\" (sudo usermod -a -G " + facts.group +
                                       " $USER), then log out and in again.";
}

} // namespace PortTrouble
