// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "announcement.h"

#include "numbertext.h"
#include "settings.h"
#include "units.h"

namespace {

constexpr int commandLength = 8;

/// What the eighth character of a command says of its channel; null for what both share.
QChar channelMark(SettingChannel channel)
{
    switch (channel) {
    case SettingChannel::High:
        return QLatin1Char('H');
    case SettingChannel::Low:
        return QLatin1Char('L');
    case SettingChannel::Common:
        break;
    }
    return {};
}

} // namespace

namespace Announcement {

QString value(const SettingSpec &setting, const Settings &settings)
{
    const bool imperial = settings.isImperial();
    const QString number =
        setting.isConvertible()
            ? NumberText::fixed(Units::shown(settings.getSetting(setting.key), imperial),
                                setting.decimals)
            : settings.getSettingString(setting.key);
    return number + setting.suffix(imperial);
}

QString text(const SettingSpec &setting, const QString &value)
{
    return "Setting " + setting.prettyName + " to " + value;
}

QString paddedCommand(const SettingSpec &setting, QString command)
{
    if (command.size() >= commandLength) {
        return command;
    }
    command = command.leftJustified(commandLength, QLatin1Char('.'));
    const QChar mark = channelMark(setting.channel);
    if (!mark.isNull()) {
        command[commandLength - 1] = mark;
    }
    return command;
}

} // namespace Announcement
