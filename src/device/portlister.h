// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#ifndef PORTLISTER_H
#define PORTLISTER_H

#include <QStringList>

#include <functional>

/// Gives the names of the serial ports that the operator can choose from. A name is whatever
/// QSerialPort opens: "COM3", "ttyUSB0", or a full path.
using PortLister = std::function<QStringList()>;

/// What an operator may know the port of this name by, besides the name; empty if nothing is known.
/// It is the system's text, with whatever characters a device has given it.
using PortDetails = std::function<QString(const QString &port)>;

/// The ports that the operating system knows at this moment, in its order. Costs about 7 ms on
/// Linux, where every terminal device is looked at.
QStringList systemSerialPorts();

/// Description and manufacturer ("USB Serial, FTDI") of a port that the last systemSerialPorts()
/// found. Costs nothing: the listing has them, and asking the system for one port lists all anew.
QString systemPortDetails(const QString &port);

#endif // PORTLISTER_H
