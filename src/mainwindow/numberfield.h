// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#ifndef NUMBERFIELD_H
#define NUMBERFIELD_H

#include "fieldreply.h"
#include "protocol.h"
#include "settingspec.h"

class QLabel;
class QLineEdit;
class QSlider;
class QString;
class QWidget;

/// A setting's number on the form. It stands in an edit, or on a slider with its value beside it,
/// or (the blanking) in both.
struct NumberField
{
    const SettingSpec *setting = nullptr;
    QLineEdit *edit = nullptr;
    QLabel *value = nullptr;
    QSlider *slider = nullptr;
    FieldReply::Show show = nullptr;

    /// Where a mark of the value stands: on the edit, or beside the slider.
    QWidget *marked() const;

    /// Slider positions in one unit of the value.
    int positionsPerUnit() const { return edit != nullptr ? 100 : 1; }

    /// Shows this text in the edit and, with its unit, beside the slider.
    void showWithUnit(const QString &number, bool imperial) const;

    /// Shows the piece's value if the piece is about this setting; whether it is.
    bool showReply(const Protocol::ReplyPiece &piece, bool imperial) const;
};

/// A field's setting and where its widgets stand on the form, by their names; empty for one that it
/// does not have.
struct NumberFieldNames
{
    QString key;
    QString edit;
    QString value;
    QString slider;
    FieldReply::Show show;
};

/// The field with its widgets. A name that is not on the form, or a key without a setting, ends the
/// program with that name: the form and the program do not belong together.
NumberField fieldOnForm(const QWidget &form, const NumberFieldNames &names);

#endif // NUMBERFIELD_H
