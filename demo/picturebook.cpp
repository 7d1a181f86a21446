// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "picturebook.h"

#include "deskpicture.h"
#include "picturedesk.h"

#include <QApplication>
#include <QPixmap>
#include <QScrollArea>
#include <QScrollBar>
#include <QTextStream>
#include <QWindow>
#include <QtTest>

#include <functional>

namespace {

constexpr int highTab = 0;
constexpr int lowTab = 1;

/// A sea bed with depths on both channels from the first ping on, and mud that tells them apart.
constexpr quint32 livelySeabed = 1010;

/// Lists and tooltips have no title.
constexpr char untitled[] = "";

/// The size in which the window opens, the one that the form is drawn for, a small laptop's, and a
/// maximised window's.
const QSize sizes[] = {{1136, 800}, {1020, 947}, {800, 600}, {1920, 1080}};

enum Extent { StartSize, EverySize, OwnSize };

struct Scene
{
    const char *name;
    std::function<bool(PictureDesk &)> arrange; ///< false if the state was waited for in vain
    Extent extent = StartSize;
    SounderFit fit = SounderFit::Dual;
    SounderFaults faults = {};
    const char *title = nullptr;  ///< of the window to show; the main window if null
    bool soundings = true;        ///< whether the sounder sends depths of its own accord
    const char *button = nullptr; ///< what opens the message box to show, if it is one
};

bool offline(PictureDesk & /*desk*/) { return true; }

bool searching(PictureDesk &desk)
{
    desk.pressConnect("Auto");
    return desk.infoComesToHold("Trying");
}

bool connected(PictureDesk &desk) { return desk.connectToSounder(); }

bool sounding(PictureDesk &desk)
{
    return desk.connectToSounder() && desk.textComes("highDepthLabel") &&
           desk.textComes("lowDepthLabel");
}

bool lowFrequency(PictureDesk &desk)
{
    const bool came = sounding(desk);
    desk.showTab(lowTab);
    return came;
}

bool manual(PictureDesk &desk)
{
    const bool came = sounding(desk);
    desk.click("highManualRadio");
    return came && desk.infoComesToHold("Success");
}

bool channelOff(PictureDesk &desk)
{
    const bool came = sounding(desk);
    desk.click("disableHF");
    return came && desk.infoComesToHold("Success");
}

bool imperial(PictureDesk &desk)
{
    desk.click("imperialRadio");
    return sounding(desk);
}

bool kestrola(PictureDesk &desk)
{
    const bool came = sounding(desk);
    desk.choose("formatComboBox", "KESTROLA");
    return came && desk.infoComesToHold("Success");
}

bool refused(PictureDesk &desk)
{
    const bool came = sounding(desk);
    desk.click("highDraftUp");
    return came && desk.infoComesToHold("Received Error");
}

/// A typed value that waits beside those that the sounder refused.
bool unsent(PictureDesk &desk)
{
    const bool came = refused(desk);
    desk.click("highPulseUp");
    desk.click("highLog20Tvg");
    desk.type("maxDepthEdit", "45");
    return came && desk.infoComesToHold("Time Variable Gain to Log 20 ... Received Error");
}

bool lost(PictureDesk &desk)
{
    const bool came = sounding(desk);
    desk.click("connectToDevice");
    return came;
}

bool footerHidden(PictureDesk &desk)
{
    desk.click("hamburgerButton");
    return true;
}

bool graph(PictureDesk &desk) { return desk.connectToSounder() && desk.openGraphWithHistory(); }

bool graphInFeet(PictureDesk &desk)
{
    desk.click("imperialRadio");
    return graph(desk);
}

bool listOpen(PictureDesk &desk)
{
    return desk.connectToSounder() && desk.openList("formatComboBox");
}

/// What an operator reads who lets the pointer rest on a control.
std::function<bool(PictureDesk &)> tooltip(const char *control)
{
    return [control](PictureDesk &desk) { return sounding(desk) && desk.pointAt(control); };
}

/// Where the keyboard is.
bool focusRing(PictureDesk &desk) { return sounding(desk) && desk.tabTo("highAutoRadio"); }

bool portGone(PictureDesk &desk)
{
    desk.choosePort();
    desk.pullTheCable();
    return true;
}

std::function<bool(PictureDesk &)> help(const char *button)
{
    return [button](PictureDesk &desk) {
        const bool came = desk.connectToSounder();
        desk.click(button);
        return came && PictureDesk::popup("Information") != nullptr;
    };
}

SounderFaults refusing()
{
    SounderFaults faults;
    faults.refuse = 1;
    return faults;
}

std::vector<Scene> allScenes()
{
    return {
        {"offline", offline, EverySize},
        {"dual", sounding, EverySize},
        {"searching", searching},
        {"high-only", connected, StartSize, SounderFit::HighOnly},
        {"low-only", connected, StartSize, SounderFit::LowOnly},
        {"low-tab", lowFrequency},
        {"manual", manual},
        {"channel-off", channelOff},
        {"imperial", imperial},
        {"kestrola", kestrola},
        {"refused", refused, StartSize, SounderFit::Dual, refusing()},
        {"unsent", unsent, StartSize, SounderFit::Dual, refusing()},
        {"lost", lost},
        {"footer-hidden", footerHidden},
        {"graph-metres", graph, OwnSize, SounderFit::Dual, {}, "Depth Graph", false},
        {"graph-feet", graphInFeet, OwnSize, SounderFit::Dual, {}, "Depth Graph", false},
        {"help-short", help("highEnableInfo"), OwnSize, SounderFit::Dual, {}, "Information"},
        {"list-open", listOpen, OwnSize, SounderFit::Dual, {}, untitled},
        {"focus-ring", focusRing},
        {"tooltip-range", tooltip("highDraft"), OwnSize, SounderFit::Dual, {}, untitled},
        {"tooltip-locked", tooltip("highGainUp"), OwnSize, SounderFit::Dual, {}, untitled},
        {"box-reset", sounding, OwnSize, SounderFit::Dual, {}, nullptr, true, "resetSettings"},
        {"box-port", portGone, OwnSize, SounderFit::Dual, {}, nullptr, true, "connectToDevice"},
        {"help-long", help("commonSettingsInfo"), OwnSize, SounderFit::Dual, {}, "Information"},
    };
}

/// A scene that the manual shows, and what its picture is called there.
struct ManualPicture
{
    const char *scene;
    const char *file;
};

constexpr ManualPicture manualPictures[] = {
    {"offline", "not-connected.png"},
    {"searching", "searching.png"},
    {"dual", "main-window.png"},
    {"manual", "manual-mode.png"},
    {"unsent", "marks.png"},
    {"lost", "grey-depths.png"},
    {"graph-metres", "depth-graph.png"},
    {"help-short", "help.png"},
    {"box-reset", "box-reset.png"},
    {"box-port", "box-port.png"},
    {"desk", "desk.png"}, // of the README
};

/// Null if the manual does not show the scene.
const char *fileInManual(const QString &scene)
{
    for (const ManualPicture &picture : manualPictures) {
        if (scene == QLatin1String(picture.scene)) {
            return picture.file;
        }
    }
    return nullptr;
}

QString fileName(const QWidget &shown, const QString &name, PictureChoice choice)
{
    if (choice == PictureChoice::Manual) {
        return fileInManual(name);
    }
    return QString("%1-%2x%3-%4x.png")
        .arg(name)
        .arg(shown.width())
        .arg(shown.height())
        .arg(QString::number(qApp->devicePixelRatio(), 'g', 3));
}

/// Where the pictures go, and which of them.
struct Order
{
    const QDir &folder;
    PictureChoice choice;
};

bool save(QWidget *shown, const Order &order, const QString &name)
{
    const QString file = fileName(*shown, name, order.choice);
    const bool saved = shown->grab().save(order.folder.filePath(file));
    QTextStream(stdout) << (saved ? "" : "Could not write ") << file << '\n';
    return saved;
}

void giveSize(QWidget &window, QSize size)
{
    window.resize(size);
    if (!QTest::qWaitFor([&window, size] { return window.windowHandle()->size() == size; })) {
        QTextStream(stderr) << "The window does not become " << size.width() << " wide\n";
    }
    QCoreApplication::sendPostedEvents();
    QCoreApplication::processEvents();
}

/// A window that scrolls is shown at both its ends.
bool takeWindow(PictureDesk &desk, QSize size, const Order &order, const QString &name)
{
    giveSize(desk.mainWindow(), size);
    QScrollBar *const bar =
        desk.mainWindow().findChild<QScrollArea *>("scrollArea")->verticalScrollBar();
    bar->setValue(bar->minimum());
    bool taken = save(&desk.mainWindow(), order, name);
    if (bar->maximum() > bar->minimum() && order.choice != PictureChoice::Manual) {
        bar->setValue(bar->maximum());
        taken = save(&desk.mainWindow(), order, name + "-end") && taken;
    }
    return taken;
}

SounderOptions optionsFor(const Scene &scene)
{
    SounderOptions options;
    options.rate = 9600;
    options.fit = scene.fit;
    options.faults = scene.faults;
    options.format = Odom; // it carries both depths
    options.seed = livelySeabed;
    options.soundings = scene.soundings;
    return options;
}

bool isTakenIn(const Scene &scene, QSize size, PictureChoice choice)
{
    const bool everySize = choice == PictureChoice::All ||
                           (choice != PictureChoice::Manual && scene.extent == EverySize);
    return everySize || size == sizes[0];
}

bool take(const Scene &scene, const Order &order)
{
    PictureDesk desk(optionsFor(scene));
    desk.showTab(highTab);
    bool good = scene.arrange(desk);
    if (!good) {
        QTextStream(stderr) << scene.name << ": waited in vain\n";
    }
    if (scene.button != nullptr) {
        bool saved = false;
        const auto look = [&](QWidget &box) { saved = save(&box, order, scene.name); };
        return good && desk.clickForBox(scene.button, look) && saved;
    }
    if (scene.extent == OwnSize) {
        QCoreApplication::processEvents();
        return good && save(PictureDesk::popup(scene.title), order, scene.name);
    }
    for (const QSize size : sizes) {
        if (isTakenIn(scene, size, order.choice)) {
            good = takeWindow(desk, size, order, scene.name) && good;
        }
    }
    return good;
}

bool isWanted(const Scene &scene, PictureChoice choice)
{
    switch (choice) {
    case PictureChoice::Dense:
        return scene.extent != StartSize;
    case PictureChoice::Manual:
        return fileInManual(scene.name) != nullptr;
    case PictureChoice::Usual:
    case PictureChoice::All:
        break;
    }
    return true;
}

} // namespace

int takePictures(const QDir &folder, PictureChoice choice)
{
    int failures = 0;
    for (const Scene &scene : allScenes()) {
        if (isWanted(scene, choice)) {
            failures += take(scene, {folder, choice}) ? 0 : 1;
        }
    }
    if (choice == PictureChoice::Manual) {
        const QString file = fileInManual("desk");
        failures += takeDeskPicture(folder.filePath(file)) ? 0 : 1;
        QTextStream(stdout) << file << '\n';
    }
    return failures;
}
