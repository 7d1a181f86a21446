// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "channelpane.h"

#include "controltips.h"
#include "formwidgets.h"
#include "replyvalues.h"

#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QSlider>

#include <utility>

/// A field of either channel: its setting and the names of its widgets, without the channel's
/// prefix, and how a settings reply is shown in it.
struct ChannelPane::FieldRow
{
    NumberField ChannelPane::*field;
    const char *setting;
    const char *edit;
    const char *value;
    const char *slider;
    FieldReply::Show show;
};

// clang-format off
const ChannelPane::FieldRow ChannelPane::fieldRows[] = {
    {&ChannelPane::pulse,     "Pulse",  nullptr, "PulseEdit",  "PulseSlider",    FieldReply::pulse},
    {&ChannelPane::gain,      "Gain",   nullptr, "GainEdit",   "GainSlider",     FieldReply::gain},
    {&ChannelPane::detect,    "Detect", nullptr, "DetectEdit", "DetectSlider",   FieldReply::detection},
    {&ChannelPane::draft,     "Draft",  "Draft", nullptr,      nullptr,          FieldReply::thousandths},
    {&ChannelPane::index,     "Index",  "Index", nullptr,      nullptr,          FieldReply::thousandths},
    {&ChannelPane::frequency, "Freq",   "Freq",  nullptr,      nullptr,          FieldReply::count},
    {&ChannelPane::blanking,  "Blank",  "Blank", "BlankEdit",  "BlankingSlider", FieldReply::blanking},
};
// clang-format on

template <typename Widget>
Widget *ChannelPane::find(const char *name) const
{
    return widgetOnForm<Widget>(form, key(name));
}

ChannelPane::ChannelPane(const QWidget &itsForm, const QString &itsPrefix,
                         const QString &radioSuffix)
    : form(itsForm)
    , prefix(itsPrefix)
    , enable(widgetOnForm<QRadioButton>(form, "enable" + radioSuffix))
    , disable(widgetOnForm<QRadioButton>(form, "disable" + radioSuffix))
    , shallow(find<QRadioButton>("ShallowRadio"))
    , automatic(find<QRadioButton>("AutoRadio"))
    , manual(find<QRadioButton>("ManualRadio"))
    , tvgOff(find<QRadioButton>("OffTvg"))
    , tvgLog10(find<QRadioButton>("Log10Tvg"))
    , tvgLog20(find<QRadioButton>("Log20Tvg"))
    , depth(find<QLabel>("DepthLabel"))
    , upperRow(find<QWidget>("UpperRow"))
    , enableColumn(find<QWidget>("EnableColumn"))
    , modeColumn(find<QWidget>("ModeColumn"))
    , tvgColumn(find<QWidget>("TvgColumn"))
    , lowerPart(find<QWidget>("LowerPart"))
    , manualGroup(find<QWidget>("ManualGroup"))
    , draftCaption(find<QLabel>("DraftLabel"))
    , indexCaption(find<QLabel>("IndexLabel"))
    , blankingCaption(find<QLabel>("BlankLabel"))
{
    const auto named = [this](const char *name) { return name != nullptr ? key(name) : QString(); };
    for (const FieldRow &row : fieldRows) {
        this->*row.field = fieldOnForm(form, {key(row.setting), named(row.edit), named(row.value),
                                              named(row.slider), row.show});
    }
}

void ChannelPane::allow(ControlRules::ChannelGroups groups) const
{
    using ControlRules::ChannelGroup;
    setChildrenDisabled(upperRow, !state.fitted);
    const std::pair<ChannelGroup, const QWidget *> areas[] = {
        {ChannelGroup::Enable, enableColumn}, {ChannelGroup::Mode, modeColumn},
        {ChannelGroup::Tvg, tvgColumn},       {ChannelGroup::Inputs, lowerPart},
        {ChannelGroup::Manual, manualGroup}, // within the lower part
    };
    for (const auto &[group, area] : areas) {
        setChildrenDisabled(area, !groups.testFlag(group));
    }
}

void ChannelPane::explain(const ControlRules::ChannelLocks &locks, ControlTips &tips) const
{
    const SettingChannel channel = draft.setting->channel;
    const std::pair<ControlRules::Lock, QWidget *> areas[] = {
        {locks.enable, enableColumn}, {locks.mode, modeColumn},    {locks.tvg, tvgColumn},
        {locks.inputs, lowerPart},    {locks.manual, manualGroup}, // within the lower part
    };
    for (const auto &[lock, area] : areas) {
        tips.lock(area, lockReason(lock, channel));
    }
}

std::vector<const NumberField *> ChannelPane::fields() const
{
    std::vector<const NumberField *> all;
    for (const FieldRow &row : fieldRows) {
        all.push_back(&(this->*row.field));
    }
    return all;
}

void ChannelPane::showStartingTexts(const StartingTexts &texts) const
{
    const QString unit = QLatin1String(texts.unit);
    draftCaption->setText("Draft (" + unit + ")");
    indexCaption->setText("Index (" + unit + ")");
    blankingCaption->setText("Blanking (" + unit + ")");
    draft.edit->setText(texts.draft);
    index.edit->setText(texts.index);
    blanking.edit->setText(texts.blanking);
    blanking.value->setText(texts.blankingValue);
}

bool ChannelPane::showReply(const Protocol::ReplyPiece &piece, bool imperial) const
{
    bool isShown = false;
    for (const FieldRow &row : fieldRows) {
        isShown = (this->*row.field).showReply(piece, imperial) || isShown;
    }
    const SettingSpec *tvg = SettingSpecs::find(key("TVG"));
    return piece.letter == QLatin1Char(tvg->replyLetter) ? showTvg(piece.value) : isShown;
}

bool ChannelPane::showTvg(const QString &value) const
{
    const std::pair<char, QRadioButton *> options[] = {
        {'N', tvgOff}, {'T', tvgLog10}, {'W', tvgLog20}};
    for (const auto &[letter, option] : options) {
        if (ReplyValues::letter(value) == QLatin1Char(letter)) {
            option->setChecked(true);
            return true;
        }
    }
    return false;
}

QList<QWidget *> ChannelPane::controlsOf(const SettingSpec &setting) const
{
    for (const FieldRow &row : fieldRows) {
        if ((this->*row.field).setting == &setting) {
            return {(this->*row.field).marked()};
        }
    }
    if (setting.key == key("SounderMode")) {
        return {shallow, automatic, manual};
    }
    return setting.key == key("TVG") ? QList<QWidget *>{tvgOff, tvgLog10, tvgLog20}
                                     : QList<QWidget *>();
}

bool ChannelPane::showSwitch(const QString &value)
{
    if (value == QLatin1String("1")) {
        enable->setChecked(true);
        return true;
    }
    if (value != QLatin1String("0")) {
        return false;
    }
    disable->setChecked(true);
    state.switchedOn = false;
    return true;
}

void setChildrenDisabled(const QWidget *widget, bool disabled)
{
    const QList<QWidget *> descendants = widget->findChildren<QWidget *>();
    for (QWidget *descendant : descendants) {
        descendant->setDisabled(disabled);
    }
}
