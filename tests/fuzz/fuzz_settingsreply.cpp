// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "commandreader.h"
#include "fuzztargets.h"
#include "linksession.h"
#include "numbertext.h"
#include "outputformat.h"
#include "replyvalues.h"
#include "settings.h"
#include "settingspec.h"
#include "soundersettings.h"

#include <cmath>

namespace {

void requireReadableLength(const QString &value, bool imperial, int decimals)
{
    const QString text = ReplyValues::inShownUnit(value, imperial, decimals);
    bool isNumber = false;
    const double shown = text.toDouble(&isNumber);
    FUZZ_REQUIRE(isNumber && std::isfinite(shown));
    const double metres = NumberText::toInt(value) / 1000.0;
    FUZZ_REQUIRE(std::abs(shown - metres * (imperial ? 3.28084 : 1.0)) <= 0.5001);
}

/// Whatever a value is, it can be shown wherever its letter leads it.
void requireShowable(const QString &value)
{
    for (const bool imperial : {false, true}) {
        requireReadableLength(value, imperial, 0);
        requireReadableLength(value, imperial, 2);
    }
    FUZZ_REQUIRE(ReplyValues::blankingPosition(value, false) == NumberText::toInt(value) / 10);
    ReplyValues::blankingPosition(value, true);
    ReplyValues::gainPercent(value);
    if (const OutputFormat *format = ReplyValues::format(value)) {
        FUZZ_REQUIRE(value.startsWith(QString::number(format->deviceNumber)));
    }
    FUZZ_REQUIRE(ReplyValues::letter(value).isNull() || !value.isEmpty());
}

/// What the pieces of the lines say, by the key of the setting that each tells.
QHash<QString, QString> toldByKey(const QStringList &lines)
{
    static Settings settings{QStringList()};
    static LinkSession session(settings, [] { return LinkChoices(); });
    QHash<QString, QString> told;
    const auto take = [&told](const Protocol::SettingsReply &reply) {
        const auto channel = reply.kind == Protocol::ReplyKind::Common ? SettingChannel::Common
                             : reply.kind == Protocol::ReplyKind::HighChannel ? SettingChannel::High
                                                                              : SettingChannel::Low;
        for (const Protocol::ReplyPiece &piece : reply.pieces) {
            requireShowable(piece.value);
            for (const SettingSpec &spec : SettingSpecs::all()) {
                if (spec.channel == channel && QLatin1Char(spec.replyLetter) == piece.letter) {
                    told.insert(spec.key, piece.value);
                }
            }
        }
    };
    const auto hearing = QObject::connect(&session, &LinkSession::settingsReplied, &session, take);
    session.port().receivedLines = lines;
    session.gotSerialData();
    QObject::disconnect(hearing);
    return told;
}

/// A shown length is the sounder's, to half a unit of its last decimal.
bool isLength(const QString &value, int millimetres)
{
    const double shown = ReplyValues::inShownUnit(value, false, 2).toDouble();
    return std::abs(shown * 1000.0 - millimetres) <= 5.01;
}

void requireChannelTold(const QHash<QString, QString> &told, const QString &prefix,
                        const ChannelSettings &held)
{
    const auto value = [&](const char *key) { return told.value(prefix + key); };
    FUZZ_REQUIRE(ReplyValues::letter(value("SounderMode")) == QChar(held.mode));
    FUZZ_REQUIRE(ReplyValues::letter(value("TVG")) == QChar(held.tvg));
    FUZZ_REQUIRE(value("Gain").toInt() == held.gain);
    FUZZ_REQUIRE(isLength(value("Blank"), held.blankingMm));
    FUZZ_REQUIRE(ReplyValues::blankingPosition(value("Blank"), false) == held.blankingMm / 10);
    FUZZ_REQUIRE(isLength(value("Draft"), held.draftMm));
    FUZZ_REQUIRE(isLength(value("Index"), held.indexMm));
    FUZZ_REQUIRE(value("Pulse").toInt() == held.pulse);
    FUZZ_REQUIRE(value("Detect").toInt() == held.detect);
    FUZZ_REQUIRE(value("Freq").toInt() == held.freqKHz);
}

/// What a sounder that was told these commands holds is what the program reads of its reply.
void requireToldAsHeld(const QByteArray &commands)
{
    SounderSettings held = factorySettings(SounderFit::Dual);
    const QByteArrayList read = CommandReader().read(commands);
    for (const QByteArray &command : read) {
        applySetCommand(command, SounderFit::Dual, held);
    }
    QStringList lines;
    const QByteArrayList reply = settingsReply(held, SounderFit::Dual);
    for (const QByteArray &line : reply) {
        lines << latin1(line);
    }
    const QHash<QString, QString> told = toldByKey(lines);
    FUZZ_REQUIRE(told.value("Ping").toInt() == held.pings);
    FUZZ_REQUIRE(isLength(told.value("Velocity"), held.velocityMmS));
    FUZZ_REQUIRE(isLength(told.value("Depth"), held.maxDepthMm));
    FUZZ_REQUIRE(ReplyValues::format(told.value("format"))->deviceNumber == held.format);
    FUZZ_REQUIRE(told.value("baud").toInt() == held.rate);
    requireChannelTold(told, "high", held.high);
    requireChannelTold(told, "low", held.low);
}

} // namespace

/// After "?" come commands to a sounder whose reply is read, else the input is a reply itself.
void fuzzSettingsReply(const QByteArray &input)
{
    if (input.startsWith('?')) {
        requireToldAsHeld(input.mid(1));
    } else {
        toldByKey(latin1(input).split('\n'));
    }
}
