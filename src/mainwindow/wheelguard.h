// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#ifndef WHEELGUARD_H
#define WHEELGUARD_H

#include <QObject>

class QWidget;

/// Keeps a turn of the mouse wheel from changing a setting by accident. An operator who scrolls the
/// form and passes over a slider or a list must not re-tune the sounder: only the control that has
/// the keyboard focus follows the wheel, any other leaves it to the scroll area around it.
class WheelGuard : public QObject
{
    Q_OBJECT

public:
    /// Guards the sliders and lists (combo boxes) that stand below `form` now, and lets them take
    /// the focus by a click or the Tab key, but not by the wheel. The form owns the guard.
    explicit WheelGuard(QWidget *form);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void guard(QWidget *control);
};

#endif // WHEELGUARD_H
