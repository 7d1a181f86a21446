// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#ifndef REPLYVALUES_H
#define REPLYVALUES_H

#include <QChar>
#include <QString>

struct OutputFormat;

/// What the values in the sounder's settings reply mean to the operator. Pure functions.
namespace ReplyValues {

/// Millimetres (or mm/s) as metres, or as feet when `imperial`, with so many decimals.
QString inShownUnit(const QString &millimetres, bool imperial, int decimals);

/// A blanking in millimetres as a position of its slider: hundredths of the shown unit.
int blankingPosition(const QString &millimetres, bool imperial);

/// The sounder counts gain from 0 to 100, the operator from 30 to 100 percent.
int gainPercent(const QString &gain);

/// The format by whose number the value begins ("3", "9"), the longest if several do; nullptr if
/// none does.
const OutputFormat *format(const QString &value);

/// The first character of a value; the null character of an empty one.
QChar letter(const QString &value);

} // namespace ReplyValues

#endif // REPLYVALUES_H
