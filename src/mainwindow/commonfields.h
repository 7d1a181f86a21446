// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#ifndef COMMONFIELDS_H
#define COMMONFIELDS_H

#include "numberfield.h"

/// The numbers that both channels share, on the form.
struct CommonFields
{
    /// Gathers them from the form. One that is not there ends the program with its name.
    explicit CommonFields(const QWidget &form)
        : pings(fieldOnForm(form, {"Ping", "pingEdit", {}, {}, FieldReply::asItCame}))
        , velocity(
              fieldOnForm(form, {"Velocity", "soundVelocityEdit", {}, {}, FieldReply::thousandths}))
        , maxDepth(fieldOnForm(form, {"Depth", "maxDepthEdit", {}, {}, FieldReply::thousandths}))
    {}

    NumberField pings;
    NumberField velocity;
    NumberField maxDepth;
};

#endif // COMMONFIELDS_H
