// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#ifndef SETTINGSTABLE_H
#define SETTINGSTABLE_H

#include "settingrecord.h"

#include <QStringList>

/// What the TAL-VERO can be told: its settings and the fixed lists that some of them choose from.
namespace SettingsTable {

/// Every setting at its default, the functions of the records still empty. A setting whose default
/// is empty is known only once the device has told it or the operator has set it.
SettingTable build();

/// The rates of the device's serial port, slowest first.
QStringList baudRates();

/// The output formats in the order of the operator's chooser.
QStringList chooserFormats();

} // namespace SettingsTable

#endif // SETTINGSTABLE_H
