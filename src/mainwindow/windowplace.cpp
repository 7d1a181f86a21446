// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "windowplace.h"

#include <QScreen>
#include <QWidget>

#include <algorithm>

QRect nearestWithin(const QRect &wanted, const QRect &area)
{
    QRect place = wanted;
    place.moveRight(std::min(place.right(), area.right()));
    place.moveBottom(std::min(place.bottom(), area.bottom()));
    place.moveLeft(std::max(place.left(), area.left()));
    place.moveTop(std::max(place.top(), area.top()));
    return place;
}

void placeBesideOwner(QWidget &window, const QWidget &owner)
{
    const bool wasPlaced = window.testAttribute(Qt::WA_Moved);
    // A window gets its frame only when it is shown; it is like the owner's.
    const QSize frame = owner.frameGeometry().size() - owner.size();
    QRect place(window.pos(), window.size() + frame);
    if (!wasPlaced) {
        place.moveCenter(owner.frameGeometry().center());
    }
    const QScreen *const screen = wasPlaced ? window.screen() : owner.screen();
    window.move(nearestWithin(place, screen->availableGeometry()).topLeft());
}
