// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#ifndef UNITS_H
#define UNITS_H

#include <algorithm>
#include <limits>

/// Metric values are kept, imperial ones only shown and typed. One factor serves every length and
/// the sound velocity. The arithmetic is done in double precision and narrowed to a 32-bit float.
namespace Units {

/// Feet in a metre.
constexpr double feetPerMetre = 3.28084;

/// A metric value (m or m/s) in the unit that the window shows: feet when `imperial`, else
/// unchanged. What no float holds in feet is shown as the greatest number that one holds.
constexpr float shown(float metric, bool imperial)
{
    constexpr double greatest = std::numeric_limits<float>::max();
    return imperial ? static_cast<float>(std::clamp(static_cast<double>(metric) * feetPerMetre,
                                                    -greatest, greatest))
                    : metric;
}

/// A value in the shown unit as metric: divided by the factor when `imperial`, else unchanged.
constexpr float metric(float shownValue, bool imperial)
{
    return imperial ? static_cast<float>(static_cast<double>(shownValue) / feetPerMetre)
                    : shownValue;
}

} // namespace Units

#endif // UNITS_H
