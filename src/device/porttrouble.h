// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#ifndef PORTTROUBLE_H
#define PORTTROUBLE_H

#include <QSerialPort>
#include <QString>

/// Why a port does not open, in words that tell the operator what to do.
namespace PortTrouble {

/// What is known of a port that did not open.
struct Facts
{
    QSerialPort::SerialPortError error = QSerialPort::UnknownError;
    QString systemText;       ///< what the system said
    bool isOffLimits = false; ///< the operator may not read and write it
    QString group;            ///< whose members may, where that is known
};

/// What the system tells of a port after an attempt to open it has failed.
Facts factsOf(const QSerialPort &port);

/// The reason in the operator's words. Linux calls a port that another program holds and one that
/// the operator may not use by the same error; the rights to it tell them apart.
QString words(const Facts &facts);

} // namespace PortTrouble

#endif // PORTTROUBLE_H
