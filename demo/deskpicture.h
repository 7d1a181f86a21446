// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#ifndef DESKPICTURE_H
#define DESKPICTURE_H

#include <QString>

/// Takes a picture of what `scripts/run` opens on a desk, the window connected to the sounder and
/// the sounder's panel beside it, and writes it to `path`. False if the connection or the file did
/// not come about.
bool takeDeskPicture(const QString &path);

#endif // DESKPICTURE_H
