// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "commandreader.h"

#include <QtTest>

class TestCommandReader : public QObject
{
    Q_OBJECT

private slots:
    void commandsOfAStream_data();
    void commandsOfAStream();
    void oneByteAtATime();
    void clearForgetsABegunCommand();
};

void TestCommandReader::commandsOfAStream_data()
{
    QTest::addColumn<QByteArray>("stream");
    QTest::addColumn<QByteArrayList>("commands");
    using List = QByteArrayList;
    QTest::newRow("wake-up text with its line end")
        << QByteArray("*nasdfd\r\n") << List{"*nasdfd\r"};
    QTest::newRow("connect probe: twice, nine characters each")
        << QByteArray("*n1234567*n1234567") << List{"*n123456", "*n123456"};
    QTest::newRow("eight characters exactly") << QByteArray("*F345678") << List{"*F345678"};
    QTest::newRow("longer: the rest is filler") << QByteArray("*UAbxxxxxx") << List{"*UAbxxxx"};
    QTest::newRow("too short so far") << QByteArray("*i05...") << List{};
    QTest::newRow("noise before the star")
        << QByteArray("\x80n12\r\n*a1......") << List{"*a1....."};
    QTest::newRow("cut off by the next command") << QByteArray("*o004*o00450H") << List{"*o00450H"};
    QTest::newRow("no star at all") << QByteArray("n1234567890") << List{};
    QTest::newRow("nothing") << QByteArray() << List{};
}

void TestCommandReader::commandsOfAStream()
{
    QFETCH(QByteArray, stream);
    CommandReader reader;
    QTEST(reader.read(stream), "commands");
}

void TestCommandReader::oneByteAtATime()
{
    CommandReader reader;
    QByteArrayList commands;
    for (const char byte : QByteArray("*Gasdfdsasdf*UUasdfdsa")) {
        commands += reader.read(QByteArray(1, byte));
    }
    QCOMPARE(commands, (QByteArrayList{"*Gasdfds", "*UUasdfd"}));
}

void TestCommandReader::clearForgetsABegunCommand()
{
    CommandReader reader;
    reader.read("*i05");
    reader.clear();
    QCOMPARE(reader.read("....*i06....."), QByteArrayList{"*i06...."});
}

QTEST_GUILESS_MAIN(TestCommandReader)
#include "tst_commandreader.moc"
