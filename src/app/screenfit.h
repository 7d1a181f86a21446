// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#ifndef SCREENFIT_H
#define SCREENFIT_H

#include <QMargins>
#include <QSize>

class QWidget;

/// The size in which a window that would be `wanted` large lies within `available` with a frame of
/// these margins around it: smaller where it must be, never larger.
QSize fittingSize(const QSize &wanted, const QSize &available, const QMargins &frame);

/// Makes a window that has not been shown yet no larger than the part of its screen that the
/// desktop's bars leave free, and puts it there in the middle if it had to become smaller. On a
/// laptop of 1366 x 768 the window would otherwise end below the taskbar, and with it the footer
/// and the scroll bar that leads to it. A window that fits stays as it is and goes where the
/// desktop puts it.
void fitToScreen(QWidget &window);

#endif // SCREENFIT_H
