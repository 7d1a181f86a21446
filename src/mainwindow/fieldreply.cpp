// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "fieldreply.h"

#include "foreigntext.h"
#include "numberfield.h"
#include "numbertext.h"
#include "replyvalues.h"

#include <QLabel>
#include <QLineEdit>
#include <QSlider>

namespace FieldReply {

void asItCame(const NumberField &field, const QString &value, bool /*imperial*/)
{
    field.edit->setText(ForeignText::shown(value));
}

void count(const NumberField &field, const QString &value, bool /*imperial*/)
{
    field.edit->setText(QString::number(NumberText::toInt(value)));
}

void thousandths(const NumberField &field, const QString &value, bool imperial)
{
    field.edit->setText(ReplyValues::inShownUnit(value, imperial, field.setting->decimals));
}

void blanking(const NumberField &field, const QString &value, bool imperial)
{
    field.slider->setValue(ReplyValues::blankingPosition(value, imperial));
    field.showWithUnit(ReplyValues::inShownUnit(value, imperial, field.setting->decimals),
                       imperial);
}

void gain(const NumberField &field, const QString &value, bool imperial)
{
    const int percent = ReplyValues::gainPercent(value);
    field.value->setText(QString::number(percent) + field.setting->suffix(imperial));
    field.slider->setValue(percent);
}

void pulse(const NumberField &field, const QString &value, bool /*imperial*/)
{
    field.value->setText(ForeignText::shown(value));
    field.slider->setValue(NumberText::toInt(value));
}

void detection(const NumberField &field, const QString &value, bool imperial)
{
    const int level = NumberText::toInt(value);
    field.value->setText(NumberText::fromFloat(static_cast<float>(level)) +
                         field.setting->suffix(imperial));
    field.slider->setValue(level);
}

} // namespace FieldReply
