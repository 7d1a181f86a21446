// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#ifndef WINDOWBENCH_H
#define WINDOWBENCH_H

#include "keptwindow.h"
#include "ptysounder.h"

#include <QStringList>
#include <QTimer>

class QComboBox;

/// The real window beside a simulated sounder on a real pseudo-terminal, with an operator's hands:
/// clicks and keys go to the widgets, and what is asked is what the operator sees. The sounder is a
/// new one each time; the window comes from the bench before, back at its beginning (KeptWindow).
class WindowBench
{
public:
    /// A dual unit at 9600 that sends nothing of its own accord.
    static SounderOptions quietSounder();

    explicit WindowBench(const SounderOptions &options = quietSounder());
    ~WindowBench();

    WindowBench(const WindowBench &) = delete;
    WindowBench &operator=(const WindowBench &) = delete;

    SounderModel &device() { return sounder.model(); }

    /// The widget of this name; the test program ends, naming those that there are, if there is
    /// none.
    template <typename Widget>
    Widget *find(const QString &name)
    {
        auto *const widget = window.findChild<Widget *>(name);
        if (widget == nullptr) {
            reportMissing(name);
        }
        return widget;
    }

    /// The timer of the window ("infoTimer") by its name.
    QTimer *timer(const QString &name) { return find<QTimer>(name); }

    /// A left click in the middle of the widget.
    void click(const QString &name);

    /// Selects the list's text and types this over it; Return ends the entry.
    void type(const QString &edit, const QString &text);

    /// Chooses an entry as the operator does: it must be in the list.
    void choose(const QString &comboBox, const QString &entry);

    /// The texts that the operator sees (of labels, edits, buttons and lists).
    QString text(const QString &name);

    /// The info line without its mark-up.
    QString info();

    /// The info line's colour word ("black", "Green", "Red").
    QString infoColour();

    bool isEnabled(const QString &name) { return find<QWidget>(name)->isEnabled(); }
    bool isChecked(const QString &name);

    /// Chooses the sounder's port and this rate and presses Connect.
    void pressConnect(const QString &rate = QStringLiteral("9600"));

    /// Connects and waits until everything that the sounder tells has arrived; false if it does
    /// not.
    bool connectToSounder(const QString &rate = QStringLiteral("9600"));

    /// Whether the window shows a connected device.
    bool showsConnected();

    /// From here on the window is not painted, and a new text in its info line does not lay it out
    /// anew. For a walk of thousands of steps that asks only what each of them sends.
    void stopPainting();

    /// The commands that the sounder took, without the requests of every connection and poll.
    QByteArrayList settingCommands();

    /// What the window's list of ports offers; a test may change it at any time.
    QStringList ports;
    int timesListed = 0;
    PtySounder sounder;

private:
    std::unique_ptr<KeptWindow> keptWindow;

public:
    MainWindow &window;

private:
    void watchForForgottenBoxes();

    [[noreturn]] void reportMissing(const QString &name) const;

    QTimer boxWatch;
    const QWidget *boxSeen = nullptr;
};

#endif // WINDOWBENCH_H
