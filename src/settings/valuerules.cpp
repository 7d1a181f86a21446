// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "valuerules.h"

#include "numbertext.h"

#include <algorithm>

namespace {

bool is(const QString &key, const QString &word) { return key == word; }

bool contains(const QString &key, const QString &word) { return key.contains(word); }

bool containsAfterFirst(const QString &key, const QString &word)
{
    return key.indexOf(word, 1) >= 1;
}

using KeyTest = bool (*)(const QString &key, const QString &word);

enum class Kind { Whole, Real };

struct NumberRule
{
    KeyTest holds;
    const char *word;
    const char *channel; ///< what the key must contain as well; empty for any key
    Kind kind;
    float lowest;
    float highest;
};

// The ranges of the device. The first rule that fits a key is the one that counts.
// clang-format off
constexpr NumberRule numberRules[] = {
    // key test          word        channel  kind         lowest   highest
    {is,                 "Ping",     "",      Kind::Whole,    1.0F,   10.0F},
    {is,                 "Velocity", "",      Kind::Real,  1300.0F, 1750.0F},
    {is,                 "Depth",    "",      Kind::Real,     3.0F,  100.0F},
    {containsAfterFirst, "Draft",    "",      Kind::Real,     0.0F,  100.0F},
    {containsAfterFirst, "Index",    "",      Kind::Real,     0.0F,  100.0F},
    {containsAfterFirst, "Freq",     "low",   Kind::Real,    30.0F,   36.0F},
    {containsAfterFirst, "Freq",     "",      Kind::Real,   190.0F,  210.0F},
    {containsAfterFirst, "Blank",    "high",  Kind::Real,     0.3F,   10.0F},
    {containsAfterFirst, "Blank",    "",      Kind::Real,     0.5F,   10.0F},
    {contains,           "Detect",   "",      Kind::Whole,    1.0F,  100.0F},
    {contains,           "Pulse",    "",      Kind::Whole,    1.0F,  100.0F},
    {contains,           "Gain",     "",      Kind::Whole,   30.0F,  100.0F},
};
// clang-format on

struct WordRule
{
    KeyTest holds;
    const char *word;
    QStringList words;
};

ValueRules::StoredNumber heldWhole(const NumberRule &rule, const QString &value)
{
    const int number = std::clamp(NumberText::toInt(value), static_cast<int>(rule.lowest),
                                  static_cast<int>(rule.highest));
    return {QString::number(number), static_cast<float>(number)};
}

ValueRules::StoredNumber heldReal(const NumberRule &rule, const QString &value)
{
    const float number = std::clamp(NumberText::toFloat(value), rule.lowest, rule.highest);
    return {NumberText::fromFloat(number), number};
}

} // namespace

namespace ValueRules {

QStringList wordsFor(const QString &key)
{
    static const WordRule rules[] = {
        {is, "mode", {"Standby", "Active"}},
        {contains, "TVG", {"OFF", "Log 20", "Log 10"}},
        {contains, "SounderMode", {"Shallow", "Auto", "Manual"}},
    };
    for (const WordRule &rule : rules) {
        if (rule.holds(key, rule.word)) {
            return rule.words;
        }
    }
    return {};
}

std::optional<StoredNumber> numberFor(const QString &key, const QString &value)
{
    for (const NumberRule &rule : numberRules) {
        if (rule.holds(key, rule.word) && key.contains(rule.channel)) {
            return rule.kind == Kind::Whole ? heldWhole(rule, value) : heldReal(rule, value);
        }
    }
    return std::nullopt;
}

bool isBlanking(const QString &key) { return containsAfterFirst(key, "Blank"); }

} // namespace ValueRules
