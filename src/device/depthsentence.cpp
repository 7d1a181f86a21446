// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "depthsentence.h"

#include "numbertext.h"

#include <QStringList>

namespace DepthSentence {

namespace {

using Reader = Depths (*)(const QString &line, const Context &context);

float metres(const QString &text) { return NumberText::toFloat(text); }

float metresFromCentimetres(const QString &text)
{
    constexpr float centimetresPerMetre = 100.0F;
    return metres(text) / centimetresPerMetre;
}

/// The centimetres in the five characters at `position`.
float fiveDigits(const QString &line, int position)
{
    constexpr int digits = 5;
    return metresFromCentimetres(line.mid(position, digits));
}

/// The channel that the sentence carries follows from its marks: "00131T-94L<tab>00123T-95H" for
/// both, either half for one.
Depths readKestrola(const QString &line, const Context & /*context*/)
{
    const QStringList items = line.split(QLatin1Char('T'));
    const float first = metresFromCentimetres(items.first());
    if (line.contains(QLatin1Char('L'))) {
        const bool marksBoth = line.contains(QLatin1Char('H'));
        const QString highHalf = items.value(1).section(QLatin1Char('\t'), 1, 1);
        const bool hasHigh = marksBoth && items.value(1).contains(QLatin1Char('\t'));
        return {Form::Kestrola, hasHigh ? metresFromCentimetres(highHalf) : noDepth, first};
    }
    if (line.contains(QLatin1String("-95"))) {
        return {Form::Kestrola, first, noDepth, Emptied::Low};
    }
    return {Form::Kestrola, noDepth, first, Emptied::High};
}

Depths readOdom(const QString &line, const Context & /*context*/)
{
    const int at = static_cast<int>(line.indexOf(QLatin1String(" et")));
    return {Form::Odom, fiveDigits(line, at + 7), fiveDigits(line, at + 13)};
}

Depths readOrvando(const QString &line, const Context & /*context*/)
{
    return {Form::Orvando, fiveDigits(line, 2), fiveDigits(line, 8)};
}

/// NMEA 0183: "$SDDBT,feet,f,metres,M,fathoms,F": the fourth item is the depth in metres.
Depths readNmea(const QString &line, const Context &context)
{
    constexpr int metresItem = 3;
    const QStringList items =
        line.mid(line.indexOf(QLatin1String("$SDDB"))).split(QLatin1Char(','));
    const float depth = items.size() > metresItem ? metres(items.at(metresItem)) : noDepth;
    return context.nmeaCarriesLow ? Depths{Form::Nmea, noDepth, depth}
                                  : Depths{Form::Nmea, depth, noDepth};
}

float desoDepth(const QString &line, const char *mark)
{
    constexpr int digits = 8;
    return metres(line.mid(line.indexOf(QLatin1String(mark)) + 2, digits));
}

Depths readDesoHigh(const QString &line, const Context &context)
{
    return {Form::DesoHigh, desoDepth(line, "DA"), context.lastLow};
}

Depths readDesoLow(const QString &line, const Context &context)
{
    return {Form::DesoLow, context.lastHigh, desoDepth(line, "DB")};
}

Depths readSingleLow(const QString &line, const Context & /*context*/)
{
    return {Form::SingleLow, noDepth,
            fiveDigits(line, static_cast<int>(line.indexOf(QLatin1Char('e'))) + 1)};
}

/// Nothing in a SONARMITE sentence marks it as one: the chosen format decides.
Depths readSonarmite(const QString &line, const Context &context)
{
    const QStringList items = line.split(QLatin1Char(' '));
    const auto item = [&items](int index) {
        return index < items.size() ? metres(items.at(index)) : noDepth;
    };
    if (context.outputFormat.contains(QLatin1String("OLD")) ||
        context.outputFormat.contains(QLatin1String("NEW"))) {
        return {Form::SonarmiteHigh, item(1), noDepth};
    }
    if (context.outputFormat.contains(QLatin1String("DUAL"))) {
        return {Form::SonarmiteDual, item(1), item(2)};
    }
    return {};
}

struct Rule
{
    const char *mark; ///< the sentence contains it
    Reader read;
};

/// The first rule whose mark the sentence contains reads it; the order is part of the reading,
/// since marks overlap ("DA" and "e" stand in many a line).
constexpr Rule rules[] = {
    {"-95", readKestrola}, {"-94", readKestrola}, {" et", readOdom},   {" ,", readOrvando},
    {"$SDDB", readNmea},   {"DA", readDesoHigh},  {"DB", readDesoLow}, {"e", readSingleLow},
};

} // namespace

Depths read(const QString &line, const Context &context)
{
    for (const Rule &rule : rules) {
        if (line.contains(QLatin1String(rule.mark))) {
            return rule.read(line, context);
        }
    }
    return readSonarmite(line, context);
}

} // namespace DepthSentence
