// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "depthformats.h"

#include <algorithm>
#include <cmath>
#include <iterator>

namespace {

/// Depths in whole centimetres: all formats are as fine as that.
using Centimetres = std::optional<int>;

struct Sounding
{
    Centimetres high;
    Centimetres low;
    Centimetres single; ///< of the channel that a one-depth format carries
};

/// ODOM's readers begin at the second of its five digits.
constexpr int depthLimitCm = 10000;

Centimetres toCentimetres(const std::optional<double> &metres)
{
    if (!metres || !(*metres >= 0) || *metres >= depthLimitCm / 100.0) {
        return {};
    }
    const int rounded = static_cast<int>(std::lround(*metres * 100));
    return rounded < depthLimitCm ? Centimetres(rounded) : Centimetres();
}

/// Five digits; zeros stand for no depth where a format has no way to leave it out.
QByteArray fiveDigits(const Centimetres &depth)
{
    return QByteArray::number(depth.value_or(0)).rightJustified(5, '0');
}

QByteArray twoDecimals(double number) { return QByteArray::number(number, 'f', 2); }

QByteArray metreText(const Centimetres &depth) { return twoDecimals(depth.value_or(0) / 100.0); }

QByteArray nmeaLine(const QByteArray &sentence)
{
    int checksum = 0;
    for (const char character : sentence) {
        checksum ^= character;
    }
    return "$" + sentence + "*" + QByteArray::number(checksum, 16).toUpper().rightJustified(2, '0');
}

/// Feet, metres and fathoms; a field without a value is empty.
QByteArrayList nmea(const QByteArray &kind, const Centimetres &depth)
{
    const auto field = [&depth](double perMetre) {
        return depth ? twoDecimals(*depth / 100.0 * perMetre) : QByteArray();
    };
    return {
        nmeaLine(kind + "," + field(3.28084) + ",f," + field(1) + ",M," + field(0.546807) + ",F")};
}

QByteArrayList odom(const Sounding &sounding)
{
    return {" et B " + fiveDigits(sounding.high) + " " + fiveDigits(sounding.low)};
}

QByteArrayList nmeaDbt(const Sounding &sounding) { return nmea("SDDBT", sounding.single); }

QByteArrayList nmeaDbs(const Sounding &sounding) { return nmea("SDDBS", sounding.single); }

QByteArrayList orvando(const Sounding &sounding)
{
    return {"B " + fiveDigits(sounding.high) + " " + fiveDigits(sounding.low) + " ,"};
}

QByteArrayList deso25(const Sounding &sounding)
{
    QByteArrayList lines;
    if (sounding.high) {
        lines << "DA" + metreText(sounding.high).rightJustified(8, '0') + " m";
    }
    if (sounding.low) {
        lines << "DB" + metreText(sounding.low).rightJustified(8, '0') + " m";
    }
    return lines;
}

QByteArrayList kestrola(const Sounding &sounding)
{
    QByteArrayList parts;
    if (sounding.low) {
        parts << fiveDigits(sounding.low) + "T-94L";
    }
    if (sounding.high) {
        parts << fiveDigits(sounding.high) + "T-95H";
    }
    return parts.isEmpty() ? QByteArrayList() : QByteArrayList{parts.join('\t')};
}

QByteArray sonarmiteQuality(bool hasBottom) { return hasBottom ? "78" : "0"; }

QByteArrayList sonarmite(const Sounding &sounding)
{
    return {"0 " + metreText(sounding.single) + " 12.4 " +
            sonarmiteQuality(sounding.single.has_value())};
}

QByteArrayList sonarmiteDual(const Sounding &sounding)
{
    return {"0 " + metreText(sounding.high) + " " + metreText(sounding.low) + " " +
            sonarmiteQuality(sounding.high || sounding.low)};
}

struct Format
{
    int number;
    const char *name;
    QByteArrayList (*lines)(const Sounding &);
};

constexpr Format formats[] = {
    {Odom, "ODOM", odom},
    {NmeaDbt, "NMEA DBT", nmeaDbt},
    {NmeaDbs, "NMEA DBS", nmeaDbs},
    {Orvando, "ORVANDO", orvando},
    {Deso25, "DESO 25", deso25},
    {Kestrola, "KESTROLA", kestrola},
    {SonarmiteOld, "SONARMITE OLD", sonarmite},
    {SonarmiteNew, "SONARMITE NEW", sonarmite},
    {SonarmiteDual, "SONARMITE DUAL", sonarmiteDual},
};

constexpr int digitsOf(int number) { return number < 10 ? 1 : 1 + digitsOf(number / 10); }

/// By rising numbers, the last of which is the longest.
constexpr bool areInOrder()
{
    int before = 0;
    for (const Format &format : formats) {
        if (format.number <= before) {
            return false;
        }
        before = format.number;
    }
    return digitsOf(before) == DepthFormats::mostDigits;
}

static_assert(areInOrder(), "the numbers must rise, the last with as many digits as a command has");

template <typename Predicate>
const Format *firstOf(Predicate fits)
{
    const auto found = std::find_if(std::begin(formats), std::end(formats), fits);
    return found == std::end(formats) ? nullptr : found;
}

const Format *find(int number)
{
    return firstOf([number](const Format &format) { return format.number == number; });
}

} // namespace

const QStringList &DepthFormats::names()
{
    static const QStringList list = [] {
        QStringList all;
        for (const Format &format : formats) {
            all << QLatin1String(format.name);
        }
        return all;
    }();
    return list;
}

bool DepthFormats::isKnown(int number) { return find(number) != nullptr; }

int DepthFormats::number(const QString &name)
{
    const Format *named = firstOf([&name](const Format &format) {
        return name.compare(QLatin1String(format.name), Qt::CaseInsensitive) == 0;
    });
    return named ? named->number : 0;
}

QByteArrayList DepthFormats::lines(int format, const DepthPair &depths, SounderChannel single)
{
    const Format *known = find(format);
    if (!known) {
        return {};
    }
    Sounding sounding{toCentimetres(depths.high), toCentimetres(depths.low), {}};
    sounding.single = single == SounderChannel::High ? sounding.high : sounding.low;
    return known->lines(sounding);
}
