// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#ifndef RAWPTY_H
#define RAWPTY_H

#include <QByteArray>
#include <QString>

/// A pseudo-terminal in raw mode, seen from the device's side: the program under test opens
/// slavePath() as its serial port, the test plays the sounder. No call blocks; wait with
/// QTRY_COMPARE(pty.received(), …).
class RawPty
{
public:
    RawPty();

    /// Hangs up.
    ~RawPty();

    RawPty(const RawPty &) = delete;
    RawPty &operator=(const RawPty &) = delete;

    /// False when the system gave no pseudo-terminal, and after hangUp().
    bool isOpen() const { return master >= 0; }

    /// The full path by which QSerialPort opens the other end; stays after hangUp().
    QString slavePath() const { return path; }

    /// Sends bytes to the program, as many as the terminal takes at once (about 4 kB while nobody
    /// reads); returns their number, or -1 after hangUp().
    int write(const QByteArray &bytes);

    /// Everything that the program has sent so far.
    const QByteArray &received();

    /// Forgets what has been received.
    void clearReceived();

    /// The cable is pulled: the program's reads fail from now on. QSerialPort takes the kind of
    /// failure from the errno that an earlier call left behind; here it is 0, which gives the
    /// ReadError that it raises again and again. (EAGAIN gives a ResourceError, raised once.)
    void hangUp();

    /// The device's end, for tests that look at the line settings; -1 after hangUp().
    int masterDescriptor() const { return master; }

private:
    int master = -1;
    // Held open, so that the program may close the port and open it again. It stays open after a
    // hang-up: the system would give the terminal's name to somebody else at once, whom the
    // program's lock on the name would keep out.
    int slave = -1;
    QString path;
    QByteArray collected;
};

#endif // RAWPTY_H
