// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#ifndef STEPBUTTONS_H
#define STEPBUTTONS_H

#include <QObject>
#include <QString>

class QAbstractButton;
class QLineEdit;
class QWidget;
struct NumberField;

/// The two buttons that step a number.
struct StepButtons
{
    QAbstractButton *down;
    QAbstractButton *up;
};

/// Those of an edit. Buttons that are not on the form end the program with their name.
StepButtons stepButtonsOf(const QWidget &form, const QLineEdit &edit);

/// Those of a field, with an edit or without.
StepButtons stepButtonsOf(const QWidget &form, const NumberField &field);

/// Lets Up and Down in an edit step its number as its buttons do: a key that is held steps on, and
/// where the buttons are locked nothing happens.
class StepKeys : public QObject
{
    Q_OBJECT

public:
    /// Listens to every edit of the form, which it belongs to.
    explicit StepKeys(QWidget *form);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    const QWidget &form;
};

#endif // STEPBUTTONS_H
