// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#ifndef SESSIONSTATE_H
#define SESSIONSTATE_H

/// Where the link to the sounder stands.
enum class SessionState {
    Offline,    ///< no port is open
    Connecting, ///< open at the chosen rate; the sounder has not named itself
    Searching,  ///< the same, at one rate after the other
    Connected,  ///< the sounder has named itself
};

#endif // SESSIONSTATE_H
