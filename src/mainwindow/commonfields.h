// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#ifndef COMMONFIELDS_H
#define COMMONFIELDS_H

#include "numberfield.h"

#include <QList>

class QComboBox;

/// The settings that both channels share, on the form.
struct CommonFields
{
    /// Gathers them from the form. One that is not there ends the program with its name.
    explicit CommonFields(const QWidget &form);

    /// The controls that show this setting's value; none if the setting is none of these.
    QList<QWidget *> controlsOf(const SettingSpec &setting) const;

    bool formatFixesOptions = false; ///< the chosen output format fixes rate, modes and gain law

    NumberField pings;
    NumberField velocity;
    NumberField maxDepth;
    QComboBox *format;
    QComboBox *deviceRate;
};

#endif // COMMONFIELDS_H
