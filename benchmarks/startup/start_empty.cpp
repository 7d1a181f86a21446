// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "appearance.h"
#include "firstpaint.h"

#include <QApplication>

/// What every Qt program pays: a window of the same size and style with nothing in it.
int main(int argc, char **argv)
{
    prepareForHighDensity();
    QApplication application(argc, argv);
    giveProgramStyle();
    QWidget window;
    window.resize(1136, 800);
    const FirstPaint firstPaint(window);
    window.show();
    return QApplication::exec();
}
