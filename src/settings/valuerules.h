// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#ifndef VALUERULES_H
#define VALUERULES_H

#include <QString>

struct SettingSpec;

/// How a typed or reported number becomes the one that a setting keeps.
namespace ValueRules {

/// A number as it is kept: its text in the table and its value.
struct StoredNumber
{
    QString text;
    float number;
};

/// The number of a text, held to the range of a setting that keeps a number (metric: m, m/s, kHz,
/// percent). A text that is no number counts as 0. Reals are written with up to six significant
/// digits.
StoredNumber held(const SettingSpec &spec, const QString &value);

} // namespace ValueRules

#endif // VALUERULES_H
