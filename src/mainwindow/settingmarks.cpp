// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "settingmarks.h"

#include "channelpane.h"
#include "commonfields.h"
#include "marks.h"

#include <QRadioButton>

namespace {

bool isToldIn(Protocol::ReplyKind line, const SettingSpec &setting)
{
    switch (setting.channel) {
    case SettingChannel::High:
        return line == Protocol::ReplyKind::HighChannel;
    case SettingChannel::Low:
        return line == Protocol::ReplyKind::LowChannel;
    case SettingChannel::Common:
        break;
    }
    return line == Protocol::ReplyKind::Common;
}

} // namespace

SettingMarks::SettingMarks(const CommonFields &itsCommon, const ChannelPane &itsHigh,
                           const ChannelPane &itsLow)
    : common(itsCommon)
    , high(itsHigh)
    , low(itsLow)
{}

/// None for the one setting that has no control.
QList<QWidget *> SettingMarks::controlsOf(const SettingSpec &setting) const
{
    return common.controlsOf(setting) + high.controlsOf(setting) + low.controlsOf(setting);
}

QList<QWidget *> SettingMarks::controlsOf(const QString &key) const
{
    for (const ChannelPane *pane : {&high, &low}) {
        if (key == pane->switchKey()) {
            return {pane->enable, pane->disable};
        }
    }
    const SettingSpec *setting = SettingSpecs::find(key);
    return setting != nullptr ? controlsOf(*setting) : QList<QWidget *>();
}

void SettingMarks::setApplied(const QString &key) const
{
    for (QWidget *control : controlsOf(key)) {
        Marks::setApplied(control);
    }
}

/// Of options the chosen one.
void SettingMarks::setNotApplied(const QString &key, const QString &words) const
{
    for (QWidget *control : controlsOf(key)) {
        const auto *const option = qobject_cast<QRadioButton *>(control);
        if (option == nullptr || option->isChecked()) {
            Marks::setNotApplied(control, words);
        }
    }
}

void SettingMarks::setTold(Protocol::ReplyKind line, QChar letter) const
{
    for (const SettingSpec &setting : SettingSpecs::all()) {
        if (!isToldIn(line, setting) || letter != QLatin1Char(setting.replyLetter)) {
            continue;
        }
        for (QWidget *control : controlsOf(setting)) {
            Marks::setApplied(control);
            Marks::settled(control);
        }
    }
}

void SettingMarks::setSwitchTold(const ChannelPane &pane)
{
    Marks::setApplied(pane.enable);
    Marks::setApplied(pane.disable);
}

void SettingMarks::clear() const
{
    setSwitchTold(high);
    setSwitchTold(low);
    for (const SettingSpec &setting : SettingSpecs::all()) {
        setApplied(setting.key);
    }
}
