// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "commandreader.h"

QByteArrayList CommandReader::read(const QByteArray &bytes)
{
    QByteArrayList commands;
    for (const char byte : bytes) {
        if (byte == '*') {
            begun.clear(); // a command that was cut off must not spoil the next one
        } else if (begun.isEmpty()) {
            continue;
        }
        begun.append(byte);
        if (begun.size() == commandLength) {
            commands << begun;
            begun.clear();
        }
    }
    return commands;
}
