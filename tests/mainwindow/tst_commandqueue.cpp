// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "logcapture.h"
#include "windowbench.h"

#include <QElapsedTimer>
#include <QtTest>

#include <memory>

namespace {

/// No control of the form queues a setting that does not exist, but what the queue does with one
/// must be seen all the same.
void queueChange(MainWindow &window, const QString &name)
{
    window.findChild<CommandQueue *>()->triggerChange(name, QStringLiteral("1"));
}

constexpr int pauseMs = 500;

/// What the operator reads at each end of the queue's pause, and when.
struct Announcement
{
    qint64 afterMs;
    QString text;
};

} // namespace

class CommandQueueTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void thePauseIsHalfASecond();
    void aChangeGoesOutHalfASecondAfterIt();
    void everyEditBeginsThePauseAnew();
    void tenQuickClicksSendOneCommandWithTheFinalValue();
    void twoSettingsGoOutHalfASecondApartInTheOrderOfTheirFirstEdit();
    void theQueueRestsWhenItIsEmpty();
    void aRepeatOfTheFirstIsMergedAtOnce();
    void aRepeatOfAnotherIsMergedWhenItComesToTheFront();
    void aRepeatOfTheFirstMergesAllOthersToo();
    void theValueSentIsTheOneHeldWhenItsTurnComes();
    void anEditWhileTheQueueDrainsHoldsUpWhatIsPending();
    void theNextCommandDoesNotWaitForTheAnswer();
    void withoutAConnectionPendingChangesAreDiscardedSilently();
    void anUnknownSettingIsShownInRedAndStallsTheQueue();
    void disconnectingFreesAQueueThatIsStalled();
    void theRoadOfAChangeIsLogged();

private:
    QTimer *commandTimer() { return bench->timer("commandTimer"); }
    void watchAnnouncements();
    void lengthenPause();
    void cutPauseShort() { commandTimer()->setInterval(1); }
    bool waitForRest();
    bool waitForResult(const QString &text);

    std::unique_ptr<LogCapture> log;
    std::unique_ptr<WindowBench> bench;
    std::unique_ptr<QObject> watch; // the window stays when the test is over
    QElapsedTimer clock;
    QVector<Announcement> announcements;
};

void CommandQueueTest::init()
{
    log = std::make_unique<LogCapture>();
    SounderOptions options = WindowBench::quietSounder();
    options.pace = false;
    bench = std::make_unique<WindowBench>(options);
    QVERIFY(bench->connectToSounder());
    bench->device().clearTranscript();
    log->clear();
    announcements.clear();
    watch = std::make_unique<QObject>();
}

void CommandQueueTest::cleanup()
{
    watch.reset();
    bench.reset();
    log.reset();
}

/// From now on; with a timer that does not fire early.
void CommandQueueTest::watchAnnouncements()
{
    commandTimer()->setTimerType(Qt::PreciseTimer);
    connect(commandTimer(), &QTimer::timeout, watch.get(), [this] {
        announcements.append({clock.elapsed(), bench->info()});
    });
    clock.start();
}

/// So long that it cannot end while the test looks on.
void CommandQueueTest::lengthenPause()
{
    commandTimer()->setTimerType(Qt::PreciseTimer);
    commandTimer()->setInterval(60000);
}

bool CommandQueueTest::waitForRest()
{
    return QTest::qWaitFor([this] { return !commandTimer()->isActive(); });
}

bool CommandQueueTest::waitForResult(const QString &text)
{
    return QTest::qWaitFor([this, &text] { return bench->info() == text + " ... Success"; });
}

void CommandQueueTest::thePauseIsHalfASecond()
{
    QCOMPARE(commandTimer()->interval(), pauseMs);
    QVERIFY(commandTimer()->isSingleShot());
    QVERIFY2(!commandTimer()->isActive(), "nothing is pending after connecting");
}

void CommandQueueTest::aChangeGoesOutHalfASecondAfterIt()
{
    watchAnnouncements();
    bench->click("pingUp");
    QVERIFY(waitForResult("Setting Pings Per Second to 6"));
    QCOMPARE(announcements.size(), 1);
    QVERIFY2(announcements.first().afterMs >= pauseMs,
             qPrintable(QString::number(announcements.first().afterMs) + " ms"));
    QCOMPARE(bench->settingCommands(), QByteArrayList{"*i06...."});
}

void CommandQueueTest::everyEditBeginsThePauseAnew()
{
    lengthenPause();
    bench->click("pingUp");
    QTRY_VERIFY(commandTimer()->remainingTime() < 59950);
    const int remaining = commandTimer()->remainingTime();
    bench->click("pingUp");
    QVERIFY(commandTimer()->remainingTime() > remaining);
}

void CommandQueueTest::tenQuickClicksSendOneCommandWithTheFinalValue()
{
    for (int click = 0; click < 10; ++click) {
        bench->click("soundVelocityUp");
    }
    QVERIFY(waitForResult("Setting Sound Velocity to 1510 m/s"));
    QVERIFY(waitForRest());
    QCOMPARE(bench->settingCommands(), QByteArrayList{"*v510000"});
    QCOMPARE(bench->device().settings().velocityMmS, 1510000);
}

void CommandQueueTest::twoSettingsGoOutHalfASecondApartInTheOrderOfTheirFirstEdit()
{
    watchAnnouncements();
    bench->click("soundVelocityUp");
    bench->click("pingUp");
    bench->click("soundVelocityUp");
    QTRY_COMPARE(announcements.size(), 2);
    QCOMPARE(announcements.at(0).text, QString("Setting Sound Velocity to 1502 m/s"));
    QCOMPARE(announcements.at(1).text, QString("Setting Pings Per Second to 6"));
    const qint64 apartMs = announcements.at(1).afterMs - announcements.at(0).afterMs;
    QVERIFY2(apartMs >= pauseMs - 1, qPrintable(QString::number(apartMs) + " ms apart"));
    QTRY_COMPARE(bench->settingCommands(), (QByteArrayList{"*v502000", "*i06...."}));
}

void CommandQueueTest::theQueueRestsWhenItIsEmpty()
{
    cutPauseShort();
    bench->click("pingUp");
    QVERIFY(waitForResult("Setting Pings Per Second to 6"));
    QVERIFY2(!commandTimer()->isActive(), "the queue goes on although nothing is pending");
}

void CommandQueueTest::aRepeatOfTheFirstIsMergedAtOnce()
{
    cutPauseShort();
    bench->click("pingUp");
    bench->click("soundVelocityUp");
    bench->click("pingUp");
    QTRY_COMPARE(bench->settingCommands(), (QByteArrayList{"*i07....", "*v501000"}));
    QVERIFY(waitForRest());
    QVERIFY(
        log->contains("Have duplicates, going to uniquify :  (\"Ping\", \"Velocity\", \"Ping\")"));
    QVERIFY(log->contains("result is  (\"Ping\", \"Velocity\")"));
}

/// Deliberate: only the front of the queue is looked at.
void CommandQueueTest::aRepeatOfAnotherIsMergedWhenItComesToTheFront()
{
    cutPauseShort();
    bench->click("pingUp");
    bench->click("soundVelocityUp");
    bench->click("soundVelocityUp");
    QTRY_COMPARE(bench->settingCommands(), (QByteArrayList{"*i06....", "*v502000"}));
    QVERIFY(waitForRest());
    QCOMPARE(log->count("Have duplicates"), 1);
    QVERIFY(log->contains("going to uniquify :  (\"Velocity\", \"Velocity\")"));
    QVERIFY(log->contains("result is  (\"Velocity\")"));
}

void CommandQueueTest::aRepeatOfTheFirstMergesAllOthersToo()
{
    cutPauseShort();
    for (const char *button : {"pingUp", "pingUp", "soundVelocityUp", "soundVelocityUp"}) {
        bench->click(button);
    }
    QTRY_COMPARE(bench->settingCommands(), (QByteArrayList{"*i07....", "*v502000"}));
    QCOMPARE(log->count("Have duplicates"), 1);
}

/// Names are queued, never values.
void CommandQueueTest::theValueSentIsTheOneHeldWhenItsTurnComes()
{
    bench->click("pingUp");
    bench->click("soundVelocityUp");
    QTRY_COMPARE(bench->settingCommands(), QByteArrayList{"*i06...."});
    bench->click("soundVelocityUp");
    QVERIFY(waitForResult("Setting Sound Velocity to 1502 m/s"));
    QVERIFY(waitForRest());
    QCOMPARE(bench->settingCommands(), (QByteArrayList{"*i06....", "*v502000"}));
}

void CommandQueueTest::anEditWhileTheQueueDrainsHoldsUpWhatIsPending()
{
    lengthenPause();
    bench->click("pingUp");
    bench->click("soundVelocityUp");
    QVERIFY(QMetaObject::invokeMethod(&bench->window, "sendLatestCommand"));
    QTRY_VERIFY(commandTimer()->remainingTime() < 59950);
    const int remaining = commandTimer()->remainingTime();
    bench->click("maxDepthUp");
    QVERIFY(commandTimer()->remainingTime() > remaining);
    cutPauseShort();
    QTRY_COMPARE(bench->settingCommands(), (QByteArrayList{"*i06....", "*v501000", "*s035000"}));
}

void CommandQueueTest::theNextCommandDoesNotWaitForTheAnswer()
{
    QVERIFY(bench->device().setFault("silent", 1).isEmpty());
    cutPauseShort();
    bench->click("pingUp");
    bench->click("soundVelocityUp");
    QTRY_COMPARE(bench->settingCommands(), (QByteArrayList{"*i06....", "*v501000"}));
    QVERIFY2(!log->contains("SERIAL TIMED OUT"), "the second command waited for the first's end");
    QCOMPARE(bench->info(), QString("Setting Sound Velocity to 1501 m/s"));
    QCOMPARE(bench->infoColour(), QString("black"));
}

void CommandQueueTest::withoutAConnectionPendingChangesAreDiscardedSilently()
{
    bench->click("pingUp");
    bench->click("soundVelocityUp");
    bench->click("connectToDevice");
    QCOMPARE(bench->text("connectToDevice"), QString("Connect   "));
    QVERIFY(commandTimer()->isActive());
    log->clear();
    QVERIFY(waitForRest());
    QCOMPARE(log->texts(), QStringList{"Preparing to send latest command"});
    QCOMPARE(bench->info(), QString());

    QVERIFY(bench->connectToSounder());
    cutPauseShort();
    bench->click("maxDepthUp");
    QVERIFY(waitForResult("Setting Maximum Depth to 35 m"));
    QVERIFY(waitForRest());
    QCOMPARE(bench->settingCommands(), QByteArrayList{"*s035000"});
}

/// Deliberate: the name stays in front, and the next edit meets it there again.
void CommandQueueTest::anUnknownSettingIsShownInRedAndStallsTheQueue()
{
    cutPauseShort();
    queueChange(bench->window, "highNothing");
    QTRY_COMPARE(bench->info(), QString("Unknown Setting"));
    QCOMPARE(bench->infoColour(), QString("Red"));
    QVERIFY2(!commandTimer()->isActive(), "the queue does not go on by itself");

    QMetaObject::invokeMethod(&bench->window, "clearInfoText");
    bench->click("pingUp");
    QTRY_COMPARE(bench->info(), QString("Unknown Setting"));
    QVERIFY(!commandTimer()->isActive());
    QCOMPARE(bench->settingCommands(), QByteArrayList{});
    QVERIFY(bench->showsConnected());
}

void CommandQueueTest::disconnectingFreesAQueueThatIsStalled()
{
    cutPauseShort();
    queueChange(bench->window, "highNothing");
    QTRY_COMPARE(bench->info(), QString("Unknown Setting"));
    bench->click("pingUp");
    bench->click("connectToDevice");
    QVERIFY(waitForRest());

    QVERIFY(bench->connectToSounder());
    bench->click("pingUp");
    QVERIFY(waitForResult("Setting Pings Per Second to 6"));
}

void CommandQueueTest::theRoadOfAChangeIsLogged()
{
    cutPauseShort();
    bench->click("highFreqUp");
    QVERIFY(waitForResult("Setting High Frequency to 201 kHz"));
    const QStringList texts = log->texts();
    const int first = texts.indexOf("trigger change  \"highFreq\"  to  \"201\"");
    QVERIFY2(first >= 0, qPrintable(texts.join('\n')));
    QCOMPARE(texts.mid(first),
             (QStringList{"trigger change  \"highFreq\"  to  \"201\"",
                          "Preparing to send latest command", "Got a thing",
                          " value is  \"201\"  Num is  201",
                          "going to change  \"highFreq\"  using string  \"*w0201.H\"",
                          "\"201 kHz\"", "Sending  \"*w0201.H\""}));
    QVERIFY(log->contains("MainWindow::triggerChange"));
    QVERIFY(log->contains("MainWindow::sendLatestCommand"));
}

QTEST_MAIN(CommandQueueTest)

#include "tst_commandqueue.moc"
