// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "appearance.h"
#include "firstpaint.h"
#include "mainwindow.h"
#include "screenfit.h"

#include <QApplication>

/// The program's own steps, up to its first picture.
int main(int argc, char **argv)
{
    prepareForHighDensity();
    startWithoutOpenGl();
    QApplication application(argc, argv);
    giveProgramStyle();
    MainWindow window;
    const FirstPaint firstPaint(window);
    fitToScreen(window);
    window.show();
    return QApplication::exec();
}
