// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "receivebuffer.h"

#include <QStringList>
#include <QtTest>

#include <random>

namespace {

/// What one arrival of bytes yields: one line for each kind of line end, as the serial layer asks.
QStringList linesOfOneArrival(ReceiveBuffer &buffer, const QByteArray &bytes)
{
    buffer.append(bytes);
    QStringList lines;
    for (const ReceiveBuffer::LineEnd lineEnd : ReceiveBuffer::lineEnds) {
        if (const auto line = buffer.takeLine(lineEnd)) {
            lines << *line;
        }
    }
    return lines;
}

/// The same in the plainest way: search from the start, cut, strip, remove.
class PlainBuffer
{
public:
    QStringList linesOfOneArrival(const QByteArray &bytes)
    {
        text += QString::fromLatin1(bytes);
        QStringList lines;
        for (const char *lineEnd : {"\r\n", "\r", "\n"}) {
            const QString separator = QLatin1String(lineEnd);
            const int position = text.indexOf(separator, 0, Qt::CaseSensitive);
            if (position > 0) {
                QString cut = text.left(position);
                while (cut.startsWith('\r') || cut.startsWith('\n')) {
                    cut.remove(0, 1);
                }
                lines << cut;
                text.remove(0, position + separator.size());
            }
        }
        return lines;
    }

    QString text;
};

class RandomBytes
{
public:
    explicit RandomBytes(unsigned seed)
        : generator(seed)
    {}

    int number(int from, int to) { return std::uniform_int_distribution<int>(from, to)(generator); }

    QByteArray chunk(const QByteArray &alphabet, int longest)
    {
        QByteArray result;
        for (int length = number(0, longest); length > 0; --length) {
            result += alphabet.at(number(0, alphabet.size() - 1));
        }
        return result;
    }

private:
    std::mt19937 generator;
};

} // namespace

class TestReceiveBuffer : public QObject
{
    Q_OBJECT

private slots:
    void linesOfEachArrival_data();
    void linesOfEachArrival();
    void aByteBecomesOneCharacter();
    void clearForgetsWhatWasSearched();
    void agreesWithThePlainBuffer_data();
    void agreesWithThePlainBuffer();
    void aLineWithoutEndIsSearchedOnce();
    void aLargeBacklogIsTakenInLinearTime();
    void noiseOfLineEndsIsReadInLinearTime();
};

void TestReceiveBuffer::linesOfEachArrival_data()
{
    QTest::addColumn<QList<QByteArray>>("arrivals");
    QTest::addColumn<QList<QStringList>>("lines");
    using Arrivals = QList<QByteArray>;
    using Lines = QList<QStringList>;

    QTest::newRow("OK with carriage return and line feed") << Arrivals{"OK\r\n"} << Lines{{"OK"}};
    QTest::newRow("OK with a lone carriage return") << Arrivals{"OK\r"} << Lines{{"OK"}};
    QTest::newRow("OK with a lone line feed") << Arrivals{"OK\n"} << Lines{{"OK"}};
    QTest::newRow("nothing") << Arrivals{""} << Lines{{}};
    QTest::newRow("no line end yet") << Arrivals{"O", "K", "\r\n"} << Lines{{}, {}, {"OK"}};
    QTest::newRow("three lines at once: two now, the third with the next arrival")
        << Arrivals{"A\r\nB\r\nC\r\n", ""} << Lines{{"A", "B"}, {"C"}};
    QTest::newRow("line end before OK: an empty line, OK waits")
        << Arrivals{"\r\nOK", "\r\n"} << Lines{{""}, {"OK"}};
    QTest::newRow("pair split between two arrivals")
        << Arrivals{"A\r", "\nB\r\n"} << Lines{{"A"}, {"B"}};
    QTest::newRow("line feed at the very start is not taken") << Arrivals{"\n"} << Lines{{}};
    QTest::newRow("pair at the very start: the line feed ends an empty line")
        << Arrivals{"\r\n"} << Lines{{""}};
    QTest::newRow("single bytes") << Arrivals{"E", "R", "R", "\r", "\n", "O", "K", "\r", "\n"}
                                  << Lines{{}, {}, {}, {"ERR"}, {}, {}, {}, {"OK"}, {}};
}

void TestReceiveBuffer::linesOfEachArrival()
{
    QFETCH(QList<QByteArray>, arrivals);
    QFETCH(QList<QStringList>, lines);
    ReceiveBuffer buffer;
    for (int i = 0; i < arrivals.size(); ++i) {
        QCOMPARE(linesOfOneArrival(buffer, arrivals.at(i)), lines.at(i));
    }
}

void TestReceiveBuffer::aByteBecomesOneCharacter()
{
    QByteArray noise;
    for (int value = 0; value < 256; ++value) {
        if (value != '\r' && value != '\n') {
            noise += static_cast<char>(value);
        }
    }
    ReceiveBuffer buffer;
    const QStringList lines = linesOfOneArrival(buffer, noise + "\r\n");
    QCOMPARE(lines.size(), 1);
    QCOMPARE(lines.first().size(), noise.size());
    QCOMPARE(lines.first().toLatin1(), noise);
}

void TestReceiveBuffer::clearForgetsWhatWasSearched()
{
    ReceiveBuffer buffer;
    QCOMPARE(linesOfOneArrival(buffer, "A\r\nB\r\nC\r\nhalf a li"), (QStringList{"A", "B"}));
    buffer.clear();
    QCOMPARE(buffer.size(), 0);
    QCOMPARE(linesOfOneArrival(buffer, "OK\r\n"), QStringList{"OK"});
    QCOMPARE(buffer.size(), 0);
}

void TestReceiveBuffer::agreesWithThePlainBuffer_data()
{
    QTest::addColumn<int>("cases");
    QTest::addColumn<int>("arrivals");
    QTest::addColumn<int>("longest");
    QTest::addColumn<QByteArray>("alphabet");

    QTest::newRow("short pieces") << 4000 << 30 << 6 << QByteArray("AB\r\n");
    QTest::newRow("long pieces, a growing backlog") << 300 << 40 << 200 << QByteArray("AB\r\n");
    QTest::newRow("line ends only") << 1000 << 30 << 8 << QByteArray("\r\n");
    QTest::newRow("few line ends") << 500 << 60 << 12 << QByteArray("ABCDEFGHIJKLMNOPQRSTUV\r\n");
}

void TestReceiveBuffer::agreesWithThePlainBuffer()
{
    QFETCH(int, cases);
    QFETCH(int, arrivals);
    QFETCH(int, longest);
    QFETCH(QByteArray, alphabet);
    RandomBytes random(20260117);
    for (int i = 0; i < cases; ++i) {
        ReceiveBuffer buffer;
        PlainBuffer plain;
        QByteArray history;
        for (int arrival = 0; arrival < arrivals; ++arrival) {
            const QByteArray chunk = random.chunk(alphabet, longest);
            history += chunk + '|';
            const QStringList expected = plain.linesOfOneArrival(chunk);
            const QStringList actual = linesOfOneArrival(buffer, chunk);
            QVERIFY2(actual == expected && buffer.size() == plain.text.size(),
                     "after " + history.toPercentEncoding("|"));
            if (random.number(0, 99) == 0) {
                buffer.clear();
                plain.text.clear();
                history += "(cleared)";
            }
        }
    }
}

void TestReceiveBuffer::aLineWithoutEndIsSearchedOnce()
{
    constexpr int pieces = 4096;
    const QByteArray piece(1024, 'A');
    ReceiveBuffer buffer;
    for (int i = 0; i < pieces; ++i) {
        QCOMPARE(linesOfOneArrival(buffer, piece), QStringList());
    }
    QCOMPARE(linesOfOneArrival(buffer, "\r\n"), QStringList{QString(pieces * 1024, 'A')});
    const qint64 bytes = pieces * 1024 + 2;
    QVERIFY2(buffer.workDone() >= bytes, "the measure does not count");
    QVERIFY2(buffer.workDone() <= 5 * bytes,
             qPrintable(QStringLiteral("%1 bytes examined for a line of %2 bytes")
                            .arg(buffer.workDone())
                            .arg(bytes)));
}

void TestReceiveBuffer::aLargeBacklogIsTakenInLinearTime()
{
    constexpr int lines = 300000;
    const QByteArray backlog = QByteArray("12.34\r\n").repeated(lines);
    ReceiveBuffer buffer;
    buffer.append(backlog);
    int taken = 0;
    while (buffer.size() > 1) {
        for (const QString &line : linesOfOneArrival(buffer, QByteArray())) {
            QCOMPARE(line, QStringLiteral("12.34"));
            ++taken;
        }
    }
    QCOMPARE(taken, lines);
    QVERIFY2(buffer.workDone() <= 10 * qint64(backlog.size()),
             qPrintable(QStringLiteral("%1 bytes examined and moved for a backlog of %2 bytes")
                            .arg(buffer.workDone())
                            .arg(backlog.size())));
}

void TestReceiveBuffer::noiseOfLineEndsIsReadInLinearTime()
{
    const QByteArray piece(1024, '\r');
    ReceiveBuffer buffer;
    qint64 bytes = 0;
    for (int i = 0; i < 1024; ++i) {
        linesOfOneArrival(buffer, piece);
        bytes += piece.size();
    }
    QVERIFY2(buffer.workDone() <= 10 * bytes,
             qPrintable(QStringLiteral("%1 bytes examined for %2 carriage returns")
                            .arg(buffer.workDone())
                            .arg(bytes)));
}

QTEST_GUILESS_MAIN(TestReceiveBuffer)
#include "tst_receivebuffer.moc"
