// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "logcapture.h"
#include "rawbench.h"

#include <QLabel>
#include <QtTest>

#include <algorithm>
#include <ctime>
#include <memory>

/// How the sounder's answer to a change, or its silence, closes the announcement. The test plays
/// the sounder.
class CommandAnswersTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void anAnnouncementIsBlackUntilItsAnswer();
    void anOkClosesTheAnnouncementInGreen();
    void aRefusalClosesTheAnnouncementInRedWithAdvice_data();
    void aRefusalClosesTheAnnouncementInRedWithAdvice();
    void noAnswerInTimeIsShownInRedAndTheLinkIsKept();
    void aLateAnswerIsMatchedToWhatIsShownThen();
    void anAnswerEndsTheWaitForIt_data();
    void anAnswerEndsTheWaitForIt();
    void theNextConnectionDoesNotInheritAWaitingCommand();
    void endlessAnswersDoNotLengthenTheInfoLineWithoutEnd();
    void theLongestTextHoldsTheWindowUpForLessThan20ms();

private:
    void change(const QString &button, const QByteArray &command);
    bool waitForInfo(const QString &text);

    std::unique_ptr<LogCapture> log;
    std::unique_ptr<RawBench> bench;
};

void CommandAnswersTest::init()
{
    log = std::make_unique<LogCapture>();
    bench = std::make_unique<RawBench>();
    bench->timer("commandTimer")->setInterval(1);
    QVERIFY(bench->connectByBanner());
    bench->say("*i5,v1500000,s30000,a3,I9600,H1,L1");
    QTRY_COMPARE(bench->text("newBaudComboBox"), QString("9600"));
}

void CommandAnswersTest::cleanup()
{
    bench.reset();
    log.reset();
}

/// Clicks, and waits until the command has arrived.
void CommandAnswersTest::change(const QString &button, const QByteArray &command)
{
    bench->click(button);
    QVERIFY2(bench->hears(command), "the line stays silent");
    bench->line.clearReceived();
}

bool CommandAnswersTest::waitForInfo(const QString &text)
{
    return QTest::qWaitFor([this, &text] { return bench->info() == text; });
}

void CommandAnswersTest::anAnnouncementIsBlackUntilItsAnswer()
{
    change("pingUp", "*i06....");
    QCOMPARE(bench->info(), QString("Setting Pings Per Second to 6"));
    QCOMPARE(bench->infoColour(), QString("black"));
}

void CommandAnswersTest::anOkClosesTheAnnouncementInGreen()
{
    change("pingUp", "*i06....");
    bench->say("OK");
    QVERIFY(waitForInfo("Setting Pings Per Second to 6 ... Success"));
    QCOMPARE(bench->infoColour(), QString("Green"));
    QCOMPARE(bench->text("pingEdit"), QString("6"));
}

void CommandAnswersTest::aRefusalClosesTheAnnouncementInRedWithAdvice_data()
{
    QTest::addColumn<QString>("button");
    QTest::addColumn<QByteArray>("command");
    QTest::addColumn<QString>("info");
    QTest::addColumn<QString>("edit");
    QTest::addColumn<QString>("shown");

    // clang-format off
    QTest::newRow("a depth advises fewer pings")
        << "maxDepthUp" << QByteArray("*s035000")
        << "Setting Maximum Depth to 35 m ... not applied. Reduce pings per second"
        << "maxDepthEdit" << "35";
    QTest::newRow("a ping rate advises less depth")
        << "pingUp" << QByteArray("*i06....")
        << "Setting Pings Per Second to 6 ... not applied. Reduce maximum depth"
        << "pingEdit" << "6";
    QTest::newRow("anything else gets no advice")
        << "soundVelocityUp" << QByteArray("*v501000")
        << "Setting Sound Velocity to 1501 m/s ... Received Error - Command Not Applied"
        << "soundVelocityEdit" << "1501";
    // clang-format on
}

void CommandAnswersTest::aRefusalClosesTheAnnouncementInRedWithAdvice()
{
    QFETCH(QString, button);
    QFETCH(QByteArray, command);
    QFETCH(QString, info);
    change(button, command);
    bench->say("ERR");
    QVERIFY2(waitForInfo(info), qPrintable(bench->info()));
    QCOMPARE(bench->infoColour(), QString("Red"));
    QFETCH(QString, edit);
    QTEST(bench->text(edit), "shown"); // as the operator set it
    QVERIFY(bench->showsConnected());
}

void CommandAnswersTest::noAnswerInTimeIsShownInRedAndTheLinkIsKept()
{
    change("pingUp", "*i06....");
    QVERIFY(waitForInfo("Setting Pings Per Second to 6 ... Command Timed Out"));
    QCOMPARE(bench->infoColour(), QString("Red"));
    QVERIFY(bench->showsConnected());

    change("pingUp", "*i07....");
    bench->say("OK");
    QVERIFY(waitForInfo("Setting Pings Per Second to 7 ... Success"));
}

/// The queue does not wait: the first command's answer arrives when the second is announced.
void CommandAnswersTest::aLateAnswerIsMatchedToWhatIsShownThen()
{
    bench->click("pingUp");
    change("soundVelocityUp", "*i06....*v501000");
    bench->say("OK");
    QVERIFY(waitForInfo("Setting Sound Velocity to 1501 m/s ... Success"));
    bench->say("ERR");
    QVERIFY(waitForInfo("Setting Sound Velocity to 1501 m/s ... Success ... Received Error - "
                        "Command Not Applied"));
}

void CommandAnswersTest::anAnswerEndsTheWaitForIt_data()
{
    QTest::addColumn<QByteArray>("answer");
    QTest::addColumn<QString>("result");

    QTest::newRow("accepted") << QByteArray("OK") << "Success";
    QTest::newRow("refused") << QByteArray("ERR") << "Received Error - Command Not Applied";
    QTest::newRow("timed out") << QByteArray() << "Command Timed Out";
}

/// Silence after what is not a queued command means that the device is gone.
void CommandAnswersTest::anAnswerEndsTheWaitForIt()
{
    QFETCH(QByteArray, answer);
    QFETCH(QString, result);
    change("soundVelocityUp", "*v501000");
    if (!answer.isEmpty()) {
        bench->say(answer);
    }
    QVERIFY(waitForInfo("Setting Sound Velocity to 1501 m/s ... " + result));
    QTRY_VERIFY(!bench->timer("resizeTimer")->isActive());
    bench->click("disableHF");
    QVERIFY(waitForInfo("Lost Connection To Device"));
}

void CommandAnswersTest::theNextConnectionDoesNotInheritAWaitingCommand()
{
    change("pingUp", "*i06....");
    bench->click("connectToDevice");
    QCOMPARE(bench->text("connectToDevice"), QString("Connect   "));

    bench->timer("answerTimer")->setInterval(50);
    bench->pressConnectRaw();
    QCOMPARE(bench->info(), QString("Connecting to Device"));
    QTRY_VERIFY(bench->info() != "Connecting to Device");
    QCOMPARE(bench->info(), QString("Could Not Connect To Device"));
    QCOMPARE(bench->infoColour(), QString("Red"));
}

void CommandAnswersTest::endlessAnswersDoNotLengthenTheInfoLineWithoutEnd()
{
    const QString announced = "Setting Sound Velocity to 1501 m/s";
    const QString refused = " ... Received Error - Command Not Applied";
    constexpr int longest = 4000;
    change("soundVelocityUp", "*v501000");
    QVERIFY(QTest::qWaitFor([this] {
        bench->line.write(QByteArray("ERR\r\n").repeated(10));
        return bench->info().size() > longest;
    }));
    for (const char *answer : {"OK", "ERR", "OK"}) {
        const QString end = answer == QByteArray("OK") ? " ... Success" : refused;
        QVERIFY(QTest::qWaitFor([this, answer, &end] {
            bench->say(answer);
            return bench->info().endsWith(end);
        }));
    }
    QVERIFY(bench->info().startsWith(announced + refused + refused));
    QVERIFY2(bench->info().size() <= longest + refused.size(),
             qPrintable(QString("%1 characters").arg(bench->info().size())));
}

/// From the answer's arrival to the painted line, in the window's own processor time.
void CommandAnswersTest::theLongestTextHoldsTheWindowUpForLessThan20ms()
{
    constexpr double allowed = 0.020;
    auto *const session = bench->window.findChild<LinkSession *>();
    auto *const label = bench->find<QLabel>("infoLabel");
    while (bench->info().size() < 4000) {
        session->info().append(InfoColour::Failure, " ... Received Error - Command Not Applied");
    }
    QVector<double> costs;
    for (int answer = 0; answer < 9; ++answer) {
        const std::clock_t begin = std::clock();
        // In turns, since a text that stays the same costs nothing.
        session->info().append(answer % 2 == 0 ? InfoColour::Success : InfoColour::Failure,
                               answer % 2 == 0 ? " ... Success" : " ... Received Error");
        label->repaint();
        QCoreApplication::sendPostedEvents();
        costs.append(double(std::clock() - begin) / CLOCKS_PER_SEC);
    }
    std::sort(costs.begin(), costs.end());
    const double median = costs.at(costs.size() / 2);
    qInfo("an answer at 4,000 characters costs %.1f ms", median * 1000);
    QVERIFY2(median < allowed, qPrintable(QString("%1 ms").arg(median * 1000)));
}

QTEST_MAIN(CommandAnswersTest)

#include "tst_commandanswers.moc"
