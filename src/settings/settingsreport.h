// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#ifndef SETTINGSREPORT_H
#define SETTINGSREPORT_H

#include "commandencoding.h"

#include <QString>

#include <optional>

/// The device's settings report: a line for each kind of setting, "name: value" or, where the
/// channels differ, "name: high low".
namespace SettingsReport {

/// Whether a report can have this line (from 0) and field (from 1) at all.
bool isWithinBounds(int line, int field);

/// The field at this place; empty if the report has no such place.
QString fieldAt(const char *report, int line, int field);

/// What a field means as a setting's value; nothing if it means none. `velocity` gives the sound
/// velocity in m/s, by which the report scales some lengths.
using Meaning = std::optional<QString> (*)(const QString &field, const NumberSource &velocity);

/// The field itself.
std::optional<QString> asWritten(const QString &field, const NumberSource &velocity);

/// The field as one of these words.
template <QString (*word)(const QString &field)>
std::optional<QString> asWord(const QString &field, const NumberSource & /*velocity*/)
{
    return word(field);
}

/// The field as a length that depends on the velocity.
template <QString (*length)(const QString &field, float velocity)>
std::optional<QString> asLength(const QString &field, const NumberSource &velocity)
{
    return length(field, velocity());
}

/// The output format at this place, from 1, of the operator's list: the report counts the formats
/// in that order, the set command in the device's own. Nothing for a place that the list does not
/// have.
std::optional<QString> asFormat(const QString &field, const NumberSource &velocity);

/// "Active", whatever the field: a device that reports is taken to be active.
std::optional<QString> asActive(const QString &field, const NumberSource &velocity);

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
