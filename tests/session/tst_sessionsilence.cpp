// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

// What a silence means in each state, and what a port that fails does.

#include "sessionbench.h"

#include <QtTest>

#include <memory>

Q_DECLARE_METATYPE(SessionState)

namespace {

constexpr auto wakeUp = SessionBench::wakeUp;

/// A port that no computer has.
constexpr char nobody[] = "ttyNOBODY";

constexpr char notConnected[] = "info red: Could Not Connect To Device";
constexpr char lost[] = "info red: Lost Connection To Device";

} // namespace

class SessionSilenceTest : public QObject
{
    Q_OBJECT

private slots:
    void init() { bench = std::make_unique<SessionBench>(); }
    void cleanup() { bench.reset(); }

    void aSilenceEndsOrSearches_data();
    void aSilenceEndsOrSearches();
    void anExcusedSilenceIsForgivenOnlyToAConnectedSounder_data();
    void anExcusedSilenceIsForgivenOnlyToAConnectedSounder();
    void anUnansweredChangeKeepsTheLink_data();
    void anUnansweredChangeKeepsTheLink();
    void aSearchTriesEachRateOnceAndFails();
    void aPortThatVanishesEndsTheSearch();
    void aPulledCableEndsTheLink_data();
    void aPulledCableEndsTheLink();
    void theNextConnectionDoesNotInheritAWaitingChange();

private:
    std::unique_ptr<SessionBench> bench;
};

void SessionSilenceTest::aSilenceEndsOrSearches_data()
{
    QTest::addColumn<SessionState>("state");
    QTest::addColumn<QStringList>("told");
    QTest::addColumn<QString>("then");
    QTest::addColumn<QByteArray>("sent");

    QTest::newRow("offline") << SessionState::Offline << QStringList{"state Offline", lost}
                             << "Offline" << QByteArray();
    QTest::newRow("connecting") << SessionState::Connecting
                                << QStringList{"state Offline", notConnected} << "Offline"
                                << QByteArray();
    QTest::newRow("searching") << SessionState::Searching
                               << QStringList{"rate 9600", "info black: Trying 9600 baud"}
                               << "Searching" << QByteArray(wakeUp);
    QTest::newRow("connected") << SessionState::Connected << QStringList{"state Offline", lost}
                               << "Offline" << QByteArray();
}

void SessionSilenceTest::aSilenceEndsOrSearches()
{
    QFETCH(SessionState, state);
    QFETCH(QString, then);
    bench->bring(state);
    bench->session.serialTimeout(false);
    QTEST(bench->takeTold(), "told");
    QCOMPARE(bench->takeLog().value(0), QString("SERIAL TIMED OUT"));
    QCOMPARE(bench->state(), then);
    const bool goesOn = then == "Searching";
    QCOMPARE(bench->session.answerWatch().isActive(), goesOn);
    QVERIFY2(bench->layerTimer("timeoutTimer")->isActive() == goesOn, "one silence, two messages");
    QCOMPARE(bench->isPortFree(), !goesOn);
    QTEST(bench->takeSent(), "sent");
}

void SessionSilenceTest::anExcusedSilenceIsForgivenOnlyToAConnectedSounder_data()
{
    QTest::addColumn<SessionState>("state");
    QTest::addColumn<QStringList>("told");
    QTest::newRow("offline") << SessionState::Offline << QStringList();
    QTest::newRow("connecting") << SessionState::Connecting
                                << QStringList{"state Offline", notConnected};
    QTest::newRow("searching") << SessionState::Searching
                               << QStringList{"rate 9600", "info black: Trying 9600 baud"};
    QTest::newRow("connected") << SessionState::Connected << QStringList();
}

void SessionSilenceTest::anExcusedSilenceIsForgivenOnlyToAConnectedSounder()
{
    QFETCH(SessionState, state);
    QFETCH(QStringList, told);
    bench->bring(state);
    const bool wasFree = bench->isPortFree();
    bench->session.serialTimeout(true);
    QCOMPARE(bench->takeTold(), told);
    const bool isForgiven = told.isEmpty();
    QCOMPARE(bench->takeLog().contains("Ignoring serial timeout because timer is active"),
             isForgiven);
    if (isForgiven) {
        QCOMPARE(bench->session.state(), state);
        QCOMPARE(bench->isPortFree(), wasFree);
        bench->session.serialTimeout(false);
        QCOMPARE(bench->takeTold(), (QStringList{"state Offline", lost}));
    }
}

void SessionSilenceTest::anUnansweredChangeKeepsTheLink_data()
{
    QTest::addColumn<bool>("excused");
    QTest::newRow("excused") << true;
    QTest::newRow("not excused") << false;
}

void SessionSilenceTest::anUnansweredChangeKeepsTheLink()
{
    QFETCH(bool, excused);
    bench->bring(SessionState::Connected);
    bench->sendChange("Ping");
    bench->session.serialTimeout(excused);
    QCOMPARE(bench->takeTold(),
             QStringList{"info red: Setting Pings Per Second to 5 ... Command Timed Out"});
    QCOMPARE(bench->takeLog(), QStringList{"SERIAL TIMED OUT"});
    QCOMPARE(bench->session.info().topic().settingKey(), QString("Ping"));
    QCOMPARE(bench->state(), QString("Connected"));
    QVERIFY(!bench->isPortFree());
    QVERIFY(!bench->session.queue().isAwaitingAnswer());

    bench->session.serialTimeout(false); // the next silence is the link's own
    QCOMPARE(bench->takeTold(), (QStringList{"state Offline", lost}));
}

void SessionSilenceTest::aSearchTriesEachRateOnceAndFails()
{
    bench->bring(SessionState::Searching);
    for (const QString rate : {"9600", "19200", "38400", "57600", "115200"}) {
        bench->session.serialTimeout(false);
        QCOMPARE(bench->takeTold(),
                 (QStringList{"rate " + rate, "info black: Trying " + rate + " baud"}));
        QCOMPARE(bench->takeLog(),
                 (QStringList{"SERIAL TIMED OUT", "current text is now  \"" + rate + "\""}));
        QCOMPARE(bench->session.port().baudRate, rate);
        QVERIFY(bench->session.answerWatch().isActive());
        QCOMPARE(bench->takeSent(), QByteArray(wakeUp));
    }
    bench->session.serialTimeout(false);
    QCOMPARE(bench->takeTold(), (QStringList{"state Offline", notConnected}));
    QCOMPARE(bench->takeLog(), QStringList{"SERIAL TIMED OUT"});
    QVERIFY(!bench->session.answerWatch().isActive());
    QVERIFY(bench->isPortFree());
    QCOMPARE(bench->choices.rate, QString("115200"));
}

void SessionSilenceTest::aPortThatVanishesEndsTheSearch()
{
    bench->bring(SessionState::Searching);
    bench->choices.port = nobody;
    bench->session.serialTimeout(false);
    QCOMPARE(bench->takeTold(), (QStringList{"rate 9600", "state Offline", notConnected}));
    QVERIFY(!bench->session.answerWatch().isActive());
    QVERIFY(bench->isPortFree());
}

void SessionSilenceTest::aPulledCableEndsTheLink_data()
{
    QTest::addColumn<SessionState>("state");
    QTest::addColumn<QStringList>("told");
    QTest::newRow("connecting") << SessionState::Connecting
                                << QStringList{"state Offline", notConnected};
    QTest::newRow("searching") << SessionState::Searching
                               << QStringList{"rate 9600", "state Offline", notConnected};
    QTest::newRow("connected") << SessionState::Connected << QStringList{"state Offline", lost};
}

/// The port itself fails; nobody waits for a silence.
void SessionSilenceTest::aPulledCableEndsTheLink()
{
    QFETCH(SessionState, state);
    bench->bring(state);
    bench->line.hangUp();
    QTRY_COMPARE(bench->state(), QString("Offline"));
    QTEST(bench->takeTold(), "told");
    QVERIFY(!bench->session.answerWatch().isActive());
    QVERIFY(!bench->layerTimer("timeoutTimer")->isActive());
}

void SessionSilenceTest::theNextConnectionDoesNotInheritAWaitingChange()
{
    bench->bring(SessionState::Connected);
    bench->sendChange("Ping");
    bench->session.press();
    QVERIFY(!bench->session.queue().isAwaitingAnswer());
    bench->bring(SessionState::Connecting);
    bench->session.serialTimeout(false);
    QCOMPARE(bench->takeTold(), (QStringList{"state Offline", notConnected}));
}

QTEST_MAIN(SessionSilenceTest)

#include "tst_sessionsilence.moc"
