// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "commandlog.h"

namespace {

constexpr int mostCommands = 10000;
constexpr int mostBytes = 1000000;

} // namespace

void CommandLog::addRaw(const QByteArray &bytes)
{
    heard += bytes;
    if (heard.size() > mostBytes) {
        heard.remove(0, heard.size() - mostBytes);
    }
}

void CommandLog::addCommand(const QByteArray &command)
{
    taken << command;
    if (taken.size() > mostCommands) {
        taken.removeFirst();
    }
}

void CommandLog::count(const QString &kind, int times)
{
    if (times > 0) {
        kinds[kind] += times;
    }
}

void CommandLog::clear()
{
    taken.clear();
    heard.clear();
    kinds.clear();
}
