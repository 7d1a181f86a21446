// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

// Opens the serial port of its first argument, as a program does that wants it for itself, and dies
// without closing it. Tells by its exit code whether it could open it.

#include <QSerialPort>

#include <cstdlib>

int main(int argc, char *argv[])
{
    QSerialPort port;
    port.setPortName(QString::fromLocal8Bit(argc > 1 ? argv[1] : ""));
    std::_Exit(port.open(QIODevice::ReadWrite) ? EXIT_SUCCESS : EXIT_FAILURE);
}
