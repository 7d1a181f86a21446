// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "linesender.h"

#include <QtTest>

using std::chrono::milliseconds;

namespace {

LineSender::Line lineOf(const QByteArray &bytes)
{
    LineSender::Line line;
    line.bytes = bytes;
    return line;
}

LineSender::Line soundingOf(const QByteArray &bytes)
{
    LineSender::Line line = lineOf(bytes);
    line.isSounding = true;
    return line;
}

} // namespace

class TestLineSender : public QObject
{
    Q_OBJECT

private slots:
    void tenBitsACharacter_data();
    void tenBitsACharacter();
    void restsBetweenLinesAreNotMadeUpFor();
    void linesFollowEachOtherWithoutAGap();
    void unpacedSendsALineACall();
    void byteByByte();
    void waitsForTwoOthers();
    void waitsNotForever();
    void nothingLeavesBehindALineThatHoldsTheRate();
    void theNextLineLeavesAtTheNewRate();
    void oldestSoundingsAreDroppedAnswersStay();
};

void TestLineSender::tenBitsACharacter_data()
{
    QTest::addColumn<int>("rate");
    QTest::addColumn<int>("inHundredMs");
    QTest::newRow("4800") << 4800 << 48;
    QTest::newRow("9600") << 9600 << 96;
    QTest::newRow("19200") << 19200 << 192;
    QTest::newRow("38400") << 38400 << 384;
    QTest::newRow("57600") << 57600 << 576;
    QTest::newRow("115200") << 115200 << 1152;
}

void TestLineSender::tenBitsACharacter()
{
    QFETCH(int, rate);
    LineSender sender(true);
    sender.add(lineOf(QByteArray(5000, 'x')), milliseconds(1000));
    int sent = 0;
    for (int ms = 0; ms <= 100; ++ms) {
        sent += sender.take(rate, milliseconds(1000 + ms)).size();
    }
    QTEST(sent, "inHundredMs");
}

void TestLineSender::restsBetweenLinesAreNotMadeUpFor()
{
    LineSender sender(true);
    sender.add(lineOf("OK\r\n"), milliseconds(0));
    QCOMPARE(sender.take(9600, milliseconds(50)), QByteArray("OK\r\n"));
    QVERIFY(sender.isEmpty());
    sender.add(lineOf("1234567890"), milliseconds(5000));
    QCOMPARE(sender.take(9600, milliseconds(5000)), QByteArray());
    QCOMPARE(sender.take(9600, milliseconds(5005)), QByteArray("1234"));
}

void TestLineSender::linesFollowEachOtherWithoutAGap()
{
    LineSender sender(true);
    sender.add(lineOf("abc"), milliseconds(0));
    sender.add(lineOf("def"), milliseconds(0));
    QCOMPARE(sender.take(9600, milliseconds(5)), QByteArray("abcd"));
    QCOMPARE(sender.take(9600, milliseconds(7)), QByteArray("ef"));
}

void TestLineSender::unpacedSendsALineACall()
{
    LineSender sender(false);
    sender.add(lineOf("abc"), milliseconds(0));
    sender.add(lineOf("def"), milliseconds(0));
    QCOMPARE(sender.take(9600, milliseconds(0)), QByteArray("abc"));
    QCOMPARE(sender.take(9600, milliseconds(0)), QByteArray("def"));
    QVERIFY(sender.isEmpty());
}

void TestLineSender::byteByByte()
{
    LineSender sender(false);
    LineSender::Line line = lineOf("abc");
    line.byteByByte = true;
    sender.add(line, milliseconds(0));
    for (const char *expected : {"a", "b", "c", ""}) {
        QCOMPARE(sender.take(9600, milliseconds(0)), QByteArray(expected));
    }
}

void TestLineSender::waitsForTwoOthers()
{
    LineSender sender(true);
    LineSender::Line line = lineOf("1\r\n");
    line.waitsForOthers = true;
    sender.add(line, milliseconds(0));
    sender.add(lineOf("2\r\n"), milliseconds(10));
    QCOMPARE(sender.take(9600, milliseconds(100)), QByteArray());
    sender.add(lineOf("3\r\n"), milliseconds(101));
    QCOMPARE(sender.take(9600, milliseconds(101)), QByteArray("1\r\n2\r\n3\r\n"));
}

void TestLineSender::waitsNotForever()
{
    LineSender sender(true);
    LineSender::Line line = lineOf("1\r\n");
    line.waitsForOthers = true;
    sender.add(line, milliseconds(0));
    QCOMPARE(sender.take(9600, milliseconds(249)), QByteArray());
    QCOMPARE(sender.take(9600, milliseconds(250)), QByteArray("1\r\n"));
}

void TestLineSender::nothingLeavesBehindALineThatHoldsTheRate()
{
    LineSender sender(true);
    LineSender::Line answer = lineOf("OK\r\n");
    answer.holdsRate = true;
    sender.add(answer, milliseconds(0));
    sender.add(lineOf("next"), milliseconds(0));
    QVERIFY(sender.holdsRate());
    QCOMPARE(sender.take(9600, milliseconds(100)), QByteArray("OK\r\n"));
    QVERIFY(!sender.holdsRate());
}

void TestLineSender::theNextLineLeavesAtTheNewRate()
{
    LineSender sender(true);
    LineSender::Line answer = lineOf("OK\r\n");
    answer.holdsRate = true;
    sender.add(answer, milliseconds(0));
    sender.add(lineOf(QByteArray(1000, 'x')), milliseconds(0));
    sender.take(9600, milliseconds(100));
    QCOMPARE(sender.take(115200, milliseconds(110)).size(), 115);
}

void TestLineSender::oldestSoundingsAreDroppedAnswersStay()
{
    LineSender sender(false);
    sender.add(lineOf("OK"), milliseconds(0));
    for (int i = 1; i <= 30; ++i) {
        sender.add(soundingOf(QByteArray::number(i)), milliseconds(0));
        if (i == 5) {
            sender.add(lineOf("ERR"), milliseconds(0));
        }
    }
    QByteArrayList left;
    while (!sender.isEmpty()) {
        left << sender.take(9600, milliseconds(0));
    }
    QCOMPARE(left.size(), 22); // two answers, twenty soundings
    QCOMPARE(left[0], QByteArray("OK"));
    QCOMPARE(left[1], QByteArray("ERR"));
    QCOMPARE(left[2], QByteArray("11"));
    QCOMPARE(left.last(), QByteArray("30"));
}

QTEST_GUILESS_MAIN(TestLineSender)
#include "tst_linesender.moc"
