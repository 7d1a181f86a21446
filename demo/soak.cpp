// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

// The program beside a simulated sounder with every fault, for as long as is asked for: a line of
// figures each second, and a verdict at the end.

#include "appearance.h"
#include "mainwindow.h"
#include "soakjudge.h"
#include "soakoperator.h"
#include "soaksounder.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QFile>
#include <QTemporaryDir>
#include <QTextStream>

#include <optional>

namespace {

constexpr int failed = 1;
constexpr int wrongUsage = 2;

struct Wishes
{
    int seconds = 0;
    SoakJudge::Limits limits;
    QString figures;
    quint32 seed = 1;
};

void writeHeading(QTextStream &out)
{
    out << "second,resident_kib,heap_kib,cpu_percent,open_files,absence_ms,absence_cpu_ms,"
           "connections,made,confirmed,refused,timed_out,link_lost,lost\n";
}

void writeLine(QTextStream &out, const SoakSample &sample, const SoakOperator &person)
{
    const SoakTally::Counts &changes = person.tally().counts();
    out << QString::number(sample.seconds, 'f', 1) << ',' << sample.residentKib << ','
        << sample.heapKib << ',' << QString::number(sample.cpuPercent, 'f', 1) << ','
        << sample.openFiles << ',' << QString::number(sample.absenceMs, 'f', 1) << ','
        << QString::number(sample.absenceCpuMs, 'f', 1) << ',' << person.connections() << ','
        << changes.made << ',' << changes.confirmed << ',' << changes.refused << ','
        << changes.timedOut << ',' << changes.linkLost << ',' << changes.lost << '\n';
    out.flush();
}

/// Says how it went; returns the exit code.
int conclude(const SoakJudge &judge, const SoakOperator &person)
{
    const SoakTally::Counts &changes = person.tally().counts();
    QTextStream out(stdout);
    for (const QString &line : judge.summary(changes)) {
        out << line << '\n';
    }
    out << "Connections: " << person.connections() << '\n';
    const QStringList complaints = judge.complaints(changes);
    for (const QString &line : complaints) {
        out << "FAILED: " << line << '\n';
    }
    return complaints.isEmpty() ? 0 : failed;
}

/// The parts of a soak, wired.
struct Soak
{
    Soak(const Wishes &wishes, const QString &port, QTextStream &figures)
        : sounder(port, wishes.seconds)
        , window([port] { return QStringList(port); })
        , person(window, port, wishes.seed)
        , judge(wishes.limits)
    {
        QObject::connect(&meter, &SoakMeter::beaten, &person, &SoakOperator::watch);
        QObject::connect(&meter, &SoakMeter::sampled, &person, [&](const SoakSample &sample) {
            judge.add(sample);
            writeLine(figures, sample, person);
        });
        QObject::connect(&person, &SoakOperator::changeLost, &person, [this](const QString &key) {
            QTextStream(stdout) << "No outcome for " << key << " in "
                                << person.tally().counts().made << " changes\n";
        });
    }

    void run(int seconds)
    {
        window.show();
        WindowHand(window).click("openGraph");
        // Opening its windows is the program's start, which is measured elsewhere.
        QTimer::singleShot(1000, &meter, &SoakMeter::start);
        QTimer::singleShot(1000, &person, &SoakOperator::start);
        QTimer::singleShot(seconds * 1000, qApp, &QCoreApplication::quit);
        QApplication::exec();
    }

    SoakSounder sounder;
    MainWindow window;
    SoakOperator person;
    SoakMeter meter;
    SoakJudge judge;
};

int runSoak(const Wishes &wishes)
{
    QFile file(wishes.figures);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Text)) {
        QTextStream(stderr) << "Could not write " << wishes.figures << '\n';
        return failed;
    }
    QTextStream figures(&file);
    writeHeading(figures);
    const QTemporaryDir folder;
    Soak soak(wishes, folder.filePath("sounder"), figures);
    soak.run(wishes.seconds);
    return conclude(soak.judge, soak.person);
}

/// What the command line asks for; nothing if it cannot be understood.
std::optional<Wishes> readWishes(const QApplication &application)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(
        "TAL-VERO Connect beside a simulated sounder with all faults, worked by an operator who "
        "changes something every few seconds. Writes figures each second as comma-separated values "
        "and fails if the memory grows, the window is away for too long, or a change has no "
        "outcome.");
    parser.addHelpOption();
    parser.addOptions({
        {"seconds", "How long (60).", "N", "60"},
        {"seed", "What the operator's choices follow from (1).", "N", "1"},
        {"absence", "Processor time that the window's thread may take in one go, in ms (100).",
         "MS", "100"},
    });
    parser.addPositionalArgument("figures", "The file for the figures.");
    parser.process(application);
    Wishes wishes;
    wishes.seconds = parser.value("seconds").toInt();
    wishes.seed = parser.value("seed").toUInt();
    wishes.limits.absenceCpuMs = parser.value("absence").toDouble();
    wishes.figures = parser.positionalArguments().value(0);
    if (parser.positionalArguments().size() != 1 || wishes.seconds <= 0) {
        QTextStream(stderr) << parser.helpText();
        return {};
    }
    return wishes;
}

} // namespace

int main(int argc, char **argv)
{
    prepareForHighDensity();
    startWithoutOpenGl();
    qputenv("QT_LOGGING_RULES", "default.debug=false");
    const QApplication application(argc, argv);
    giveProgramStyle();
    const std::optional<Wishes> wishes = readWishes(application);
    return wishes ? runSoak(*wishes) : wrongUsage;
}
