// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#ifndef SETTINGTABLES_H
#define SETTINGTABLES_H

#include "depthformats.h"
#include "soundersettings.h"

#include <algorithm>

/// How each setting stands in commands and in the settings reply, and what values it takes. For the
/// files that read and write those; everybody else uses soundersettings.h.
namespace SettingTables {

struct Range
{
    int min;
    int max;

    bool holds(int value) const { return value >= min && value <= max; }
};

/// A number in a command: as many digits as stand there, from the fewest that its command writes to
/// the most that its range needs. What follows them is filler.
struct Digits
{
    int fewest;
    int most;
};

template <int min, int max>
constexpr bool within(int value)
{
    return value >= min && value <= max;
}

struct CommonNumber
{
    char letter;
    Digits digits;
    int offset;               ///< the command carries the value less this
    bool (*holds)(int value); ///< whether the device takes it
    int SounderSettings::*value;
};

struct ChannelNumber
{
    char letter;
    Digits digits;
    int replyWidth;
    Range high;
    Range low;
    int ChannelSettings::*value;

    const Range &range(SounderChannel channel) const
    {
        return channel == SounderChannel::High ? high : low;
    }
};

struct ChannelLetter
{
    char letter;
    char ChannelSettings::*value;
    const char *choices;
};

/// A command has room for six digits, and 1300 to 1750 m/s in mm/s are seven.
inline constexpr int velocityOffset = 1000000;

// clang-format off
inline constexpr CommonNumber commonNumbers[] = {
    {'i', {2, 2},                        0,              within<1, 10>,            &SounderSettings::pings},
    {'v', {4, 6},                        velocityOffset, within<1300000, 1750000>, &SounderSettings::velocityMmS},
    {'s', {6, 6},                        0,              within<3000, 100000>,     &SounderSettings::maxDepthMm},
    {'a', {1, DepthFormats::mostDigits}, 0,              DepthFormats::isKnown,    &SounderSettings::format},
};

inline constexpr ChannelNumber channelNumbers[] = {
    {'g', {3, 3}, 3, {0, 100},     {0, 100},     &ChannelSettings::gain},
    {'m', {5, 5}, 5, {300, 10000}, {500, 10000}, &ChannelSettings::blankingMm},
    {'o', {5, 5}, 5, {0, 99999},   {0, 99999},   &ChannelSettings::draftMm},
    {'p', {2, 3}, 1, {1, 100},     {1, 100},     &ChannelSettings::pulse},
    {'q', {5, 5}, 5, {0, 99999},   {0, 99999},   &ChannelSettings::indexMm},
    {'t', {3, 3}, 1, {1, 100},     {1, 100},     &ChannelSettings::detect},
    {'w', {4, 4}, 4, {190, 210},   {30, 36},     &ChannelSettings::freqKHz},
};

inline constexpr ChannelLetter channelLetters[] = {
    {'c', &ChannelSettings::mode, "asm"},
    {'l', &ChannelSettings::tvg,  "NTW"},
};
// clang-format on

/// The row of this letter, null if there is none.
template <typename Table>
auto find(const Table &table, char letter) -> decltype(std::begin(table))
{
    const auto found = std::find_if(std::begin(table), std::end(table),
                                    [letter](const auto &row) { return row.letter == letter; });
    return found == std::end(table) ? nullptr : found;
}

/// The channel that "H" or "L" stands for.
inline std::optional<SounderChannel> channelOf(char mark)
{
    if (mark == 'H') {
        return SounderChannel::High;
    }
    if (mark == 'L') {
        return SounderChannel::Low;
    }
    return {};
}

inline bool &onFlag(SounderSettings &settings, SounderChannel channel)
{
    return channel == SounderChannel::High ? settings.highOn : settings.lowOn;
}

/// Echoes of one ping must be back before the next one leaves.
inline bool echoesOverlap(const SounderSettings &settings)
{
    return 2.0 * settings.pings * settings.maxDepthMm > settings.velocityMmS;
}

} // namespace SettingTables

#endif // SETTINGTABLES_H
