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
    switch (facts.error) {
    case QSerialPort::DeviceNotFoundError:
        return QStringLiteral("The port is no longer there. Check the cable, then choose the port "
                              "again.");
    case QSerialPort::PermissionError:
        if (!facts.isOffLimits) {
            return QStringLiteral("Another program is using this port. Close that program, then "
                                  "try again.");
        }
        return facts.group.isEmpty()
                   ? QStringLiteral("You have no permission to use this port.")
                   : "You have no permission to use this port. Join the group \"" + facts.group +
                         "\" (sudo usermod -a -G " + facts.group +
                         " $USER), then log out and in again.";
    case QSerialPort::NoError:
    case QSerialPort::OpenError:
    case QSerialPort::ParityError:
    case QSerialPort::FramingError:
    case QSerialPort::BreakConditionError:
    case QSerialPort::WriteError:
    case QSerialPort::ReadError:
    case QSerialPort::ResourceError:
    case QSerialPort::UnsupportedOperationError:
    case QSerialPort::UnknownError:
    case QSerialPort::TimeoutError:
    case QSerialPort::NotOpenError:
        break;
    }
    return "The system says: " + facts.systemText;
}

} // namespace PortTrouble
