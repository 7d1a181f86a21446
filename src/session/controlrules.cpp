// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "controlrules.h"

namespace ControlRules {

namespace {

constexpr ChannelGroups wholeChannel = ChannelGroups(ChannelGroup::Enable) | ChannelGroup::Mode |
                                       ChannelGroup::Tvg | ChannelGroup::Inputs |
                                       ChannelGroup::Manual;

CommonGroups commonGroups(const State &state)
{
    if (state.link != SessionState::Connected) {
        return CommonGroup::Connection;
    }
    CommonGroups groups = CommonGroup::Device;
    groups.setFlag(CommonGroup::OutputRate, !state.formatFixesOptions);
    return groups;
}

/// A channel that the unit lacks cannot be switched on; one that is off can be nothing else.
ChannelGroups channelGroups(const State &state, const ChannelState &channel)
{
    if (state.link != SessionState::Connected) {
        return {};
    }
    ChannelGroups groups;
    const bool isOn = !channel.isOff();
    const bool hasOptions = isOn && !state.formatFixesOptions;
    groups.setFlag(ChannelGroup::Enable, channel.fitted && !channel.switchHeld);
    groups.setFlag(ChannelGroup::Mode, hasOptions);
    groups.setFlag(ChannelGroup::Tvg, hasOptions);
    groups.setFlag(ChannelGroup::Inputs, isOn);
    groups.setFlag(ChannelGroup::Manual, isOn && !channel.automatic);
    return groups;
}

} // namespace

Usable usable(const State &state)
{
    return {commonGroups(state), channelGroups(state, state.high), channelGroups(state, state.low)};
}

Usable usableUponIdentification(const State &state)
{
    const ChannelGroups nothing;
    return {commonGroups(state), state.high.fitted ? wholeChannel : nothing,
            state.low.fitted ? wholeChannel : nothing};
}

} // namespace ControlRules
