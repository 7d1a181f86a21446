// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "faultbench.h"

#include "heapinuse.h"
#include "processortime.h"
#include "qtdifferences.h"

#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QtTest>

#include <fcntl.h>
#include <termios.h>
#include <unistd.h>

#include <algorithm>

namespace {

/// The intervals that follow an answer time of 2000 ms in proportion.
constexpr std::pair<const char *, int> intervals[] = {{"timeoutTimer", 2000},
                                                      {"answerTimer", 2000},
                                                      {"temperatureTimer", 5000},
                                                      {"checkTimer", 10000}};
constexpr int realAnswerTime = 2000;

/// Each thread has one by which it is woken.
bool isThreads(const QFileInfo &file) { return file.symLinkTarget().endsWith("[eventfd]"); }

/// Without those of the painter's threads.
int openFiles()
{
    const QFileInfoList files = QDir("/proc/self/fd").entryInfoList(QDir::System);
    return int(std::count_if(files.begin(), files.end(), [](const QFileInfo &file) {
        return !(QtDifferences::paintsInThreads && isThreads(file));
    }));
}

} // namespace

bool isLongForm() { return qgetenv("TALVERO_FAULTS") == "long"; }

FaultBench::FaultBench()
    : answerTime(realAnswerTime)
{
    sounder.hangUp(); // its clock would count as the window's
    for (int time = 0; time < 2; ++time) {
        if (!connectReady()) {
            qFatal("the window does not connect");
        }
        click("connectToDevice");
    }
}

void FaultBench::begin()
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    letInfoGo();
    timer("resizeTimer")->stop(); // the window was opened long ago
    timer("temperatureTimer")->stop();
    forgetWhatWasSaid();
    line.clearReceived();
    before = holdings();
    turns.reset();
}

void FaultBench::forgetWhatWasSaid()
{
    const int port = ::open(line.slavePath().toLocal8Bit().constData(), O_RDWR | O_NOCTTY);
    tcflush(port, TCIFLUSH);
    ::close(port);
}

QString FaultBench::end()
{
    if (!isOffline()) {
        click("connectToDevice");
    }
    waits([this] { return !timer("commandTimer")->isActive(); }); // it drops what waited
    const double absence = turns.longestMs();
    letInfoGo();
    line.clearReceived();
    const double idle = idleShare();
    const Holdings now = holdings();
    const Figures figures{absence, now.heapBytes - before.heapBytes, idle};
    note(figures);
    return excess(figures, now);
}

void FaultBench::letInfoGo()
{
    QMetaObject::invokeMethod(&window, "clearInfoText");
    timer("infoTimer")->stop();
    QCoreApplication::processEvents();
}

FaultBench::Holdings FaultBench::holdings()
{
    log.clear();
    QStringList timers;
    const QList<QTimer *> all = window.findChildren<QTimer *>() + port().findChildren<QTimer *>();
    for (const QTimer *one : all) {
        if (one->isActive() && !one->objectName().isEmpty()) {
            timers << one->objectName();
        }
    }
    timers.sort();
    const auto objects = window.findChildren<QObject *>().size() +
                         port().findChildren<QObject *>().size() +
                         QApplication::allWidgets().size();
    return {heapInUse(), openFiles(), int(objects), timers};
}

/// What the window does by itself, of a core, while so much time passes.
double FaultBench::shareWhile(int milliseconds)
{
    const double start = ProcessorTime::spentMs();
    QElapsedTimer clock;
    clock.start();
    QEventLoop loop;
    QTimer::singleShot(milliseconds, &loop, &QEventLoop::quit);
    loop.exec();
    return (ProcessorTime::spentMs() - start) / static_cast<double>(clock.elapsed());
}

/// The same once all is painted: what goes on without end shows however often it is looked at.
double FaultBench::idleShare()
{
    constexpr int mostLooks = 10;
    double share = shareWhile(shortOrLong(60, 500));
    for (int look = 1; look < mostLooks && share > FaultLimits::idleShare; ++look) {
        share = shareWhile(shortOrLong(60, 500));
    }
    return share;
}

QString FaultBench::excess(const Figures &figures, const Holdings &now) const
{
    QStringList found;
    const auto check = [&found](bool holds, const QString &words) {
        if (!holds) {
            found << words;
        }
    };
    check(figures.absenceMs <= ProcessorTime::allowed(FaultLimits::absenceMs) / 2,
          QStringLiteral("the window was away for %1 ms").arg(figures.absenceMs));
    check(figures.heapBytes <= heapAllowed,
          QStringLiteral("%1 bytes of heap did not come back").arg(figures.heapBytes));
    check(figures.idleShare <= FaultLimits::idleShare,
          QStringLiteral("%1 % of a core afterwards").arg(100 * figures.idleShare));
    check(now.files <= before.files, QStringLiteral("%1 files more").arg(now.files - before.files));
    check(now.objects <= before.objects,
          QStringLiteral("%1 objects more").arg(now.objects - before.objects));
    check(now.timers == before.timers, "timers: " + now.timers.join(' '));
    return found.join(QStringLiteral("; "));
}

/// A line of the table that scripts/faults prints.
void FaultBench::note(const Figures &figures) const
{
    QFile table(qEnvironmentVariable("TALVERO_FAULTS_TABLE"));
    if (!table.fileName().isEmpty() && table.open(QIODevice::Append)) {
        const char *const row = QTest::currentDataTag();
        table.write(QStringLiteral("%1\t%2\t%3\t%4\t%5\n")
                        .arg(QCoreApplication::applicationName().mid(4),
                             row != nullptr ? row : QTest::currentTestFunction())
                        .arg(figures.absenceMs, 0, 'f', 1)
                        .arg(figures.heapBytes)
                        .arg(100 * figures.idleShare, 0, 'f', 2)
                        .toUtf8());
    }
}

bool FaultBench::pour(const QByteArray &bytes)
{
    constexpr int atOnce = 4096;
    constexpr int patienceMs = 30000;
    QElapsedTimer sinceProgress;
    sinceProgress.start();
    for (int said = 0; said < bytes.size();) {
        const int now = line.write(bytes.mid(said, atOnce));
        if (now > 0) {
            said += now;
            sinceProgress.start();
        }
        QCoreApplication::processEvents();
        if (sinceProgress.hasExpired(patienceMs)) {
            return false;
        }
    }
    return true;
}

void FaultBench::flood(const QByteArray &bytes, int milliseconds)
{
    QElapsedTimer clock;
    clock.start();
    QByteArray rest;
    while (!clock.hasExpired(milliseconds)) {
        rest = rest.isEmpty() ? bytes : rest;
        rest.remove(0, std::max(line.write(rest), 0));
        QCoreApplication::processEvents();
        line.clearReceived();
    }
}

bool FaultBench::tellSettings()
{
    return tell("*i05,v1500000,s30000,I9600,a4,H1,L1") &&
           tell("*Hca,HlN,Hg050,Hp20,Ht40,Ho00400,Hq00000,Hw200,Hm00450") &&
           tell("*Lca,LlN,Lg050,Lp20,Lt40,Lo00400,Lq00000,Lw033,Lm00600");
}

bool FaultBench::connectReady()
{
    setAnswerTime(realAnswerTime);
    const bool isReady = connectAs() && tellSettings();
    setAnswerTime(answerTime);
    letInfoGo();
    return isReady;
}

bool FaultBench::waits(const std::function<bool()> &condition, int patienceMs)
{
    return QTest::qWaitFor(condition, patienceMs);
}

bool FaultBench::reads(const QString &end, int patienceMs)
{
    return waits([&] { return info().endsWith(end); }, patienceMs);
}

bool FaultBench::waitsUntilAlmostLate(QTimer *watch)
{
    constexpr int justInTimeMs = 100;
    return waits([watch] { return watch->remainingTime() <= justInTimeMs; }) && watch->isActive();
}

void FaultBench::keepAnswerTime(int milliseconds)
{
    answerTime = milliseconds;
    setAnswerTime(milliseconds);
}

void FaultBench::setAnswerTime(int milliseconds)
{
    for (const auto &[name, real] : intervals) {
        auto *const inLayer = port().findChild<QTimer *>(name);
        (inLayer != nullptr ? inLayer : timer(name))
            ->setInterval(real * milliseconds / realAnswerTime);
    }
}

QTimer *FaultBench::answerWatch() { return port().findChild<QTimer *>("timeoutTimer"); }

SerialPortLayer &FaultBench::port() { return window.findChild<LinkSession *>()->port(); }

void FaultTest::init()
{
    if (!bench) {
        bench = std::make_unique<FaultBench>();
    }
    bench->begin();
}

void FaultTest::cleanup()
{
    const QString excess = bench->end();
    if (needsNewCable) {
        bench.reset();
        needsNewCable = false;
    }
    QVERIFY2(excess.isEmpty(), qPrintable(excess));
}

void FaultTest::cleanupTestCase() { bench.reset(); }

void FaultTest::play()
{
    QFETCH(const FaultRow *, row);
    QVERIFY2(row->happens(*bench), qPrintable("It does not come so far. Info: " + bench->info()));
    bench->reads(row->info);
    const QString info = bench->info();
    QVERIFY2(info.endsWith(row->info) && info.isEmpty() == (*row->info == '\0'), qPrintable(info));
    QCOMPARE(bench->showsConnected(), row->endsConnected);
    QCOMPARE(bench->isOffline(), !row->endsConnected);
}
