// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "ptyopeners.h"

#include <QFile>

#include <sys/inotify.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cstring>

PtyOpeners::~PtyOpeners() { forget(); }

void PtyOpeners::forget()
{
    if (watcher >= 0) {
        ::close(watcher);
        watcher = -1;
    }
    count = 0;
}

void PtyOpeners::watch(const QString &path)
{
    forget();
    watcher = inotify_init1(IN_NONBLOCK | IN_CLOEXEC);
    if (watcher >= 0 &&
        inotify_add_watch(watcher, QFile::encodeName(path).constData(), IN_OPEN | IN_CLOSE) < 0) {
        forget();
    }
}

/// Equal events that follow each other unread reach us as one: two programs that open the terminal
/// within one call's distance count once.
bool PtyOpeners::update()
{
    bool hasLeft = false;
    std::array<char, 4096> events;
    ssize_t size = 0;
    while (watcher >= 0 && (size = ::read(watcher, events.data(), events.size())) > 0) {
        const char *const end = events.data() + size;
        for (const char *place = events.data(); place < end;) {
            inotify_event event{};
            std::memcpy(&event, place, sizeof event);
            place += sizeof event + event.len;
            count = std::max(0, count + ((event.mask & IN_OPEN) != 0 ? 1 : -1));
            hasLeft = hasLeft || count == 0;
        }
    }
    return hasLeft;
}

void PtyOpeners::noteSign()
{
    const bool isWatching = watcher >= 0;
    if (!isWatching) {
        count = 1;
    }
}
