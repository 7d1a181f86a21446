// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "announcement.h"
#include "fuzztargets.h"
#include "outputformat.h"
#include "replyvalues.h"
#include "settings.h"
#include "soundersettings.h"
#include "storedvalue.h"

#include <cmath>

namespace {

using SounderNumber = int (*)(const SounderSettings &held, SounderChannel channel);

/// A number, and how many of the sounder's units one of the program's is.
struct NumberMeaning
{
    const char *key; ///< without the channel
    SounderNumber told;
    double scale;
};

template <int SounderSettings::*value>
int common(const SounderSettings &held, SounderChannel /*channel*/)
{
    return held.*value;
}

template <int ChannelSettings::*value>
int ofChannel(const SounderSettings &held, SounderChannel channel)
{
    return held.channel(channel).*value;
}

constexpr NumberMeaning numberMeanings[] = {
    {"Velocity", common<&SounderSettings::velocityMmS>, 1000},
    {"Ping", common<&SounderSettings::pings>, 1},
    {"Depth", common<&SounderSettings::maxDepthMm>, 1000},
    {"Blank", ofChannel<&ChannelSettings::blankingMm>, 1000},
    {"Draft", ofChannel<&ChannelSettings::draftMm>, 1000},
    {"Index", ofChannel<&ChannelSettings::indexMm>, 1000},
    {"Pulse", ofChannel<&ChannelSettings::pulse>, 1},
    {"Detect", ofChannel<&ChannelSettings::detect>, 1},
    {"Freq", ofChannel<&ChannelSettings::freqKHz>, 1},
};

struct Decoded
{
    const Settings &settings;
    const SettingSpec &spec;
    const SounderSettings &held;
    SounderChannel channel;

    QString text() const { return settings.getSettingString(spec.key); }
};

/// Fractions of the sounder's unit are dropped; a float's last digits may be lost before.
void requireSameNumber(const NumberMeaning &meaning, const Decoded &decoded)
{
    constexpr double dropped = 1.01;
    const double stored =
        static_cast<double>(decoded.settings.getSetting(decoded.spec.key)) * meaning.scale;
    FUZZ_REQUIRE(std::abs(meaning.told(decoded.held, decoded.channel) - stored) < dropped);
    if (decoded.spec.kind == ValueKind::Whole) {
        FUZZ_REQUIRE(meaning.told(decoded.held, decoded.channel) == static_cast<int>(stored));
    }
}

void requireSameWord(const Decoded &decoded)
{
    const QString text = decoded.text();
    const ChannelSettings &channel = decoded.held.channel(decoded.channel);
    if (decoded.spec.key.endsWith("SounderMode")) {
        FUZZ_REQUIRE(text.at(0).toLower() == QChar(channel.mode));
    } else if (decoded.spec.key.endsWith("TVG")) {
        const QChar letter = text == "OFF" ? 'N' : text == "Log 10" ? 'T' : 'W';
        FUZZ_REQUIRE(letter == QChar(channel.tvg));
    } else if (decoded.spec.key == "format") {
        FUZZ_REQUIRE(OutputFormats::findByNumber(decoded.held.format)->name == text);
    } else if (decoded.spec.key == "baud") {
        // The three slowest rates share one code.
        FUZZ_REQUIRE(decoded.held.rate == text.toInt() ||
                     (text.toInt() <= 19200 && decoded.held.rate == 9600));
    }
}

void requireSameValue(const Decoded &decoded)
{
    for (const NumberMeaning &meaning : numberMeanings) {
        if (decoded.spec.kind != ValueKind::Word &&
            decoded.spec.key.endsWith(QLatin1String(meaning.key))) {
            requireSameNumber(meaning, decoded);
            return;
        }
    }
    if (decoded.spec.key.endsWith("Gain")) {
        const int gain = decoded.held.channel(decoded.channel).gain;
        FUZZ_REQUIRE(QString::number(ReplyValues::gainPercent(QString::number(gain))) ==
                     decoded.text());
    } else {
        requireSameWord(decoded);
    }
}

/// A length of 100 m is a digit longer than its command, which thus carries no channel: the sounder
/// refuses it.
bool isTooLong(const SettingSpec &spec, const Settings &settings)
{
    return (spec.key.endsWith("Draft") || spec.key.endsWith("Index")) &&
           settings.getSetting(spec.key) * 1000.0F >= 100000.0F;
}

/// What the command says to a sounder is what is stored here.
void requireDecodable(const SettingSpec &spec, const Settings &settings)
{
    const QByteArray command =
        Announcement::paddedCommand(spec, settings.getCommandString(spec.key)).toLatin1();
    FUZZ_REQUIRE(command.size() == 8);
    FUZZ_REQUIRE(command.lastIndexOf('*') == 0);
    SounderSettings held = factorySettings(SounderFit::Dual);
    held.pings = 1; // so that neither pings nor range are refused for each other's sake
    held.maxDepthMm = 3000;
    const SetResult result = applySetCommand(command, SounderFit::Dual, held);
    if (isTooLong(spec, settings)) {
        FUZZ_REQUIRE(result == SetResult::Refused);
        return;
    }
    FUZZ_REQUIRE(result == SetResult::Done);
    const bool isLow = spec.channel == SettingChannel::Low;
    requireSameValue({settings, spec, held, isLow ? SounderChannel::Low : SounderChannel::High});
}

} // namespace

/// Changes: a byte for the setting, one for the length of the value, the value. Whatever is typed
/// for a setting, what is kept lies within its bounds, and the command says just that.
void fuzzCommands(const QByteArray &input)
{
    FuzzInput from(input);
    static Settings settings{QStringList()};
    while (!from.isEmpty()) {
        const auto &specs = SettingSpecs::all();
        const SettingSpec &spec = specs.at(static_cast<std::size_t>(from.byte()) % specs.size());
        const int length = from.byte() % 32;
        const QString before = settings.getSettingString(spec.key);
        const float result = settings.changeSetting(spec.key, latin1(from.take(length)));
        if (result < 0) {
            FUZZ_REQUIRE(spec.kind == ValueKind::Word);
            FUZZ_REQUIRE(settings.getSettingString(spec.key) == before);
            continue;
        }
        requireStoredWithinBounds(spec, settings);
        if (spec.key != "mode") { // which no sounder is told
            requireDecodable(spec, settings);
        }
    }
}
