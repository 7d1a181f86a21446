// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#ifndef KEYHAND_H
#define KEYHAND_H

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractSlider>
#include <QAccessible>
#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QTabBar>
#include <QWindow>
#include <QtTest>

/// An operator with a keyboard, and perhaps a screen reader, but without a mouse.
namespace KeyHand {

/// What the operator can work with in a window, shown or hidden, without the parts of which Qt
/// makes a list that pops up and a tab bar: those are worked with through the whole.
inline QWidgetList interactiveWidgets(const QWidget &window)
{
    const auto isPartOfAnother = [](const QWidget *widget) {
        for (const QWidget *parent = widget->parentWidget(); parent != nullptr;
             parent = parent->parentWidget()) {
            if (qobject_cast<const QAbstractItemView *>(parent) != nullptr ||
                qobject_cast<const QTabBar *>(parent) != nullptr ||
                parent->windowType() == Qt::Popup) {
                return true;
            }
        }
        return false;
    };
    QWidgetList found;
    const QWidgetList widgets = window.findChildren<QWidget *>();
    for (QWidget *widget : widgets) {
        const bool isInteractive = qobject_cast<QAbstractButton *>(widget) != nullptr ||
                                   qobject_cast<QAbstractSlider *>(widget) != nullptr ||
                                   qobject_cast<QLineEdit *>(widget) != nullptr ||
                                   qobject_cast<QComboBox *>(widget) != nullptr ||
                                   qobject_cast<QTabBar *>(widget) != nullptr;
        if (isInteractive && !isPartOfAnother(widget)) {
            found.append(widget);
        }
    }
    return found;
}

/// What a screen reader says of the widget. On Unix Qt hands out a box's choice as its name too;
/// what the box is comes from its label and its description there.
inline QString spoken(QWidget *widget, QAccessible::Text what = QAccessible::Name)
{
    if (what == QAccessible::Name && qobject_cast<QComboBox *>(widget) != nullptr) {
        return widget->accessibleName();
    }
    QAccessibleInterface *const accessible = QAccessible::queryAccessibleInterface(widget);
    return accessible == nullptr ? QString() : accessible->text(what);
}

/// For messages: by what the test's reader finds it in the form.
inline QString nameOf(const QWidget *widget)
{
    if (widget == nullptr) {
        return QStringLiteral("nothing");
    }
    return widget->objectName().isEmpty() ? QString(widget->metaObject()->className())
                                          : widget->objectName();
}

/// Where the keyboard is, by name.
inline QString focused() { return nameOf(QApplication::focusWidget()); }

/// A key goes to the window, as from the window system.
inline void press(const QWidget &window, Qt::Key key, Qt::KeyboardModifiers modifiers = {})
{
    QTest::keyClick(window.windowHandle(), key, modifiers);
}

/// The names of where the focus is, from where it is now on, until `key` has brought it back or
/// has moved it very often.
inline QStringList walk(const QWidget &window, Qt::Key key, Qt::KeyboardModifiers modifiers = {})
{
    constexpr int patience = 300;
    QStringList stops{focused()};
    while (stops.size() < patience) {
        press(window, key, modifiers);
        if (focused() == stops.first()) {
            break;
        }
        stops.append(focused());
    }
    return stops;
}

} // namespace KeyHand

#endif // KEYHAND_H
