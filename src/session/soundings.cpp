// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "soundings.h"

#include "debuglog.h"
#include "numbertext.h"
#include "units.h"

#include <algorithm>
#include <cmath>

namespace {

/// What the depth graph is told for a channel that is off.
constexpr float switchedOff = 1000.0F;

constexpr char highPrefix[] = "HF Depth: ";
constexpr char lowPrefix[] = "LF Depth: ";

/// An NMEA sentence carries one depth, of whichever channel is on alone.
bool nmeaCarriesLow(const SoundingContext &context)
{
    return !context.highEnabled && context.lowEnabled;
}

QString depthText(const char *prefix, float metres, bool imperial)
{
    return prefix + NumberText::fixed(Units::shown(metres, imperial), 2);
}

QString channelText(const char *prefix, float metres, bool isOff, bool imperial)
{
    return isOff || metres < 0.0F ? QString() : depthText(prefix, metres, imperial);
}

/// The second label tells when an NMEA depth is measured from the transducer and not from the
/// surface. (A sentence that noise has given the marks of another form may hold two depths: the one
/// that the first label names is shown, if it is there.)
void showNmea(SoundingView &view, const QString &line, const DepthSentence::Depths &depths,
              const SoundingContext &context)
{
    const bool isLow = nmeaCarriesLow(context);
    const float named = isLow ? depths.low : depths.high;
    const float metres = named < 0.0F ? std::max(depths.high, depths.low) : named;
    view.highText = depthText(isLow ? lowPrefix : highPrefix, metres, context.imperial);
    view.lowText = line.contains(QLatin1String("$SDDBT"))
                       ? QStringLiteral("(Depth Below Transducer)")
                       : QString();
}

/// What a sentence without any depth leaves of the labels.
SoundingView withoutDepth(const DepthSentence::Depths &depths, const SoundingContext &context)
{
    SoundingView view;
    if (depths.emptied == DepthSentence::Emptied::High) {
        view.highText = QString();
    }
    if (depths.emptied == DepthSentence::Emptied::Low || !context.lowEnabled) {
        view.lowText = QString();
    }
    return view;
}

} // namespace

SoundingView Soundings::parseDepth(const QString &line, const SoundingContext &context)
{
    const DepthSentence::Depths depths = DepthSentence::read(
        line, {nmeaCarriesLow(context), context.outputFormat, lastHfDepth, lastLfDepth});
    if (depths.form == DepthSentence::Form::SingleLow) {
        WINDOW_LOG << "length is " << line.length();
    }
    remember(depths);
    if (depths.high < 0.0F && depths.low < 0.0F) {
        return withoutDepth(depths, context);
    }
    SoundingView view;
    view.depths = {context.highIsOff ? switchedOff : depths.high,
                   context.lowIsOff ? switchedOff : depths.low};
    if (line.contains(QLatin1String("$SDDB"))) {
        showNmea(view, line, depths, context);
    } else {
        view.highText = channelText(highPrefix, depths.high, context.highIsOff, context.imperial);
        view.lowText = channelText(lowPrefix, depths.low, context.lowIsOff, context.imperial);
    }
    return view;
}

void Soundings::remember(const DepthSentence::Depths &depths)
{
    if (depths.form == DepthSentence::Form::DesoHigh) {
        lastHfDepth = depths.high;
    } else if (depths.form == DepthSentence::Form::DesoLow) {
        lastLfDepth = depths.low;
    }
}

QString Soundings::nextMadeUp()
{
    const float x = madeUp / 10.0F;
    madeUp += 1.0F;
    const int a = static_cast<int>((std::sin(x) + 1.0F) * 100.0F);
    const int b = static_cast<int>((std::cos(x) + 2.3F) * 100.0F);
    return QString::asprintf(" et B %05d %05d\r", a, b);
}
