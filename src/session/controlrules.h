// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#ifndef CONTROLRULES_H
#define CONTROLRULES_H

#include "sessionstate.h"

#include <QFlags>

/// What the operator can use when. Pure functions.
namespace ControlRules {

/// One channel, for the question of what can be used of it.
struct ChannelState
{
    bool fitted = true;      ///< the unit carries it
    bool switchedOn = true;  ///< by the operator, or as the unit tells
    bool resting = false;    ///< while the other channel pings alone
    bool switchHeld = false; ///< its on and off buttons wait for the end of that rest
    bool automatic = false;  ///< Auto or Shallow: the manual settings do not apply

    /// Whether it pings not, for whatever reason. (One that is not fitted counts as switched off.)
    bool isOff() const { return !switchedOn || resting; }

    /// It pings again.
    void wake()
    {
        switchedOn = true;
        resting = false;
    }

    /// It rests no longer, and pings not either.
    void sleep()
    {
        switchedOn = false;
        resting = false;
    }
};

struct State
{
    SessionState link = SessionState::Offline;
    ChannelState high;
    ChannelState low;
    bool formatFixesOptions = false; ///< the output format fixes rate, modes and gain law
};

/// Controls that can be used or not together.
enum class CommonGroup {
    Connection = 1, ///< port, rate and unit
    Device = 2,     ///< what concerns the connected unit as a whole
    OutputRate = 4, ///< the rate of the unit
};
Q_DECLARE_FLAGS(CommonGroups, CommonGroup)

/// Of one channel.
enum class ChannelGroup {
    Enable = 1, ///< on and off
    Mode = 2,   ///< shallow, auto, manual
    Tvg = 4,    ///< the gain's variation with time
    Inputs = 8, ///< draft, index, frequency, blanking
    Manual = 16 ///< pulse cycles, gain, detection
};
Q_DECLARE_FLAGS(ChannelGroups, ChannelGroup)

/// Why a group cannot be used. Of several reasons the one that must end first.
enum class Lock {
    None,         ///< it can be used
    NotConnected, ///< there is no unit
    Connected,    ///< the link has been made with it
    NotFitted,    ///< the unit lacks the channel
    Resting,      ///< the other channel pings alone
    SwitchedOff,  ///< the operator or the unit has switched the channel off
    FixedFormat,  ///< the output format fixes it
    Automatic,    ///< Auto or Shallow sets it
};

/// Of one channel, group by group.
struct ChannelLocks
{
    Lock enable = Lock::None;
    Lock mode = Lock::None;
    Lock tvg = Lock::None;
    Lock inputs = Lock::None;
    Lock manual = Lock::None;
};

struct Locks
{
    Lock connection = Lock::None;
    Lock device = Lock::None;
    Lock outputRate = Lock::None;
    ChannelLocks high;
    ChannelLocks low;
};

/// Why what cannot be used in this state cannot be used: `usable` are the groups without a lock.
Locks locks(const State &state);

/// The same right after the unit has named itself.
Locks locksUponIdentification(const State &state);

/// The groups that can be used; no other can.
struct Usable
{
    CommonGroups common;
    ChannelGroups high;
    ChannelGroups low;
};

/// What can be used in this state.
Usable usable(const State &state);

/// What can be used under these locks.
Usable usable(const Locks &locks);

/// What can be used right after the unit has named itself: of each channel that it carries
/// everything, since neither modes nor format are known until its settings have come.
Usable usableUponIdentification(const State &state);

} // namespace ControlRules

Q_DECLARE_OPERATORS_FOR_FLAGS(ControlRules::CommonGroups)
Q_DECLARE_OPERATORS_FOR_FLAGS(ControlRules::ChannelGroups)

#endif // CONTROLRULES_H
