// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "soundersettings.h"

#include <tuple>

bool ChannelSettings::operator==(const ChannelSettings &other) const
{
    const auto values = [](const ChannelSettings &c) {
        return std::tie(c.mode, c.gain, c.tvg, c.blankingMm, c.draftMm, c.indexMm, c.pulse,
                        c.detect, c.freqKHz);
    };
    return values(*this) == values(other);
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
        return std::tie(s.pings, s.velocityMmS, s.maxDepthMm, s.format, s.rate, s.highOn, s.lowOn,
                        s.high, s.low);
    };
    return values(*this) == values(other);
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
