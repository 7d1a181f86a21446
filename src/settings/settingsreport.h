// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#ifndef SETTINGSREPORT_H
#define SETTINGSREPORT_H

#include <QString>

/// The device's settings report: a line for each kind of setting, "name: value" or, where the
/// channels differ, "name: high low".
namespace SettingsReport {

/// Whether a report can have this line (from 0) and field (from 1) at all.
bool isWithinBounds(int line, int field);

/// The field at this place; empty if the report has no such place.
QString fieldAt(const char *report, int line, int field);

/// A sounder mode's letter as its word: "n" Shallow, "a" Auto, "m" Manual. The report writes "n"
/// for Shallow although the command sets it with "s". Other text stays as it is.
QString sounderMode(const QString &field);

/// A time variable gain's letter as its word: "N" OFF, "T" Log 10, "W" Log 20. Other text stays as
/// it is.
QString tvg(const QString &field);

/// A blanking as whole metres. `velocity` is the sound velocity in m/s.
QString blanking(const QString &field, float velocity);

/// A maximum depth as whole metres. `velocity` is the sound velocity in m/s.
QString maximumDepth(const QString &field, float velocity);

} // namespace SettingsReport

#endif // SETTINGSREPORT_H
