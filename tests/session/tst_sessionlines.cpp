// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

// What a line that answers no command means in each state: reports and the banner. (The answers are
// in tst_sessionanswers.)

#include "sessionbench.h"

#include <QtTest>

#include <memory>

Q_DECLARE_METATYPE(SessionState)

namespace {

constexpr char requests[] = "*Gasdfdsasdf*UUasdfdsa*UAbxxxxxx";

constexpr SessionState everyState[] = {SessionState::Offline, SessionState::Connecting,
                                       SessionState::Searching, SessionState::Connected};

/// What comes in without a question, and what is told of it.
struct Report
{
    const char *line;
    const char *told; ///< empty: nothing
};

constexpr Report reports[] = {
    {"*i5,v1500000,a1", "settings common i=5 v=1500000 a=1"},
    {"*Hg064,Ht050", "settings high g=064 t=050"},
    {"*Lm00500", "settings low m=00500"},
    {"UID : 4A5B6C7D8E9F0011", "identifier 4A5B6C7D"},
    {"UID : 123", "identifier 123"},
    {"UID : ", "identifier "},
    {"The UID : 12345678", "identifier :"},
    {"BoardTemp: 298.15", "status TAL-VERO Temperature : 25°C"},
    {"VSupply: 12.41", "status Power Supply Voltage : 12.41V"},
    {" et B 00123 00131", "sounded  et B 00123 00131"},
    {"ok", "sounded ok"},
    {"err", "sounded err"},
    {"", ""},
};

} // namespace

class SessionLinesTest : public QObject
{
    Q_OBJECT

private slots:
    void init() { bench = std::make_unique<SessionBench>(); }
    void cleanup() { bench.reset(); }

    void aReportIsPassedOnInEveryState_data();
    void aReportIsPassedOnInEveryState();
    void aTemperatureIsToldInTheOperatorsUnit();
    void linesAreTakenInTheirOrder();
    void settingsAndIdentifierAreLogged();

    void aBannerConnects_data();
    void aBannerConnects();
    void aBannerWhileConnectedIsAKeepAlive();
    void aBannerLeavesTheSearchAtItsRate();

private:
    std::unique_ptr<SessionBench> bench;
};

void SessionLinesTest::aReportIsPassedOnInEveryState_data()
{
    QTest::addColumn<SessionState>("state");
    QTest::addColumn<QString>("line");
    QTest::addColumn<QString>("told");
    for (const SessionState state : everyState) {
        for (const Report &report : reports) {
            QTest::addRow("%s: %s", qPrintable(SessionBench::nameOf(state)), report.line)
                << state << QString(report.line) << QString(report.told);
        }
    }
}

void SessionLinesTest::aReportIsPassedOnInEveryState()
{
    QFETCH(SessionState, state);
    QFETCH(QString, line);
    QFETCH(QString, told);
    bench->bring(state);
    const bool waits = bench->session.answerWatch().isActive();
    bench->say(line);
    QCOMPARE(bench->takeTold(), told.isEmpty() ? QStringList() : QStringList{told});
    QVERIFY(bench->session.state() == state);
    QVERIFY2(bench->session.answerWatch().isActive() == waits, "only a banner is an answer");
    QCOMPARE(bench->takeSent(), QByteArray());
}

void SessionLinesTest::aTemperatureIsToldInTheOperatorsUnit()
{
    bench->bring(SessionState::Connected);
    bench->settings.goToImperial(true);
    bench->say("BoardTemp: 298.15");
    QCOMPARE(bench->takeTold(), QStringList{"status TAL-VERO Temperature : 77°F"});
}

void SessionLinesTest::linesAreTakenInTheirOrder()
{
    bench->bring(SessionState::Connected);
    bench->session.port().receivedLines << "UID : 12345678"
                                        << "e00131"
                                        << "*i5";
    bench->session.gotSerialData();
    QCOMPARE(bench->takeTold(),
             (QStringList{"identifier 12345678", "sounded e00131", "settings common i=5"}));
    QVERIFY(bench->session.port().receivedLines.isEmpty());
    bench->session.gotSerialData();
    QCOMPARE(bench->takeTold(), QStringList());
}

void SessionLinesTest::settingsAndIdentifierAreLogged()
{
    bench->bring(SessionState::Connected);
    bench->say("*i5,v1500000");
    bench->say("UID : 1234  5");
    QVERIFY(bench->log.contains("MainWindow::parseSetting"));
    QCOMPARE(bench->takeLog(), (QStringList{"Settings (\"i5\", \"v1500000\")",
                                            "(\"UID\", \":\", \"1234\", \"\", \"5\")"}));
}

void SessionLinesTest::aBannerConnects_data()
{
    QTest::addColumn<SessionState>("state");
    QTest::newRow("connecting") << SessionState::Connecting;
    QTest::newRow("searching") << SessionState::Searching;
}

void SessionLinesTest::aBannerConnects()
{
    QFETCH(SessionState, state);
    bench->bring(state);
    bench->say(SessionBench::banner);
    QCOMPARE(bench->takeTold(), (QStringList{"info green: Connected to TAL-VERO", "state Connected",
                                             "identified 2.14.7"}));
    QCOMPARE(bench->takeLog(), QStringList{"we have a TalVero New"});
    QVERIFY(bench->session.port().isConnected());
    QVERIFY2(!bench->session.answerWatch().isActive(), "the link would be given up");
    QVERIFY(bench->layerTimer("timeoutTimer")->isActive());
    QCOMPARE(bench->settings.deviceType(), QString("TalVeroNew"));
    QCOMPARE(bench->takeSent(), QByteArray(requests));
}

void SessionLinesTest::aBannerWhileConnectedIsAKeepAlive()
{
    bench->bring(SessionState::Connected);
    bench->say("TalVero New HF 9.9.9");
    QCOMPARE(bench->takeTold(), QStringList());
    QCOMPARE(bench->takeLog(), QStringList());
    QCOMPARE(bench->takeSent(), QByteArray());
}

void SessionLinesTest::aBannerLeavesTheSearchAtItsRate()
{
    bench->bring(SessionState::Searching);
    bench->session.serialTimeout(false);
    bench->say(SessionBench::banner);
    QCOMPARE(bench->choices.rate, QString("9600"));
    QCOMPARE(bench->session.port().baudRate, QString("9600"));
    QCOMPARE(bench->state(), QString("Connected"));
}

QTEST_MAIN(SessionLinesTest)

#include "tst_sessionlines.moc"
