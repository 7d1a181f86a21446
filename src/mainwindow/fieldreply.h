// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#ifndef FIELDREPLY_H
#define FIELDREPLY_H

#include <QString>

struct NumberField;

/// How the value of a piece of the sounder's settings reply is shown in a field. Every function
/// shows lengths and speeds in feet if `imperial`.
namespace FieldReply {

using Show = void (*)(const NumberField &field, const QString &value, bool imperial);

/// The value as it came.
void asItCame(const NumberField &field, const QString &value, bool imperial);

/// A whole number.
void count(const NumberField &field, const QString &value, bool imperial);

/// Millimetres, or millimetres a second.
void thousandths(const NumberField &field, const QString &value, bool imperial);

/// Millimetres, in an edit and on a slider.
void blanking(const NumberField &field, const QString &value, bool imperial);

/// The sounder's gain of 0 to 100 as the operator's percent, on a slider.
void gain(const NumberField &field, const QString &value, bool imperial);

/// Pulse cycles as they came, on a slider.
void pulse(const NumberField &field, const QString &value, bool imperial);

/// A detection level in percent, on a slider.
void detection(const NumberField &field, const QString &value, bool imperial);

} // namespace FieldReply

#endif // FIELDREPLY_H
