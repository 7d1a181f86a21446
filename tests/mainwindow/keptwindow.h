// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#ifndef KEPTWINDOW_H
#define KEPTWINDOW_H

#include "mainwindow.h"

#include <QPointer>
#include <QVariant>

#include <memory>
#include <vector>

/// A window that serves one bench after another. To make, style and show one takes 100 to 200 ms of
/// processor time, many times what most tests take; to bring it back to its beginning takes a few.
/// `tst_keptwindow` holds it to that. Only what the depth graph has been told, and which unit was
/// connected last, has no way back: tests of those ask for a NewWindow.
class KeptWindow
{
public:
    /// The window that the last bench left, as it was at its beginning; a new one if there is none.
    /// It lists these ports.
    static std::unique_ptr<KeptWindow> take(PortLister ports);

    /// From here on there is none.
    static void forget();

    /// For the next bench, disconnected and at its beginning. After a failed test, whose window may
    /// be in any state, and beside another one it is thrown away, as all are if
    /// TALVERO_NEW_WINDOWS is set in the environment.
    static void leave(std::unique_ptr<KeptWindow> window);

    MainWindow &window() { return *shown; }

private:
    struct Noted
    {
        QPointer<QObject> object;
        const char *property;
        QVariant value;
    };

    explicit KeptWindow(PortLister ports);

    void show();
    void note();
    void startOver();
    void disconnectFromDevice();
    void restoreStates();
    void restoreSettings();
    void restoreLook();
    void restoreValues();
    void restoreFocus();

    PortLister lister;
    std::unique_ptr<MainWindow> shown;
    Settings *settings = nullptr;
    std::vector<Noted> values;
    std::vector<std::pair<QString, QString>> stored; ///< the settings' keys and values
    QPointer<QWidget> focused;
    QSize size;
};

/// A bench made while this lives, or after it, gets a new window.
struct NewWindow
{
    NewWindow() { KeptWindow::forget(); }
};

#endif // KEPTWINDOW_H
