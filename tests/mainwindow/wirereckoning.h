// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#ifndef WIRERECKONING_H
#define WIRERECKONING_H

#include <QByteArray>
#include <QString>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>

/// What the sounder must be sent for a number that the operator sees, reckoned a second time with
/// nothing but the C library, so that a test does not repeat the program's own mistakes. Exact
/// products are formed in double precision and then narrowed, which is what 32-bit arithmetic
/// gives.
namespace WireReckoning {

enum class Unit { Count, Kilohertz, Percent, Metres, MetresPerSecond };

struct Rule
{
    const char *word; ///< ends the setting's key
    const char *form; ///< printf form of the command
    Unit unit;
    float lowestHigh; ///< of a common setting or the high channel
    float lowestLow;
    float highestHigh;
    float highestLow;
};

inline constexpr Rule rules[] = {
    {"Ping", "*i%02d", Unit::Count, 1, 1, 10, 10},
    {"Velocity", "*v%04d", Unit::MetresPerSecond, 1300, 1300, 1750, 1750},
    {"Depth", "*s%06d", Unit::Metres, 3, 3, 100, 100},
    {"Draft", "*o%05d", Unit::Metres, 0, 0, 100, 100},
    {"Index", "*q%05d", Unit::Metres, 0, 0, 100, 100},
    {"Blank", "*m%05d", Unit::Metres, 0.3F, 0.5F, 10, 10},
    {"Freq", "*w%04d", Unit::Kilohertz, 190, 30, 210, 36},
    {"Pulse", "*p%02d", Unit::Count, 1, 1, 100, 100},
    {"Detect", "*t%03d", Unit::Count, 1, 1, 100, 100},
    {"Gain", "*g%03d", Unit::Percent, 30, 30, 100, 100},
};

inline QByteArray sixDigits(float value)
{
    char text[32];
    std::snprintf(text, sizeof text, "%.6g", static_cast<double>(value));
    return text;
}

/// A whole number, 0 for a text that holds anything else ("5.5").
inline float wholeNumber(const QByteArray &text)
{
    char *end = nullptr;
    const long number = std::strtol(text.constData(), &end, 10);
    return *end == '\0' ? static_cast<float>(number) : 0.0F;
}

/// A setting without a rule ends the test program with its key.
inline const Rule &ruleOf(const QByteArray &key)
{
    for (const Rule &rule : rules) {
        if (key.endsWith(rule.word)) {
            return rule;
        }
    }
    qFatal("There is no rule for the setting \"%s\"", key.constData());
}

/// The value as the program keeps it, metric and within the range.
inline float kept(const QByteArray &key, float shown, bool imperial)
{
    const Rule &rule = ruleOf(key);
    const bool converts = rule.unit == Unit::Metres || rule.unit == Unit::MetresPerSecond;
    const float metric =
        imperial && converts ? static_cast<float>(static_cast<double>(shown) / 3.28084) : shown;
    const QByteArray handedOver = sixDigits(metric);
    const bool isWhole = rule.unit == Unit::Count || rule.unit == Unit::Percent;
    const float value =
        isWhole ? wholeNumber(handedOver) : std::strtof(handedOver.constData(), nullptr);
    const bool isLow = key.startsWith("low");
    const float held = std::clamp(value, isLow ? rule.lowestLow : rule.lowestHigh,
                                  isLow ? rule.highestLow : rule.highestHigh);
    return std::strtof(sixDigits(held).constData(), nullptr);
}

inline int numberOnTheWire(Unit unit, float value)
{
    const auto thousandths =
        static_cast<int>(static_cast<float>(static_cast<double>(value) * 1000));
    switch (unit) {
    case Unit::Metres:
        return thousandths;
    case Unit::MetresPerSecond:
        return thousandths - 1000000; // six digits have no room for seven
    case Unit::Percent: // 30 to 100 percent are 0 to 100 of the device; whole numbers never tie
        return (static_cast<int>(value) * 200 - 6000 + 70) / 140;
    default:
        return static_cast<int>(value);
    }
}

/// The bare command with its filler and, for a channel's setting, the channel in the eighth place.
/// A command that fills eight places itself carries no channel.
inline QByteArray padded(const QByteArray &key, const QByteArray &bare)
{
    constexpr int length = 8;
    QByteArray command = bare.leftJustified(length, '.');
    if (bare.size() < length && key.startsWith("high")) {
        command[length - 1] = 'H';
    } else if (bare.size() < length && key.startsWith("low")) {
        command[length - 1] = 'L';
    }
    return command;
}

/// The eight characters for a setting ("highDraft") when the window shows this number for it and
/// the operator asks for `step` more.
inline QByteArray command(const QByteArray &key, const QByteArray &shown, bool imperial,
                          float step = 0)
{
    const float asked = std::strtof(shown.constData(), nullptr) + step;
    const Rule &rule = ruleOf(key);
    char bare[32];
    std::snprintf(bare, sizeof bare, rule.form,
                  numberOnTheWire(rule.unit, kept(key, asked, imperial)));
    return padded(key, bare);
}

} // namespace WireReckoning

#endif // WIRERECKONING_H
