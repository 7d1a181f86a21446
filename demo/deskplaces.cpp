// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "deskplaces.h"

#include <QScreen>
#include <QWidget>

#include <algorithm>

namespace {

/// Title bar and edges, as high as common desktops make them.
constexpr QMargins typicalFrame(8, 40, 8, 8);

/// The narrowest window in which the form is tried and pictured.
constexpr int narrowestWindow = 800;

} // namespace

DeskPlaces placesOnDesk(const QRect &available, const QMargins &frame, const QSize &window,
                        const QSize &panel)
{
    const int edges = frame.left() + frame.right();
    const int roomBeside = available.width() - panel.width() - 2 * edges;
    const int roomBelow = available.height() - frame.top() - frame.bottom();
    const QSize fitting(std::min(window.width(), std::max(roomBeside, narrowestWindow)),
                        std::min(window.height(), roomBelow));

    const int left = available.left() + std::max(0, (roomBeside - fitting.width()) / 2);
    const int top = available.top() + (roomBelow - fitting.height()) / 2;
    const int besideWindow = left + edges + fitting.width();
    const int rightmost = available.right() + 1 - edges - panel.width();
    const QPoint inside(frame.left(), frame.top());
    return {QRect(QPoint(left, top) + inside, fitting),
            QRect(QPoint(std::min(besideWindow, rightmost), top) + inside, panel)};
}

void placeSideBySide(QWidget &window, QWidget &panel)
{
    const DeskPlaces places = placesOnDesk(window.screen()->availableGeometry(), typicalFrame,
                                           window.size(), panel.sizeHint());
    const QPoint toFrame(typicalFrame.left(), typicalFrame.top());
    window.resize(places.window.size());
    window.move(places.window.topLeft() - toFrame); // a window is moved by its frame
    panel.move(places.panel.topLeft() - toFrame);
}
