// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "computer.h"
#include "ptysounder.h"

#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

namespace {

const QByteArray banner = QByteArrayLiteral("TalVero New Dual 2.14.7\r\n");

SounderOptions quiet(int rate = 0)
{
    SounderOptions options;
    options.soundings = false;
    options.rate = rate;
    return options;
}

bool isUnreadable(const QByteArray &bytes)
{
    return std::none_of(bytes.begin(), bytes.end(),
                        [](char byte) { return byte >= ' ' && byte <= '~'; });
}

} // namespace

class TestPtySounder : public QObject
{
    Q_OBJECT

private slots:
    void opensATerminal();
    void answersAtItsRate_data();
    void answersAtItsRate();
    void anotherRateIsNoise();
    void soundingsAtAnotherRateAreGarbage();
    void isFoundByTryingRates();
    void followsItsNewRate();
    void tellsWhatItTook();
    void takesTenBitsACharacter();
    void unpacedAnswersAtOnce();
    void hangUpIsSeenAtTheOtherEnd();
    void hangUpFault();
    void hangUpFromASlot();
    void pluggedInAgainItHasItsSettings();
    void pluggedInAgainTheOldPortIsNobodys();
    void pluggingInTwiceIsOnce();
    void memoryLasts();
    void savingUnchangedSettingsLastsToo();
    void brokenMemoryIsReportedAndIgnored();
};

void TestPtySounder::opensATerminal()
{
    const PtySounder sounder;
    QVERIFY(sounder.isOpen());
    QVERIFY2(sounder.portPath().startsWith(QStringLiteral("/dev/")),
             qPrintable(sounder.portPath()));
}

void TestPtySounder::answersAtItsRate_data()
{
    QTest::addColumn<int>("rate");
    for (const int rate : lineRates()) {
        QTest::addRow("%d", rate) << rate;
    }
}

void TestPtySounder::answersAtItsRate()
{
    QFETCH(int, rate);
    PtySounder sounder(quiet(rate));
    Computer computer(sounder.portPath(), rate);
    QVERIFY2(computer.port.isOpen(), qPrintable(computer.port.errorString()));
    computer.send("*n1234567*n1234567");
    QTRY_COMPARE(computer.heard, banner + banner);
}

void TestPtySounder::anotherRateIsNoise()
{
    PtySounder sounder(quiet());
    Computer computer(sounder.portPath(), 38400);
    computer.send("*n1234567*n1234567");
    QTRY_COMPARE(sounder.model().counts(), (QMap<QString, int>{{"noise", 2}}));

    // Had it been heard, its answer would come before this one.
    computer.port.setBaudRate(9600);
    computer.send("*UUasdfdsa");
    QTRY_COMPARE(computer.heard, QByteArray("UID : 4A5B6C7D8E9F0011\r\n"));
}

void TestPtySounder::soundingsAtAnotherRateAreGarbage()
{
    SounderOptions options;
    options.format = Odom;
    PtySounder sounder(options);
    Computer computer(sounder.portPath(), 4800);
    QTRY_VERIFY(computer.heard.size() > 50);
    QVERIFY2(isUnreadable(computer.heard), computer.heard.constData());
    computer.port.setBaudRate(9600);
    QTRY_VERIFY(computer.heard.contains(" et B "));
}

void TestPtySounder::isFoundByTryingRates()
{
    PtySounder sounder(quiet(57600));
    QByteArray answered;
    for (const int rate : lineRates()) {
        Computer computer(sounder.portPath(), rate);
        const int before = sounder.model().rawReceived().size() +
                           sounder.model().counts().value(QStringLiteral("noise"));
        computer.send("*nasdfd\r\n");
        QTRY_VERIFY(sounder.model().rawReceived().size() +
                        sounder.model().counts().value(QStringLiteral("noise")) >
                    before);
        if (rate == 57600) {
            QTRY_COMPARE(computer.heard, banner);
        }
        answered += computer.heard;
    }
    QCOMPARE(answered, banner);
    QCOMPARE(sounder.model().counts(), (QMap<QString, int>{{"identity", 1}, {"noise", 5}}));
}

void TestPtySounder::followsItsNewRate()
{
    PtySounder sounder(quiet());
    Computer computer(sounder.portPath());
    computer.send("*I333....");
    QTRY_COMPARE(computer.heard, QByteArray("OK\r\n"));
    QTRY_COMPARE(sounder.model().lineRate(), 115200);
    computer.port.setBaudRate(115200);
    computer.send("*n123456");
    QTRY_COMPARE(computer.heard, "OK\r\n" + banner);
}

void TestPtySounder::tellsWhatItTook()
{
    PtySounder sounder(quiet());
    QSignalSpy commands(&sounder, &SounderLine::commandReceived);
    QSignalSpy changes(&sounder, &SounderLine::settingsChanged);
    Computer computer(sounder.portPath());
    computer.send("*nasdfd\r\n*i06....*i99....");
    QTRY_COMPARE(commands.size(), 3);
    QCOMPARE(commands.at(0).at(0).toByteArray(), QByteArray("*nasdfd\r"));
    QCOMPARE(commands.at(1).at(0).toByteArray(), QByteArray("*i06...."));
    QCOMPARE(commands.at(2).at(0).toByteArray(), QByteArray("*i99...."));
    QVERIFY(!changes.isEmpty());
    QCOMPARE(sounder.model().settings().pings, 6);

    const int before = changes.size();
    computer.send("*n123456");
    QTRY_COMPARE(commands.size(), 4);
    QCOMPARE(changes.size(), before);
}

void TestPtySounder::takesTenBitsACharacter()
{
    PtySounder sounder(quiet(4800));
    Computer computer(sounder.portPath(), 4800);
    QElapsedTimer clock;
    clock.start();
    computer.send("*Gasdfdsasdf");
    QTRY_COMPARE(computer.heard.count("\r\n"), 3);
    const int fastestMs = computer.heard.size() * 10 * 1000 / 4800;
    QVERIFY2(clock.elapsed() >= fastestMs, qPrintable(QString::number(clock.elapsed())));
}

void TestPtySounder::unpacedAnswersAtOnce()
{
    SounderOptions options = quiet(4800);
    options.pace = false;
    PtySounder sounder(options);
    QSignalSpy sent(&sounder, &SounderLine::bytesSent);
    Computer computer(sounder.portPath(), 4800);
    computer.send("*Gasdfdsasdf");
    QTRY_COMPARE(computer.heard.count("\r\n"), 3);
    QCOMPARE(sent.size(), 3); // a line at a time
}

void TestPtySounder::hangUpIsSeenAtTheOtherEnd()
{
    PtySounder sounder(quiet());
    QSignalSpy hungUp(&sounder, &SounderLine::hungUp);
    const QString path = sounder.portPath();
    Computer computer(path);
    computer.send("*n123456");
    QTRY_COMPARE(computer.heard, banner);
    sounder.hangUp();
    sounder.hangUp();
    QCOMPARE(hungUp.size(), 1);
    QVERIFY(!sounder.isOpen());
    QCOMPARE(sounder.portPath(), path);
    QTRY_VERIFY2(computer.hasFailed, "the program does not see that the cable was pulled");
}

void TestPtySounder::hangUpFault()
{
    PtySounder sounder(quiet());
    Computer computer(sounder.portPath());
    QCOMPARE(sounder.model().setFault(QStringLiteral("hang-up"), 0.2), QString());
    QVERIFY(sounder.isOpen());
    QTRY_VERIFY(!sounder.isOpen());
    QTRY_VERIFY(computer.hasFailed);
}

void TestPtySounder::hangUpFromASlot()
{
    PtySounder sounder(quiet());
    connect(&sounder, &SounderLine::commandReceived, &sounder, &SounderLine::hangUp);
    Computer computer(sounder.portPath());
    computer.send("*n123456*n123456");
    QTRY_VERIFY(!sounder.isOpen());
    QTRY_VERIFY(computer.hasFailed);
}

void TestPtySounder::pluggedInAgainItHasItsSettings()
{
    PtySounder sounder(quiet());
    sounder.model().setFault(QStringLiteral("hang-up"), 0.2); // once, and not at every plugging in
    {
        Computer computer(sounder.portPath());
        computer.send("*i06....");
        QTRY_COMPARE(computer.heard, QByteArray("OK\r\n"));
        QTRY_VERIFY(computer.hasFailed);
    }
    QVERIFY(sounder.plugIn());
    QVERIFY(sounder.isOpen());
    Computer computer(sounder.portPath());
    computer.send("*n123456");
    QTRY_COMPARE(computer.heard, banner);
    QCOMPARE(sounder.model().settings().pings, 6);
    QVERIFY(!computer.hasFailed);
}

/// Whoever still has it open, hears and reaches nobody.
void TestPtySounder::pluggedInAgainTheOldPortIsNobodys()
{
    PtySounder sounder(quiet());
    Computer old(sounder.portPath());
    sounder.hangUp();
    QVERIFY(sounder.plugIn());
    old.send("*i06....");
    Computer computer(sounder.portPath());
    computer.send("*n123456");
    QTRY_COMPARE(computer.heard, banner);
    QCOMPARE(old.heard, QByteArray());
    QCOMPARE(sounder.model().settings().pings, 5);
}

void TestPtySounder::pluggingInTwiceIsOnce()
{
    PtySounder sounder(quiet());
    const QString path = sounder.portPath();
    Computer computer(path);
    QVERIFY(sounder.plugIn());
    QCOMPARE(sounder.portPath(), path);
    computer.send("*n123456");
    QTRY_COMPARE(computer.heard, banner);
}

void TestPtySounder::memoryLasts()
{
    const QTemporaryDir folder;
    SounderOptions options = quiet();
    options.memoryFile = folder.filePath(QStringLiteral("memory"));
    {
        PtySounder sounder(options);
        Computer computer(sounder.portPath());
        computer.send("*g077..L*I111....*F345678");
        QTRY_COMPARE(computer.heard, QByteArray("OK\r\nOK\r\nOK\r\n"));
    }
    const PtySounder sounder(options);
    QCOMPARE(sounder.model().settings().low.gain, 77);
    QCOMPARE(sounder.model().lineRate(), 38400);
}

void TestPtySounder::savingUnchangedSettingsLastsToo()
{
    const QTemporaryDir folder;
    SounderOptions options = quiet(19200);
    options.memoryFile = folder.filePath(QStringLiteral("memory"));
    {
        PtySounder sounder(options);
        Computer computer(sounder.portPath(), 19200);
        computer.send("*F345678");
        QTRY_COMPARE(computer.heard, QByteArray("OK\r\n"));
    }
    options.rate = 0;
    QCOMPARE(PtySounder(options).model().lineRate(), 19200);
}

void TestPtySounder::brokenMemoryIsReportedAndIgnored()
{
    const QTemporaryDir folder;
    SounderOptions options = quiet();
    options.memoryFile = folder.filePath(QStringLiteral("memory"));
    QFile file(options.memoryFile);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("*i5,v15000");
    file.close();
    QTest::ignoreMessage(
        QtWarningMsg,
        QRegularExpression("^Sounder: " + QRegularExpression::escape(options.memoryFile) +
                           " is not the memory of such a unit; it is ignored$"));
    const PtySounder sounder(options);
    QVERIFY(sounder.isOpen());
    QVERIFY(sounder.model().settings() == factorySettings(SounderFit::Dual));
}

QTEST_GUILESS_MAIN(TestPtySounder)
#include "tst_ptysounder.moc"
