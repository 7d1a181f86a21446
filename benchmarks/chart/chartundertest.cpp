// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "chartundertest.h"

#include <QCoreApplication>
#include <QPixmap>
#include <QScreen>
#include <QWindow>

void showForPainting(QWidget &window)
{
    window.show();
    do {
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    } while (!window.windowHandle()->isExposed());
    QCoreApplication::processEvents();
}

QImage shownBy(const QWidget &widget)
{
    const QWidget *const window = widget.window();
    const QPoint place = widget.mapTo(window, {});
    return window->screen()
        ->grabWindow(window->winId(), place.x(), place.y(), widget.width(), widget.height())
        .toImage();
}
