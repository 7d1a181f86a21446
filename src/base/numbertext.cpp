// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "numbertext.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace NumberText {

float toFloat(const QString &text)
{
    bool isNumber = false;
    const float number = text.toFloat(&isNumber);
    return isNumber && std::isfinite(number) ? number : 0.0F;
}

double toDouble(const QString &text)
{
    bool isFloat = false;
    const float narrow = text.toFloat(&isFloat);
    return isFloat && std::isfinite(narrow) ? text.toDouble() : 0.0;
}

int toInt(const QString &text)
{
    return text.toInt(); // base 10; 0 when it does not read
}

float finite(double number)
{
    constexpr double greatest = std::numeric_limits<float>::max();
    return std::isnan(number) ? 0.0F : static_cast<float>(std::clamp(number, -greatest, greatest));
}

QString fromFloat(float number)
{
    constexpr int significantDigits = 6;
    return QString::number(static_cast<double>(finite(static_cast<double>(number))), 'g',
                           significantDigits);
}

QString fixed(float number, int decimals)
{
    return QString::number(static_cast<double>(finite(static_cast<double>(number))), 'f', decimals);
}

} // namespace NumberText
