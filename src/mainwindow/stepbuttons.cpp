// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "stepbuttons.h"

#include "formwidgets.h"
#include "numberfield.h"

#include <QAbstractButton>
#include <QKeyEvent>
#include <QLineEdit>

namespace {

/// By what the form names the buttons: "pingDown" and "pingUp".
StepButtons buttonsNamed(const QWidget &form, const QString &stem)
{
    return {widgetOnForm<QAbstractButton>(form, stem + "Down"),
            widgetOnForm<QAbstractButton>(form, stem + "Up")};
}

bool isStep(const QKeyEvent &key)
{
    const bool isPlain = (key.modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
    return isPlain && (key.key() == Qt::Key_Up || key.key() == Qt::Key_Down);
}

} // namespace

StepButtons stepButtonsOf(const QWidget &form, const QLineEdit &edit)
{
    QString stem = edit.objectName();
    const QLatin1String ending("Edit");
    if (stem.endsWith(ending)) {
        stem.chop(ending.size());
    }
    return buttonsNamed(form, stem);
}

StepButtons stepButtonsOf(const QWidget &form, const NumberField &field)
{
    return field.edit != nullptr ? stepButtonsOf(form, *field.edit)
                                 : buttonsNamed(form, field.setting->key);
}

StepKeys::StepKeys(QWidget *itsForm)
    : QObject(itsForm)
    , form(*itsForm)
{
    const auto edits = form.findChildren<QLineEdit *>();
    for (QLineEdit *edit : edits) {
        edit->installEventFilter(this);
    }
}

/// The form would scroll by these keys otherwise, also where the buttons are locked.
bool StepKeys::eventFilter(QObject *watched, QEvent *event)
{
    const auto *const edit = qobject_cast<QLineEdit *>(watched);
    if (event->type() != QEvent::KeyPress || edit == nullptr) {
        return QObject::eventFilter(watched, event);
    }
    const auto &key = *static_cast<QKeyEvent *>(event);
    if (!isStep(key)) {
        return false;
    }
    const StepButtons buttons = stepButtonsOf(form, *edit);
    (key.key() == Qt::Key_Up ? buttons.up : buttons.down)->click();
    return true;
}
