// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "screenfit.h"

#include <QScreen>
#include <QWidget>

namespace {

/// Title bar and edges, as high as common desktops make them: the real frame is known only after
/// the window has been shown, when it is too late to place it without a jump.
constexpr QMargins typicalFrame(8, 40, 8, 8);

} // namespace

QSize fittingSize(const QSize &wanted, const QSize &available, const QMargins &frame)
{
    const QSize room(available.width() - frame.left() - frame.right(),
                     available.height() - frame.top() - frame.bottom());
    return wanted.boundedTo(room).expandedTo(QSize(1, 1));
}

void fitToScreen(QWidget &window)
{
    const QRect available = window.screen()->availableGeometry();
    const QSize fitting = fittingSize(window.size(), available.size(), typicalFrame);
    if (fitting == window.size()) {
        return;
    }
    window.resize(fitting);
    QRect framed = QRect(QPoint(), window.size()).marginsAdded(typicalFrame);
    framed.moveCenter(available.center());
    window.move(framed.topLeft());
}
