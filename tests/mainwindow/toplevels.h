// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#ifndef TOPLEVELS_H
#define TOPLEVELS_H

#include <QApplication>
#include <QWidget>

/// The widget of this kind that stands on its own (depthGraph, InfoForm, Settings), shown or
/// hidden; nullptr if the program has made none. With two main windows alive it is either's.
template <typename Window>
Window *topLevel()
{
    const QWidgetList widgets = QApplication::topLevelWidgets();
    for (QWidget *widget : widgets) {
        if (auto *const window = qobject_cast<Window *>(widget)) {
            return window;
        }
    }
    return nullptr;
}

#endif // TOPLEVELS_H
