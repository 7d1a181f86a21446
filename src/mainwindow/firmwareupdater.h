// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#ifndef FIRMWAREUPDATER_H
#define FIRMWAREUPDATER_H

#include <QString>

/// Where the separate firmware updater stands if it is installed: beside this program.
QString firmwareUpdaterPath();

#endif // FIRMWAREUPDATER_H
