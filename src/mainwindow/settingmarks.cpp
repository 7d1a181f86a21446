// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "settingmarks.h"

#include "channelpane.h"
#include "commonfields.h"
#include "marks.h"

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

/// Null for the one setting that has no control.
QWidget *SettingMarks::controlOf(const SettingSpec &setting) const
{
    for (QWidget *control :
         {common.markedControl(setting), high.markedControl(setting), low.markedControl(setting)}) {
        if (control != nullptr) {
            return control;
        }
    }
    return nullptr;
}

QWidget *SettingMarks::controlOf(const QString &key) const
{
    const SettingSpec *setting = SettingSpecs::find(key);
    return setting != nullptr ? controlOf(*setting) : nullptr;
}

void SettingMarks::setApplied(const QString &key) const
{
    if (QWidget *control = controlOf(key)) {
        Marks::setApplied(control);
    }
}

void SettingMarks::setNotApplied(const QString &key, const QString &words) const
{
    if (QWidget *control = controlOf(key)) {
        Marks::setNotApplied(control, words);
    }
}

void SettingMarks::setTold(Protocol::ReplyKind line, QChar letter) const
{
    for (const SettingSpec &setting : SettingSpecs::all()) {
        if (!isToldIn(line, setting) || letter != QLatin1Char(setting.replyLetter)) {
            continue;
        }
        if (QWidget *control = controlOf(setting)) {
            Marks::setApplied(control);
            Marks::settled(control);
        }
    }
}

void SettingMarks::clear() const
{
    for (const SettingSpec &setting : SettingSpecs::all()) {
        if (QWidget *control = controlOf(setting)) {
            Marks::setApplied(control);
        }
    }
}
