// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#ifndef SOUNDSPEED_H
#define SOUNDSPEED_H

#include <cmath>

/// The speed of sound in water, in m/s, by formulas from the literature. Temperatures are in °C,
/// salinities in parts in a thousand, depths in metres.
namespace SoundSpeed {

/// H. Medwin, "Speed of sound in water: A simple equation for realistic parameters", J. Acoust.
/// Soc. Am. 58, 1318 (1975): 0 to 35 °C, 0 to 45, 0 to 1000 m. It reaches down to fresh water, so
/// the manual's tables are made by it.
inline double medwin(double temperature, double salinity, double depth)
{
    return 1449.2 + 4.6 * temperature - 0.055 * std::pow(temperature, 2) +
           0.00029 * std::pow(temperature, 3) + (1.34 - 0.010 * temperature) * (salinity - 35) +
           0.016 * depth;
}

/// The same as the manual writes it.
constexpr char medwinInWords[] = "*c* = 1449.2 + 4.6 *T* − 0.055 *T*² + 0.00029 *T*³ + "
                                 "(1.34 − 0.010 *T*) (*S* − 35) + 0.016 *z*";

/// K. V. Mackenzie, "Nine-term equation for sound speed in the oceans", J. Acoust. Soc. Am. 70, 807
/// (1981): 2 to 30 °C, 25 to 40, 0 to 8000 m. A second opinion on the first one.
inline double mackenzie(double temperature, double salinity, double depth)
{
    return 1448.96 + 4.591 * temperature - 5.304e-2 * std::pow(temperature, 2) +
           2.374e-4 * std::pow(temperature, 3) + 1.340 * (salinity - 35) + 1.630e-2 * depth +
           1.675e-7 * std::pow(depth, 2) - 1.025e-2 * temperature * (salinity - 35) -
           7.139e-13 * temperature * std::pow(depth, 3);
}

} // namespace SoundSpeed

#endif // SOUNDSPEED_H
