// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#ifndef FOCUSRING_H
#define FOCUSRING_H

#include <QObject>
#include <QPointer>
#include <QWidget>

class QFocusEvent;

/// Shows an operator who works with the keyboard where it is: a ring around the control that has
/// the focus, in every window of the program. The images and style sheets of the controls show
/// none. The ring comes with the first focus after Tab, Shift+Tab, an arrow key or a key with Alt,
/// stays until the mouse is pressed, and is not there while the focus is in a popup list.
///
/// Qt's QFocusFrame would draw one colour. The forms have white, grey, light blue and dark blue
/// ground, and no colour stands out from all of them: this ring is a dark line between two white
/// ones.
class FocusRing : public QObject
{
    Q_OBJECT

public:
    /// Watches the whole program from now on. `parent` is the application object or lives as long.
    explicit FocusRing(QObject *parent);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void enter(QWidget *widget, const QFocusEvent &event);
    void follow();
    void leave();

    bool keyboardLeads = false; ///< a key of navigation came after the last press of the mouse
    QPointer<QWidget> control;  ///< that which the ring is around, if any
    QPointer<QWidget> frame;    ///< dies with the window in which it stands
};

/// What the ring is drawn with: a widget that the mouse passes through, which takes no focus and
/// stands in no layout.
class FocusRingFrame : public QWidget
{
    Q_OBJECT

public:
    /// By how much it surrounds the control on every side, in device-independent pixels.
    static constexpr int reach = 4;

    explicit FocusRingFrame(QWidget *parent);

protected:
    void paintEvent(QPaintEvent *event) override;
};

#endif // FOCUSRING_H
