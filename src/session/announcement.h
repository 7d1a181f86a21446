// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#ifndef ANNOUNCEMENT_H
#define ANNOUNCEMENT_H

#include "settingspec.h"

#include <QString>

class Settings;

/// How a change is told to the operator and to the sounder.
namespace Announcement {

/// The setting's value as the operator reads it, with its unit ("1.64 ft", "65%", "Log 10"): in
/// feet if the settings note that feet are shown.
QString value(const SettingSpec &setting, const Settings &settings);

/// "Setting High Frequency Draft to 1.64 ft".
QString text(const SettingSpec &setting, const QString &value);

/// The command as long as the sounder reads it, filled with ".", and with the setting's channel in
/// its eighth place. A command that fills that place itself goes out as it is.
QString paddedCommand(const SettingSpec &setting, QString command);

} // namespace Announcement

#endif // ANNOUNCEMENT_H
