// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "fuzztargets.h"
#include "settings.h"
#include "settingspec.h"
#include "storedvalue.h"

/// Whatever a report says, every setting stays within what the sounder takes, and no place in it
/// gives more than it holds.
void fuzzSettingsReport(const QByteArray &input)
{
    FuzzInput from(input);
    const int line = from.byte() - 128;
    const int field = from.byte() - 128;
    const QByteArray report = from.rest();
    static Settings settings{QStringList()};
    settings.changeSetting("Velocity", "1500");
    FUZZ_REQUIRE(settings.getFieldAtLine(report.constData(), line, field).size() <= report.size());
    for (const SettingSpec &spec : SettingSpecs::all()) {
        settings.record(spec.key)->parseFromReport(report.constData());
        requireStoredWithinBounds(spec, settings);
        FUZZ_REQUIRE(!settings.getCommandString(spec.key).isEmpty());
    }
}
