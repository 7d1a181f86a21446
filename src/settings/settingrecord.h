// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#ifndef SETTINGRECORD_H
#define SETTINGRECORD_H

#include <QString>

#include <functional>
#include <unordered_map>

/// One setting of the device: how the operator sees it, how it is kept, where the device's report
/// holds it and how the command that sets it is written. The functions reach the value through the
/// `Settings` object that installed them, so a copied record still speaks of the original value.
/// Calling an empty function throws std::bad_function_call.
struct SettingRecord
{
    /// Not used by this device generation.
    QString spare;

    /// The name that messages to the operator use ("Sound Velocity").
    QString prettyName;

    /// printf-style template of the set command ("*v%04d"); empty where the command has none.
    QString commandFormat;

    /// Line of the settings report that holds the value, 0 for the first; -1 if there is none.
    int reportLine = -1;

    /// Column in that line: 1 is the high channel (or the only value), 2 the low channel; -1 if
    /// there is none.
    int reportField = -1;

    /// The current value, always metric and always with a decimal point ("1500", "Log 10").
    QString value;

    /// Not used by this device generation.
    std::function<void()> spareFunction;

    /// Takes the value out of a whole settings report and stores it.
    std::function<void(const char *report)> parseFromReport;

    /// The set command for the current value, before the queue pads it ("*v500000").
    std::function<QString()> toCommand;

    /// The current value as the number that commands and texts are made from.
    std::function<float()> toNumber;
};

/// Records by their short, case-sensitive key ("highDraft").
using SettingTable = std::unordered_map<QString, SettingRecord>;

#endif // SETTINGRECORD_H
