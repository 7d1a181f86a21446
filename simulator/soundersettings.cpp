// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "settingtables.h"

#include <tuple>

using namespace SettingTables;

namespace {

/// Whether two holders have the same values in all that a table speaks of.
template <typename Table, typename Settings>
bool haveSame(const Table &table, const Settings &one, const Settings &other)
{
    return std::all_of(std::begin(table), std::end(table),
                       [&](const auto &row) { return one.*row.value == other.*row.value; });
}

} // namespace

bool ChannelSettings::operator==(const ChannelSettings &other) const
{
    return haveSame(channelNumbers, *this, other) && haveSame(channelLetters, *this, other);
}

ChannelSettings &SounderSettings::channel(SounderChannel which)
{
    return which == SounderChannel::High ? high : low;
}

const ChannelSettings &SounderSettings::channel(SounderChannel which) const
{
    return which == SounderChannel::High ? high : low;
}

bool SounderSettings::isOn(SounderChannel which) const
{
    return which == SounderChannel::High ? highOn : lowOn;
}

bool SounderSettings::operator==(const SounderSettings &other) const
{
    const auto values = [](const SounderSettings &s) {
        return std::tie(s.rate, s.highOn, s.lowOn, s.high, s.low);
    };
    return haveSame(commonNumbers, *this, other) && values(*this) == values(other);
}

SounderSettings factorySettings(SounderFit fit)
{
    SounderSettings settings;
    settings.low.tvg = 'W';
    settings.low.blankingMm = 500;
    settings.low.freqKHz = 33;
    settings.highOn = hasChannel(fit, SounderChannel::High);
    settings.lowOn = hasChannel(fit, SounderChannel::Low);
    return settings;
}

const QList<int> &lineRates()
{
    static const QList<int> rates{4800, 9600, 19200, 38400, 57600, 115200};
    return rates;
}
