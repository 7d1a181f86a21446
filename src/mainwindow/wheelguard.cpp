// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "wheelguard.h"

#include <QComboBox>
#include <QEvent>
#include <QSlider>

WheelGuard::WheelGuard(QWidget *form)
    : QObject(form)
{
    const QList<QSlider *> sliders = form->findChildren<QSlider *>();
    for (QSlider *slider : sliders) {
        guard(slider);
    }
    const QList<QComboBox *> lists = form->findChildren<QComboBox *>();
    for (QComboBox *list : lists) {
        guard(list);
    }
}

void WheelGuard::guard(QWidget *control)
{
    control->setFocusPolicy(Qt::StrongFocus);
    control->installEventFilter(this);
}

/// An ignored wheel event goes on to the parents, up to the scroll area.
bool WheelGuard::eventFilter(QObject *watched, QEvent *event)
{
    const auto *const control = qobject_cast<QWidget *>(watched);
    if (event->type() != QEvent::Wheel || control == nullptr || control->hasFocus()) {
        return QObject::eventFilter(watched, event);
    }
    event->ignore();
    return true;
}
