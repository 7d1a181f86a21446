// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#ifndef VALUERULES_H
#define VALUERULES_H

#include <QString>
#include <QStringList>

#include <optional>

/// What a setting may hold. A rule is chosen by a word in the setting's key, so that both channels
/// share one; keys and words are case-sensitive.
namespace ValueRules {

/// A number as it is kept: its text in the table and its value.
struct StoredNumber
{
    QString text;
    float number;
};

/// The words of a setting that holds a word ("OFF", "Log 20", "Log 10"); empty for the others.
/// Ports, rates and formats are not here: `Settings` holds those lists.
QStringList wordsFor(const QString &key);

/// The number of a text, held to the range of the key's setting (metric: m, m/s, kHz, percent). A
/// text that is no number counts as 0. Nothing if the key names no setting that holds a number.
std::optional<StoredNumber> numberFor(const QString &key, const QString &value);

/// Whether the key names a blanking distance.
bool isBlanking(const QString &key);

} // namespace ValueRules

#endif // VALUERULES_H
