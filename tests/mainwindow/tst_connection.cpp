// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

// Making and breaking the link at a rate that the operator chose.

#include "boxreader.h"
#include "linkwatch.h"
#include "logcapture.h"
#include "rawbench.h"

#include <QComboBox>
#include <QSerialPort>
#include <QtTest>

#include <termios.h>

#include <memory>

using namespace LinkWatch;

namespace {

const QByteArray wakeUp = QByteArrayLiteral("*nasdfd\r\n");
const QByteArray probe = QByteArrayLiteral("*n1234567*n1234567");
const QByteArray requests = QByteArrayLiteral("*Gasdfdsasdf*UUasdfdsa*UAbxxxxxx");

/// How the program has set the line, read at the device's end.
termios lineSettings(const RawPty &pty)
{
    termios settings{};
    tcgetattr(pty.masterDescriptor(), &settings);
    return settings;
}

} // namespace

class TestConnection : public QObject
{
    Q_OBJECT

private slots:
    void pressWithoutAChoiceShowsABox_data();
    void pressWithoutAChoiceShowsABox();
    void portThatCannotBeOpenedShowsABox_data();
    void portThatCannotBeOpenedShowsABox();

    void pressShowsThatItIsConnecting();
    void wakeUpAndProbeGoOutFirst();
    void lineIsSetAsTheDeviceWantsIt_data();
    void lineIsSetAsTheDeviceWantsIt();
    void bannerConnectsAndTheRequestsFollowInOrder();
    void sounderConnectsAtItsRate();
    void noBannerInTimeMeansNotConnected();
    void garbageIsNoBanner();
    void oneSilenceGivesOneMessage();
    void secondAttemptAfterAFailure();

    void pressWhileConnectingGivesUp();
    void bannerAfterGivingUpChangesNothing();
    void pressWhileConnectedDisconnects();
    void oldCommandIsForgottenByTheNextConnection();
    void connectsAgainAfterDisconnecting();
};

void TestConnection::pressWithoutAChoiceShowsABox_data()
{
    QTest::addColumn<QString>("port");
    QTest::addColumn<QString>("rate");
    QTest::newRow("neither port nor rate") << "Select Port"
                                           << "Select Rate";
    QTest::newRow("a rate without a port") << "Select Port"
                                           << "9600";
    QTest::newRow("Auto without a port") << "Select Port"
                                         << "Auto";
    QTest::newRow("a port without a rate") << "ttyNOBODY"
                                           << "Select Rate";
}

void TestConnection::pressWithoutAChoiceShowsABox()
{
    QFETCH(QString, port);
    QFETCH(QString, rate);
    RawBench bench;
    bench.choose("portComboBox", port);
    bench.choose("baudComboBox", rate);
    const BoxReader reader;
    const LogCapture log;
    bench.click("connectToDevice");
    QCOMPARE(reader.seen().size(), 1);
    const BoxReader::Box box = reader.seen().first();
    QCOMPARE(box.title, QString("Error"));
    QCOMPARE(box.text, QString("No Port or Rate Selected, Please select a port to connect to"));
    QCOMPARE(box.icon, QMessageBox::Information);
    QCOMPARE(box.buttons, QMessageBox::StandardButtons(QMessageBox::Ok));
    QVERIFY2(isIdle(bench, bench.line.slavePath()), "the box must leave all as it was");
    QCOMPARE(bench.text("baudComboBox"), rate);
    QCOMPARE(bench.info(), QString());
    QVERIFY2(!log.contains("GOING AUTO!"), "a search was begun");
    QVERIFY2(!log.contains("Sending "), "something was sent");
    QCOMPARE(bench.line.received(), QByteArray());
}

void TestConnection::portThatCannotBeOpenedShowsABox_data()
{
    QTest::addColumn<bool>("isThere");
    QTest::newRow("a port that does not exist") << false;
    QTest::newRow("a port that another program holds") << true;
}

void TestConnection::portThatCannotBeOpenedShowsABox()
{
    QFETCH(bool, isThere);
    RawBench bench;
    QSerialPort otherProgram(bench.line.slavePath());
    QVERIFY(otherProgram.open(QIODevice::ReadWrite));
    bench.choose("portComboBox", isThere ? bench.line.slavePath() : "ttyNOBODY");
    bench.choose("baudComboBox", "9600");
    const BoxReader reader;
    const LogCapture log;
    for (int attempt = 1; attempt <= 2; ++attempt) {
        bench.click("connectToDevice");
        QCOMPARE(reader.seen().size(), attempt);
        const BoxReader::Box box = reader.seen().last();
        QCOMPARE(box.title, QString("Error"));
        QCOMPARE(box.text,
                 QString("Could Not Open Serial Port. Please unplug device then try again."));
        QCOMPARE(box.icon, QMessageBox::Information);
        QCOMPARE(box.buttons, QMessageBox::StandardButtons(QMessageBox::Ok));
    }
    otherProgram.close();
    QVERIFY2(isIdle(bench, bench.line.slavePath()), "the box must leave all as it was");
    QCOMPARE(bench.info(), QString());
    QVERIFY2(!log.contains("Opened Serial Port"), qPrintable(log.lines().join('\n')));
    QCOMPARE(bench.line.received(), QByteArray());
}

void TestConnection::pressShowsThatItIsConnecting()
{
    RawBench bench;
    const LogCapture log;
    bench.pressConnectRaw();
    QCOMPARE(bench.info(), QString(connectingInfo));
    QCOMPARE(bench.infoColour(), QString("black"));
    QCOMPARE(bench.text("connectToDevice"), QString(disconnectText));
    QVERIFY(connectButtonShows(bench, "connected.png"));
    QVERIFY2(!bench.timer("portScanTimer")->isActive(), "the list of ports is still being scanned");
    QVERIFY2(bench.timer("answerTimer")->isActive(), "nobody waits for the banner");
    QVERIFY2(!bench.isEnabled("commonHolder"), "nothing can be set before the device has answered");
    QCOMPARE(log.count("Opened Serial Port"), 1);
}

void TestConnection::wakeUpAndProbeGoOutFirst()
{
    RawBench bench;
    bench.pressConnectRaw();
    QTRY_COMPARE(bench.line.received(), wakeUp + probe);
    bench.say("garbage"); // any answer puts off the next command
    QVERIFY(!QTest::qWaitFor([&] { return bench.line.received() != wakeUp + probe; }, 300));
}

void TestConnection::lineIsSetAsTheDeviceWantsIt_data()
{
    QTest::addColumn<uint>("speed");
    QTest::newRow("4800") << uint(B4800);
    QTest::newRow("9600") << uint(B9600);
    QTest::newRow("19200") << uint(B19200);
    QTest::newRow("38400") << uint(B38400);
    QTest::newRow("57600") << uint(B57600);
    QTest::newRow("115200") << uint(B115200);
}

void TestConnection::lineIsSetAsTheDeviceWantsIt()
{
    QFETCH(uint, speed);
    RawBench bench;
    bench.pressConnectRaw(QTest::currentDataTag());
    const termios line = lineSettings(bench.line);
    QCOMPARE(cfgetospeed(&line), speed);
    QCOMPARE(cfgetispeed(&line), speed);
    QVERIFY2((line.c_cflag & CSIZE) == CS8, "8 data bits");
    QVERIFY2((line.c_cflag & PARENB) == 0, "no parity");
    QVERIFY2((line.c_cflag & CSTOPB) == 0, "one stop bit");
    QVERIFY2((line.c_cflag & CRTSCTS) == 0, "no hardware flow control");
    QVERIFY2((line.c_iflag & (IXON | IXOFF)) == 0, "no software flow control");
}

void TestConnection::bannerConnectsAndTheRequestsFollowInOrder()
{
    RawBench bench;
    const LogCapture log;
    bench.pressConnectRaw();
    QTRY_COMPARE(bench.line.received(), wakeUp + probe);
    bench.say("TalVero New Dual 2.14.7");
    QTRY_COMPARE(bench.line.received(), wakeUp + probe + requests);
    QCOMPARE(bench.info(), QString(connectedInfo));
    QCOMPARE(bench.infoColour(), QString("Green"));
    QCOMPARE(bench.text("connectToDevice"), QString(disconnectText));
    QVERIFY(connectButtonShows(bench, "connected.png"));
    QVERIFY(bench.isEnabled("commonHolder"));
    QVERIFY2(!bench.isEnabled("portComboBox"), "the port is in use");
    QVERIFY2(!bench.isEnabled("baudComboBox"), "the rate is in use");
    QVERIFY2(!bench.timer("answerTimer")->isActive(), "the banner has come");
    QCOMPARE(log.count("we have a TalVero New"), 1);
}

void TestConnection::sounderConnectsAtItsRate()
{
    SounderOptions options = WindowBench::quietSounder();
    options.rate = 38400;
    WindowBench bench(options);
    QVERIFY(bench.connectToSounder("38400"));
    QVERIFY(bench.showsConnected());
    QVERIFY2(bench.device().rawReceived().startsWith(wakeUp + probe + requests),
             bench.device().rawReceived().constData());
}

void TestConnection::noBannerInTimeMeansNotConnected()
{
    RawBench bench;
    InfoRecorder infos(bench);
    bench.pressConnectRaw();
    QTRY_COMPARE_WITH_TIMEOUT(bench.info(), QString(notConnectedInfo), 10000);
    QCOMPARE(bench.infoColour(), QString("Red"));
    QVERIFY(isIdle(bench, bench.line.slavePath()));
    QTRY_COMPARE(infos.texts(), (QStringList{connectingInfo, notConnectedInfo}));
    const qint64 waited = infos.times().last() - infos.times().first();
    QVERIFY2(waited >= 1700, qPrintable(QStringLiteral("gave up after %1 ms").arg(waited)));
    QCOMPARE(bench.text("baudComboBox"), QString("9600"));
}

void TestConnection::garbageIsNoBanner()
{
    RawBench bench;
    bench.pressConnectRaw();
    QElapsedTimer time;
    time.start();
    QTimer garbage;
    connect(&garbage, &QTimer::timeout, this,
            [&bench] { bench.line.write("\x80\xfe\r\n0.7\r\n"); });
    garbage.start(100);
    QTRY_COMPARE_WITH_TIMEOUT(bench.info(), QString(notConnectedInfo), 10000);
    QVERIFY2(time.elapsed() >= 1700, qPrintable(QString::number(time.elapsed())));
    garbage.stop();
    QVERIFY(isIdle(bench, bench.line.slavePath()));
}

void TestConnection::oneSilenceGivesOneMessage()
{
    RawBench bench;
    bench.timer("answerTimer")->setInterval(2000); // both answer timers expire together
    const LogCapture log;
    bench.pressConnectRaw();
    QTRY_COMPARE_WITH_TIMEOUT(bench.info(), QString(notConnectedInfo), 10000);
    QVERIFY2(!QTest::qWaitFor([&] { return bench.info() != notConnectedInfo; }, 1000),
             qPrintable("the operator sees: " + bench.info()));
    QCOMPARE(log.count("SERIAL TIMED OUT"), 1);
}

void TestConnection::secondAttemptAfterAFailure()
{
    WindowBench bench;
    bench.timer("answerTimer")->setInterval(50);
    bench.pressConnect("115200"); // the device speaks at 9600
    QTRY_COMPARE(bench.info(), QString(notConnectedInfo));
    bench.timer("answerTimer")->setInterval(2000);
    QVERIFY(bench.connectToSounder("9600"));
    QCOMPARE(bench.info(), QString(connectedInfo));
}

void TestConnection::pressWhileConnectingGivesUp()
{
    RawBench bench;
    const LogCapture log;
    bench.pressConnectRaw();
    bench.click("connectToDevice");
    QCOMPARE(log.count("disconnecting from device"), 1);
    QCOMPARE(bench.info(), QString());
    QCOMPARE(bench.infoColour(), QString("black"));
    QVERIFY(isIdle(bench, bench.line.slavePath()));
}

void TestConnection::bannerAfterGivingUpChangesNothing()
{
    RawBench bench;
    bench.pressConnectRaw();
    bench.click("connectToDevice");
    bench.say("TalVero New Dual 2.14.7");
    QVERIFY(!QTest::qWaitFor([&] { return !bench.info().isEmpty(); }, 300));
    QCOMPARE(bench.text("label_34"), QString());
    bench.pressConnectRaw();
    QTRY_COMPARE(bench.info(), QString(connectingInfo));
}

void TestConnection::pressWhileConnectedDisconnects()
{
    WindowBench bench;
    QVERIFY(bench.connectToSounder());
    const LogCapture log;
    bench.click("connectToDevice");
    QCOMPARE(log.count("disconnecting from device"), 1);
    QCOMPARE(bench.info(), QString());
    QCOMPARE(bench.infoColour(), QString("black"));
    QVERIFY(isIdle(bench, bench.sounder.portPath()));
    QCOMPARE(bench.text("portComboBox"), bench.sounder.portPath());
    QCOMPARE(bench.text("baudComboBox"), QString("9600"));
}

void TestConnection::oldCommandIsForgottenByTheNextConnection()
{
    WindowBench bench;
    QVERIFY(bench.connectToSounder());
    bench.device().setFault("silent", 1);
    bench.click("pingUp");
    QTRY_COMPARE(bench.settingCommands().size(), 1);
    bench.click("connectToDevice");
    bench.timer("answerTimer")->setInterval(100);
    InfoRecorder infos(bench);
    bench.click("connectToDevice");
    QTRY_COMPARE(bench.info(), QString(notConnectedInfo));
    QTRY_COMPARE(infos.texts(), (QStringList{connectingInfo, notConnectedInfo}));
}

void TestConnection::connectsAgainAfterDisconnecting()
{
    WindowBench bench;
    QVERIFY(bench.connectToSounder());
    bench.click("connectToDevice");
    bench.device().clearTranscript();
    QVERIFY(bench.connectToSounder());
    QVERIFY(bench.showsConnected());
    QVERIFY2(bench.device().rawReceived().startsWith(wakeUp + probe + requests),
             bench.device().rawReceived().constData());
}

QTEST_MAIN(TestConnection)

#include "tst_connection.moc"
