// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "appearance.h"
#include "logfile.h"
#include "mainwindow.h"
#include "screenfit.h"

#include <QApplication>
#include <QMessageBox>

int main(int argc, char **argv)
{
    prepareForHighDensity();
    startWithoutOpenGl();
    QApplication application(argc, argv);
    giveProgramStyle();
    const LogFile log(wantedLogFile(QApplication::arguments()));
    if (!log.problem().isEmpty()) {
        QMessageBox::warning(nullptr, QStringLiteral("TAL-VERO Connect"), log.problem());
    }
    MainWindow window;
    fitToScreen(window);
    window.show();
    return QApplication::exec();
}
