// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "transcriptfile.h"

#include <QDateTime>

namespace {

/// Garbage may never hold a line feed.
constexpr int longestLine = 200;

QByteArray printable(const QByteArray &bytes)
{
    QByteArray text;
    for (const char byte : bytes) {
        if (byte >= ' ' && byte <= '~') {
            text += byte;
        } else {
            text += "\\x" + QByteArray(1, byte).toHex().toUpper();
        }
    }
    return text;
}

} // namespace

TranscriptFile::TranscriptFile(const QString &path)
    : file(path)
{
    file.open(QIODevice::WriteOnly | QIODevice::Append);
}

TranscriptFile::~TranscriptFile() { flushSent(); }

void TranscriptFile::addReceived(const QByteArray &bytes)
{
    flushSent();
    write('<', bytes);
}

void TranscriptFile::addSent(const QByteArray &bytes)
{
    sent += bytes;
    for (int end = 0; (end = static_cast<int>(sent.indexOf('\n')) + 1) > 0;) {
        write('>', sent.left(end));
        sent.remove(0, end);
    }
    if (sent.size() > longestLine) {
        flushSent();
    }
}

void TranscriptFile::flushSent()
{
    if (!sent.isEmpty()) {
        write('>', sent);
        sent.clear();
    }
}

void TranscriptFile::write(char direction, const QByteArray &bytes)
{
    const QByteArray time =
        QDateTime::currentDateTime().toString(QStringLiteral("yyyy-MM-ddTHH:mm:ss.zzz")).toLatin1();
    file.write(time + " " + direction + " " + printable(bytes) + "\n");
    file.flush();
}
