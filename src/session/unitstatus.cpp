// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "unitstatus.h"

#include "numbertext.h"
#include "protocol.h"

#include <cmath>

namespace {

constexpr double freezingPoint = 273.15; ///< of water, in kelvin
constexpr QChar degreeSign(0x00B0);

double reportedNumber(const QString &line)
{
    return NumberText::toDouble(Protocol::blankSeparatedItem(line, 1));
}

/// In single precision, as far as its range goes.
float fahrenheit(float celsius)
{
    const float degrees = celsius * 9.0F / 5.0F + 32.0F;
    return std::isfinite(degrees)
               ? degrees
               : NumberText::finite(static_cast<double>(celsius) * 9.0 / 5.0 + 32.0);
}

} // namespace

namespace UnitStatus {

QString temperatureText(const QString &line, bool imperial)
{
    auto degrees = static_cast<float>(reportedNumber(line) - freezingPoint);
    if (imperial) {
        degrees = fahrenheit(degrees);
    }
    return "TAL-VERO Temperature : " + NumberText::fixed(degrees, 0) + degreeSign +
           (imperial ? "F" : "C");
}

QString voltageText(const QString &line)
{
    return "Power Supply Voltage : " + QString::number(reportedNumber(line), 'f', 2) + "V";
}

} // namespace UnitStatus
