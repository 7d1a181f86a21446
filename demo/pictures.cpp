// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "appearance.h"
#include "picturebook.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QTextStream>

int main(int argc, char **argv)
{
    prepareForHighDensity();
    startWithoutOpenGl();
    // The log is for whoever looks for a fault; here it would only hide the names of the pictures.
    qputenv("QT_LOGGING_RULES", "default.debug=false\ndefault.warning=false");
    QApplication application(argc, argv);
    giveProgramStyle();
    QApplication::setQuitOnLastWindowClosed(false); // every scene closes its windows

    QCommandLineParser parser;
    parser.setApplicationDescription("Takes pictures of the windows of TAL-VERO Connect in every "
                                     "state. QT_SCALE_FACTOR sets the scale.");
    parser.addHelpOption();
    const QCommandLineOption all("all", "Every state in every size.");
    const QCommandLineOption dense("dense", "Only what differs most from scale to scale.");
    const QCommandLineOption manual("manual", "What the manual shows, by the names it uses.");
    parser.addOptions({all, dense, manual});
    parser.addPositionalArgument("folder", "Where the pictures go.");
    parser.process(application);
    if (parser.positionalArguments().size() != 1) {
        parser.showHelp(1);
    }

    const QDir folder(parser.positionalArguments().constFirst());
    if (!folder.mkpath(".")) {
        QTextStream(stderr) << "Could not make the folder " << folder.path() << '\n';
        return 1;
    }
    const PictureChoice choice = parser.isSet(all)      ? PictureChoice::All
                                 : parser.isSet(dense)  ? PictureChoice::Dense
                                 : parser.isSet(manual) ? PictureChoice::Manual
                                                        : PictureChoice::Usual;
    return takePictures(folder, choice) == 0 ? 0 : 1;
}
