// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#ifndef STOREDVALUE_H
#define STOREDVALUE_H

#include "fuzztargets.h"
#include "numbertext.h"
#include "settings.h"
#include "settingspec.h"

/// A stored word is one of the setting's (or nothing yet), a stored number lies within its range
/// and reads the same from its text as from its record.
inline void requireStoredWithinBounds(const SettingSpec &spec, const Settings &settings)
{
    const QString text = settings.getSettingString(spec.key);
    if (text.isEmpty() && spec.defaultValue.isEmpty()) {
        return;
    }
    if (spec.kind == ValueKind::Word) {
        FUZZ_REQUIRE(spec.words.contains(text) || text == spec.defaultValue);
        return;
    }
    const float number = settings.getSetting(spec.key);
    FUZZ_REQUIRE(number >= spec.lowest && number <= spec.highest);
    FUZZ_REQUIRE(NumberText::toFloat(text) >= spec.lowest);
    FUZZ_REQUIRE(NumberText::toFloat(text) <= spec.highest);
    if (spec.kind == ValueKind::Whole) {
        FUZZ_REQUIRE(QString::number(NumberText::toInt(text)) == text);
    }
}

#endif // STOREDVALUE_H
