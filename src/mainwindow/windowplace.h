// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#ifndef WINDOWPLACE_H
#define WINDOWPLACE_H

#include <QRect>

class QWidget;

/// The place nearest to `wanted`, and of its size, that lies within `area`. What is larger than the
/// area begins where it begins: there a window has its title.
QRect nearestWithin(const QRect &wanted, const QRect &area);

/// Puts a window that belongs to another before it is shown: the first time over the middle of the
/// other, later where the operator left it, and always within the part of the screen that the
/// desktop's bars leave free. Its size stays.
void placeBesideOwner(QWidget &window, const QWidget &owner);

#endif // WINDOWPLACE_H
