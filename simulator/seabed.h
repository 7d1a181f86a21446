// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#ifndef SEABED_H
#define SEABED_H

#include "depthformats.h"

/// A sea bed that a boat crosses: a slope, rocks, patches of soft mud that the low frequency looks
/// into, and short losses of the bottom. It is a function of the seed and the time alone, the same
/// on every machine and however often it is asked.
class Seabed
{
public:
    explicit Seabed(quint32 seed);

    /// What the two channels measure below the transducer at this time, in metres between 4 and 24;
    /// a channel without a value has lost the bottom.
    DepthPair depthsAt(double seconds) const;

private:
    double noise(quint32 layer, double position) const;
    double patch(quint32 layer, double position, double share) const;
    double random(quint32 layer, qint64 cell) const;
    double slope(double seconds) const;
    double mud(double seconds) const;
    bool isLost(quint32 layer, double seconds) const;

    quint32 key;
};

#endif // SEABED_H
