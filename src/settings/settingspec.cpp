// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "settingspec.h"

#include "numbertext.h"
#include "outputformat.h"

#include <algorithm>

namespace {

using namespace CommandEncoding;
using namespace SettingsReport;
using NumberText::toFloat;

/// What a value is held to.
struct Held
{
    ValueKind kind;
    float lowest;
    float highest;
    QStringList (*words)();
};

constexpr Held wholeIn(float lowest, float highest)
{
    return {ValueKind::Whole, lowest, highest, nullptr};
}

constexpr Held realIn(float lowest, float highest)
{
    return {ValueKind::Real, lowest, highest, nullptr};
}

constexpr Held oneOf(QStringList (*words)()) { return {ValueKind::Word, 0.0F, 0.0F, words}; }

QStringList modes() { return {"Standby", "Active"}; }
QStringList sounderModes() { return {"Shallow", "Auto", "Manual"}; }
QStringList gainVariations() { return {"OFF", "Log 20", "Log 10"}; }
QStringList rates() { return {"4800", "9600", "19200", "38400", "57600", "115200"}; }

/// How a value is shown, and the step of its buttons.
struct Shown
{
    SettingUnit unit;
    int decimals;
    float step;
};

constexpr Shown inWords = {SettingUnit::None, 0, 0.0F};

constexpr Shown inCounts(float step) { return {SettingUnit::Count, 0, step}; }
constexpr Shown inPercent(float step) { return {SettingUnit::Percent, 0, step}; }
constexpr Shown inKilohertz(float step) { return {SettingUnit::Kilohertz, 0, step}; }
constexpr Shown inMetres(int decimals, float step) { return {SettingUnit::Metre, decimals, step}; }
constexpr Shown inMetresPerSecond(float step) { return {SettingUnit::MetrePerSecond, 0, step}; }

/// The set command, and the number that the value is in it.
struct Sent
{
    const char *commandFormat;
    Text toCommand;
    SettingSpec::Number toNumber;
};

float rateCode(const QString &rate) { return baudCode(rate, rates()); }

constexpr SettingLog nothing = {};

constexpr SettingLog modeLog()
{
    SettingLog log;
    log.change = "!!!!!!changing ";
    log.number = "am in %1 toint mode is";
    return log;
}

constexpr SettingLog tvgLog()
{
    SettingLog log;
    log.refusal = " Doesn't contain value";
    return log;
}

constexpr SettingLog blankLog()
{
    SettingLog log;
    log.stored = "value is";
    return log;
}

constexpr SettingLog formatLog()
{
    SettingLog log;
    log.report = "Format is ";
    log.reportRefusal = "format out of range!!!";
    return log;
}

/// A setting. Nothing here has a default: a column that a row lacks is a warning of the compiler.
struct Row
{
    const char *key;
    const char *prettyName;
    const char *defaultValue;
    Held held;
    Shown shown;
    char replyLetter;
    Sent sent;
    int reportLine;
    int reportField;
    Meaning fromReport;
    SettingLog log;
    const char *refusalAdvice;
};

/// A setting that each channel has, with two columns where the channels differ. Both names lack the
/// channel's: "high" goes before the key, "High" takes the place of "%1".
struct ChannelRow
{
    const char *key;
    const char *prettyName;
    Held highHeld;
    Held lowHeld;
    Shown shown;
    char replyLetter;
    Sent sent;
    int reportLine;
    int highField;
    int lowField;
    Meaning fromReport;
    SettingLog log;
};

// Some places in the report are shared or look like slips (blanking with pulse cycles, detection
// with frequency, the low detection level in the high column). The device numbers them so.
// clang-format off
constexpr Row commonRows[] = {
    // key       name                default  held to                       shown, step
    //           reply, command                                      report: line, field, read as            log          after a refusal
    {"Velocity", "Sound Velocity",   "1500",  realIn(1300, 1750),           inMetresPerSecond(1),
                 'v',  {"*v%04d",   one<velocity>,    toFloat},       8,  1, asWritten,              nothing,     ""},
    {"Ping",     "Pings Per Second", "5",     wholeIn(1, 10),               inCounts(1),
                 'i',  {"*i%02d",   one<whole>,       toFloat},      12,  1, asWritten,              nothing,     "Reduce maximum depth"},
    {"Depth",    "Maximum Depth",    "80",    realIn(3, 100),               inMetres(0, 5),
                 's',  {"*s%06d",   one<thousandths>, toFloat},       4,  1, asLength<maximumDepth>, nothing,     "Reduce pings per second"},
    {"format",   "Output Format",    "ODOM",  oneOf(OutputFormats::names),  inWords,
                 'a',  {"*a%d",     one<whole>,       formatNumber}, 15,  1, asFormat,               formatLog(), ""},
    {"mode",     "Mode",             "Auto",  oneOf(modes),                 inWords,
                 '\0', {"",         onOrOff,          modeNumber},   -1, -1, asActive,               nothing,     ""},
    {"baud",     "Baud Rate",        "9600",  oneOf(rates),                 inWords,
                 'I',  {"*I%d%d%d", threeTimes,       rateCode},     14,  1, asWritten,              nothing,     ""},
};

constexpr ChannelRow channelRows[] = {
    // key          name                            held to: high, low                              shown, step
    //              reply, command                                     report: line, high, low, read as       log
    {"SounderMode", "%1 Frequency Sounder Mode",    oneOf(sounderModes),     oneOf(sounderModes),   inWords,
                    'c', {"*c%c",   one<whole>,       sounderModeLetter}, 11, 1, 2, asWord<sounderMode>, modeLog()},
    {"Blank",       "%1 Frequency Blanking",        realIn(0.3F, 10),        realIn(0.5F, 10),      inMetres(2, 0.1F),
                    'm', {"*m%05d", one<thousandths>, toFloat},            2, 1, 2, asLength<blanking>,  blankLog()},
    {"Draft",       "%1 Frequency Draft",           realIn(0, 100),          realIn(0, 100),        inMetres(2, 0.1F),
                    'o', {"*o%05d", one<thousandths>, toFloat},            9, 1, 2, asWritten,           nothing},
    {"Index",       "%1 Frequency Index",           realIn(0, 100),          realIn(0, 100),        inMetres(2, 0.1F),
                    'q', {"*q%05d", one<thousandths>, toFloat},           10, 1, 2, asWritten,           nothing},
    {"Gain",        "%1 Frequency Gain",            wholeIn(30, 100),        wholeIn(30, 100),      inPercent(5),
                    'g', {"*g%03d", one<gain>,        toFloat},            7, 1, 2, asWritten,           nothing},
    {"Pulse",       "%1 Frequency Pulse Cycles",    wholeIn(1, 100),         wholeIn(1, 100),       inCounts(1),
                    'p', {"*p%02d", one<whole>,       toFloat},            2, 1, 2, asWritten,           nothing},
    {"Detect",      "%1 Frequency Detection Level", wholeIn(1, 100),         wholeIn(1, 100),       inPercent(1),
                    't', {"*t%03d", one<whole>,       toFloat},            1, 1, 1, asWritten,           nothing},
    {"Freq",        "%1 Frequency",                 realIn(190, 210),        realIn(30, 36),        inKilohertz(1),
                    'w', {"*w%04d", one<whole>,       toFloat},            1, 1, 2, asWritten,           nothing},
    {"TVG",         "%1 Time Variable Gain",        oneOf(gainVariations),   oneOf(gainVariations), inWords,
                    'l', {"*l%c",   one<whole>,       tvgLetter},         13, 1, 2, asWord<tvg>,         tvgLog()},
};
// clang-format on

constexpr Row rowOf(const ChannelRow &row, SettingChannel channel)
{
    const bool isHigh = channel == SettingChannel::High;
    return {row.key,
            row.prettyName,
            "",
            isHigh ? row.highHeld : row.lowHeld,
            row.shown,
            row.replyLetter,
            row.sent,
            row.reportLine,
            isHigh ? row.highField : row.lowField,
            row.fromReport,
            row.log,
            ""};
}

/// What stands behind a shown number of this unit.
struct Suffix
{
    SettingUnit unit;
    const char *metric;
    const char *imperial;
};

constexpr Suffix suffixes[] = {
    {SettingUnit::None, "", ""},       {SettingUnit::Count, "", ""},
    {SettingUnit::Percent, "%", "%"},  {SettingUnit::Kilohertz, " kHz", " kHz"},
    {SettingUnit::Metre, " m", " ft"}, {SettingUnit::MetrePerSecond, " m/s", " ft/s"},
};

constexpr const Suffix *suffixOf(SettingUnit unit)
{
    for (const Suffix &suffix : suffixes) {
        if (suffix.unit == unit) {
            return &suffix;
        }
    }
    return nullptr;
}

constexpr bool isComplete(const Row &row)
{
    const bool isNamed = *row.key != '\0' && *row.prettyName != '\0';
    const bool isOnTheWire = row.sent.toCommand && row.sent.toNumber && row.fromReport;
    const bool holdsWords = row.held.words && row.shown.unit == SettingUnit::None;
    const bool holdsNumbers = !row.held.words && row.held.lowest < row.held.highest &&
                              row.shown.step > 0 && row.shown.unit != SettingUnit::None &&
                              suffixOf(row.shown.unit);
    return isNamed && isOnTheWire && (row.held.kind == ValueKind::Word ? holdsWords : holdsNumbers);
}

constexpr bool areComplete()
{
    for (const Row &row : commonRows) {
        if (!isComplete(row)) {
            return false;
        }
    }
    for (const ChannelRow &row : channelRows) {
        if (!isComplete(rowOf(row, SettingChannel::High)) ||
            !isComplete(rowOf(row, SettingChannel::Low))) {
            return false;
        }
    }
    return true;
}

#ifndef __SANITIZE_ADDRESS__ // with UndefinedBehaviorSanitizer GCC knows no function's address yet
static_assert(areComplete(),
              "a row has no name, no range or words, a unit without a suffix, or lacks a function");
#endif

SettingSpec specOf(const Row &row)
{
    SettingSpec spec;
    spec.key = row.key;
    spec.prettyName = row.prettyName;
    spec.unit = row.shown.unit;
    spec.decimals = row.shown.decimals;
    spec.step = row.shown.step;
    spec.kind = row.held.kind;
    spec.lowest = row.held.lowest;
    spec.highest = row.held.highest;
    spec.words = row.held.words ? row.held.words() : QStringList();
    spec.defaultValue = row.defaultValue;
    spec.refusalAdvice = row.refusalAdvice;
    spec.replyLetter = row.replyLetter;
    spec.commandFormat = row.sent.commandFormat;
    spec.toCommand = row.sent.toCommand;
    spec.toNumber = row.sent.toNumber;
    spec.reportLine = row.reportLine;
    spec.reportField = row.reportField;
    spec.fromReport = row.fromReport;
    spec.log = row.log;
    return spec;
}

SettingSpec specOf(const ChannelRow &row, SettingChannel channel)
{
    const bool isHigh = channel == SettingChannel::High;
    SettingSpec spec = specOf(rowOf(row, channel));
    spec.key.prepend(isHigh ? "high" : "low");
    spec.prettyName = spec.prettyName.arg(isHigh ? "High" : "Low");
    spec.channel = channel;
    return spec;
}

std::vector<SettingSpec> specsOfRows()
{
    std::vector<SettingSpec> specs;
    for (const Row &row : commonRows) {
        specs.push_back(specOf(row));
    }
    for (const SettingChannel channel : {SettingChannel::High, SettingChannel::Low}) {
        for (const ChannelRow &row : channelRows) {
            specs.push_back(specOf(row, channel));
        }
    }
    return specs;
}

} // namespace

bool SettingSpec::isConvertible() const
{
    return unit == SettingUnit::Metre || unit == SettingUnit::MetrePerSecond;
}

QString SettingSpec::suffix(bool imperial) const
{
    const Suffix *own = suffixOf(unit);
    return imperial ? own->imperial : own->metric;
}

namespace SettingSpecs {

const std::vector<SettingSpec> &all()
{
    static const std::vector<SettingSpec> specs = specsOfRows();
    return specs;
}

const SettingSpec *find(const QString &key)
{
    const auto found = std::find_if(all().begin(), all().end(),
                                    [&key](const SettingSpec &spec) { return spec.key == key; });
    return found == all().end() ? nullptr : &*found;
}

} // namespace SettingSpecs
