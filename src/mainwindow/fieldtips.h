// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#ifndef FIELDTIPS_H
#define FIELDTIPS_H

#include <QString>

struct NumberField;

/// What an edit tells under the pointer: the range that is accepted, in the unit shown ("From 0.30
/// to 10.00 m").
QString rangeToolTip(const NumberField &field, bool imperial);

/// What the step buttons tell: the range within which they step. Beside a slider they stop at its
/// ends.
QString stepToolTip(const NumberField &field, bool imperial);

/// A text that a device or the system gave, for a tooltip that shows it as it is: what looks like
/// mark-up would otherwise be obeyed.
QString literalToolTip(const QString &text);

#endif // FIELDTIPS_H
