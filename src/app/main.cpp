// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "appearance.h"
#include "mainwindow.h"
#include "screenfit.h"

#include <QApplication>

int main(int argc, char **argv)
{
    prepareForHighDensity();
    startWithoutOpenGl();
    QApplication application(argc, argv);
    giveProgramStyle();
    MainWindow window;
    fitToScreen(window);
    window.show();
    return QApplication::exec();
}
