// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "replyvalues.h"

#include "numbertext.h"
#include "outputformat.h"
#include "units.h"

#include <cmath>
#include <limits>

namespace {

constexpr double millimetresPerMetre = 1000.0;

double thousandths(const QString &millimetres, bool imperial)
{
    return NumberText::toInt(millimetres) * (imperial ? Units::feetPerMetre : 1.0);
}

} // namespace

namespace ReplyValues {

QString inShownUnit(const QString &millimetres, bool imperial, int decimals)
{
    return QString::number(thousandths(millimetres, imperial) / millimetresPerMetre, 'f', decimals);
}

int blankingPosition(const QString &millimetres, bool imperial)
{
    using Limits = std::numeric_limits<int>;
    constexpr int thousandthsPerPosition = 10;
    const double held =
        qBound<double>(Limits::min(), thousandths(millimetres, imperial), Limits::max());
    return static_cast<int>(held) / thousandthsPerPosition;
}

int gainPercent(const QString &gain)
{
    constexpr double span = 70.0;
    constexpr double lowest = 30.0;
    constexpr double toNearest = 0.5;
    const double percent = NumberText::toInt(gain) * span / 100.0 + lowest;
    return static_cast<int>(std::trunc(percent + toNearest));
}

const OutputFormat *format(const QString &value)
{
    const OutputFormat *longest = nullptr;
    for (const OutputFormat &known : OutputFormats::all()) {
        const bool isLonger = !longest || known.deviceNumber > longest->deviceNumber;
        if (isLonger && value.startsWith(QString::number(known.deviceNumber))) {
            longest = &known;
        }
    }
    return longest;
}

QChar letter(const QString &value) { return value.isEmpty() ? QChar() : value.at(0); }

} // namespace ReplyValues
