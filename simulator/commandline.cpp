// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "commandline.h"

#include "depthformats.h"
#include "programcall.h"
#include "soundersettings.h"

#include <QCommandLineParser>
#include <QMap>

namespace {

/// Takes one option's value; returns what is wrong with it, empty if nothing is.
using Take = QString (*)(const QString &value, CommandLine &line);

QString takeFit(const QString &value, CommandLine &line)
{
    static const QMap<QString, SounderFit> fits{
        {QStringLiteral("dual"), SounderFit::Dual},
        {QStringLiteral("hf"), SounderFit::HighOnly},
        {QStringLiteral("lf"), SounderFit::LowOnly},
    };
    line.options.fit = fits.value(value);
    return fits.contains(value)
               ? QString()
               : QStringLiteral("there is no fit \"%1\"; the fits are dual, hf, lf").arg(value);
}

QString takeRate(const QString &value, CommandLine &line)
{
    QStringList rates;
    for (const int rate : lineRates()) {
        rates << QString::number(rate);
    }
    line.options.rate = value.toInt();
    return rates.contains(value) ? QString()
                                 : QStringLiteral("there is no rate \"%1\"; the rates are %2")
                                       .arg(value, rates.join(QStringLiteral(", ")));
}

QString takeFormat(const QString &value, CommandLine &line)
{
    line.options.format = DepthFormats::number(value);
    return line.options.format > 0
               ? QString()
               : QStringLiteral("there is no format \"%1\"; the formats are %2")
                     .arg(value, DepthFormats::names().join(QStringLiteral(", ")));
}

QString takeFirmware(const QString &value, CommandLine &line)
{
    line.options.firmware = value;
    return {};
}

QString takeSeed(const QString &value, CommandLine &line)
{
    bool isNumber = false;
    line.options.seed = value.toUInt(&isNumber);
    return isNumber ? QString() : QStringLiteral("the seed \"%1\" is no whole number").arg(value);
}

QString takeMemory(const QString &value, CommandLine &line)
{
    line.options.memoryFile = value;
    return {};
}

/// A probability that is not given is certainty; a time must be given.
QString takeFault(const QString &value, CommandLine &line)
{
    const auto equals = value.indexOf(QLatin1Char('='));
    bool isNumber = false;
    const double number = value.mid(equals + 1).toDouble(&isNumber);
    if (equals >= 0 && !isNumber) {
        return QStringLiteral("the fault \"%1\" has no number for its value").arg(value);
    }
    if (equals < 0) {
        const QString problem = line.options.faults.set(value, 1);
        return problem.isEmpty()
                   ? QStringLiteral("the fault \"%1\" needs a value, as in %1=1").arg(value)
                   : problem;
    }
    return line.options.faults.set(value.left(equals), number);
}

QString takeLink(const QString &value, CommandLine &line)
{
    line.linkPath = value;
    return {};
}

QString takePort(const QString &value, CommandLine &line)
{
    line.portName = value;
    return {};
}

QString takeTranscript(const QString &value, CommandLine &line)
{
    line.transcriptPath = value;
    return {};
}

struct OptionRow
{
    const char *name;
    const char *valueName;
    const char *help;
    Take take;
};

// clang-format off
constexpr OptionRow optionRows[] = {
    {"fit",        "dual|hf|lf", "Channels of the unit (dual).",                     takeFit},
    {"rate",       "N",          "Rate set in the device (as kept, or 9600).",        takeRate},
    {"format",     "NAME",       "Output format (as kept, or NMEA DBS).",             takeFormat},
    {"firmware",   "X",          "Firmware version of the banner (2.14.7).",          takeFirmware},
    {"seed",       "N",          "Start of the sea bed and of all chance (1).",       takeSeed},
    {"memory",     "FILE",       "Keep saved settings in this file.",                 takeMemory},
    {"fault",      "NAME=VALUE", "Misbehave; may be given several times.",            takeFault},
    {"link",       "PATH",       "Make a symbolic link to the pseudo-terminal.",      takeLink},
    {"port",       "NAME",       "Serve a serial port instead of a pseudo-terminal.", takePort},
    {"transcript", "FILE",       "Log what is received and sent.",                    takeTranscript},
};
// clang-format on

constexpr char noSoundings[] = "no-soundings";

void addOptions(QCommandLineParser &parser)
{
    for (const OptionRow &row : optionRows) {
        parser.addOption(
            {QLatin1String(row.name), QLatin1String(row.help), QLatin1String(row.valueName)});
    }
    parser.addOption({QLatin1String(noSoundings), QStringLiteral("Send answers only.")});
    parser.setApplicationDescription(
        QStringLiteral("A simulated TAL-VERO echo sounder.\n\nFaults, by probability: silent, "
                       "refuse, garble, split, burst, drop-line;\nby time: late (ms), reboot (s), "
                       "hang-up (s)."));
}

QString takeValues(const QCommandLineParser &parser, CommandLine &line)
{
    for (const OptionRow &row : optionRows) {
        for (const QString &value : parser.values(QLatin1String(row.name))) {
            const QString problem = row.take(value, line);
            if (!problem.isEmpty()) {
                return problem;
            }
        }
    }
    if (!parser.positionalArguments().isEmpty()) {
        return QStringLiteral("\"%1\" is not expected here")
            .arg(parser.positionalArguments().constFirst());
    }
    if (!line.linkPath.isEmpty() && !line.portName.isEmpty()) {
        return QStringLiteral("--link is for a pseudo-terminal, not for --port");
    }
    return {};
}

} // namespace

CommandLine readCommandLine(const QStringList &arguments)
{
    CommandLine line;
    QCommandLineParser parser;
    addOptions(parser);
    const QCommandLineOption help = parser.addHelpOption();
    const QCommandLineOption version = parser.addVersionOption();
    if (!parser.parse(arguments)) {
        line.problem = parser.errorText();
    } else if (parser.isSet(help)) {
        line.wantedText = parser.helpText();
    } else if (parser.isSet(version)) {
        line.wantedText = versionText(QStringLiteral("tal-vero-sounder"));
    } else {
        line.options.soundings = !parser.isSet(QLatin1String(noSoundings));
        line.problem = takeValues(parser, line);
    }
    return line;
}
