// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#ifndef SLIDERBENCH_H
#define SLIDERBENCH_H

#include "readybench.h"
#include "sliderhand.h"

/// A slider of a channel by the words that make up the names of what belongs to it.
struct SliderNames
{
    const char *buttons; ///< before "Down" and "Up", and before "Edit" in its value label's name
    const char *slider;
    const char *prettyName;
};

inline constexpr SliderNames pulse = {"Pulse", "PulseSlider", "Pulse Cycles"};
inline constexpr SliderNames gain = {"Gain", "GainSlider", "Gain"};
inline constexpr SliderNames detect = {"Detect", "DetectSlider", "Detection Level"};
inline constexpr SliderNames blanking = {"Blank", "BlankingSlider", "Blanking"};

inline const QStringList channels{"high", "low"};

inline QString prettyNameOf(const QString &channel, const SliderNames &names)
{
    return (channel == "high" ? "High Frequency " : "Low Frequency ") + QString(names.prettyName);
}

inline QString unitOf(const SliderNames &names, bool imperial)
{
    const QString buttons = names.buttons;
    if (buttons == "Blank") {
        return imperial ? " ft" : " m";
    }
    return buttons == "Pulse" ? "" : "%";
}

/// A bare command with its filler and the channel's letter in the eighth place.
inline QByteArray marked(const QString &channel, const QByteArray &command)
{
    constexpr int markAt = 7;
    return command.leftJustified(markAt, '.') + (channel == "high" ? 'H' : 'L');
}

/// A connected window and a hand on the sliders of one channel at a time.
class SliderBench : public ReadyBench
{
public:
    using ReadyBench::ReadyBench;

    void useChannel(const QString &name)
    {
        channel = name;
        openTab(name);
    }

    /// Brings a slider to this position with keys and waits until that is sent and forgotten.
    void place(const SliderNames &names, int position)
    {
        if (!hand(names).walkTo(position) || !settles()) {
            qFatal("%s%s does not come to %d", qPrintable(channel), names.slider, position);
        }
        device().clearTranscript();
    }

    SliderHand hand(const SliderNames &names) { return SliderHand(slider(names)); }
    QSlider *slider(const SliderNames &names) { return find<QSlider>(channel + names.slider); }
    QString label(const SliderNames &names) { return text(channel + names.buttons + "Edit"); }
    void press(const SliderNames &names, const QString &direction)
    {
        click(channel + names.buttons + direction);
    }

private:
    QString channel;
};

Q_DECLARE_METATYPE(SliderNames)

#endif // SLIDERBENCH_H
