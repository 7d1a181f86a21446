// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

// Lines longer than any sounder's, up to all that a receive buffer keeps: whatever they are taken
// for, they must not hold up the window.

#include "processortime.h"
#include "sessionbench.h"
#include "soundings.h"

#include <QtTest>

namespace {

constexpr double mostMs = 50;

void addLongLines()
{
    QTest::addColumn<QString>("before");
    QTest::addColumn<QString>("unit");
    QTest::addColumn<int>("size");
    const std::pair<const char *, const char *> texts[] = {{"", "x"},          {"", " "},
                                                           {"", "e"},          {"", "T-94"},
                                                           {"$SDDBT", ","},    {"*Hp", "1"},
                                                           {"*H", ","},        {"*H", ",p"},
                                                           {"*H", ",Hg050"},   {"*i", ",H1,H0"},
                                                           {"New", "1"},       {"New", "x"},
                                                           {"TalVero ", "."},  {"BoardTemp: ", "1"},
                                                           {"VSupply: ", " "}, {"VSupply: ", "9"},
                                                           {"UID : ", " "},    {"UID : ", "7"},
                                                           {"", "OK"},         {"", "ERR"}};
    for (const auto &[before, unit] : texts) {
        for (const int size : {1 << 20, ReceiveBuffer::mostBytes}) {
            QTest::addRow("%s%s..., %d characters", before, unit, size)
                << QString(before) << QString(unit) << size;
        }
    }
}

} // namespace

class TestLongLines : public QObject
{
    Q_OBJECT

private slots:
    void holdNothingUpWhileConnected_data() { addLongLines(); }
    void holdNothingUpWhileConnected();
    void holdNothingUpWhileConnecting_data() { addLongLines(); }
    void holdNothingUpWhileConnecting();
    void aSoundingAmongNoiseHoldsNothingUp_data();
    void aSoundingAmongNoiseHoldsNothingUp();
    void whatASounderSaysIsReadToItsEnd();

private:
    static void measure(SessionState state);
};

void TestLongLines::measure(SessionState state)
{
    QFETCH(QString, before);
    QFETCH(QString, unit);
    QFETCH(int, size);
    SessionBench bench;
    bench.bring(state);
    const QString line = before + unit.repeated((size - before.size()) / unit.size());
    const double spent = ProcessorTime::leastMs(ProcessorTime::allowed(mostMs), [&] {
        bench.session.port().receivedLines.append(line);
        bench.session.gotSerialData();
    });
    QVERIFY2(spent < ProcessorTime::allowed(mostMs),
             qPrintable(QStringLiteral("%1 ms").arg(spent)));
    QVERIFY(bench.session.port().receivedLines.isEmpty());
}

void TestLongLines::holdNothingUpWhileConnected() { measure(SessionState::Connected); }

void TestLongLines::holdNothingUpWhileConnecting() { measure(SessionState::Connecting); }

void TestLongLines::aSoundingAmongNoiseHoldsNothingUp_data()
{
    QTest::addColumn<QString>("unit");
    QTest::addColumn<QString>("format");
    for (const char *unit : {"x", "T-94L", "T-95", " et ", " ,", "$SDDBT,", "DA", "DB", "e"}) {
        QTest::newRow(unit) << unit << "ODOM";
    }
    QTest::newRow("blanks in SONARMITE OLD") << "1 "
                                             << "SONARMITE OLD";
    QTest::newRow("blanks in SONARMITE DUAL") << "1 "
                                              << "SONARMITE DUAL";
}

/// With as much of a line as the session passes on.
void TestLongLines::aSoundingAmongNoiseHoldsNothingUp()
{
    QFETCH(QString, unit);
    QFETCH(QString, format);
    SoundingContext context;
    context.outputFormat = format;
    const QString line = unit.repeated(Protocol::readCharacters / unit.size());
    Soundings soundings;
    const double spent = ProcessorTime::leastMs(ProcessorTime::allowed(mostMs),
                                                [&] { soundings.parseDepth(line, context); });
    QVERIFY2(spent < ProcessorTime::allowed(mostMs),
             qPrintable(QStringLiteral("%1 ms").arg(spent)));
}

void TestLongLines::whatASounderSaysIsReadToItsEnd()
{
    SessionBench bench;
    bench.connectAndClear();
    const QString noise(Protocol::readCharacters - 20, 'x');
    bench.say(noise + " VSupply: 12.41");
    QVERIFY2(bench.takeTold().filter("status").size() == 1, "the end of a long line is not read");
    bench.say(noise + noise + " VSupply: 12.41");
    QVERIFY(bench.takeTold().filter("status").isEmpty());
}

QTEST_MAIN(TestLongLines)
#include "tst_longlines.moc"
