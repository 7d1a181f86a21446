// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "protocol.h"

#include <QRegularExpression>

#include <algorithm>

namespace Protocol {

namespace {

template <typename Meaning>
struct Mark
{
    const char *word;
    Meaning meaning;
};

/// The meaning of the first word of the list that the line contains, else `otherwise`.
template <typename Meaning, std::size_t count>
Meaning firstMark(const QString &line, const Mark<Meaning> (&marks)[count], Meaning otherwise)
{
    for (const Mark<Meaning> &mark : marks) {
        if (line.contains(QLatin1String(mark.word))) {
            return mark.meaning;
        }
    }
    return otherwise;
}

constexpr Mark<LineKind> lineMarks[] = {
    {"New", LineKind::IdentityBanner},
    {"TalVero", LineKind::IdentityBanner},
    {"Talvero", LineKind::IdentityBanner},
    {"OK", LineKind::Acknowledgement},
    {"ERR", LineKind::Refusal},
    {"*H", LineKind::SettingsReport},
    {"*L", LineKind::SettingsReport},
    {"*i", LineKind::SettingsReport},
    {"UID : ", LineKind::Identifier},
    {"BoardTemp: ", LineKind::BoardTemperature},
    {"VSupply: ", LineKind::SupplyVoltage},
};

constexpr Mark<ChannelFit> fitMarks[] = {
    {"HF", ChannelFit::HighOnly},
    {"LF", ChannelFit::LowOnly},
    {"Dual", ChannelFit::Dual},
};

constexpr Mark<ReplyKind> replyMarks[] = {
    {"*i", ReplyKind::Common},
    {"*H", ReplyKind::HighChannel},
    {"*L", ReplyKind::LowChannel},
};

} // namespace

LineKind lineKind(const QString &line)
{
    return firstMark(line, lineMarks, line.isEmpty() ? LineKind::Empty : LineKind::DepthOutput);
}

Banner readBanner(const QString &line)
{
    Banner banner;
    banner.namesTalVero =
        line.contains(QLatin1String("Talvero")) || line.contains(QLatin1String("TalVero"));
    // Digits of any script, and anything between them.
    static const QRegularExpression version(QStringLiteral("\\d{1,2}.\\d{1,2}.\\d{1,2}"),
                                            QRegularExpression::UseUnicodePropertiesOption |
                                                QRegularExpression::DotMatchesEverythingOption);
    banner.firmwareVersion = version.match(line).captured();
    banner.fit = firstMark(line, fitMarks, ChannelFit::Unknown);
    return banner;
}

QString blankSeparatedItem(const QString &line, int index)
{
    return line.split(QLatin1Char(' ')).value(index);
}

ReplyKind replyKind(const QString &line) { return firstMark(line, replyMarks, ReplyKind::None); }

QStringList replyPieces(const QString &line)
{
    constexpr int most = 1000;
    QStringList pieces;
    int begin = line.isEmpty() ? 0 : 1;
    for (int comma = 0; comma >= 0 && pieces.size() < most; begin = comma + 1) {
        comma = static_cast<int>(line.indexOf(QLatin1Char(','), begin));
        pieces.append(line.mid(begin, comma - begin));
    }
    return pieces;
}

SettingsReply readReply(const QString &line, const QStringList &pieces)
{
    SettingsReply reply{replyKind(line), {}};
    reply.pieces.reserve(pieces.size());
    for (const QString &piece : pieces) {
        reply.pieces.append(readReplyPiece(piece, reply.kind));
    }
    return reply;
}

ReplyPiece readReplyPiece(const QString &piece, ReplyKind kind)
{
    const int letterAt = kind == ReplyKind::Common ? 0 : 1;
    if (piece.size() <= letterAt) {
        return {};
    }
    return {piece.at(letterAt), piece.mid(letterAt + 1)};
}

} // namespace Protocol
