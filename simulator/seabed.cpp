// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "seabed.h"

#include <cmath>

namespace {

/// Each kind of chance has its own stream of numbers.
enum Layer : quint32 {
    LongSlope,
    ShortSlope,
    Rocks,
    Mud,
    MudDepth,
    HighJitter,
    LowJitter,
    HighLoss,
    LowLoss,
};

constexpr double pi = 3.14159265358979323846;

/// Mixes the bits of a number until neighbours have nothing in common (the finisher of SplitMix64).
quint64 mixed(quint64 bits)
{
    bits += 0x9E3779B97F4A7C15U;
    bits = (bits ^ (bits >> 30U)) * 0xBF58476D1CE4E5B9U;
    bits = (bits ^ (bits >> 27U)) * 0x94D049BB133111EBU;
    return bits ^ (bits >> 31U);
}

qint64 cellOf(double position) { return static_cast<qint64>(std::floor(position)); }

} // namespace

Seabed::Seabed(quint32 seed)
    : key(seed)
{}

DepthPair Seabed::depthsAt(double seconds) const
{
    constexpr double highRock = 1.6; // the wide low beam blurs a rock, the narrow high one does not
    constexpr double lowRock = 1.2;
    constexpr double jitterM = 0.03;
    const double rock = patch(Rocks, seconds / 9, 0.3);
    const qint64 ping = cellOf(seconds * 1000);

    DepthPair depths;
    if (!isLost(HighLoss, seconds)) {
        depths.high = slope(seconds) - highRock * rock + jitterM * random(HighJitter, ping);
    }
    if (!isLost(LowLoss, seconds)) {
        depths.low =
            slope(seconds) - lowRock * rock + mud(seconds) + jitterM * random(LowJitter, ping);
    }
    return depths;
}

/// A smooth random curve between -1 and 1 with a turn at about every whole position.
double Seabed::noise(quint32 layer, double position) const
{
    const qint64 cell = cellOf(position);
    const double part = position - std::floor(position);
    const double weight = part * part * (3 - 2 * part);
    const double value = random(layer, cell) * (1 - weight) + random(layer, cell + 1) * weight;
    return 2 * value - 1;
}

/// A bump from 0 to 1 and back in this share of the whole positions, 0 in the others.
double Seabed::patch(quint32 layer, double position, double share) const
{
    if (random(layer, cellOf(position)) >= share) {
        return 0;
    }
    const double wave = std::sin(pi * (position - std::floor(position)));
    return wave * wave;
}

/// From 0 up to 1, the same again for the same layer and cell.
double Seabed::random(quint32 layer, qint64 cell) const
{
    constexpr double span = 9007199254740992.0; // 2 to the 53rd: the digits of a double
    const quint64 stream = mixed((static_cast<quint64>(key) << 32U) | layer);
    return static_cast<double>(mixed(stream ^ static_cast<quint64>(cell)) >> 11U) / span;
}

double Seabed::slope(double seconds) const
{
    return 14 + 6 * noise(LongSlope, seconds / 60) + 2 * noise(ShortSlope, seconds / 17);
}

double Seabed::mud(double seconds) const
{
    const double thickness = 0.4 + 0.8 * random(MudDepth, cellOf(seconds / 20));
    return thickness * patch(Mud, seconds / 20, 0.4);
}

bool Seabed::isLost(quint32 layer, double seconds) const
{
    constexpr double stretchS = 0.6;
    constexpr double share = 0.015;
    return random(layer, cellOf(seconds / stretchS)) < share;
}
