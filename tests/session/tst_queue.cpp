// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "commandqueue.h"

#include "infoline.h"
#include "logcapture.h"
#include "rawpty.h"
#include "sentbytes.h"
#include "serialportlayer.h"
#include "settings.h"

#include <QtTest>

#include <memory>

namespace {

/// The queue with a bare line at its end. Its timer leads nowhere: the test says when its time is
/// over.
struct QueueBench
{
    QueueBench()
    {
        if (!line.isOpen()) {
            qFatal("the system gave no pseudo-terminal");
        }
        QObject::connect(&info, &InfoLine::shown, &info,
                         [this](InfoColour colour, const QString &) { colours.append(colour); });
    }

    /// Opens the port; afterwards nothing counts as received or logged.
    void open()
    {
        port.portName = line.slavePath();
        port.baudRate = QStringLiteral("9600");
        QVERIFY(port.openPort());
        QCOMPARE(takeSentBytes(port, line), QByteArray("*nasdfd\r\n"));
        log.clear();
    }

    void change(const QStringList &names)
    {
        for (const QString &name : names) {
            queue.triggerChange(name, settings.getSettingString(name));
        }
        log.clear();
    }

    /// The pause is over.
    void endPause()
    {
        queue.timer().stop();
        queue.sendLatestCommand();
    }

    LogCapture log;
    RawPty line;
    Settings settings{QStringList()};
    SerialPortLayer port;
    InfoLine info;
    QVector<InfoColour> colours;
    CommandQueue queue{settings, port, info};
};

} // namespace

/// The changes that wait to be sent, the merging of repeats, and the sending of one.
class QueueTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { bench.reset(); }

    void atTheStartNothingWaits();
    void aChangeOnlyWaits();
    void everyChangeBeginsThePauseAnew();
    void theFirstGoesOutAndRepeatsOfItAreMerged_data();
    void theFirstGoesOutAndRepeatsOfItAreMerged();
    void oneCommandGoesOutAfterEachPause();
    void theValueSentIsTheOneHeldWhenItsTurnComes();
    void whatIsSentIsAnnounced();
    void whatIsSentAwaitsItsAnswer();
    void theNextCommandDoesNotWaitForAnAnswer();
    void aKeyWithoutACommandStaysInFront_data();
    void aKeyWithoutACommandStaysInFront();
    void theNextChangeMeetsTheUnknownKeyAgain();
    void closingThePortFreesAStalledQueue();
    void withoutAConnectionAllIsForgotten_data();
    void withoutAConnectionAllIsForgotten();
    void anEmptyQueueSendsNothing();
    void theRoadOfAChangeIsLogged();
    void mergingIsLogged();

private:
    QByteArray sent() { return takeSentBytes(bench->port, bench->line); }

    std::unique_ptr<QueueBench> bench;
};

void QueueTest::init()
{
    bench = std::make_unique<QueueBench>();
    bench->open();
    bench->port.setConnected();
}

void QueueTest::atTheStartNothingWaits()
{
    QVERIFY(bench->queue.waiting().isEmpty());
    QVERIFY(!bench->queue.isAwaitingAnswer());
    QVERIFY(!bench->queue.timer().isActive());
    QCOMPARE(bench->queue.timer().interval(), 500);
    QVERIFY(bench->queue.timer().isSingleShot());
    QCOMPARE(bench->queue.timer().objectName(), QString("commandTimer"));
}

void QueueTest::aChangeOnlyWaits()
{
    bench->queue.triggerChange("Ping", "6");
    QCOMPARE(bench->log.texts(), QStringList{"trigger change  \"Ping\"  to  \"6\""});
    QVERIFY2(bench->log.contains("MainWindow::triggerChange"), "the log's readers look for it");
    bench->queue.triggerChange("Velocity", "1501");
    bench->queue.triggerChange("Ping", "7");
    QCOMPARE(bench->queue.waiting(), (QStringList{"Ping", "Velocity", "Ping"}));
    QVERIFY(bench->queue.timer().isActive());
    QVERIFY(!bench->queue.isAwaitingAnswer());
    QCOMPARE(bench->info.text(), QString());
    QCOMPARE(sent(), QByteArray());
}

void QueueTest::everyChangeBeginsThePauseAnew()
{
    QTimer &timer = bench->queue.timer();
    timer.setTimerType(Qt::PreciseTimer); // others round the time that they have left
    timer.setInterval(60000);
    bench->change({"Ping"});
    QTRY_VERIFY(timer.remainingTime() < 59990);
    const int before = timer.remainingTime();
    bench->change({"Ping"});
    QVERIFY(timer.remainingTime() > before);
}

void QueueTest::theFirstGoesOutAndRepeatsOfItAreMerged_data()
{
    QTest::addColumn<QStringList>("changes");
    QTest::addColumn<QStringList>("left");
    QTest::addColumn<bool>("merged");

    const auto row = [](const char *changes, const char *left, bool merged) {
        const auto list = [](const char *names) {
            return QString(names).split(' ', Qt::SkipEmptyParts);
        };
        QTest::newRow(changes) << list(changes) << list(left) << merged;
    };
    row("Ping", "", false);
    row("Ping Velocity", "Velocity", false);
    row("Ping Ping", "", true);
    row("Ping Velocity Ping", "Velocity", true);
    row("Ping Velocity Velocity", "Velocity Velocity", false); // only the front is looked at
    row("Ping Ping Velocity Velocity", "Velocity", true);
    row("Ping Velocity Depth Ping Depth", "Velocity Depth", true);
}

void QueueTest::theFirstGoesOutAndRepeatsOfItAreMerged()
{
    QFETCH(QStringList, changes);
    QFETCH(QStringList, left);
    QFETCH(bool, merged);
    bench->change(changes);
    bench->endPause();
    QCOMPARE(bench->queue.waiting(), left);
    QCOMPARE(bench->log.contains("Have duplicates"), merged);
    QVERIFY2(bench->queue.timer().isActive() == !left.isEmpty(), "whether the queue goes on");
    QCOMPARE(sent(), QByteArray("*i05...."));
}

void QueueTest::oneCommandGoesOutAfterEachPause()
{
    bench->change({"Velocity", "highFreq", "lowDraft", "lowDraft"});
    bench->settings.changeSetting("highFreq", "201");
    bench->settings.changeSetting("lowDraft", "0.5");
    for (const char *command : {"*v500000", "*w0201.H", "*o00500L", ""}) {
        bench->endPause();
        QCOMPARE(sent(), QByteArray(command));
    }
    QVERIFY2(!bench->queue.timer().isActive(), "the queue goes on although nothing waits");
}

void QueueTest::theValueSentIsTheOneHeldWhenItsTurnComes()
{
    bench->settings.changeSetting("Ping", "6");
    bench->change({"Ping"});
    bench->settings.changeSetting("Ping", "7");
    bench->endPause();
    QCOMPARE(sent(), QByteArray("*i07...."));
}

void QueueTest::whatIsSentIsAnnounced()
{
    bench->settings.changeSetting("highDraft", "0.5");
    bench->settings.goToImperial(true);
    bench->change({"highDraft"});
    bench->endPause();
    QCOMPARE(bench->info.text(), QString("Setting High Frequency Draft to 1.64 ft"));
    QCOMPARE(bench->info.topic().settingKey(), QString("highDraft"));
    QCOMPARE(bench->colours, QVector<InfoColour>{InfoColour::Progress});
}

void QueueTest::whatIsSentAwaitsItsAnswer()
{
    bench->change({"Ping"});
    bench->endPause();
    QVERIFY(bench->queue.isAwaitingAnswer());
    bench->queue.endWaiting();
    QVERIFY(!bench->queue.isAwaitingAnswer());
    bench->endPause();
    QVERIFY2(!bench->queue.isAwaitingAnswer(), "nothing was sent that could be answered");
}

void QueueTest::theNextCommandDoesNotWaitForAnAnswer()
{
    bench->change({"Ping", "Velocity"});
    bench->endPause();
    bench->endPause();
    QCOMPARE(sent(), QByteArray("*i05....*v500000"));
    QVERIFY(bench->queue.isAwaitingAnswer());
    QCOMPARE(bench->info.text(), QString("Setting Sound Velocity to 1500 m/s"));
}

void QueueTest::aKeyWithoutACommandStaysInFront_data()
{
    QTest::addColumn<QStringList>("changes");
    QTest::addColumn<QStringList>("left");
    QTest::newRow("alone") << QStringList{"highNothing"} << QStringList{"highNothing"};
    QTest::newRow("in front of another")
        << QStringList{"highNothing", "Ping"} << QStringList{"highNothing", "Ping"};
    QTest::newRow("twice") << QStringList{"highNothing", "highNothing"}
                           << QStringList{"highNothing"};
}

void QueueTest::aKeyWithoutACommandStaysInFront()
{
    QFETCH(QStringList, changes);
    bench->change(changes);
    bench->endPause();
    QCOMPARE(bench->info.text(), QString("Unknown Setting"));
    QCOMPARE(bench->colours, QVector<InfoColour>{InfoColour::Failure});
    QCOMPARE(bench->info.topic().settingKey(), QString());
    QTEST(bench->queue.waiting(), "left");
    QVERIFY2(!bench->queue.timer().isActive(), "the queue does not go on by itself");
    QVERIFY(!bench->queue.isAwaitingAnswer());
    QCOMPARE(sent(), QByteArray());
}

void QueueTest::theNextChangeMeetsTheUnknownKeyAgain()
{
    bench->change({"highNothing"});
    bench->endPause();
    bench->info.clear();
    bench->change({"Ping"});
    QVERIFY(bench->queue.timer().isActive());
    bench->endPause();
    QCOMPARE(bench->info.text(), QString("Unknown Setting"));
    QCOMPARE(bench->queue.waiting(), (QStringList{"highNothing", "Ping"}));
    QCOMPARE(sent(), QByteArray());
}

void QueueTest::closingThePortFreesAStalledQueue()
{
    bench->change({"highNothing"});
    bench->endPause();
    bench->port.closePort();
    bench->endPause();
    bench->open();
    bench->port.setConnected();
    bench->change({"Ping"});
    bench->endPause();
    QCOMPARE(sent(), QByteArray("*i05...."));
}

void QueueTest::withoutAConnectionAllIsForgotten_data()
{
    QTest::addColumn<bool>("isOpen");
    QTest::newRow("port closed") << false;
    QTest::newRow("port open, sounder not identified") << true;
}

void QueueTest::withoutAConnectionAllIsForgotten()
{
    QFETCH(bool, isOpen);
    bench->change({"Ping", "Velocity", "highNothing"});
    bench->port.closePort();
    if (isOpen) {
        bench->open();
    }
    bench->endPause();
    QCOMPARE(bench->log.texts(), QStringList{"Preparing to send latest command"});
    QVERIFY(bench->queue.waiting().isEmpty());
    QVERIFY(!bench->queue.isAwaitingAnswer());
    QVERIFY(!bench->queue.timer().isActive());
    QCOMPARE(bench->info.text(), QString());
    QVERIFY2(bench->colours.isEmpty(), "the operator is told of it");
    if (isOpen) {
        QCOMPARE(sent(), QByteArray());
    }
}

void QueueTest::anEmptyQueueSendsNothing()
{
    bench->endPause();
    QCOMPARE(bench->log.texts(), QStringList{"Preparing to send latest command"});
    QVERIFY(bench->colours.isEmpty());
    QVERIFY(!bench->queue.timer().isActive());
    QCOMPARE(sent(), QByteArray());
}

void QueueTest::theRoadOfAChangeIsLogged()
{
    bench->settings.changeSetting("highFreq", "201");
    bench->change({"highFreq"});
    bench->endPause();
    QCOMPARE(bench->log.texts(),
             (QStringList{"Preparing to send latest command", "Got a thing",
                          " value is  \"201\"  Num is  201",
                          "going to change  \"highFreq\"  using string  \"*w0201.H\"",
                          "\"201 kHz\"", "Sending  \"*w0201.H\""}));
    const QString first = bench->log.lines().first();
    QVERIFY2(first.startsWith("mainwindow_commandqueue.cpp ") &&
                 first.contains(" MainWindow::sendLatestCommand "),
             qPrintable(first));
}

void QueueTest::mergingIsLogged()
{
    bench->change({"Ping", "Velocity", "Ping"});
    bench->endPause();
    QCOMPARE(
        bench->log.texts().mid(1, 2),
        (QStringList{"Have duplicates, going to uniquify :  (\"Ping\", \"Velocity\", \"Ping\")",
                     "result is  (\"Ping\", \"Velocity\")"}));
}

QTEST_MAIN(QueueTest)

#include "tst_queue.moc"
