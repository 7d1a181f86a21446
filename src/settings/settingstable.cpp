// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "settingstable.h"

#include <iterator>

namespace {

struct Row
{
    const char *key;
    const char *prettyName;
    const char *defaultValue;
    const char *commandFormat;
    int reportLine;
    int reportField;
};

// Some places in the report are shared or look like slips (blanking with pulse cycles, detection
// with frequency, the low detection level in the high column). The device numbers them so.
// clang-format off
constexpr Row rows[] = {
    // key                prettyName                         default  command    line field
    {"Velocity",          "Sound Velocity",                  "1500",  "*v%04d",     8,  1},
    {"Ping",              "Pings Per Second",                "5",     "*i%02d",    12,  1},
    {"Depth",             "Maximum Depth",                   "80",    "*s%06d",     4,  1},
    {"format",            "Output Format",                   "ODOM",  "*a%d",      15,  1},
    {"mode",              "Mode",                            "Auto",  "",          -1, -1},
    {"baud",              "Baud Rate",                       "9600",  "*I%d%d%d",  14,  1},

    {"highSounderMode",   "High Frequency Sounder Mode",     "",      "*c%c",      11,  1},
    {"highBlank",         "High Frequency Blanking",         "",      "*m%05d",     2,  1},
    {"highDraft",         "High Frequency Draft",            "",      "*o%05d",     9,  1},
    {"highIndex",         "High Frequency Index",            "",      "*q%05d",    10,  1},
    {"highGain",          "High Frequency Gain",             "",      "*g%03d",     7,  1},
    {"highPulse",         "High Frequency Pulse Cycles",     "",      "*p%02d",     2,  1},
    {"highDetect",        "High Frequency Detection Level",  "",      "*t%03d",     1,  1},
    {"highFreq",          "High Frequency",                  "",      "*w%04d",     1,  1},
    {"highTVG",           "High Time Variable Gain",         "",      "*l%c",      13,  1},

    {"lowSounderMode",    "Low Frequency Sounder Mode",      "",      "*c%c",      11,  2},
    {"lowBlank",          "Low Frequency Blanking",          "",      "*m%05d",     2,  2},
    {"lowDraft",          "Low Frequency Draft",             "",      "*o%05d",     9,  2},
    {"lowIndex",          "Low Frequency Index",             "",      "*q%05d",    10,  2},
    {"lowGain",           "Low Frequency Gain",              "",      "*g%03d",     7,  2},
    {"lowPulse",          "Low Frequency Pulse Cycles",      "",      "*p%02d",     2,  2},
    {"lowDetect",         "Low Frequency Detection Level",   "",      "*t%03d",     1,  1},
    {"lowFreq",           "Low Frequency",                   "",      "*w%04d",     1,  2},
    {"lowTVG",            "Low Time Variable Gain",          "",      "*l%c",      13,  2},
};
// clang-format on

SettingRecord recordOf(const Row &row)
{
    SettingRecord record;
    record.prettyName = row.prettyName;
    record.commandFormat = row.commandFormat;
    record.reportLine = row.reportLine;
    record.reportField = row.reportField;
    record.value = row.defaultValue;
    return record;
}

} // namespace

namespace SettingsTable {

SettingTable build()
{
    SettingTable table;
    table.reserve(std::size(rows));
    for (const Row &row : rows) {
        table.emplace(row.key, recordOf(row));
    }
    return table;
}

QStringList baudRates() { return {"4800", "9600", "19200", "38400", "57600", "115200"}; }

QStringList chooserFormats()
{
    return {"ORVANDO",  "NMEA DBS",      "NMEA DBT",      "DESO 25",       "ODOM",
            "KESTROLA", "SONARMITE OLD", "SONARMITE NEW", "SONARMITE DUAL"};
}

} // namespace SettingsTable
