// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#ifndef DESKPLACES_H
#define DESKPLACES_H

#include <QMargins>
#include <QRect>

class QWidget;

/// Where two windows stand side by side, their frames not counted.
struct DeskPlaces
{
    QRect window;
    QRect panel;
};

/// Both as one in the middle of `available`, the panel to the right, its top at the window's. Where
/// there is too little room the window becomes smaller, but no narrower than it can be worked with;
/// then the panel covers its right edge rather than leave the screen. Each has a frame of these
/// margins. The panel keeps its size.
DeskPlaces placesOnDesk(const QRect &available, const QMargins &frame, const QSize &window,
                        const QSize &panel);

/// Puts two windows that have not been shown yet so on the screen of the first.
void placeSideBySide(QWidget &window, QWidget &panel);

#endif // DESKPLACES_H
