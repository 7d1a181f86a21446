// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "programcall.h"

#include "version.h"

#include <QCommandLineParser>

#include <algorithm>
#include <cstdio>

#ifdef Q_OS_WIN
#include <io.h>
#include <windows.h>
#endif

namespace {

/// The options that Qt takes out of the arguments, on any system, when the application object is
/// made.
struct QtOption
{
    const char *name;
    bool hasValue;
};

// clang-format off
constexpr QtOption qtOptions[] = {
    {"display",            true},
    {"dograb",             false},
    {"fontengine",         true},
    {"geometry",           true},
    {"icon",               true},
    {"name",               true},
    {"nograb",             false},
    {"platform",           true},
    {"platformpluginpath", true},
    {"platformtheme",      true},
    {"plugin",             true},
    {"qmljsdebugger",      true},
    {"qwindowgeometry",    true},
    {"qwindowicon",        true},
    {"qwindowtitle",       true},
    {"reverse",            false},
    {"session",            true},
    {"style",              true},
    {"stylesheet",         true},
    {"title",              true},
    {"widgetcount",        false},
};
// clang-format on

/// The row of an argument that is Qt's, with one dash or two; null if it is not.
const QtOption *qtOption(const QString &argument)
{
    if (!argument.startsWith(QLatin1Char('-'))) {
        return nullptr;
    }
    const QString name = argument.mid(argument.startsWith(QLatin1String("--")) ? 2 : 1);
    const QString bare = name.section(QLatin1Char('='), 0, 0);
    const auto *const row =
        std::find_if(std::begin(qtOptions), std::end(qtOptions),
                     [&bare](const QtOption &each) { return bare == QLatin1String(each.name); });
    return row == std::end(qtOptions) ? nullptr : row;
}

QStringList withoutQtOptions(const QStringList &arguments)
{
    QStringList own;
    for (int place = 0; place < arguments.size(); ++place) {
        const QString &argument = arguments.at(place);
        const QtOption *const row = place > 0 ? qtOption(argument) : nullptr;
        if (row == nullptr) {
            own << argument;
        } else if (row->hasValue && !argument.contains(QLatin1Char('='))) {
            ++place;
        }
    }
    return own;
}

/// Not QCommandLineParser's own, which needs an application object, and tells the program's whole
/// path.
QString helpText(const ProgramFace &face)
{
    const auto row = [](const QString &option, const QString &help) {
        constexpr int column = 16;
        return QStringLiteral("  %1  %2").arg(option, -column).arg(help);
    };
    QStringList lines{
        QStringLiteral("Usage: %1 [options]").arg(face.name),
        face.purpose,
        QString(),
        QStringLiteral("Options:"),
    };
    for (const ProgramOption &option : face.options) {
        lines << row(QStringLiteral("--%1 %2").arg(option.name, option.valueName), option.help);
    }
    lines << row(QStringLiteral("--help, -h"), QStringLiteral("Tells this."))
          << row(QStringLiteral("--version, -v"), QStringLiteral("Tells the version.")) << QString()
          << QStringLiteral("Qt's own options, such as -platform, are taken, too.");
    return lines.join(QLatin1Char('\n'));
}

/// A windowed program of Windows has no output unless it is led somewhere. Whoever calls it in a
/// console reads it there; called from the desktop it says nothing.
void findOutput()
{
#ifdef Q_OS_WIN
    if (_fileno(stdout) < 0 && AttachConsole(ATTACH_PARENT_PROCESS) != 0) {
        std::freopen("CONOUT$", "w", stdout);
        std::freopen("CONOUT$", "w", stderr);
    }
#endif
}

void say(std::FILE *out, const QString &text)
{
    std::fputs((text + QLatin1Char('\n')).toUtf8().constData(), out);
    std::fflush(out);
}

} // namespace

QString versionText(const QString &program)
{
    return program + QLatin1Char(' ') + QLatin1String(TalVero::version);
}

ProgramCall readCall(const ProgramFace &face, const QStringList &arguments)
{
    QCommandLineParser parser;
    parser.setSingleDashWordOptionMode(QCommandLineParser::ParseAsLongOptions);
    for (const ProgramOption &option : face.options) {
        parser.addOption({option.name, option.help, option.valueName});
    }
    const QCommandLineOption help(QStringList{QStringLiteral("h"), QStringLiteral("help")});
    const QCommandLineOption version(QStringList{QStringLiteral("v"), QStringLiteral("version")});
    parser.addOptions({help, version});

    ProgramCall call;
    const bool isUnderstood = parser.parse(withoutQtOptions(arguments));
    if (!parser.unknownOptionNames().isEmpty()) {
        call.remark = parser.errorText();
    } else if (!isUnderstood) {
        call.problem = parser.errorText();
    }
    if (!call.problem.isEmpty()) {
        return call;
    }
    if (parser.isSet(help)) {
        call.wantedText = helpText(face);
    } else if (parser.isSet(version)) {
        call.wantedText = versionText(face.name);
    }
    for (const ProgramOption &option : face.options) {
        if (parser.isSet(option.name)) {
            call.values.insert(option.name, parser.value(option.name));
        }
    }
    return call;
}

std::optional<int> answerCall(const ProgramFace &face, int argc, char **argv)
{
    constexpr int understood = 0;
    constexpr int wrongUsage = 2;
    // Not as the locale encodes them: Qt learns that from the application object, and what it is
    // asked before, it remembers wrongly. For the options' names it makes no difference.
    QStringList arguments;
    std::transform(argv, argv + argc, std::back_inserter(arguments),
                   [](const char *word) { return QString::fromUtf8(word); });
    const ProgramCall call = readCall(face, arguments);
    const QString complaint = call.problem.isEmpty() ? call.remark : call.problem;
    if (!complaint.isEmpty()) {
        findOutput();
        say(stderr,
            QStringLiteral("%1: %2 %1 --help tells what there is.").arg(face.name, complaint));
    }
    if (!call.problem.isEmpty()) {
        return wrongUsage;
    }
    if (!call.wantedText.isEmpty()) {
        findOutput();
        say(stdout, call.wantedText);
        return understood;
    }
    return {};
}
