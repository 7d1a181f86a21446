// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#ifndef PICTUREDESK_H
#define PICTUREDESK_H

#include "mainwindow.h"
#include "ptysounder.h"

#include <functional>

/// The program's window beside a simulated sounder, set up for one picture. Every request that
/// waits answers whether what it waited for has come.
class PictureDesk
{
public:
    explicit PictureDesk(const SounderOptions &options);

    MainWindow &mainWindow() { return window; }
    PtySounder &itsSounder() { return sounder; }

    /// Chooses the sounder's port and this rate.
    void choosePort(const char *rate = "9600");

    /// The same, and presses Connect.
    void pressConnect(const char *rate = "9600");

    /// Connects, and waits until the window has everything that the sounder tells.
    bool connectToSounder();

    void click(const char *name);

    /// Clicks what opens a message box; `look` sees the box before it is closed without an answer.
    /// Answers whether there was one.
    bool clickForBox(const char *name, const std::function<void(QWidget &)> &look);

    /// Rests the pointer on a control until its tooltip is there.
    bool pointAt(const char *name);

    /// Goes on by the Tab key until this control has the keyboard.
    bool tabTo(const char *name);

    /// Nothing is left of the sounder's line.
    void pullTheCable() { sounder.hangUp(); }

    /// Types over what stands in the edit, without Return.
    void type(const char *edit, const char *text);
    void choose(const char *list, const char *entry);
    void showTab(int index);

    /// Opens the list under a combo box; its window has no title.
    bool openList(const char *name);

    /// Opens the graph with as many soundings as it holds; for a live one an operator would have to
    /// wait for minutes. Answers whether the chart has been drawn.
    bool openGraphWithHistory();

    bool infoComesToHold(const char *words);
    bool textComes(const char *label);

    /// The visible window of this title, null if there is none.
    static QWidget *popup(const char *title);

private:
    template <typename Widget>
    Widget *find(const char *name);

    PtySounder sounder;
    Seabed seabed;
    MainWindow window;
};

#endif // PICTUREDESK_H
