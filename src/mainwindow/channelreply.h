// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#ifndef CHANNELREPLY_H
#define CHANNELREPLY_H

#include "protocol.h"

#include <QString>

struct Channel;

/// The unit in which the window shows lengths.
struct ShownUnit
{
    bool imperial = false;
    QString suffix; ///< "m" or "ft"
};

/// Fills the channel's control that the piece of a settings reply speaks of: gain, time variable
/// gain, blanking, draft, pulse cycles, index, detection level or frequency. Other letters change
/// nothing; the sounder mode is the window's, since it decides what can be used.
void showReplyPiece(Channel &channel, const Protocol::ReplyPiece &piece, const ShownUnit &unit);

#endif // CHANNELREPLY_H
