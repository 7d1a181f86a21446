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

int soak(const Wishes &wishes)
{
    QFile file(wishes.figures);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Text)) {
        QTextStream(stderr) << "Could not write " << wishes.figures << '\n';
        return failed;
    }
    QTextStream figures(&file);
    writeHeading(figures);

    const QTemporaryDir folder;
    const QString port = folder.filePath("sounder");
    SoakSounder sounder(port, wishes.seconds);
    MainWindow window([port] { return QStringList(port); });
    SoakOperator person(window, port, wishes.seed);
    SoakMeter meter;
    SoakJudge judge(wishes.limits);
    QObject::connect(&meter, &SoakMeter::beaten, &person, &SoakOperator::watch);
    QObject::connect(&meter, &SoakMeter::sampled, &person, [&](const SoakSample &sample) {
        judge.add(sample);
        writeLine(figures, sample, person);
    });
    QObject::connect(&person, &SoakOperator::changeLost, &person, [&](const QString &key) {
        QTextStream(stdout) << "No outcome for " << key << " in " << person.tally().counts().made
                            << " changes\n";
    });

    window.show();
    WindowHand(window).click("openGraph");
    // Opening its windows is the program's start, which is measured elsewhere.
    QTimer::singleShot(1000, &meter, &SoakMeter::start);
    QTimer::singleShot(1000, &person, &SoakOperator::start);
    QTimer::singleShot(wishes.seconds * 1000, qApp, &QCoreApplication::quit);
    QApplication::exec();
    return conclude(judge, person);
}

} // namespace

int main(int argc, char **argv)
{
    prepareForHighDensity();
    startWithoutOpenGl();
    qputenv("QT_LOGGING_RULES", "default.debug=false");
    QApplication application(argc, argv);
    giveProgramStyle();

    QCommandLineParser parser;
    parser.setApplicationDescription(
        "TAL-VERO Connect beside a simulated sounder with all faults, worked by an operator who "
        "changes something every few seconds. Writes figures each second as comma-separated values "
        "and fails if the memory grows, the window is away for too long, or a change has no "
        "outcome.");
    parser.addHelpOption();
    const QCommandLineOption seconds("seconds", "How long (60).", "N", "60");
    const QCommandLineOption seed("seed", "What the operator's choices follow from (1).", "N", "1");
    const QCommandLineOption absence(
        "absence", "Processor time that the window's thread may take in one go, in ms (100).", "MS",
        "100");
    parser.addOptions({seconds, seed, absence});
    parser.addPositionalArgument("figures", "The file for the figures.");
    parser.process(application);
    if (parser.positionalArguments().size() != 1 || parser.value(seconds).toInt() <= 0) {
        QTextStream(stderr) << parser.helpText();
        return wrongUsage;
    }
    Wishes wishes;
    wishes.seconds = parser.value(seconds).toInt();
    wishes.seed = parser.value(seed).toUInt();
    wishes.limits.absenceCpuMs = parser.value(absence).toDouble();
    wishes.figures = parser.positionalArguments().constFirst();
    return soak(wishes);
}
