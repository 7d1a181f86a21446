// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#ifndef REPLYVALUES_H
#define REPLYVALUES_H

#include <QChar>
#include <QString>

/// What the values in the sounder's settings reply mean to the operator. Pure functions.
namespace ReplyValues {

/// Millimetres (or mm/s) as metres, or as feet when `imperial`, with so many decimals.
QString inShownUnit(const QString &millimetres, bool imperial, int decimals);

/// A blanking in millimetres as a position of its slider: hundredths of the shown unit.
int blankingPosition(const QString &millimetres, bool imperial);

/// The sounder counts gain from 0 to 100, the operator from 30 to 100 percent.
int gainPercent(const QString &gain);

/// The place in the operator's list of formats, from 0, of the sounder's own number for a format
/// ("1" to "9"); -1 for any other character.
int formatPlace(QChar number);

/// The first character of a value; the null character of an empty one.
QChar letter(const QString &value);

} // namespace ReplyValues

#endif // REPLYVALUES_H
