// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "commandencoding.h"

#include "outputformat.h"

#include <algorithm>
#include <limits>

namespace {

/// The conversion of a number beyond 32 bits would be undefined, so it is held at the nearest end
/// (what is not a number, at the lower). No stored value comes near: all are held to their ranges.
qint32 truncated(double number)
{
    using Limits = std::numeric_limits<qint32>;
    if (!(number > Limits::min())) {
        return Limits::min();
    }
    return number < Limits::max() ? static_cast<qint32>(number) : Limits::max();
}

/// 32-bit subtraction that wraps around instead of overflowing.
qint32 difference(qint32 minuend, qint32 subtrahend)
{
    return static_cast<qint32>(static_cast<quint32>(minuend) - static_cast<quint32>(subtrahend));
}

} // namespace

namespace CommandEncoding {

qint32 whole(float number) { return truncated(static_cast<double>(number)); }

qint32 thousandths(float number) { return whole(number * 1000.0F); }

qint32 velocity(float metresPerSecond)
{
    return difference(-1000000, whole(metresPerSecond * -1000.0F));
}

qint32 gain(float percent)
{
    const float deviceGain = (percent - 30.0F) * 100.0F / 70.0F;
    return truncated(static_cast<double>(deviceGain) + 0.5);
}

float sounderModeLetter(const QString &mode)
{
    if (mode == "Manual") {
        return 'm';
    }
    return mode == "Shallow" ? 's' : 'a';
}

float tvgLetter(const QString &tvg)
{
    if (tvg == "Log 10") {
        return 'T';
    }
    return tvg == "Log 20" ? 'W' : 'N';
}

float formatNumber(const QString &format)
{
    const OutputFormat *known = OutputFormats::find(format);
    return known ? static_cast<float>(known->deviceNumber) : 1.0F;
}

float baudCode(const QString &rate, const QStringList &rates)
{
    return static_cast<float>(std::max(0, static_cast<int>(rates.indexOf(rate)) - 2));
}

float modeNumber(const QString &mode) { return mode == "Active" ? 1.0F : 0.0F; }

QString fill(const QByteArray &commandFormat, qint32 number)
{
    return QString::asprintf(commandFormat.constData(), number);
}

QString threeTimes(const QByteArray &commandFormat, const NumberSource &number)
{
    const auto digit = [&number]() { return whole(number()); };
    return QString::asprintf(commandFormat.constData(), digit(), digit(), digit());
}

QString onOrOff(const QByteArray & /*commandFormat*/, const NumberSource &number)
{
    return number() > 0.0F ? "*b1" : "*h1";
}

} // namespace CommandEncoding
