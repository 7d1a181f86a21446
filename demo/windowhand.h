// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#ifndef WINDOWHAND_H
#define WINDOWHAND_H

#include <QString>
#include <QWidget>

/// An operator's hand on a window's form: its controls by their object names, with real clicks and
/// keys. A name that the form does not have ends the program, since whoever wrote it meant one that
/// there is.
class WindowHand
{
public:
    /// The window outlives the hand.
    explicit WindowHand(QWidget &itsWindow)
        : window(itsWindow)
    {}

    /// The child of this name; never null.
    template <typename Widget>
    Widget *find(const QString &name) const
    {
        auto *const widget = window.findChild<Widget *>(name);
        if (widget == nullptr) {
            qFatal("The window has no %s", qPrintable(name));
        }
        return widget;
    }

    /// Clicks a button or an option. Nothing happens to one that cannot be used.
    void click(const QString &name) const;

    /// Opens the page of this index.
    void clickTab(const QString &tabs, int index) const;

    /// Chooses an entry of a list; one that the list does not have empties the choice.
    void choose(const QString &list, const QString &entry) const;

    /// Types over what an edit holds, then Return.
    void type(const QString &edit, const QString &text) const;

    /// The visible window of this title, whoever it belongs to; null if there is none.
    static QWidget *popup(const QString &title);

private:
    QWidget &window;
};

#endif // WINDOWHAND_H
