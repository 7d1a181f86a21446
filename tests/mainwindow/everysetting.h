// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#ifndef EVERYSETTING_H
#define EVERYSETTING_H

/// Every control that sets something in the sounder, with what the walk through its range needs.
namespace EverySetting {

/// An edit with its setting's key, the metric range that is walked in it (from below the lowest
/// value to above the highest), and what its buttons add in the unit that is shown.
struct Field
{
    const char *edit;
    const char *key;
    double first;
    double last;
    double stride;
    int decimals;
    bool hasUnit;
    float buttonStep;
    const char *buttons; ///< before "Down" and "Up"; null if a slider has them
};

// clang-format off
inline constexpr Field fields[] = {
    {"pingEdit",          "Ping",        -1,   12, 1,    0, false, 1.0F, "ping"},
    {"soundVelocityEdit", "Velocity",  1290, 1760, 3,    0, true,  1.0F, "soundVelocity"},
    {"maxDepthEdit",      "Depth",        0,  104, 1,    0, true,  5.0F, "maxDepth"},
    {"highDraft",         "highDraft",   -1,  101, 0.87, 2, true,  0.1F, "highDraft"},
    {"highIndex",         "highIndex",   -1,  101, 0.91, 2, true,  0.1F, "highIndex"},
    {"highFreq",          "highFreq",   186,  214, 1,    0, false, 1.0F, "highFreq"},
    {"highBlank",         "highBlank",    0,   11, 0.07, 2, true,  0.0F, nullptr},
    {"lowDraft",          "lowDraft",    -1,  101, 0.93, 2, true,  0.1F, "lowDraft"},
    {"lowIndex",          "lowIndex",    -1,  101, 0.89, 2, true,  0.1F, "lowIndex"},
    {"lowFreq",           "lowFreq",     26,   40, 1,    0, false, 1.0F, "lowFreq"},
    {"lowBlank",          "lowBlank",     0,   11, 0.07, 2, true,  0.0F, nullptr},
};
// clang-format on

/// A radio button or a list's entry with the eight characters that the sounder takes.
struct Option
{
    const char *name;
    const char *wire;
};

/// In an order in which each is a change, and the last ones restore what the walk began with.
inline constexpr Option radios[] = {
    {"highShallowRadio", "*cs....H"}, {"highAutoRadio", "*ca....H"},
    {"highManualRadio", "*cm....H"},  {"highOffTvg", "*lN....H"},
    {"highLog20Tvg", "*lW....H"},     {"highLog10Tvg", "*lT....H"},
    {"disableHF", "*hHHHHHH"},        {"enableHF", "*bHHHHHH"},
    {"lowShallowRadio", "*cs....L"},  {"lowAutoRadio", "*ca....L"},
    {"lowManualRadio", "*cm....L"},   {"lowOffTvg", "*lN....L"},
    {"lowLog10Tvg", "*lT....L"},      {"lowLog20Tvg", "*lW....L"},
    {"disableLF", "*hLLLLLL"},        {"enableLF", "*bLLLLLL"},
};

inline constexpr Option formats[] = {
    {"ODOM", "*a1....."},          {"NMEA DBT", "*a2....."},       {"ORVANDO", "*a4....."},
    {"DESO 25", "*a5....."},       {"KESTROLA", "*a6....."},       {"SONARMITE OLD", "*a7....."},
    {"SONARMITE NEW", "*a8....."}, {"SONARMITE DUAL", "*a9....."}, {"NMEA DBS", "*a3....."},
};

/// The three lowest rates have one command.
inline constexpr Option rates[] = {
    {"4800", "*I000..."},  {"19200", "*I000..."},  {"38400", "*I111..."},
    {"57600", "*I222..."}, {"115200", "*I333..."}, {"9600", "*I000..."},
};

} // namespace EverySetting

#endif // EVERYSETTING_H
