// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "soundermodel.h"

#include <cmath>

namespace {

constexpr char uid[] = "UID : 4A5B6C7D8E9F0011";

QByteArray fitName(SounderFit fit)
{
    if (!hasChannel(fit, SounderChannel::Low)) {
        return "HF";
    }
    return hasChannel(fit, SounderChannel::High) ? "Dual" : "LF";
}

/// The kind under which a change is counted, by its command letter.
QString kindOfChange(char letter)
{
    static const QMap<char, QString> kinds{
        {'b', QStringLiteral("enable")},
        {'h', QStringLiteral("disable")},
        {'F', QStringLiteral("save")},
        {'R', QStringLiteral("reset")},
    };
    return kinds.value(letter, QStringLiteral("set"));
}

} // namespace

/// A request for a report is answered with it, anything else is taken for a change.
void SounderModel::execute(const QByteArray &command)
{
    struct Request
    {
        const char *start;
        const char *kind;
        QByteArrayList (*report)(const SounderModel &);
    };
    static const Request requests[] = {
        {"*n", "identity", [](const SounderModel &self) { return QByteArrayList{self.banner()}; }},
        {"*G", "settings",
         [](const SounderModel &self) { return settingsReply(self.current, self.made.fit); }},
        {"*UU", "uid", [](const SounderModel &) { return QByteArrayList{uid}; }},
        {"*UAb", "temperature",
         [](const SounderModel &self) { return QByteArrayList{self.temperature()}; }},
        {"*UAs", "voltage",
         [](const SounderModel &self) { return QByteArrayList{self.voltage()}; }},
    };
    isMuted = happens(misbehaviour.silent);
    for (const Request &request : requests) {
        if (command.startsWith(request.start)) {
            log.count(QLatin1String(request.kind));
            for (const QByteArray &line : request.report(*this)) {
                answer(line);
            }
            return;
        }
    }
    change(command);
}

void SounderModel::change(const QByteArray &command)
{
    const SetResult result = happens(misbehaviour.refuse) ? SetResult::Refused : tryChange(command);
    const bool isKnown = result != SetResult::Unknown;
    log.count(isKnown ? kindOfChange(command[1]) : QStringLiteral("unknown"));
    if (result == SetResult::Refused) {
        log.count(QStringLiteral("refused"));
    }
    answer(result == SetResult::Done ? "OK" : "ERR");
}

SetResult SounderModel::tryChange(const QByteArray &command)
{
    if (command[1] == 'F') {
        kept = current;
        ++keepings;
        return SetResult::Done;
    }
    if (command[1] == 'R') {
        // What was kept goes too, or the next power-up would undo the reset.
        kept = current = factorySettings(made.fit);
        ++keepings;
        return SetResult::Done;
    }
    return applySetCommand(command, made.fit, current);
}

/// The answer to a command that changes the rate leaves at the old one.
void SounderModel::answer(const QByteArray &text)
{
    LineSender::Line line;
    line.bytes = isMuted ? QByteArray() : text;
    line.holdsRate = current.rate != activeRate;
    say(line);
}

QByteArray SounderModel::banner() const
{
    return "TalVero New " + fitName(made.fit) + " " + made.firmware.toLatin1();
}

QByteArray SounderModel::temperature() const { return "BoardTemp: " + drifting(301.65, 1.5, 600); }

QByteArray SounderModel::voltage() const { return "VSupply: " + drifting(12.41, 0.2, 420); }

/// A value that swings slowly about its middle, from the middle on.
QByteArray SounderModel::drifting(double middle, double swing, double periodS) const
{
    constexpr double turn = 6.283185307179586;
    const double seconds = static_cast<double>(clock.count()) / 1000;
    return QByteArray::number(middle + swing * std::sin(turn * seconds / periodS), 'f', 2);
}
