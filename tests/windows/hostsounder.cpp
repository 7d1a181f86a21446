// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "hostsounder.h"

#include <QDir>
#include <QFile>

namespace {

/// Undoes the "\xNN" of a transcript.
QByteArray bytesOf(const QByteArray &text)
{
    QByteArray bytes;
    for (int place = 0; place < text.size(); ++place) {
        if (text.mid(place, 2) == "\\x") {
            bytes += QByteArray::fromHex(text.mid(place + 2, 2));
            place += 3;
        } else {
            bytes += text.at(place);
        }
    }
    return bytes;
}

QStringList wordsFor(int portNumber, int rate, const QStringList &words)
{
    return QStringList{"--link",       comPortLine(portNumber),
                       "--rate",       QString::number(rate),
                       "--transcript", "traffic"} +
           words;
}

} // namespace

QString comPort(int number) { return QStringLiteral("COM%1").arg(number); }

QString comPortLine(int number) { return QStringLiteral(HOST_PORTS "/line%1").arg(number); }

HostSounder::HostSounder(int portNumber, int rate, const QStringList &words)
    : program(QStringLiteral(HOST_SOUNDER), wordsFor(portNumber, rate, words))
{
    if (!program.saidSomething()) {
        qFatal("the machine's simulated sounder does not start");
    }
}

void HostSounder::pull()
{
    if (!program.end()) {
        qFatal("the machine's simulated sounder does not end");
    }
}

/// The transcript's lines begin with their time and a sign for the direction.
QByteArray HostSounder::traffic(char direction) const
{
    constexpr int timeLength = 24;
    constexpr int textStart = timeLength + 2;
    QFile transcript(program.file("traffic"));
    if (!transcript.open(QIODevice::ReadOnly)) {
        return {};
    }
    QByteArray all;
    while (!transcript.atEnd()) {
        const QByteArray line = transcript.readLine().trimmed();
        if (line.size() > textStart && line.at(timeLength) == direction) {
            all += bytesOf(line.mid(textStart));
        }
    }
    return all;
}

HeldPort::HeldPort(int portNumber)
    : folder(HostProgram::asSeenFromWindows(comPortLine(portNumber)))
{
    if (!QDir().mkdir(folder)) {
        qFatal("the port cannot be held");
    }
}

HeldPort::~HeldPort() { QDir().rmdir(folder); }
