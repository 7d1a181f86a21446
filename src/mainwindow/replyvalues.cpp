// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "replyvalues.h"

#include "numbertext.h"
#include "units.h"

#include <cmath>
#include <iterator>
#include <limits>

namespace {

constexpr double millimetresPerMetre = 1000.0;

/// In the order of the sounder's numbers, which is not the order of the operator's list.
constexpr int formatPlaces[] = {4, 2, 1, 0, 3, 5, 6, 7, 8};

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

int formatPlace(QChar number)
{
    const int index = number.unicode() - '1';
    const bool known = index >= 0 && index < static_cast<int>(std::size(formatPlaces));
    return known ? formatPlaces[index] : -1;
}

QChar letter(const QString &value) { return value.isEmpty() ? QChar() : value.at(0); }

} // namespace ReplyValues
