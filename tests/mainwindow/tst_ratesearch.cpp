// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

// The rate "Auto" while no device answers: one rate after another.

#include "linkwatch.h"
#include "logcapture.h"
#include "rawbench.h"

#include <QtTest>

#include <termios.h>

using namespace LinkWatch;

namespace {

const QStringList rates{"4800", "9600", "19200", "38400", "57600", "115200"};

QString trying(const QString &rate) { return "Trying " + rate + " baud"; }

QStringList tryingAll()
{
    QStringList texts;
    for (const QString &rate : rates) {
        texts.append(trying(rate));
    }
    return texts;
}

speed_t speedOf(const QString &rate)
{
    const speed_t speeds[] = {B4800, B9600, B19200, B38400, B57600, B115200};
    return speeds[rates.indexOf(rate)];
}

speed_t speedOn(const RawPty &pty)
{
    termios settings{};
    tcgetattr(pty.masterDescriptor(), &settings);
    return cfgetospeed(&settings);
}

/// Cuts short what a rate gets, for tests that do not measure it.
void hurry(WindowBench &bench, int msPerRate)
{
    bench.timer("answerTimer")->setInterval(msPerRate);
}

} // namespace

class TestRateSearch : public QObject
{
    Q_OBJECT

private slots:
    void withoutADeviceEachRateGetsTwoSeconds();
    void pressBeginsWithTheLowestRate();
    void eachRateIsSetOnTheLine();
    void probeGoesOutAtTheFirstRateOnly();

    void pressStopsTheSearch_data();
    void pressStopsTheSearch();
    void stoppedSearchBeginsAnew();
    void exhaustedSearchLeavesAFixedRate();

    void portThatCannotBeOpened();
    void portLostDuringTheSearch();
};

void TestRateSearch::withoutADeviceEachRateGetsTwoSeconds()
{
    RawBench bench;
    const LogCapture log;
    InfoRecorder infos(bench);
    bench.pressConnectRaw("Auto");
    QTRY_COMPARE_WITH_TIMEOUT(bench.info(), QString(notConnectedInfo), 40000);
    QCOMPARE(bench.infoColour(), QString("Red"));
    QVERIFY(isIdle(bench, bench.line.slavePath()));
    QCOMPARE(bench.text("baudComboBox"), QString("115200"));
    QTRY_COMPARE(infos.texts(), tryingAll() + QStringList{notConnectedInfo});
    for (int step = 1; step < infos.times().size(); ++step) {
        const qint64 waited = infos.times().at(step) - infos.times().at(step - 1);
        QVERIFY2(waited >= 1700, qPrintable(infos.texts().at(step) + " came after only " +
                                            QString::number(waited) + " ms"));
    }
    QCOMPARE(log.count("GOING AUTO!"), 1);
    QCOMPARE(log.texts().filter("current text is now "),
             (QStringList{"current text is now  \"4800\"", "current text is now  \"9600\"",
                          "current text is now  \"19200\"", "current text is now  \"38400\"",
                          "current text is now  \"57600\"", "current text is now  \"115200\""}));
    QVERIFY2(!QTest::qWaitFor([&] { return bench.info() != notConnectedInfo; }, 500),
             qPrintable("the operator sees: " + bench.info()));
    QCOMPARE(log.count("SERIAL TIMED OUT"), rates.size());
}

void TestRateSearch::pressBeginsWithTheLowestRate()
{
    RawBench bench;
    bench.pressConnectRaw("Auto");
    QCOMPARE(bench.info(), trying("4800"));
    QCOMPARE(bench.infoColour(), QString("black"));
    QCOMPARE(bench.text("baudComboBox"), QString("4800"));
    QCOMPARE(bench.text("connectToDevice"), QString(disconnectText));
    QVERIFY(connectButtonShows(bench, "connected.png"));
    QVERIFY2(!bench.isEnabled("commonHolder"), "nothing can be set before the device has answered");
}

void TestRateSearch::eachRateIsSetOnTheLine()
{
    RawBench bench;
    hurry(bench, 200);
    bench.pressConnectRaw("Auto");
    for (const QString &rate : rates) {
        QTRY_COMPARE(bench.info(), trying(rate));
        QCOMPARE(speedOn(bench.line), speedOf(rate));
    }
}

void TestRateSearch::probeGoesOutAtTheFirstRateOnly()
{
    RawBench bench;
    hurry(bench, 200);
    bench.pressConnectRaw("Auto");
    QTRY_COMPARE(bench.info(), QString(notConnectedInfo));
    const QByteArray wakeUp = "*nasdfd\r\n";
    QCOMPARE(bench.line.received(), wakeUp + "*n1234567*n1234567" + wakeUp.repeated(5));
}

void TestRateSearch::pressStopsTheSearch_data()
{
    QTest::addColumn<QString>("rate");
    QTest::newRow("at the first rate") << "4800";
    QTest::newRow("on the way") << "19200";
    QTest::newRow("at the last rate") << "115200";
}

void TestRateSearch::pressStopsTheSearch()
{
    QFETCH(QString, rate);
    RawBench bench;
    hurry(bench, 200);
    bench.pressConnectRaw("Auto");
    QTRY_COMPARE(bench.info(), trying(rate));
    const LogCapture log;
    bench.click("connectToDevice");
    QCOMPARE(bench.info(), QString());
    QCOMPARE(bench.infoColour(), QString("black"));
    QVERIFY(isIdle(bench, bench.line.slavePath()));
    QCOMPARE(bench.text("baudComboBox"), rate);
    QVERIFY2(!QTest::qWaitFor([&] { return !bench.info().isEmpty(); }, 500),
             qPrintable("the operator sees: " + bench.info()));
    QCOMPARE(bench.text("baudComboBox"), rate);
    QCOMPARE(log.count("disconnecting from device"), 1);
    QVERIFY2(!log.contains("SERIAL TIMED OUT"), "the old silence is still being reported");
}

void TestRateSearch::stoppedSearchBeginsAnew()
{
    RawBench bench;
    hurry(bench, 200);
    bench.pressConnectRaw("Auto");
    QTRY_COMPARE(bench.info(), trying("9600"));
    bench.click("connectToDevice");
    bench.line.clearReceived();
    bench.pressConnectRaw("Auto");
    QCOMPARE(bench.info(), trying("4800"));
    QTRY_VERIFY2(bench.line.received().startsWith("*nasdfd\r\n*n1234567*n1234567"),
                 bench.line.received().constData());
}

void TestRateSearch::exhaustedSearchLeavesAFixedRate()
{
    RawBench bench;
    hurry(bench, 30);
    bench.pressConnectRaw("Auto");
    QTRY_COMPARE(bench.info(), QString(notConnectedInfo));
    bench.click("connectToDevice"); // the list shows 115200 now
    QCOMPARE(bench.info(), QString(connectingInfo));
    QCOMPARE(bench.text("baudComboBox"), QString("115200"));
    QTRY_COMPARE(bench.info(), QString(notConnectedInfo));
}

void TestRateSearch::portThatCannotBeOpened()
{
    RawBench bench;
    hurry(bench, 200);
    const LogCapture log;
    bench.choose("portComboBox", "ttyNOBODY");
    bench.choose("baudComboBox", "Auto");
    bench.click("connectToDevice");
    QCOMPARE(bench.text("connectToDevice"), QString(disconnectText));
    QCOMPARE(bench.text("baudComboBox"), QString("4800"));
    QCOMPARE(bench.info(), QString());
    QTRY_COMPARE(bench.info(), QString(notConnectedInfo));
    QCOMPARE(bench.infoColour(), QString("Red"));
    QVERIFY(isIdle(bench, bench.line.slavePath()));
    QCOMPARE(log.count("Connection failed"), 2); // the first rate and, its time over, the next
    QVERIFY2(!log.contains("Sending "), "a closed port takes no probe");
}

void TestRateSearch::portLostDuringTheSearch()
{
    RawBench bench;
    hurry(bench, 200);
    bench.pressConnectRaw("Auto");
    QTRY_COMPARE(bench.info(), trying("9600"));
    bench.line.hangUp();
    QTRY_COMPARE(bench.info(), QString(notConnectedInfo));
    QCOMPARE(bench.infoColour(), QString("Red"));
    QCOMPARE(bench.text("connectToDevice"), QString(connectText));
    QVERIFY(bench.isEnabled("portComboBox"));
    QVERIFY2(!QTest::qWaitFor([&] { return bench.info() != notConnectedInfo; }, 500),
             qPrintable("the operator sees: " + bench.info()));
}

QTEST_MAIN(TestRateSearch)

#include "tst_ratesearch.moc"
