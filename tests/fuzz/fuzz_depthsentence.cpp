// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "fuzztargets.h"
#include "outputformat.h"
#include "soundings.h"

#include <cmath>

namespace {

SoundingContext contextOf(int flags, int format)
{
    const auto &formats = OutputFormats::all();
    SoundingContext context;
    context.highEnabled = (flags & 1) != 0;
    context.lowEnabled = (flags & 2) != 0;
    context.highIsOff = (flags & 4) != 0;
    context.lowIsOff = (flags & 8) != 0;
    context.imperial = (flags & 16) != 0;
    context.outputFormat = formats.at(static_cast<std::size_t>(format) % formats.size()).name;
    return context;
}

void requireDepths(const QString &line, const SoundingContext &context)
{
    const DepthSentence::Depths depths =
        DepthSentence::read(line, {!context.highEnabled, context.outputFormat});
    FUZZ_REQUIRE(std::isfinite(depths.high) && std::isfinite(depths.low));
    if (depths.form == DepthSentence::Form::Unknown) {
        FUZZ_REQUIRE(depths.high < 0 && depths.low < 0);
    }
}

/// A label shows a number that can be read, and no more than has room.
void requireLabel(const std::optional<QString> &text)
{
    constexpr int longest = 60;
    if (text) {
        FUZZ_REQUIRE(!text->contains("nan") && !text->contains("inf"));
        FUZZ_REQUIRE(text->size() <= longest);
    }
}

} // namespace

/// The first two bytes say what is chosen in the window, what follows are lines.
void fuzzDepthSentence(const QByteArray &input)
{
    FuzzInput from(input);
    const int flags = from.byte();
    const SoundingContext context = contextOf(flags, from.byte());
    Soundings soundings;
    const QStringList lines = latin1(from.rest()).split('\n', Qt::SkipEmptyParts);
    for (const QString &line : lines) {
        requireDepths(line, context);
        const SoundingView view = soundings.parseDepth(line, context);
        requireLabel(view.highText);
        requireLabel(view.lowText);
        if (view.depths) {
            FUZZ_REQUIRE(std::isfinite(view.depths->high) && std::isfinite(view.depths->low));
        }
    }
}
