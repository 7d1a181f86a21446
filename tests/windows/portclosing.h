// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#ifndef PORTCLOSING_H
#define PORTCLOSING_H

#include <QThread>

/// To be destroyed after an object that has a serial port, without an allocation in between. Wine's
/// helper that waits for a port's bytes looks every 10 ms whether the port is still open, and
/// writes its last word to where the port's object was: into whatever has been given that memory by
/// then. Windows itself is done when the port is closed.
struct PortClosing
{
    PortClosing() = default;
    PortClosing(const PortClosing &) = delete;
    PortClosing &operator=(const PortClosing &) = delete;
    ~PortClosing() { QThread::msleep(waitMs); }

    static constexpr unsigned long waitMs = 50;
};

#endif // PORTCLOSING_H
