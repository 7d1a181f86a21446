// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#ifndef HOSTSOUNDER_H
#define HOSTSOUNDER_H

#include "hostprogram.h"

#include <QByteArray>

/// The simulated sounder at a COM port of Wine. It hears the program only at its own rate: that
/// which is set on the port is set on the machine's terminal.
class HostSounder
{
public:
    /// A dual unit that sends nothing of its own accord, at this rate, behind the port of this
    /// number. Ends the test program if it does not start.
    explicit HostSounder(int portNumber, int rate = 9600,
                         const QStringList &words = {"--no-soundings"});

    /// The cable is pulled: terminal and port are gone.
    void pull();

    /// What has come down the line, at whatever rate; nothing more while it is asked.
    QByteArray heard() const { return traffic('<'); }

    /// What the sounder has sent.
    QByteArray said() const { return traffic('>'); }

private:
    QByteArray traffic(char direction) const;

    HostProgram program;
};

/// A port that another program holds, for as long as this lives. Wine lets several programs have
/// one; a folder in the port's place gives the error that Windows gives then: access denied.
class HeldPort
{
public:
    explicit HeldPort(int portNumber);
    ~HeldPort();
    HeldPort(const HeldPort &) = delete;
    HeldPort &operator=(const HeldPort &) = delete;

private:
    QString folder;
};

/// A COM port that the system does not know: its adapter has been unplugged.
constexpr int vanishedPort = 55;

/// The name of the COM port of this number, and the file on the machine that leads to what stands
/// behind it.
QString comPort(int number);
QString comPortLine(int number);

#endif // HOSTSOUNDER_H
