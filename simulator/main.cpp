// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "commandline.h"
#include "serialsounder.h"
#include "symlink.h"
#include "transcriptfile.h"

#ifdef Q_OS_UNIX
#include "ptysounder.h"
#endif

#include <QCoreApplication>

#include <csignal>
#include <cstdio>
#include <memory>

namespace {

constexpr int failed = 1;
constexpr int wrongUsage = 2;

volatile std::sig_atomic_t isAskedToStop = 0;

void askToStop(int) { isAskedToStop = 1; }

/// A signal's handler may do no more than set a flag, so a timer looks at it.
void quitOnSignal(QTimer &poll)
{
    std::signal(SIGINT, askToStop);
    std::signal(SIGTERM, askToStop);
    QObject::connect(&poll, &QTimer::timeout, qApp, [] {
        if (isAskedToStop) {
            QCoreApplication::quit();
        }
    });
    poll.start(std::chrono::milliseconds(50));
}

int complain(const QString &problem, int exitCode)
{
    std::fprintf(stderr, "tal-vero-sounder: %s\n", qPrintable(problem));
    return exitCode;
}

void say(const QString &text)
{
    std::printf("%s\n", qPrintable(text));
    std::fflush(stdout); // a script waits for the port's name
}

/// The sounder on the line that was asked for, or nothing and the reason.
std::unique_ptr<SounderLine> makeSounder(const CommandLine &line, QString *problem)
{
    std::unique_ptr<SounderLine> sounder;
    if (!line.portName.isEmpty()) {
        auto onPort = std::make_unique<SerialSounder>(line.portName, line.options);
        if (!onPort->isOpen()) {
            *problem = QStringLiteral("cannot open %1: %2").arg(line.portName, onPort->errorText());
        }
        sounder = std::move(onPort);
    } else {
#ifdef Q_OS_UNIX
        sounder = std::make_unique<PtySounder>(line.options);
        if (!sounder->isOpen()) {
            *problem = QStringLiteral("the system gives no pseudo-terminal");
        }
#else
        *problem =
            QStringLiteral("there are no pseudo-terminals here; give a serial port by --port");
#endif
    }
    return problem->isEmpty() ? std::move(sounder) : nullptr;
}

/// The log of the traffic; null if none was asked for.
std::unique_ptr<TranscriptFile> makeTranscript(const QString &path, QString *problem)
{
    if (path.isEmpty()) {
        return nullptr;
    }
    auto file = std::make_unique<TranscriptFile>(path);
    if (!file->isOpen()) {
        *problem = QStringLiteral("cannot write %1: %2").arg(path, file->errorText());
    }
    return file;
}

void keepTranscript(const SounderLine &sounder, TranscriptFile &file)
{
    QObject::connect(&sounder, &SounderLine::bytesReceived, &sounder,
                     [&file](const QByteArray &bytes) { file.addReceived(bytes); });
    QObject::connect(&sounder, &SounderLine::bytesSent, &sounder,
                     [&file](const QByteArray &bytes) { file.addSent(bytes); });
}

std::unique_ptr<Symlink> makeLink(const QString &path, const QString &target, QString *problem)
{
    if (path.isEmpty()) {
        return nullptr;
    }
    auto link = std::make_unique<Symlink>(path, target);
    *problem = link->problem();
    return link;
}

/// Serves the line until a signal comes or the line is gone.
int serve(const SounderLine &sounder)
{
    QObject::connect(&sounder, &SounderLine::hungUp, qApp, [] {
        complain(QStringLiteral("the line is gone"), 0);
        QCoreApplication::quit();
    });
    QTimer poll;
    quitOnSignal(poll);
    say(sounder.portPath());
    return QCoreApplication::exec();
}

int run(const CommandLine &line)
{
    QString problem;
    const auto transcript = makeTranscript(line.transcriptPath, &problem);
    if (!problem.isEmpty()) {
        return complain(problem, failed);
    }
    const auto sounder = makeSounder(line, &problem);
    if (!sounder) {
        return complain(problem, failed);
    }
    const auto link = makeLink(line.linkPath, sounder->portPath(), &problem);
    if (!problem.isEmpty()) {
        return complain(problem, failed);
    }
    if (transcript) {
        keepTranscript(*sounder, *transcript);
    }
    return serve(*sounder);
}

} // namespace

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("tal-vero-sounder"));
    const CommandLine line = readCommandLine(QCoreApplication::arguments());
    if (!line.wantedText.isEmpty()) {
        say(line.wantedText);
        return 0;
    }
    return line.problem.isEmpty() ? run(line) : complain(line.problem, wrongUsage);
}
