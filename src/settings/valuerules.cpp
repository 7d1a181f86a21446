// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "valuerules.h"

#include "numbertext.h"
#include "settingspec.h"

#include <algorithm>

namespace {

ValueRules::StoredNumber heldWhole(const SettingSpec &spec, const QString &value)
{
    const int number = std::clamp(NumberText::toInt(value), static_cast<int>(spec.lowest),
                                  static_cast<int>(spec.highest));
    return {QString::number(number), static_cast<float>(number)};
}

ValueRules::StoredNumber heldReal(const SettingSpec &spec, const QString &value)
{
    const float number = std::clamp(NumberText::toFloat(value), spec.lowest, spec.highest);
    return {NumberText::fromFloat(number), number};
}

} // namespace

namespace ValueRules {

StoredNumber held(const SettingSpec &spec, const QString &value)
{
    return spec.kind == ValueKind::Whole ? heldWhole(spec, value) : heldReal(spec, value);
}

} // namespace ValueRules
