// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "outputformat.h"

#include <algorithm>
#include <iterator>

namespace {

struct Row
{
    const char *name;
    int deviceNumber;
    int fixedRate;
};

// In the order of the operator's list.
// clang-format off
constexpr Row rows[] = {
    // name           number  fixed rate
    {"ORVANDO",            4,     0},
    {"NMEA DBS",           3,     0},
    {"NMEA DBT",           2,     0},
    {"DESO 25",            5,     0},
    {"ODOM",               1,     0},
    {"KESTROLA",           6,  9600},
    {"SONARMITE OLD",      7,     0},
    {"SONARMITE NEW",      8,     0},
    {"SONARMITE DUAL",     9,     0},
};
// clang-format on

constexpr int formatsWith(int deviceNumber)
{
    int formats = 0;
    for (const Row &row : rows) {
        formats += row.deviceNumber == deviceNumber ? 1 : 0;
    }
    return formats;
}

constexpr bool areNumberedApart()
{
    for (const Row &row : rows) {
        if (row.deviceNumber < 1 || formatsWith(row.deviceNumber) > 1) {
            return false;
        }
    }
    return true;
}

static_assert(areNumberedApart(), "each format needs a number of its own, from 1 on");

std::vector<OutputFormat> formatsOfRows()
{
    std::vector<OutputFormat> formats;
    formats.reserve(std::size(rows));
    for (const Row &row : rows) {
        const auto place = static_cast<int>(formats.size());
        formats.push_back({row.name, row.deviceNumber, row.fixedRate, place});
    }
    return formats;
}

template <typename Predicate>
const OutputFormat *firstOf(Predicate fits)
{
    const std::vector<OutputFormat> &formats = OutputFormats::all();
    const auto found = std::find_if(formats.begin(), formats.end(), fits);
    return found == formats.end() ? nullptr : &*found;
}

} // namespace

namespace OutputFormats {

const std::vector<OutputFormat> &all()
{
    static const std::vector<OutputFormat> formats = formatsOfRows();
    return formats;
}

QStringList names()
{
    QStringList names;
    for (const OutputFormat &format : all()) {
        names << format.name;
    }
    return names;
}

const OutputFormat *find(const QString &name)
{
    return firstOf([&name](const OutputFormat &format) { return format.name == name; });
}

const OutputFormat *findByNumber(int deviceNumber)
{
    return firstOf(
        [deviceNumber](const OutputFormat &format) { return format.deviceNumber == deviceNumber; });
}

} // namespace OutputFormats
