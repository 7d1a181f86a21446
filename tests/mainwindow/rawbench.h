// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#ifndef RAWBENCH_H
#define RAWBENCH_H

#include "rawpty.h"
#include "windowbench.h"

#include <QtTest>

/// The bare line of a RawBench. It is a base that comes before the window's, so that the window
/// closes the port before the line goes: afterwards another test may get a line of the same name.
struct BareLine
{
    RawPty line;
};

/// The window on a bare line, where the test itself plays the sounder and says every byte. (The
/// simulated sounder of the base stands by at its own port, unused.)
class RawBench : public BareLine, public WindowBench
{
public:
    RawBench()
    {
        if (!line.isOpen()) {
            qFatal("the system gave no pseudo-terminal");
        }
        ports << line.slavePath();
        QMetaObject::invokeMethod(&window, "updateSerialPorts");
    }

    /// Chooses the bare line and this rate and presses Connect.
    void pressConnectRaw(const QString &rate = QStringLiteral("9600"))
    {
        choose("portComboBox", line.slavePath());
        choose("baudComboBox", rate);
        click("connectToDevice");
    }

    /// Sends this line to the window, with its line end.
    void say(const QByteArray &text) { line.write(text + "\r\n"); }

    /// Connects by saying this banner, and answers the last request that follows it, so that no
    /// answer is outstanding. Afterwards nothing counts as received. False if it does not connect.
    bool connectByBanner(const QByteArray &banner = "TalVero New Dual 2.14.7")
    {
        pressConnectRaw();
        if (!hears("*n")) {
            return false;
        }
        say(banner);
        if (!hears("*UAb")) {
            return false;
        }
        say("BoardTemp: 301.65");
        const bool isShown =
            QTest::qWaitFor([this] { return text("temperatureLabel").contains("Temperature"); });
        line.clearReceived();
        return isShown && showsConnected();
    }

    /// Waits until this has arrived from the window, among whatever else; false if it does not.
    bool hears(const QByteArray &command)
    {
        return QTest::qWaitFor([this, &command] { return line.received().contains(command); });
    }
};

#endif // RAWBENCH_H
