// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#ifndef DEPTHSENTENCE_H
#define DEPTHSENTENCE_H

#include <QString>

/// Reads depths out of the sentences that an echo sounder sends. The sentence forms of the nine
/// output formats are told apart by fixed words; nothing announces which one is coming. Pure
/// functions.
namespace DepthSentence {

/// "No depth in this sentence for this channel"; any negative depth means the same.
constexpr float noDepth = -1.0F;

/// The form in which a sentence was recognised.
enum class Form {
    Kestrola,      ///< "-94"/"-95" marks, centimetres
    Odom,          ///< " et", both channels, centimetres
    Orvando,       ///< " ,", both channels, centimetres
    Nmea,          ///< "$SDDBT"/"$SDDBS" (NMEA 0183), one channel, metres
    DesoHigh,      ///< "DA", high channel of a pair of sentences, metres
    DesoLow,       ///< "DB", low channel of a pair of sentences, metres
    SingleLow,     ///< "e" and five digits, low channel only, centimetres
    SonarmiteHigh, ///< blank-separated items, high channel only, metres
    SonarmiteDual, ///< blank-separated items, both channels, metres
    Unknown,
};

/// What the reading of a sentence may depend on besides the sentence.
struct Context
{
    /// The unit sends its low channel in NMEA sentences (the high one is switched off there).
    bool nmeaCarriesLow = false;
    /// The output format chosen in the window; it alone tells the SONARMITE formats apart.
    QString outputFormat;
    /// The channels of the last "DA" and "DB" sentence, in metres: each carries one of the pair.
    float lastHigh = noDepth;
    float lastLow = noDepth;
};

/// A channel whose shown depth a sentence empties by its form alone, whatever number it carries.
enum class Emptied { None, High, Low };

/// Depths in metres; negative where the sentence holds none. A number that does not read counts
/// as 0.
struct Depths
{
    Form form = Form::Unknown;
    float high = noDepth;
    float low = noDepth;
    Emptied emptied = Emptied::None;
};

/// Reads one non-empty line.
Depths read(const QString &line, const Context &context);

} // namespace DepthSentence

#endif // DEPTHSENTENCE_H
