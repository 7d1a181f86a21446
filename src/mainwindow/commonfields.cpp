// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "commonfields.h"

#include "formwidgets.h"

#include <QComboBox>

CommonFields::CommonFields(const QWidget &form)
    : pings(fieldOnForm(form, {"Ping", "pingEdit", {}, {}, FieldReply::asItCame}))
    , velocity(
          fieldOnForm(form, {"Velocity", "soundVelocityEdit", {}, {}, FieldReply::thousandths}))
    , maxDepth(fieldOnForm(form, {"Depth", "maxDepthEdit", {}, {}, FieldReply::thousandths}))
    , format(widgetOnForm<QComboBox>(form, "formatComboBox"))
    , deviceRate(widgetOnForm<QComboBox>(form, "newBaudComboBox"))
{}

QList<QWidget *> CommonFields::controlsOf(const SettingSpec &setting) const
{
    for (const NumberField *field : {&pings, &velocity, &maxDepth}) {
        if (field->setting == &setting) {
            return {field->marked()};
        }
    }
    if (setting.key == QLatin1String("format")) {
        return {format};
    }
    return setting.key == QLatin1String("baud") ? QList<QWidget *>{deviceRate} : QList<QWidget *>();
}
