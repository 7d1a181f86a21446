// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#ifndef SOUNDERSETTINGS_H
#define SOUNDERSETTINGS_H

#include "sounderoptions.h"

#include <QByteArray>
#include <QByteArrayList>

#include <optional>

/// What the device holds for one channel, in the units of the wire.
struct ChannelSettings
{
    char mode = 'a';      ///< 's' shallow, 'a' auto, 'm' manual
    int gain = 64;        ///< 0 to 100, the device's own scale
    char tvg = 'T';       ///< 'N' off, 'T' Log 10, 'W' Log 20
    int blankingMm = 450; ///< nothing is seen nearer than this
    int draftMm = 400;    ///< depth of the transducer below the surface
    int indexMm = 0;      ///< a constant added to each depth
    int pulse = 16;       ///< cycles, 1 to 100
    int detect = 50;      ///< threshold in percent, 1 to 100
    int freqKHz = 200;    ///< 190 to 210, low channel 30 to 36

    bool operator==(const ChannelSettings &other) const;
    bool operator!=(const ChannelSettings &other) const { return !(*this == other); }
};

/// Everything that the device holds. The values of a new object are the factory's for a dual unit,
/// except for the low channel, which factorySettings() fills.
struct SounderSettings
{
    int pings = 5;             ///< a second, 1 to 10
    int velocityMmS = 1500000; ///< 1300 to 1750 m/s
    int maxDepthMm = 30000;    ///< 3 to 100 m
    int format = 3;            ///< see depthformats.h
    int rate = 9600;           ///< bits a second
    bool highOn = true;
    bool lowOn = true;
    ChannelSettings high;
    ChannelSettings low;

    ChannelSettings &channel(SounderChannel which);
    const ChannelSettings &channel(SounderChannel which) const;
    bool isOn(SounderChannel which) const;

    bool operator==(const SounderSettings &other) const;
    bool operator!=(const SounderSettings &other) const { return !(*this == other); }
};

/// As a unit leaves the factory; a channel that it lacks is off.
SounderSettings factorySettings(SounderFit fit);

/// The rates at which a line to the device can run, slowest first.
const QList<int> &lineRates();

enum class SetResult { Done, Refused, Unknown };

/// Carries out one eight-character set, enable or disable command ("*o00450H", "*bHHHHHHH").
/// Refused: a value out of the device's range or badly written, a channel command without "H" or
/// "L" in the eighth place or for a channel that the unit lacks, or a ping rate or maximum depth
/// whose echoes would overlap (pings × 2 × depth ÷ velocity above 1). Unknown: no set command.
/// Unless it is Done, `settings` stays as it was.
SetResult applySetCommand(const QByteArray &command, SounderFit fit, SounderSettings &settings);

/// The answer to the settings request: the common line, then a line for each channel of the unit
/// ("*i5,v1500000,…", "*Hca,Hg064,…"), without line ends.
QByteArrayList settingsReply(const SounderSettings &settings, SounderFit fit);

/// Reads lines as settingsReply() writes them. Nothing if a line is missing, misspelt or holds a
/// value that the device would refuse.
std::optional<SounderSettings> readSettingsReply(const QByteArrayList &lines, SounderFit fit);

#endif // SOUNDERSETTINGS_H
