// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#ifndef PTYSOUNDER_H
#define PTYSOUNDER_H

#include "ptyopeners.h"
#include "sounderline.h"

class QSocketNotifier;

/// A simulated sounder at the far end of a pseudo-terminal, for UNIX systems. A program opens
/// portPath() as a serial port and may do so again and again. The device hears the program only at
/// its own rate, which it compares with the one set on the terminal.
class PtySounder : public SounderLine
{
    Q_OBJECT

public:
    /// Opens a pseudo-terminal; see isOpen().
    explicit PtySounder(const SounderOptions &options = {}, QObject *parent = nullptr);

    /// Hangs up.
    ~PtySounder() override;

    QString portPath() const override { return path; }
    bool isOpen() const override { return master >= 0; }

    /// The cable is pulled: whoever has the port open sees it vanish. The device goes on.
    void hangUp() override;

    /// Plugs the pulled cable in again, at a portPath() that may be another one. False if the
    /// system gives no pseudo-terminal. Does nothing if the cable is not out.
    bool plugIn();

protected:
    int rateOnLine() override;
    Listener listener() override;
    int send(const QByteArray &bytes) override;

private:
    bool openTerminal();
    void closeTerminal();
    void closeSlave();
    void readTerminal();
    void admitOtherOpeners();

    int master = -1;
    // Held open, so that a program's closing is no hang-up for the device. After a hang-up it keeps
    // the terminal's name from being given to somebody else while a program still has its lock.
    int slave = -1;
    QString path;
    QSocketNotifier *notifier = nullptr;
    PtyOpeners openers;
};

#endif // PTYSOUNDER_H
