// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "numberfield.h"

#include "formwidgets.h"
#include "marks.h"

#include <QLabel>
#include <QLineEdit>
#include <QSlider>

namespace {

template <typename Widget>
void find(Widget *&widget, const QWidget &form, const QString &name)
{
    widget = name.isEmpty() ? nullptr : widgetOnForm<Widget>(form, name);
}

} // namespace

NumberField fieldOnForm(const QWidget &form, const NumberFieldNames &names)
{
    NumberField field;
    field.setting = SettingSpecs::find(names.key);
    if (field.setting == nullptr) {
        qFatal("There is no setting \"%s\"", qPrintable(names.key));
    }
    find(field.edit, form, names.edit);
    find(field.value, form, names.value);
    find(field.slider, form, names.slider);
    if (field.edit != nullptr) {
        Marks::watchTyping(field.edit);
    }
    field.show = names.show;
    return field;
}

QWidget *NumberField::marked() const
{
    return edit != nullptr ? static_cast<QWidget *>(edit) : value;
}

void NumberField::showWithUnit(const QString &number, bool imperial) const
{
    edit->setText(number);
    value->setText(number + setting->suffix(imperial));
}

bool NumberField::showReply(const Protocol::ReplyPiece &piece, bool imperial) const
{
    if (piece.letter != QLatin1Char(setting->replyLetter)) {
        return false;
    }
    show(*this, piece.value, imperial);
    return true;
}
