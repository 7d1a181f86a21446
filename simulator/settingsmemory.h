// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#ifndef SETTINGSMEMORY_H
#define SETTINGSMEMORY_H

#include "soundersettings.h"

/// The device's memory as a text file: the lines of its settings reply.
namespace SettingsMemory {

/// What the file keeps. Nothing if there is none, or if it cannot be read as the memory of a unit
/// of this fit; then `problem` says why, and stays empty if the file just is not there yet.
std::optional<SounderSettings> load(const QString &path, SounderFit fit, QString *problem);

/// Writes the file anew, whole or not at all. Returns what went wrong, empty if nothing did.
QString save(const QString &path, SounderFit fit, const SounderSettings &settings);

} // namespace SettingsMemory

#endif // SETTINGSMEMORY_H
