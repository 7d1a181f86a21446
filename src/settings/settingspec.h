// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#ifndef SETTINGSPEC_H
#define SETTINGSPEC_H

#include "commandencoding.h"
#include "settingsreport.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <vector>

/// Whose a setting is.
enum class SettingChannel { Common, High, Low };

/// In what a setting's number is kept. Lengths and speeds are metric here, whatever is shown.
enum class SettingUnit { None, Count, Percent, Kilohertz, Metre, MetrePerSecond };

/// How a value is kept and what it is held to.
enum class ValueKind {
    Word,  ///< one of the setting's words
    Whole, ///< a whole number within the range
    Real,  ///< a 32-bit float within the range
};

/// What the debug log is told of one setting beyond what it is told of all; nullptr: nothing.
struct SettingLog
{
    const char *change = nullptr;        ///< before a word is looked up; key and value follow
    const char *refusal = nullptr;       ///< when a word is refused
    const char *stored = nullptr;        ///< the number that is kept follows
    const char *number = nullptr;        ///< "%1" is the key in small letters; the value follows
    const char *report = nullptr;        ///< the report's field as a whole number follows
    const char *reportRefusal = nullptr; ///< when the report's field has no meaning
};

/// All that belongs to one setting of the sounder: its row. Who wants to know something about a
/// setting asks its row; nobody looks into its key.
struct SettingSpec
{
    /// The number that a value stands for (a word: a letter's code, a place in a list).
    using Number = float (*)(const QString &value);

    QString key;        ///< "highDraft": the name by which everyone calls the setting
    QString prettyName; ///< "High Frequency Draft": the operator's name
    SettingChannel channel = SettingChannel::Common;

    SettingUnit unit = SettingUnit::None;
    int decimals = 0; ///< shown, of numbers
    float step = 0;   ///< of its up and down buttons, in the unit that is shown

    ValueKind kind = ValueKind::Word;
    float lowest = 0; ///< the range of numbers, both ends included
    float highest = 0;
    QStringList words;    ///< the accepted words, in the same letter case
    QString defaultValue; ///< empty: known once the sounder has told it or the operator set it

    QByteArray commandFormat; ///< printf-style template of the set command; may be empty
    CommandEncoding::Text toCommand = nullptr;
    Number toNumber = nullptr;

    char replyLetter = '\0'; ///< in the settings reply's line of its channel; 0: not told there
    int reportLine = -1;     ///< in the settings report, from 0; -1: not there
    int reportField = -1;    ///< in that line, from 1
    SettingsReport::Meaning fromReport = nullptr;

    SettingLog log;
    QString refusalAdvice; ///< what to try when the sounder refuses a value; may be empty

    /// Whether the value is shown in the operator's unit (a length or a speed).
    bool isConvertible() const;

    /// What stands behind a shown value: " m" or " ft", " m/s" or " ft/s", " kHz", "%", or nothing.
    QString suffix(bool imperial) const;
};

namespace SettingSpecs {

/// Every setting, in the order of the table.
const std::vector<SettingSpec> &all();

/// The row of a key; nullptr for an unknown one.
const SettingSpec *find(const QString &key);

} // namespace SettingSpecs

#endif // SETTINGSPEC_H
