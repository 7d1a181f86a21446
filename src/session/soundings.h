// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#ifndef SOUNDINGS_H
#define SOUNDINGS_H

#include "depthsentence.h"

#include <QString>

#include <optional>

/// What the reading of a sounding depends on besides the sentence.
struct SoundingContext
{
    bool highEnabled = true; ///< the high channel's "Enable" is chosen
    bool lowEnabled = true;  ///< the low channel's
    bool highIsOff = false;  ///< the high channel pings not, for whatever reason
    bool lowIsOff = false;   ///< the low channel
    QString outputFormat;    ///< chosen in the window
    bool imperial = false;
};

/// What a sounding changes in the window.
struct SoundingView
{
    /// One pair of depths for the graph.
    struct Depths
    {
        float high; ///< metres; negative: none; 1000: the channel is off
        float low;
    };

    std::optional<Depths> depths;
    std::optional<QString> highText; ///< of the high channel's label, if it changes
    std::optional<QString> lowText;
};

/// The reading of soundings. Two of the output formats' sentences make one sounding: what the first
/// told is remembered here.
class Soundings
{
public:
    /// Reads one non-empty line that nothing else claims. A line that holds no depth gives an empty
    /// view, or clears what its form says is not there.
    SoundingView parseDepth(const QString &line, const SoundingContext &context);

    /// A made-up sentence, the next point on a pair of slow waves.
    QString nextMadeUp();

private:
    void remember(const DepthSentence::Depths &depths);

    float lastHfDepth = DepthSentence::noDepth;
    float lastLfDepth = DepthSentence::noDepth;
    float madeUp = 0.0F;
};

#endif // SOUNDINGS_H
