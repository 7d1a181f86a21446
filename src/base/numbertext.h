// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#ifndef NUMBERTEXT_H
#define NUMBERTEXT_H

#include <QString>

/// How numbers become text and text becomes numbers, on the wire and on the screen alike. None of
/// it depends on the locale: a sounder reads a point, whatever the operator's country writes.
namespace NumberText {

/// The text as a 32-bit float; blanks around it are allowed. 0 for anything else, including "nan",
/// "inf" and numbers beyond a float's range.
float toFloat(const QString &text);

/// The same in double precision; 0 for a number beyond a float's range, too.
double toDouble(const QString &text);

/// The text as a whole number; blanks around it are allowed. 0 for anything else ("5.5" included).
int toInt(const QString &text);

/// The number as a 32-bit float. What is beyond a float's range becomes its greatest number, and
/// what is no number becomes 0, as an unreadable text does: an operator can do nothing with "inf".
float finite(double number);

/// The number with up to six significant digits ("0.3048", "1500").
QString fromFloat(float number);

/// The number in fixed notation with this many decimals ("1.48"); made finite first, here and
/// above.
QString fixed(float number, int decimals);

} // namespace NumberText

#endif // NUMBERTEXT_H
