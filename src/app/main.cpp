// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "appearance.h"
#include "logfile.h"
#include "mainwindow.h"
#include "programcall.h"
#include "screenfit.h"

#include <QApplication>
#include <QMessageBox>

namespace {

const ProgramFace face{
    QStringLiteral("tal-vero-connect"),
    QStringLiteral("Sets up a TAL-VERO echo sounder."),
    {{QStringLiteral("log"), QStringLiteral("FILE"),
      QStringLiteral("Appends the debug log to FILE, each line with its time.")}},
};

} // namespace

int main(int argc, char **argv)
{
    if (const auto exitCode = answerCall(face, argc, argv)) {
        return *exitCode;
    }
    prepareForHighDensity();
    startWithoutOpenGl();
    QApplication application(argc, argv);
    giveProgramStyle();
    const LogFile log(
        readCall(face, QApplication::arguments()).values.value(QStringLiteral("log")));
    if (!log.problem().isEmpty()) {
        QMessageBox::warning(nullptr, QStringLiteral("TAL-VERO Connect"), log.problem());
    }
    MainWindow window;
    fitToScreen(window);
    window.show();
    return QApplication::exec();
}
