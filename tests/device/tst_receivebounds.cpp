// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

// A line that brings more than is ever taken: an adapter that ignores its rate, noise without end.

#include "heapinuse.h"
#include "processortime.h"
#include "seriallink.h"

#include <QtTest>

#include <algorithm>

namespace {

constexpr int most = ReceiveBuffer::mostBytes;
const QString tooFast = QStringLiteral("More arrives than can be read: dropped bytes:");

/// Lines of the same length, numbered so that a missing one is seen.
QByteArray numberedLine(int number) { return QByteArray::number(number).rightJustified(62, '.'); }

/// Takes every line that ends in this way.
QStringList takeAll(ReceiveBuffer &buffer, ReceiveBuffer::LineEnd lineEnd)
{
    QStringList lines;
    while (const auto line = buffer.takeLine(lineEnd)) {
        lines << *line;
    }
    return lines;
}

} // namespace

class TestReceiveBounds : public QObject
{
    Q_OBJECT

private slots:
    void withinTheBoundNothingIsDropped();
    void theOldestLinesGoFirstAndWhole_data();
    void theOldestLinesGoFirstAndWhole();
    void aLineBeyondTheBoundGoesWhole_data();
    void aLineBeyondTheBoundGoesWhole();
    void clearingEndsTheDropping();
    void theLongestLineHoldsNothingUp_data();
    void theLongestLineHoldsNothingUp();
    void memoryHasABound();
    void memoryComesBackWithoutDisconnecting();
    void theLogTellsOnceASecondHowMuch();
};

void TestReceiveBounds::withinTheBoundNothingIsDropped()
{
    ReceiveBuffer buffer;
    QCOMPARE(buffer.append(QByteArray(most - 2, 'A')), 0);
    QCOMPARE(buffer.append("\r\n"), 0);
    const auto line = buffer.takeLine(ReceiveBuffer::CarriageReturnLineFeed);
    QVERIFY(line.has_value());
    QCOMPARE(line->size(), most - 2);
}

void TestReceiveBounds::theOldestLinesGoFirstAndWhole_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<QByteArray>("lineEnd");
    QTest::newRow("CR LF") << int(ReceiveBuffer::CarriageReturnLineFeed) << QByteArray("\r\n");
    QTest::newRow("CR") << int(ReceiveBuffer::CarriageReturn) << QByteArray("\r");
    QTest::newRow("LF") << int(ReceiveBuffer::LineFeed) << QByteArray("\n");
}

void TestReceiveBounds::theOldestLinesGoFirstAndWhole()
{
    QFETCH(int, kind);
    QFETCH(QByteArray, lineEnd);
    const int lineSize = numberedLine(0).size() + lineEnd.size();
    const int lines = most / lineSize + 1000;
    ReceiveBuffer buffer;
    qint64 dropped = 0;
    for (int number = 0; number < lines; ++number) {
        dropped += buffer.append(numberedLine(number) + lineEnd);
        QVERIFY(buffer.size() <= most);
    }
    QCOMPARE(dropped + buffer.size(), qint64(lines) * lineSize);
    const QStringList left = takeAll(buffer, static_cast<ReceiveBuffer::LineEnd>(kind));
    QVERIFY2(left.size() >= most / lineSize - 1, "more was dropped than had to be");
    int number = lines - left.size();
    for (const QString &line : left) {
        QCOMPARE(line.toLatin1(), numberedLine(number++));
    }
}

void TestReceiveBounds::aLineBeyondTheBoundGoesWhole_data()
{
    QTest::addColumn<QByteArray>("lineEnd");
    QTest::newRow("CR LF") << QByteArray("\r\n");
    QTest::newRow("CR") << QByteArray("\r");
    QTest::newRow("LF") << QByteArray("\n");
}

void TestReceiveBounds::aLineBeyondTheBoundGoesWhole()
{
    QFETCH(QByteArray, lineEnd);
    const QByteArray megabyte(1024 * 1024, 'A');
    ReceiveBuffer buffer;
    qint64 dropped = 0;
    constexpr int megabytes = 40;
    for (int i = 0; i < megabytes; ++i) {
        dropped += buffer.append(megabyte);
    }
    dropped += buffer.append("its last" + lineEnd + "OK\r\n");
    QStringList lines;
    for (const ReceiveBuffer::LineEnd kind : ReceiveBuffer::lineEnds) {
        lines << takeAll(buffer, kind);
    }
    QCOMPARE(lines, QStringList{"OK"});
    QCOMPARE(dropped, qint64(megabytes) * megabyte.size() + 9);
    QVERIFY2(buffer.workDone() < 10 * dropped, "the cost does not follow the bytes");
}

void TestReceiveBounds::clearingEndsTheDropping()
{
    ReceiveBuffer buffer;
    buffer.append(QByteArray(most + 1, 'A'));
    buffer.clear();
    QCOMPARE(buffer.append("OK\r\n"), 0);
    QCOMPARE(takeAll(buffer, ReceiveBuffer::CarriageReturnLineFeed), QStringList{"OK"});
}

void TestReceiveBounds::theLongestLineHoldsNothingUp_data()
{
    QTest::addColumn<char>("character");
    QTest::newRow("letters") << 'A';
    QTest::newRow("line ends that begin no line") << '\n';
}

void TestReceiveBounds::theLongestLineHoldsNothingUp()
{
    QFETCH(char, character);
    ReceiveBuffer buffer;
    buffer.append(QByteArray(most - 2, character));
    for (const ReceiveBuffer::LineEnd kind : ReceiveBuffer::lineEnds) {
        buffer.takeLine(kind);
    }
    ProcessorTime::Stopwatch watch;
    buffer.append("\r\n");
    for (const ReceiveBuffer::LineEnd kind : ReceiveBuffer::lineEnds) {
        buffer.takeLine(kind);
    }
    const double spent = watch.lap();
    QVERIFY2(spent < ProcessorTime::allowed(50), qPrintable(QStringLiteral("%1 ms").arg(spent)));
    QVERIFY2(buffer.size() <= 1, "it was not taken");
}

void TestReceiveBounds::memoryHasABound()
{
    const QByteArray arrival = QByteArray("12.34\r\n").repeated(10000);
    ReceiveBuffer buffer;
    const qint64 before = heapInUse();
    qint64 highest = 0;
    for (qint64 arrived = 0; arrived < 12 * qint64(most); arrived += arrival.size()) {
        buffer.append(arrival);
        highest = std::max(highest, heapInUse() - before);
    }
    // Twice what waits, and Qt takes up to twice what it needs.
    QVERIFY2(highest <= 4 * qint64(most) + 65536, qPrintable(QString::number(highest)));
}

void TestReceiveBounds::memoryComesBackWithoutDisconnecting()
{
    if (qEnvironmentVariableIsSet("TALVERO_UNDER_VALGRIND")) {
        QSKIP("valgrind keeps the heap itself, and tells no figures of it");
    }
    ReceiveBuffer buffer;
    const qint64 before = heapInUse();
    buffer.append(QByteArray(most - 2, 'A'));
    buffer.append("\r\n");
    QVERIFY2(heapInUse() - before >= most, "the measure does not see it");
    buffer.takeLine(ReceiveBuffer::CarriageReturnLineFeed);
    QVERIFY2(heapInUse() - before < 65536, qPrintable(QString::number(heapInUse() - before)));
}

void TestReceiveBounds::theLogTellsOnceASecondHowMuch()
{
    SerialLink link;
    link.open();
    const QByteArray piece(4000, 'A');
    qint64 arrived = 0;
    const auto pour = [&](qint64 bytes) {
        for (const qint64 goal = arrived + bytes; arrived < goal;) {
            arrived += std::max(link.pty.write(piece), 0);
            QCoreApplication::processEvents();
        }
    };
    QElapsedTimer clock;
    clock.start();
    pour(most + 400000); // a line that never ends
    const int seconds = static_cast<int>(clock.elapsed() / 1000);
    QTRY_VERIFY(link.log.contains(tooFast));
    QVERIFY2(link.log.count(tooFast) <= 1 + seconds, "the log grows with the flood");
    QTest::qWait(1100); // the second after which the log may tell more
    link.arrive("\r\nOK\r\n");
    QTRY_VERIFY(link.layer.receivedLines.contains("OK"));

    qint64 told = 0;
    for (const QString &text : link.log.texts().filter(tooFast)) {
        told += text.mid(tooFast.size()).trimmed().toLongLong();
    }
    QCOMPARE(told, arrived + 1); // with the first half of its line end
}

QTEST_GUILESS_MAIN(TestReceiveBounds)
#include "tst_receivebounds.moc"
