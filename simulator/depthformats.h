// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#ifndef DEPTHFORMATS_H
#define DEPTHFORMATS_H

#include "sounderoptions.h"

#include <QByteArrayList>

#include <optional>

/// One sounding in metres. A channel without a depth is switched off or has lost the bottom.
struct DepthPair
{
    std::optional<double> high;
    std::optional<double> low;
};

/// The device's numbers of its output formats, as its set command and its settings reply carry
/// them. They need not follow each other.
enum DepthFormat {
    Odom = 1,
    NmeaDbt,
    NmeaDbs,
    Orvando,
    Deso25,
    Kestrola,
    SonarmiteOld,
    SonarmiteNew,
    SonarmiteDual,
};

namespace DepthFormats {

/// The digits of the longest number: a set command has no more.
inline constexpr int mostDigits = 1;

/// "ODOM", "NMEA DBT", … in the order of the device's numbers.
const QStringList &names();

/// Whether a format has this number.
bool isKnown(int number);

/// The number of a format name, whatever its letter case; 0 if there is none.
int number(const QString &name);

/// The lines that carry this sounding, without line ends; none if the format says nothing about a
/// sounding without depths. A format with room for one depth only carries that of `single`. Depths
/// are written in centimetres or with two decimals; below 0 and from 100 m on they count as none,
/// since ODOM's readers see four digits.
QByteArrayList lines(int format, const DepthPair &depths,
                     SounderChannel single = SounderChannel::High);

} // namespace DepthFormats

#endif // DEPTHFORMATS_H
