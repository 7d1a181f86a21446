// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "settingeditor.h"

#include "commandqueue.h"
#include "debuglog.h"
#include "marks.h"
#include "numbertext.h"
#include "settings.h"
#include "units.h"

#include <QLabel>
#include <QLineEdit>
#include <QSlider>

#include <algorithm>
#include <cmath>

namespace {

/// The log has one name for the storing of a number, whichever control it comes from.
#define CHANGE_LOG WINDOW_LOG_AS("changeField")

/// The lowest position that a dragged blanking slider keeps. It is the same for both channels,
/// although the low channel's slider begins higher.
constexpr int lowestMetricBlanking = 30;
constexpr int lowestImperialBlanking = 100;

/// The blanking at the right end of the slider, in the shown unit.
constexpr float metricBlankingSpan = 10.0F;
constexpr float imperialBlankingSpan = 30.0F;

/// The part of a number before the point, kept well within a whole number's bounds.
int truncated(float value)
{
    constexpr float bound = 1e9F;
    return static_cast<int>(std::clamp(value, -bound, bound));
}

/// A number on its way into the settings and back onto the form.
struct Change
{
    QString before;        ///< what the edit showed
    float asked = 0;       ///< in the unit that is shown
    bool imperial = false; ///< whether that unit is feet
    float metric = 0;      ///< what was asked for
    float stored = 0;      ///< what the settings made of it
    float shown = 0;       ///< the same in the unit that is shown
};

QString shownText(const NumberField &field, const Change &change)
{
    return NumberText::fixed(change.shown, field.setting->decimals);
}

void showInEdit(const NumberField &field, const Change &change)
{
    field.edit->setText(shownText(field, change));
}

void showBesideSlider(const NumberField &field, const Change &change)
{
    field.value->setText(NumberText::fromFloat(change.shown) +
                         field.setting->suffix(change.imperial));
}

void showInBoth(const NumberField &field, const Change &change)
{
    field.showWithUnit(shownText(field, change), change.imperial);
}

void logNothing(const Change & /*change*/) {}

void logCounterAsked(const Change &change) { CHANGE_LOG << "tmp = " << change.metric; }

void logCounterStored(const Change &change)
{
    CHANGE_LOG << "current value is " << change.before << " next is " << change.metric << " res is "
               << change.shown;
}

void logMeasureAsked(const Change &change)
{
    CHANGE_LOG << "Attempted Displayed Value is  " << change.asked;
    CHANGE_LOG << " After Conversion to Metric this becomes " << change.metric;
}

void logMeasureStored(const Change &change)
{
    CHANGE_LOG << " After trying to change the setting in metric, we now have " << change.stored;
    if (change.imperial) {
        CHANGE_LOG << " Result in Imperial is now " << change.shown;
    }
    CHANGE_LOG << "current value is " << change.before << " metric is " << change.metric
               << " res is " << change.shown;
}

void logSlid(const Change &change) { CHANGE_LOG << "res is " << change.shown; }

} // namespace

/// What sets the roads of a number apart: how it is logged, where it is shown, and which number the
/// queue's log names. All store and convert alike.
struct SettingEditor::Road
{
    void (*logAsked)(const Change &change);
    void (*logStored)(const Change &change);
    void (*show)(const NumberField &field, const Change &change);
    bool queuesAsked;
};

// clang-format off
const SettingEditor::Road SettingEditor::counterRoad      {logCounterAsked, logCounterStored, showInEdit,       false};
const SettingEditor::Road SettingEditor::measureRoad      {logMeasureAsked, logMeasureStored, showInEdit,       true};
const SettingEditor::Road SettingEditor::sliderRoad       {logNothing,      logSlid,          showBesideSlider, false};
const SettingEditor::Road SettingEditor::typedBlankingRoad{logMeasureAsked, logMeasureStored, showInBoth,       true};
const SettingEditor::Road SettingEditor::stepBlankingRoad {logNothing,      logNothing,       showInBoth,       false};
const SettingEditor::Road SettingEditor::slidBlankingRoad {logCounterAsked, logCounterStored, showInEdit,       false};
// clang-format on

SettingEditor::SettingEditor(Settings &itsSettings, CommandQueue &itsQueue)
    : settings(itsSettings)
    , queue(itsQueue)
{}

float SettingEditor::changeField(const NumberField &field, float asked, const Road &road)
{
    Change change;
    change.before = field.edit != nullptr ? field.edit->text() : QString();
    change.asked = asked;
    change.imperial = settings.isImperial() && field.setting->isConvertible();
    change.metric = Units::metric(asked, change.imperial);
    road.logAsked(change);
    change.stored =
        settings.changeSetting(field.setting->key, NumberText::fromFloat(change.metric));
    change.shown = Units::shown(change.stored, change.imperial);
    road.logStored(change);
    road.show(field, change);
    Marks::settled(field.marked());
    CHANGE_LOG << "Triggering";
    queue.triggerChange(field.setting->key,
                        NumberText::fromFloat(road.queuesAsked ? change.metric : change.shown));
    return change.shown;
}

void SettingEditor::step(const NumberField &field, int direction)
{
    const float difference = field.setting->step * static_cast<float>(direction);
    if (field.slider != nullptr) {
        changeSliderWithClick(
            field, static_cast<int>(
                       std::lround(difference * static_cast<float>(field.positionsPerUnit()))));
    } else if (!isPaused()) {
        changeField(field, NumberText::toFloat(field.edit->text()) + difference,
                    field.setting->isConvertible() ? measureRoad : counterRoad);
    }
}

void SettingEditor::enter(const NumberField &field)
{
    if (field.slider == nullptr) {
        step(field, 0);
        return;
    }
    const float typed = NumberText::toFloat(field.edit->text());
    if (!isPaused()) {
        changeField(field, typed, typedBlankingRoad);
    }
    const Pause paused(*this);
    // The slider follows the typed text, not the clamped result.
    setSliderField(field, truncated(typed * static_cast<float>(field.positionsPerUnit())));
}

void SettingEditor::changeSliderWithClick(const NumberField &field, int delta)
{
    WINDOW_LOG << field.setting->key;
    const int position = field.slider->value() + delta;
    if (position > field.slider->maximum() || position < field.slider->minimum()) {
        return; // no partial step to the limit
    }
    setSliderField(field, position);
}

void SettingEditor::setSliderField(const NumberField &field, int position)
{
    if (isPaused()) {
        field.slider->setValue(position);
    } else if (field.edit != nullptr) {
        changeField(field,
                    static_cast<float>(position) / static_cast<float>(field.positionsPerUnit()),
                    stepBlankingRoad);
        field.slider->setValue(position);
    } else {
        const float result = changeField(field, static_cast<float>(position), sliderRoad);
        field.slider->setValue(static_cast<int>(result));
    }
}

void SettingEditor::slide(const NumberField &field, int position)
{
    if (!isPaused()) {
        changeField(field, static_cast<float>(position), sliderRoad);
    }
}

void SettingEditor::slideBlanking(const NumberField &field)
{
    if (isPaused()) {
        return;
    }
    const bool imperial = settings.isImperial();
    const int max = field.slider->maximum();
    const int lowest = imperial ? lowestImperialBlanking : lowestMetricBlanking;
    const int cur = std::max(field.slider->value(), lowest);
    field.slider->setValue(cur);
    const float result = static_cast<float>(cur) / static_cast<float>(max) *
                         (imperial ? imperialBlankingSpan : metricBlankingSpan);
    field.showWithUnit(NumberText::fixed(result, field.setting->decimals), imperial);
    WINDOW_LOG << "Max is " << max << "Current is " << cur << "Result is" << result;
    changeField(field, NumberText::toFloat(field.edit->text()), slidBlankingRoad);
}

void SettingEditor::changeStringSetting(const QString &name, const QString &value)
{
    WINDOW_LOG << "Triggering";
    if (settings.changeSetting(name, value) >= 0.0F) {
        queue.triggerChange(name, value);
    } else {
        WINDOW_LOG << "Should never get here! - internal setting string is incorrect";
    }
}

void SettingEditor::chooseWord(bool checked, const QString &name, const QString &word)
{
    if (checked && !isPaused()) {
        changeStringSetting(name, word);
    }
}
