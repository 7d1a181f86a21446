// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "controlrules.h"

namespace ControlRules {

namespace {

/// What holds a channel as a whole.
Lock channelLock(const State &state, const ChannelState &channel)
{
    if (state.link != SessionState::Connected) {
        return Lock::NotConnected;
    }
    if (!channel.fitted) {
        return Lock::NotFitted;
    }
    if (channel.resting) {
        return Lock::Resting;
    }
    return channel.switchedOn ? Lock::None : Lock::SwitchedOff;
}

/// A channel that the unit lacks cannot be switched on; one that is off can be nothing else.
Lock enableLock(Lock ofChannel, const ChannelState &channel)
{
    if (ofChannel == Lock::NotConnected || ofChannel == Lock::NotFitted) {
        return ofChannel;
    }
    return channel.switchHeld ? Lock::Resting : Lock::None;
}

Lock firstOf(Lock first, Lock second) { return first != Lock::None ? first : second; }

ChannelLocks channelLocks(const State &state, const ChannelState &channel)
{
    const Lock whole = channelLock(state, channel);
    const Lock byFormat = state.formatFixesOptions ? Lock::FixedFormat : Lock::None;
    const Lock byMode = channel.automatic ? Lock::Automatic : Lock::None;
    ChannelLocks locks;
    locks.enable = enableLock(whole, channel);
    locks.mode = firstOf(whole, byFormat);
    locks.tvg = firstOf(whole, byFormat);
    locks.inputs = whole;
    locks.manual = firstOf(whole, byMode);
    return locks;
}

ChannelLocks locksOfFit(const ChannelState &channel)
{
    const Lock lock = channel.fitted ? Lock::None : Lock::NotFitted;
    return {lock, lock, lock, lock, lock};
}

ChannelGroups groupsWithout(const ChannelLocks &locks)
{
    ChannelGroups groups;
    groups.setFlag(ChannelGroup::Enable, locks.enable == Lock::None);
    groups.setFlag(ChannelGroup::Mode, locks.mode == Lock::None);
    groups.setFlag(ChannelGroup::Tvg, locks.tvg == Lock::None);
    groups.setFlag(ChannelGroup::Inputs, locks.inputs == Lock::None);
    groups.setFlag(ChannelGroup::Manual, locks.manual == Lock::None);
    return groups;
}

CommonGroups commonGroupsWithout(const Locks &locks)
{
    CommonGroups groups;
    groups.setFlag(CommonGroup::Connection, locks.connection == Lock::None);
    groups.setFlag(CommonGroup::Device, locks.device == Lock::None);
    groups.setFlag(CommonGroup::OutputRate, locks.outputRate == Lock::None);
    return groups;
}

Locks commonLocks(const State &state)
{
    const bool isConnected = state.link == SessionState::Connected;
    Locks locks;
    locks.connection = isConnected ? Lock::Connected : Lock::None;
    locks.device = isConnected ? Lock::None : Lock::NotConnected;
    locks.outputRate =
        firstOf(locks.device, state.formatFixesOptions ? Lock::FixedFormat : Lock::None);
    return locks;
}

} // namespace

Locks locks(const State &state)
{
    Locks all = commonLocks(state);
    all.high = channelLocks(state, state.high);
    all.low = channelLocks(state, state.low);
    return all;
}

/// Modes and format are known only when the unit's settings have come.
Locks locksUponIdentification(const State &state)
{
    Locks all = commonLocks(state);
    all.high = locksOfFit(state.high);
    all.low = locksOfFit(state.low);
    return all;
}

Usable usable(const Locks &locks)
{
    return {commonGroupsWithout(locks), groupsWithout(locks.high), groupsWithout(locks.low)};
}

Usable usable(const State &state) { return usable(locks(state)); }

Usable usableUponIdentification(const State &state)
{
    return usable(locksUponIdentification(state));
}

} // namespace ControlRules
