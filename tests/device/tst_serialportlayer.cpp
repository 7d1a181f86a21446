// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "seriallink.h"

#include <QtTest>

#include <termios.h>

class TestSerialPortLayer : public QObject
{
    Q_OBJECT

private slots:
    void signalsAndSlotsKeepTheirPlaces();
    void closedAfterConstruction();

    void opensWithTheFixedLineSettings_data();
    void opensWithTheFixedLineSettings();
    void openingSendsTheWakeUpText();
    void portThatCannotBeOpened_data();
    void portThatCannotBeOpened();
    void openingTwiceFailsAndKeepsTheLink();

    void commandIsPaddedToEightCharacters_data();
    void commandIsPaddedToEightCharacters();
    void sendingIsLoggedWithThePaddedText();
    void sendingRestartsBothTimers();
    void sendingWhileClosedLeavesNoTrace();

    void linesOfOneArrival_data();
    void linesOfOneArrival();
    void thirdLineComesWithTheNextArrival();
    void oneSignalForEachLine();
    void receivedBytesStopTheAnswerTimer();
    void receivedBytesRestartTheSilenceCheck();
    void noiseIsKeptByteByByte();

    void identifiedUntilClosed();
    void nothingFiresAfterClosing();
    void closingKeepsTheLinesAndDropsTheHalfLine();
    void readerMayCloseTheLinkWhileLinesArrive();
};

void TestSerialPortLayer::signalsAndSlotsKeepTheirPlaces()
{
    const QMetaObject &meta = SerialPortLayer::staticMetaObject;
    QCOMPARE(meta.superClass(), &QObject::staticMetaObject);
    const QList<QByteArray> expected{"lostDevice()",    "commandTimeout()", "gotData()",
                                     "gotDeviceType()", "gotTimeout()",     "connectionFailed()",
                                     "timeout()",       "readData()",       "checkConnection()"};
    QList<QByteArray> actual;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
        const QMetaMethod method = meta.method(i);
        actual << method.methodSignature();
        QCOMPARE(method.methodType(), actual.size() <= 6 ? QMetaMethod::Signal : QMetaMethod::Slot);
    }
    QCOMPARE(actual, expected);
}

void TestSerialPortLayer::closedAfterConstruction()
{
    SerialLink link;
    QVERIFY(!link.layer.isConnected());
    QVERIFY(link.layer.receivedLines.isEmpty());
    QCOMPARE(link.answerTimer()->interval(), 2000);
    QVERIFY(link.answerTimer()->isSingleShot());
    QVERIFY(!link.answerTimer()->isActive());
    QCOMPARE(link.silenceTimer()->interval(), 10000);
    QVERIFY(!link.silenceTimer()->isSingleShot());
    QVERIFY(!link.silenceTimer()->isActive());
}

void TestSerialPortLayer::opensWithTheFixedLineSettings_data()
{
    QTest::addColumn<uint>("speed");
    QTest::newRow("4800") << uint(B4800);
    QTest::newRow("9600") << uint(B9600);
    QTest::newRow("19200") << uint(B19200);
    QTest::newRow("38400") << uint(B38400);
    QTest::newRow("57600") << uint(B57600);
    QTest::newRow("115200") << uint(B115200);
}

void TestSerialPortLayer::opensWithTheFixedLineSettings()
{
    QFETCH(uint, speed);
    SerialLink link;
    link.layer.baudRate = QTest::currentDataTag();
    QVERIFY(link.layer.openPort());

    termios line{};
    QCOMPARE(tcgetattr(link.pty.masterDescriptor(), &line), 0);
    QCOMPARE(uint(cfgetispeed(&line)), speed);
    QCOMPARE(uint(cfgetospeed(&line)), speed);
    QCOMPARE(uint(line.c_cflag & CSIZE), uint(CS8));
    QVERIFY2(!(line.c_cflag & PARENB), "parity is on");
    QVERIFY2(!(line.c_cflag & CSTOPB), "two stop bits");
    QVERIFY2(!(line.c_cflag & CRTSCTS), "hardware flow control is on");
    QVERIFY2(!(line.c_iflag & (IXON | IXOFF)), "software flow control is on");
}

void TestSerialPortLayer::openingSendsTheWakeUpText()
{
    SerialLink link;
    QVERIFY(link.layer.openPort());
    QTRY_COMPARE(link.pty.received(), QByteArray("*nasdfd\r\n"));
    QVERIFY(link.answerTimer()->isActive());
    QVERIFY(link.silenceTimer()->isActive());
    QVERIFY(!link.layer.isConnected());
    QCOMPARE(link.failed.count(), 0);
}

void TestSerialPortLayer::portThatCannotBeOpened_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("no such device") << "/dev/no-such-port";
    QTest::newRow("empty name") << "";
    QTest::newRow("a name as listed, but unplugged") << "ttyUSB99";
    QTest::newRow("a folder") << "/tmp";
}

void TestSerialPortLayer::portThatCannotBeOpened()
{
    QFETCH(QString, name);
    SerialLink link;
    link.layer.portName = name;
    QVERIFY(!link.layer.openPort());
    QCOMPARE(link.failed.count(), 1);
    QVERIFY(!link.answerTimer()->isActive());
    QVERIFY(!link.silenceTimer()->isActive());
    QVERIFY2(link.log.lines().isEmpty(), qPrintable(link.log.lines().join('\n')));

    link.layer.portName = link.pty.slavePath();
    QVERIFY2(link.layer.openPort(), "a failed attempt spoils the next one");
}

void TestSerialPortLayer::openingTwiceFailsAndKeepsTheLink()
{
    SerialLink link;
    link.open();
    QVERIFY(!link.layer.openPort());
    QCOMPARE(link.failed.count(), 1);
    link.arrive("OK\r\n");
    QTRY_COMPARE(link.layer.receivedLines, QStringList{"OK"});
    QCOMPARE(link.timeouts.count(), 0);
}

void TestSerialPortLayer::commandIsPaddedToEightCharacters_data()
{
    QTest::addColumn<QString>("command");
    QTest::addColumn<QByteArray>("sent");
    QTest::newRow("two characters: *F") << "*F" << QByteArray("*F012345");
    QTest::newRow("three characters: *i5") << "*i5" << QByteArray("*i501234");
    QTest::newRow("six characters: *v1500") << "*v1500" << QByteArray("*v150001");
    QTest::newRow("seven characters: *v15000") << "*v15000" << QByteArray("*v150000");
    QTest::newRow("eight characters: *F345678") << "*F345678" << QByteArray("*F345678");
    QTest::newRow("nine characters: *nasdfdsa") << "*nasdfdsa" << QByteArray("*nasdfdsa");
    QTest::newRow("wake-up text: *nasdfd") << "*nasdfd\r\n" << QByteArray("*nasdfd\r\n");
    QTest::newRow("empty") << "" << QByteArray("01234567");
}

void TestSerialPortLayer::commandIsPaddedToEightCharacters()
{
    QFETCH(QString, command);
    QFETCH(QByteArray, sent);
    SerialLink link;
    link.open();
    link.layer.sendCommand(command);
    QTRY_COMPARE(link.pty.received(), sent);
}

void TestSerialPortLayer::sendingIsLoggedWithThePaddedText()
{
    SerialLink link;
    link.open();
    link.layer.sendCommand(QStringLiteral("*v1500"));
    QCOMPARE(link.log.lines().size(), 1);
    QVERIFY2(link.log.lines().first().startsWith("serialportlayer.cpp "),
             qPrintable(link.log.lines().first()));
    QVERIFY2(link.log.contains("SerialPortLayer::sendCommand"),
             qPrintable(link.log.lines().first()));
    QCOMPARE(link.log.texts(), QStringList{"Sending  \"*v150001\""});
}

void TestSerialPortLayer::sendingRestartsBothTimers()
{
    SerialLink link;
    link.open();
    link.answerTimer()->stop();
    link.silenceTimer()->stop();
    link.layer.sendCommand(QStringLiteral("*F345678"));
    QVERIFY(link.answerTimer()->isActive());
    QVERIFY(link.silenceTimer()->isActive());

    QTRY_VERIFY(link.silenceTimer()->remainingTime() < 9900);
    link.layer.sendCommand(QStringLiteral("*F345678"));
    QVERIFY2(link.answerTimer()->remainingTime() > 1900, "the answer time runs from the last send");
    QVERIFY2(link.silenceTimer()->remainingTime() > 9900, "the silence counts from the last send");
}

void TestSerialPortLayer::sendingWhileClosedLeavesNoTrace()
{
    SerialLink link;
    link.layer.sendCommand(QStringLiteral("*F345678"));
    QVERIFY2(link.log.lines().isEmpty(), qPrintable(link.log.lines().join('\n')));
    QVERIFY(!link.answerTimer()->isActive());
    QVERIFY(!link.silenceTimer()->isActive());

    QVERIFY(link.layer.openPort());
    QTRY_COMPARE(link.pty.received(), QByteArray("*nasdfd\r\n"));
}

void TestSerialPortLayer::linesOfOneArrival_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QStringList>("lines");
    QTest::newRow("OK, carriage return, line feed") << QByteArray("OK\r\n") << QStringList{"OK"};
    QTest::newRow("OK, carriage return") << QByteArray("OK\r") << QStringList{"OK"};
    QTest::newRow("OK, line feed") << QByteArray("OK\n") << QStringList{"OK"};
    QTest::newRow("carriage return, line feed, OK") << QByteArray("\r\nOK") << QStringList{""};
    QTest::newRow("three lines") << QByteArray("A\r\nB\r\nC\r\n") << QStringList{"A", "B"};
    QTest::newRow("a line of each kind") << QByteArray("A\r\nB\rC\n") << QStringList{"A", "B", "C"};
}

void TestSerialPortLayer::linesOfOneArrival()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QStringList, lines);
    SerialLink link;
    link.open();
    link.arrive(bytes);
    QTRY_COMPARE(link.layer.receivedLines.size(), lines.size());
    QCOMPARE(link.layer.receivedLines, lines);
    QCOMPARE(link.gotData.count(), lines.size());
}

void TestSerialPortLayer::thirdLineComesWithTheNextArrival()
{
    SerialLink link;
    link.open();
    link.arrive("A\r\nB\r\nC\r\n");
    QTRY_COMPARE(link.layer.receivedLines, (QStringList{"A", "B"}));
    link.arrive("D");
    QTRY_COMPARE(link.layer.receivedLines, (QStringList{"A", "B", "C"}));
    link.arrive("\r\n");
    QTRY_COMPARE(link.layer.receivedLines, (QStringList{"A", "B", "C", "D"}));
}

void TestSerialPortLayer::oneSignalForEachLine()
{
    SerialLink link;
    link.open();
    QList<QStringList> seen;
    connect(&link.layer, &SerialPortLayer::gotData, this,
            [&] { seen << link.layer.receivedLines; });
    link.arrive("A\r\nB\rC\n");
    QTRY_COMPARE(seen.size(), 3);
    QCOMPARE(seen, (QList<QStringList>{{"A"}, {"A", "B"}, {"A", "B", "C"}}));
}

void TestSerialPortLayer::receivedBytesStopTheAnswerTimer()
{
    SerialLink link;
    link.open();
    link.layer.sendCommand(QStringLiteral("*F345678"));
    QVERIFY(link.answerTimer()->isActive());
    link.arrive("O");
    QTRY_VERIFY2(!link.answerTimer()->isActive(), "one byte is an answer");
    QCOMPARE(link.gotData.count(), 0);
}

void TestSerialPortLayer::receivedBytesRestartTheSilenceCheck()
{
    SerialLink link;
    link.open();
    QTRY_VERIFY(link.silenceTimer()->remainingTime() < 9900);
    link.arrive("O");
    QTRY_VERIFY(link.silenceTimer()->remainingTime() > 9900);
}

void TestSerialPortLayer::noiseIsKeptByteByByte()
{
    SerialLink link;
    link.open();
    const QByteArray noise("\x80\xFF\xC3\x00\x7F", 5);
    link.arrive(noise + "\r\n");
    QTRY_COMPARE(link.layer.receivedLines.size(), 1);
    QCOMPARE(link.layer.receivedLines.first().toLatin1(), noise);
}

void TestSerialPortLayer::identifiedUntilClosed()
{
    SerialLink link;
    link.open();
    link.layer.setConnected();
    QVERIFY(link.layer.isConnected());
    link.layer.closePort();
    QVERIFY(!link.layer.isConnected());
}

void TestSerialPortLayer::nothingFiresAfterClosing()
{
    SerialLink link;
    link.open();
    link.answerTimer()->setInterval(30);
    link.silenceTimer()->setInterval(20);
    link.layer.closePort();
    QVERIFY(!link.answerTimer()->isActive());
    QVERIFY(!link.silenceTimer()->isActive());
    QVERIFY2(!link.timeouts.wait(100), "a closed link timed out");
    QCOMPARE(link.pty.received(), QByteArray());
}

void TestSerialPortLayer::closingKeepsTheLinesAndDropsTheHalfLine()
{
    SerialLink link;
    link.open();
    link.arrive("OK\r\nhalf a li");
    QTRY_COMPARE(link.layer.receivedLines, QStringList{"OK"});
    link.layer.closePort();
    QCOMPARE(link.layer.receivedLines, QStringList{"OK"});

    link.open();
    link.arrive("ERR\r\n");
    QTRY_COMPARE(link.layer.receivedLines, (QStringList{"OK", "ERR"}));
}

void TestSerialPortLayer::readerMayCloseTheLinkWhileLinesArrive()
{
    SerialLink link;
    link.open();
    connect(&link.layer, &SerialPortLayer::gotData, this, [&] { link.layer.closePort(); });
    link.arrive("OK\r\nA\rB\n");
    QTRY_COMPARE(link.layer.receivedLines, QStringList{"OK"});
    QVERIFY(!link.answerTimer()->isActive());
    QVERIFY2(!link.silenceTimer()->isActive(), "a closed link must not probe");
}

QTEST_GUILESS_MAIN(TestSerialPortLayer)
#include "tst_serialportlayer.moc"
