// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "ptysounder.h"

#include <QSocketNotifier>

#include <fcntl.h>
#include <sys/ioctl.h>
#include <termios.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstdlib>

namespace {

struct TerminalRate
{
    speed_t code;
    int rate;
};

constexpr TerminalRate terminalRates[] = {
    {B4800, 4800},   {B9600, 9600},   {B19200, 19200},
    {B38400, 38400}, {B57600, 57600}, {B115200, 115200},
};

int rateOf(speed_t code)
{
    for (const TerminalRate &row : terminalRates) {
        if (row.code == code) {
            return row.rate;
        }
    }
    return 0;
}

speed_t codeOf(int rate)
{
    for (const TerminalRate &row : terminalRates) {
        if (row.rate == rate) {
            return row.code;
        }
    }
    return B9600;
}

/// Bytes go through unchanged and unechoed. The rate is the device's for those who set none.
bool makeRaw(int slave, int rate)
{
    termios settings{};
    if (tcgetattr(slave, &settings) != 0) {
        return false;
    }
    cfmakeraw(&settings);
    settings.c_cflag |= CREAD | CLOCAL;
    cfsetispeed(&settings, codeOf(rate));
    cfsetospeed(&settings, codeOf(rate));
    return tcsetattr(slave, TCSANOW, &settings) == 0;
}

bool makeOurs(int descriptor)
{
    const int flags = fcntl(descriptor, F_GETFL);
    return flags >= 0 && fcntl(descriptor, F_SETFL, flags | O_NONBLOCK) == 0 &&
           fcntl(descriptor, F_SETFD, FD_CLOEXEC) == 0;
}

} // namespace

PtySounder::PtySounder(const SounderOptions &options, QObject *parent)
    : SounderLine(options, parent)
{
    plugIn();
}

PtySounder::~PtySounder()
{
    closeTerminal();
    closeSlave();
}

bool PtySounder::plugIn()
{
    if (PtySounder::isOpen()) { // the constructor asks, too
        return true;
    }
    closeSlave();
    if (!openTerminal()) {
        closeTerminal();
        return false;
    }
    openers.watch(path);
    notifier = new QSocketNotifier(master, QSocketNotifier::Read, this);
    connect(notifier, &QSocketNotifier::activated, this, &PtySounder::readTerminal);
    start();
    return true;
}

bool PtySounder::openTerminal()
{
    master = posix_openpt(O_RDWR | O_NOCTTY);
    if (master < 0 || grantpt(master) != 0 || unlockpt(master) != 0 || !makeOurs(master)) {
        return false;
    }
    const char *name = ptsname(master);
    if (!name) {
        return false;
    }
    path = QString::fromLocal8Bit(name);
    slave = ::open(name, O_RDWR | O_NOCTTY | O_NONBLOCK);
    return slave >= 0 && makeOurs(slave) && makeRaw(slave, model().lineRate());
}

void PtySounder::closeTerminal()
{
    if (notifier) {
        notifier->setEnabled(false);
        notifier->deleteLater(); // we may be in its signal
        notifier = nullptr;
    }
    if (master >= 0) {
        ::close(master);
        master = -1;
    }
}

void PtySounder::closeSlave()
{
    if (slave >= 0) {
        ::close(slave);
        slave = -1;
    }
}

void PtySounder::hangUp()
{
    if (isOpen()) {
        closeTerminal();
        stop();
    }
}

void PtySounder::readTerminal()
{
    QByteArray bytes;
    std::array<char, 4096> piece;
    ssize_t count = 0;
    while ((count = ::read(master, piece.data(), piece.size())) > 0) {
        bytes.append(piece.data(), static_cast<int>(count));
    }
    if (!bytes.isEmpty()) {
        openers.noteSign();
        hear(bytes);
    } else if (count == 0 || (errno != EAGAIN && errno != EINTR)) {
        hangUp();
    }
}

int PtySounder::rateOnLine()
{
    termios settings{};
    return tcgetattr(master, &settings) == 0 ? rateOf(cfgetospeed(&settings)) : 0;
}

SounderLine::Listener PtySounder::listener()
{
    constexpr int fewBytes = 1024;
    admitOtherOpeners();
    if (openers.update()) {
        tcflush(slave, TCIFLUSH); // what he left unread would greet the next one
    }
    if (!openers.any()) {
        return Listener::Absent;
    }
    int unread = 0;
    ioctl(slave, FIONREAD, &unread);
    return unread > fewBytes ? Listener::Behind : Listener::Ready;
}

/// A program claims its serial port for itself, and if it dies the claim outlives it for as long as
/// we hold the terminal: nobody could connect again.
void PtySounder::admitOtherOpeners() { ioctl(slave, TIOCNXCL); }

int PtySounder::send(const QByteArray &bytes)
{
    const ssize_t count =
        ::write(master, bytes.constData(), static_cast<std::size_t>(bytes.size()));
    return count > 0 ? static_cast<int>(count) : 0;
}
