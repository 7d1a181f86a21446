// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

// The beginning and the end of the link, as the operator has it. (Silences are tested in
// tst_sessionsilence, what the sounder says in tst_sessionlines.)

#include "sessionbench.h"

#include <QtTest>

#include <memory>

Q_DECLARE_METATYPE(SessionState)
Q_DECLARE_METATYPE(LinkSession::Press)

namespace {

using Press = LinkSession::Press;

constexpr auto wakeUp = SessionBench::wakeUp;
constexpr auto probe = SessionBench::probe;

/// A port that no computer has.
constexpr char nobody[] = "ttyNOBODY";

constexpr char notConnected[] = "info red: Could Not Connect To Device";

} // namespace

class LinkSessionTest : public QObject
{
    Q_OBJECT

private slots:
    void init() { bench = std::make_unique<SessionBench>(); }
    void cleanup() { bench.reset(); }

    void atTheStartItIsOffline();
    void itsTimersHaveTheirIntervals();

    void aPressWithoutAChoiceChangesNothing_data();
    void aPressWithoutAChoiceChangesNothing();
    void aPressAtARateConnects_data();
    void aPressAtARateConnects();
    void aPressAtAutoSearches();
    void aPressEndsWhatGoesOn_data();
    void aPressEndsWhatGoesOn();
    void aPortThatDoesNotOpenChangesNothing_data();
    void aPortThatDoesNotOpenChangesNothing();
    void aSearchAtAPortThatDoesNotOpenEndsWithItsFirstSilence();

    void theRateThatTheUnitTellsIsOnlyNoted();
    void anAnnouncedCommandGoesOutAtOnce();

private:
    QString doesNotOpen(const QString &port);

    std::unique_ptr<SessionBench> bench;
};

void LinkSessionTest::atTheStartItIsOffline()
{
    QCOMPARE(bench->state(), QString("Offline"));
    QVERIFY(bench->isPortFree());
    QVERIFY(!bench->session.port().isConnected());
    QCOMPARE(bench->session.info().text(), QString());
}

void LinkSessionTest::itsTimersHaveTheirIntervals()
{
    LinkSession fresh(bench->settings, [] { return LinkChoices(); });
    QCOMPARE(fresh.answerWatch().interval(), 2000);
    QVERIFY(fresh.answerWatch().isSingleShot());
    QVERIFY(!fresh.answerWatch().isActive());
    QCOMPARE(fresh.answerWatch().objectName(), QString("answerTimer"));
    QCOMPARE(fresh.pollClock().interval(), 5000);
    QVERIFY(!fresh.pollClock().isSingleShot());
    QVERIFY2(fresh.pollClock().isActive(), "polls would never begin");
    QCOMPARE(fresh.pollClock().objectName(), QString("temperatureTimer"));
}

void LinkSessionTest::aPressWithoutAChoiceChangesNothing_data()
{
    QTest::addColumn<QString>("port");
    QTest::addColumn<QString>("rate");
    QTest::newRow("neither port nor rate") << "Select Port"
                                           << "Select Rate";
    QTest::newRow("a rate without a port") << "Select Port"
                                           << "9600";
    QTest::newRow("Auto without a port") << "Select Port"
                                         << "Auto";
    QTest::newRow("a port without a rate") << nobody << "Select Rate";
}

void LinkSessionTest::aPressWithoutAChoiceChangesNothing()
{
    QFETCH(QString, port);
    QFETCH(QString, rate);
    bench->choices.port = port;
    bench->choices.rate = rate;
    QVERIFY(bench->session.press() == Press::NotChosen);
    QCOMPARE(bench->takeTold(), QStringList());
    QCOMPARE(bench->takeLog(), QStringList());
    QCOMPARE(bench->state(), QString("Offline"));
    QVERIFY(!bench->session.answerWatch().isActive());
    QCOMPARE(bench->choices.rate, rate);
}

void LinkSessionTest::aPressAtARateConnects_data()
{
    QTest::addColumn<QString>("rate");
    for (const char *rate : {"4800", "9600", "19200", "38400", "57600", "115200"}) {
        QTest::newRow(rate) << rate;
    }
}

void LinkSessionTest::aPressAtARateConnects()
{
    QFETCH(QString, rate);
    bench->choices.rate = rate;
    QVERIFY(bench->session.press() == Press::Underway);
    QCOMPARE(bench->takeTold(),
             (QStringList{"info black: Connecting to Device", "state Connecting"}));
    QCOMPARE(bench->takeLog(), QStringList{"Opened Serial Port"});
    QVERIFY2(bench->session.answerWatch().isActive(), "nobody waits for the banner");
    QVERIFY(!bench->session.port().isConnected());
    QCOMPARE(bench->session.port().portName, bench->line.slavePath());
    QCOMPARE(bench->session.port().baudRate, rate);
    QCOMPARE(bench->takeSent(), QByteArray(wakeUp) + probe);
}

void LinkSessionTest::aPressAtAutoSearches()
{
    bench->choices.rate = "Auto";
    QVERIFY(bench->session.press() == Press::Underway);
    QCOMPARE(bench->takeTold(),
             (QStringList{"rate 4800", "info black: Trying 4800 baud", "state Searching"}));
    QCOMPARE(bench->takeLog(), (QStringList{"GOING AUTO!", "current text is now  \"4800\""}));
    QVERIFY(bench->session.answerWatch().isActive());
    QCOMPARE(bench->session.port().baudRate, QString("4800"));
    QCOMPARE(bench->choices.rate, QString("4800"));
    QCOMPARE(bench->takeSent(), QByteArray(wakeUp) + probe);
}

void LinkSessionTest::aPressEndsWhatGoesOn_data()
{
    QTest::addColumn<SessionState>("state");
    QTest::newRow("connecting") << SessionState::Connecting;
    QTest::newRow("searching") << SessionState::Searching;
    QTest::newRow("connected") << SessionState::Connected;
}

void LinkSessionTest::aPressEndsWhatGoesOn()
{
    QFETCH(SessionState, state);
    bench->bring(state);
    const QString rate = bench->choices.rate;
    QVERIFY(bench->session.press() == Press::Disconnected);
    QCOMPARE(bench->takeTold(), (QStringList{"info black: ", "state Offline"}));
    QCOMPARE(bench->takeLog(), QStringList{"disconnecting from device"});
    QVERIFY2(!bench->session.answerWatch().isActive(), "the old silence will still be reported");
    QVERIFY(!bench->layerTimer("timeoutTimer")->isActive());
    QVERIFY(!bench->session.port().isConnected());
    QVERIFY2(bench->isPortFree(), "the port is still held");
    QCOMPARE(bench->choices.rate, rate);
    QCOMPARE(bench->takeSent(), QByteArray());

    bench->choices.rate = "9600";
    QVERIFY2(bench->session.press() == Press::Underway, "the next press does not connect");
}

void LinkSessionTest::aPortThatDoesNotOpenChangesNothing_data()
{
    QTest::addColumn<bool>("isThere");
    QTest::newRow("a port that does not exist") << false;
    QTest::newRow("a port that another program holds") << true;
}

/// The log line that says so, with the reason.
QString LinkSessionTest::doesNotOpen(const QString &port)
{
    return QString("The serial port does not open: \"%1\" \"%2\"")
        .arg(port, bench->session.portTrouble());
}

void LinkSessionTest::aPortThatDoesNotOpenChangesNothing()
{
    QFETCH(bool, isThere);
    QSerialPort otherProgram(bench->line.slavePath());
    QVERIFY(otherProgram.open(QIODevice::ReadWrite));
    if (!isThere) {
        bench->choices.port = nobody;
    }
    QVERIFY(bench->session.press() == Press::NotOpened);
    QCOMPARE(bench->takeTold(), QStringList());
    QCOMPARE(bench->takeLog(), QStringList{doesNotOpen(bench->choices.port)});
    QVERIFY(!bench->session.portTrouble().isEmpty());
    QCOMPARE(bench->state(), QString("Offline"));
    QVERIFY(!bench->session.answerWatch().isActive());
    otherProgram.close();
    QCOMPARE(bench->takeSent(), QByteArray());
}

void LinkSessionTest::aSearchAtAPortThatDoesNotOpenEndsWithItsFirstSilence()
{
    bench->choices.port = nobody;
    bench->choices.rate = "Auto";
    QVERIFY(bench->session.press() == Press::Underway);
    QCOMPARE(bench->takeTold(), (QStringList{"rate 4800", "state Searching"}));
    QCOMPARE(bench->takeLog(), (QStringList{"GOING AUTO!", "current text is now  \"4800\"",
                                            doesNotOpen(nobody), "Connection failed"}));
    QVERIFY(bench->session.answerWatch().isActive());

    bench->session.serialTimeout(false);
    QCOMPARE(bench->takeTold(), (QStringList{"rate 9600", "state Offline", notConnected}));
    QCOMPARE(bench->takeLog(), (QStringList{"SERIAL TIMED OUT", "current text is now  \"9600\"",
                                            doesNotOpen(nobody), "Connection failed"}));
    QVERIFY(!bench->session.answerWatch().isActive());
}

void LinkSessionTest::theRateThatTheUnitTellsIsOnlyNoted()
{
    bench->bring(SessionState::Connected);
    bench->session.followRate("38400");
    QCOMPARE(bench->session.port().baudRate, QString("38400"));
    QCOMPARE(bench->takeTold(), QStringList());
    QVERIFY2(!bench->isPortFree(), "the port was closed");
    QCOMPARE(bench->takeSent(), QByteArray());
}

void LinkSessionTest::anAnnouncedCommandGoesOutAtOnce()
{
    bench->bring(SessionState::Connected);
    bench->session.sendAtOnce("Sending Save Command to Device", "*F345678");
    QCOMPARE(bench->takeTold(), QStringList{"info black: Sending Save Command to Device"});
    QCOMPARE(bench->session.info().topic().settingKey(), QString());
    QVERIFY(!bench->session.info().topic().isFactoryReset());
    QVERIFY2(!bench->session.queue().isAwaitingAnswer(), "its silence is the link's own");
    bench->session.sendAtOnce("Sending Factory Reset to Device", "*R345678", Topic::factoryReset());
    QVERIFY(bench->session.info().topic().isFactoryReset());
    QCOMPARE(bench->takeSent(), QByteArray("*F345678*R345678"));
}

QTEST_MAIN(LinkSessionTest)

#include "tst_linksession.moc"
