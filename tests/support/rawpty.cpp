// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "rawpty.h"

#include <fcntl.h>
#include <pty.h>
#include <termios.h>
#include <unistd.h>

#include <array>
#include <cerrno>

RawPty::RawPty()
{
    std::array<char, 128> name{};
    termios raw{};
    cfmakeraw(&raw);
    raw.c_cflag |= CREAD | CLOCAL;
    cfsetspeed(&raw, B38400);
    if (openpty(&master, &slave, name.data(), &raw, nullptr) != 0) {
        master = slave = -1;
        return;
    }
    path = QString::fromLocal8Bit(name.data());
    fcntl(master, F_SETFL, O_NONBLOCK);
    fcntl(master, F_SETFD, FD_CLOEXEC);
    fcntl(slave, F_SETFD, FD_CLOEXEC);
}

RawPty::~RawPty()
{
    hangUp();
    if (slave >= 0) {
        ::close(slave);
    }
}

int RawPty::write(const QByteArray &bytes)
{
    return static_cast<int>(
        ::write(master, bytes.constData(), static_cast<std::size_t>(bytes.size())));
}

const QByteArray &RawPty::received()
{
    std::array<char, 4096> piece;
    while (isOpen()) {
        const ssize_t count = ::read(master, piece.data(), piece.size());
        if (count <= 0) {
            break;
        }
        collected.append(piece.data(), static_cast<int>(count));
    }
    return collected;
}

void RawPty::clearReceived()
{
    received();
    collected.clear();
}

void RawPty::hangUp()
{
    if (!isOpen()) {
        return;
    }
    received(); // what arrived before stays readable
    ::close(master);
    master = -1;
    errno = 0;
}
