// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#ifndef PORTLISTER_H
#define PORTLISTER_H

#include <QStringList>

#include <functional>

/// Gives the names of the serial ports that the operator can choose from. A name is whatever
/// QSerialPort opens: "COM3", "ttyUSB0", or a full path.
using PortLister = std::function<QStringList()>;

/// The ports that the operating system knows at this moment, in its order. Costs about 7 ms on
/// Linux, where every terminal device is looked at.
QStringList systemSerialPorts();

#endif // PORTLISTER_H
