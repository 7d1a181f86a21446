// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "fieldtips.h"

#include "numberfield.h"
#include "numbertext.h"
#include "units.h"

#include <QSlider>
#include <QTextDocument>

#include <algorithm>

namespace {

/// In the unit that is shown.
struct Range
{
    float lowest;
    float highest;
};

Range acceptedRange(const SettingSpec &setting, bool imperial)
{
    const bool inFeet = imperial && setting.isConvertible();
    return {Units::shown(setting.lowest, inFeet), Units::shown(setting.highest, inFeet)};
}

Range within(const Range &range, const NumberField &field)
{
    const auto positions = static_cast<float>(field.positionsPerUnit());
    return {std::max(range.lowest, static_cast<float>(field.slider->minimum()) / positions),
            std::min(range.highest, static_cast<float>(field.slider->maximum()) / positions)};
}

QString toolTipOf(const Range &range, const SettingSpec &setting, bool imperial)
{
    return "From " + NumberText::fixed(range.lowest, setting.decimals) + " to " +
           NumberText::fixed(range.highest, setting.decimals) + setting.suffix(imperial);
}

} // namespace

QString rangeToolTip(const NumberField &field, bool imperial)
{
    return toolTipOf(acceptedRange(*field.setting, imperial), *field.setting, imperial);
}

QString stepToolTip(const NumberField &field, bool imperial)
{
    const Range accepted = acceptedRange(*field.setting, imperial);
    return toolTipOf(field.slider != nullptr ? within(accepted, field) : accepted, *field.setting,
                     imperial);
}

QString literalToolTip(const QString &text)
{
    return Qt::mightBeRichText(text) ? "<span>" + text.toHtmlEscaped() + "</span>" : text;
}
