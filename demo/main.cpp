// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "appearance.h"
#include "deskplaces.h"
#include "mainwindow.h"
#include "operatortour.h"
#include "programcall.h"
#include "ptysounder.h"
#include "sounderpanel.h"

#include <QApplication>
#include <QTextStream>

namespace {

const ProgramFace face{
    QStringLiteral("tal-vero-connect-demo"),
    QStringLiteral("TAL-VERO Connect beside a simulated sounder."),
    {{QStringLiteral("tour"), QStringLiteral("DIR"),
      QStringLiteral("Plays an operator's tour; its pictures go to DIR.")}},
};

/// Between the device's rate and its factory setting, so that the search has something to pass.
SounderOptions demoSounder()
{
    SounderOptions options;
    options.rate = 9600;
    options.seed =
        1010; // a sea bed that soon comes to soft mud: the graph tells the channels apart
    return options;
}

/// For the tour's other unit: one channel, and a format that carries no more.
SounderOptions highOnlySounder()
{
    SounderOptions options = demoSounder();
    options.fit = SounderFit::HighOnly;
    options.seed = 2;
    return options;
}

int reportMissingTerminal()
{
    QTextStream(stderr) << "The system gave no pseudo-terminal for the simulated sounder.\n";
    return 1;
}

int openWindow(PtySounder &sounder)
{
    MainWindow window([&sounder] { return systemSerialPorts() + portsOf(sounder); });
    SounderPanel panel(sounder);
    QTextStream(stdout) << "A simulated sounder waits at " << sounder.portPath()
                        << ": choose that port and \"Auto\", then press Connect.\n"
                        << "The panel beside the window lets things go wrong.\n";
    placeSideBySide(window, panel);
    panel.show();
    window.show(); // last, so that it has the keyboard
    return QApplication::exec();
}

/// The tour needs a second unit, which nobody else has to choose from.
int playTour(PtySounder &sounder, const QString &folder)
{
    PtySounder highOnly(highOnlySounder());
    if (!highOnly.isOpen()) {
        return reportMissingTerminal();
    }
    MainWindow window(
        [&] { return systemSerialPorts() << sounder.portPath() << highOnly.portPath(); });
    const QDir pictures(folder);
    if (!pictures.mkpath(QStringLiteral("."))) {
        QTextStream(stderr) << "Could not make the folder " << folder << '\n';
        return 1;
    }
    OperatorTour tour(window, sounder, highOnly, pictures);
    QObject::connect(&tour, &OperatorTour::finished, qApp, &QCoreApplication::exit);
    window.show();
    tour.start();
    const int exitCode = QApplication::exec();
    QTextStream(stdout) << "The pictures are in " << pictures.absolutePath() << '\n';
    return exitCode;
}

/// The log is for whoever looks for a fault; beside the tour's own lines it would only hide them.
void keepLogOff() { qputenv("QT_LOGGING_RULES", "default.debug=false"); }

} // namespace

int main(int argc, char **argv)
{
    if (const auto exitCode = answerCall(face, argc, argv)) {
        return *exitCode;
    }
    prepareForHighDensity();
    startWithoutOpenGl();
    keepLogOff();
    QApplication application(argc, argv);
    giveProgramStyle();

    PtySounder sounder(demoSounder());
    if (!sounder.isOpen()) {
        return reportMissingTerminal();
    }
    const QString pictures =
        readCall(face, QApplication::arguments()).values.value(QStringLiteral("tour"));
    return pictures.isEmpty() ? openWindow(sounder) : playTour(sounder, pictures);
}
