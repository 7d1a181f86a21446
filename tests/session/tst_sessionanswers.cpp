// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

// What the sounder's "OK" and "ERR" mean in each state.

#include "sessionbench.h"

#include <QtTest>

#include <memory>

Q_DECLARE_METATYPE(SessionState)
Q_DECLARE_METATYPE(Topic)

class SessionAnswersTest : public QObject
{
    Q_OBJECT

private slots:
    void init() { bench = std::make_unique<SessionBench>(); }
    void cleanup() { bench.reset(); }

    void anAcknowledgementIsAppendedInGreen_data();
    void anAcknowledgementIsAppendedInGreen();
    void anAcknowledgementMayCloseTheLink_data();
    void anAcknowledgementMayCloseTheLink();
    void anAcknowledgementBeforeTheBannerIsNoBanner_data();
    void anAcknowledgementBeforeTheBannerIsNoBanner();
    void anAcknowledgementEndsAnAttemptAtAnotherRate();
    void anAcknowledgementLetsTheSearchGoOnBehindTheRateOfTheList_data();
    void anAcknowledgementLetsTheSearchGoOnBehindTheRateOfTheList();
    void answersAreToldOfTheSettingsInTheirOrder();

    void aRefusalGivesItsAdvice_data();
    void aRefusalGivesItsAdvice();
    void aRefusalChangesNothingElse_data();
    void aRefusalChangesNothingElse();
    void anAnswerEndsTheWaitForIt_data();
    void anAnswerEndsTheWaitForIt();

private:
    std::unique_ptr<SessionBench> bench;
};

void SessionAnswersTest::anAcknowledgementIsAppendedInGreen_data()
{
    QTest::addColumn<QString>("line");
    for (const char *line : {"OK", "xxOKxx", "OK and ERR", "UID : OK", "*HOK,Hg050", "*i9OK"}) {
        QTest::newRow(line) << QString(line);
    }
}

void SessionAnswersTest::anAcknowledgementIsAppendedInGreen()
{
    QFETCH(QString, line);
    bench->bring(SessionState::Connected);
    bench->sendChange("Ping");
    bench->say(line);
    QCOMPARE(bench->takeTold(), QStringList{"info green: Setting Pings Per Second to 5 ... "
                                            "Success"});
    QCOMPARE(bench->session.info().topic().settingKey(), QString("Ping"));
    QCOMPARE(bench->state(), QString("Connected"));
    QVERIFY(!bench->isPortFree());
    QCOMPARE(bench->takeSent(), QByteArray());
}

void SessionAnswersTest::anAcknowledgementMayCloseTheLink_data()
{
    QTest::addColumn<QString>("rate");
    QTest::addColumn<QString>("deviceRate");
    QTest::addColumn<QString>("format");
    QTest::addColumn<Topic>("topic");
    QTest::addColumn<QString>("then"); // the rate at which to connect again; empty: it stays open

    const Topic none;
    const Topic format = Topic::setting("format");
    const Topic pings = Topic::setting("Ping");
    const Topic reset = Topic::factoryReset();
    const auto row = [](const char *name, const char *rate, const char *deviceRate,
                        const char *chosen, const Topic &topic, const char *then) {
        QTest::newRow(name) << QString(rate) << QString(deviceRate) << QString(chosen) << topic
                            << QString(then);
    };
    row("nothing announced", "9600", "9600", "ODOM", none, "");
    row("a setting", "9600", "9600", "ODOM", pings, "");
    row("a new rate", "9600", "38400", "ODOM", Topic::setting("baud"), "38400");
    row("another setting while the rates differ", "9600", "38400", "ODOM", pings, "38400");
    row("nothing announced while the rates differ", "9600", "4800", "ODOM", none, "4800");
    row("ODOM at 19200", "19200", "19200", "ODOM", format, "");
    row("KESTROLA at 9600", "9600", "9600", "KESTROLA", format, "");
    row("KESTROLA at 4800", "4800", "4800", "KESTROLA", format, "9600");
    row("KESTROLA at 115200", "115200", "115200", "KESTROLA", format, "9600");
    row("KESTROLA and a new rate", "19200", "57600", "KESTROLA", format, "57600");
    row("a setting under KESTROLA at 19200", "19200", "19200", "KESTROLA", pings, "");
    row("a format that the list does not have", "19200", "19200", "", format, "");
    row("the factory reset", "9600", "9600", "ODOM", reset, "9600");
    row("the factory reset while the rates differ", "9600", "4800", "ODOM", reset, "4800");
}

void SessionAnswersTest::anAcknowledgementMayCloseTheLink()
{
    QFETCH(QString, rate);
    QFETCH(QString, deviceRate);
    QFETCH(QString, format);
    QFETCH(Topic, topic);
    QFETCH(QString, then);
    bench->bring(SessionState::Connected);
    bench->choices = {bench->line.slavePath(), rate, deviceRate, format};
    bench->session.info().show(InfoColour::Progress, "Announced", topic);
    bench->takeTold();
    bench->say("OK");

    const bool closes = !then.isEmpty();
    QStringList told{"info green: Announced ... Success"};
    if (closes) {
        told << (then == rate ? QStringList() : QStringList{"rate " + then}) << "state Offline";
    }
    QCOMPARE(bench->takeTold(), told);
    QCOMPARE(bench->isPortFree(), closes);
    QCOMPARE(bench->session.port().isConnected(), !closes);
    QCOMPARE(bench->choices.rate, closes ? then : rate);
    QVERIFY(!bench->session.answerWatch().isActive());
    QCOMPARE(bench->takeSent(), QByteArray());
}

void SessionAnswersTest::anAcknowledgementBeforeTheBannerIsNoBanner_data()
{
    QTest::addColumn<SessionState>("state");
    QTest::addColumn<QString>("told");
    QTest::newRow("connecting") << SessionState::Connecting
                                << "info green: Connecting to Device ... Success";
    QTest::newRow("searching") << SessionState::Searching
                               << "info green: Trying 4800 baud ... Success";
}

/// A late answer of the last connection, while the rates agree: the attempt goes on.
void SessionAnswersTest::anAcknowledgementBeforeTheBannerIsNoBanner()
{
    QFETCH(SessionState, state);
    QFETCH(QString, told);
    bench->bring(state);
    bench->choices.deviceRate = bench->choices.rate;
    bench->say("OK");
    QCOMPARE(bench->takeTold(), QStringList{told});
    QVERIFY(bench->session.state() == state);
    QVERIFY2(bench->session.answerWatch().isActive(), "the banner is still awaited");
    QVERIFY(!bench->isPortFree());
    QCOMPARE(bench->takeSent(), QByteArray());
}

/// The same while the rates differ.
void SessionAnswersTest::anAcknowledgementEndsAnAttemptAtAnotherRate()
{
    bench->bring(SessionState::Connecting);
    bench->choices.deviceRate = "38400";
    bench->say("OK");
    QCOMPARE(bench->takeTold(),
             (QStringList{"info green: Connecting to Device ... Success", "rate 38400",
                          "state Offline", "info red: Could Not Connect To Device"}));
    QCOMPARE(bench->state(), QString("Offline"));
    QVERIFY(!bench->session.answerWatch().isActive());
    QVERIFY(bench->isPortFree());
    QVERIFY(bench->session.press() == LinkSession::Press::Underway);
    QCOMPARE(bench->session.port().baudRate, QString("38400"));
}

void SessionAnswersTest::aRefusalGivesItsAdvice_data()
{
    QTest::addColumn<Topic>("topic");
    QTest::addColumn<QString>("words");

    const QString plain = "Received Error - Command Not Applied";
    QTest::newRow("maximum depth")
        << Topic::setting("Depth") << "not applied. Reduce pings per second";
    QTest::newRow("pings") << Topic::setting("Ping") << "not applied. Reduce maximum depth";
    QTest::newRow("another setting") << Topic::setting("highDraft") << plain;
    QTest::newRow("a setting that is not known") << Topic::setting("highNothing") << plain;
    QTest::newRow("the factory reset") << Topic::factoryReset() << plain;
    QTest::newRow("nothing announced") << Topic() << plain;
}

void SessionAnswersTest::aRefusalGivesItsAdvice()
{
    QFETCH(Topic, topic);
    QFETCH(QString, words);
    bench->bring(SessionState::Connected);
    bench->session.info().show(InfoColour::Progress, "Announced", topic);
    bench->takeTold();
    bench->say("ERR");
    QCOMPARE(bench->takeTold(), QStringList{"info red: Announced ... " + words});
}

void SessionAnswersTest::aRefusalChangesNothingElse_data()
{
    QTest::addColumn<SessionState>("state");
    for (const SessionState state : {SessionState::Offline, SessionState::Connecting,
                                     SessionState::Searching, SessionState::Connected}) {
        QTest::newRow(qPrintable(SessionBench::nameOf(state))) << state;
    }
}

/// Whatever the rates: an acknowledgement would close the link here.
void SessionAnswersTest::aRefusalChangesNothingElse()
{
    QFETCH(SessionState, state);
    bench->bring(state);
    bench->choices.deviceRate = "38400";
    const bool waits = bench->session.answerWatch().isActive();
    const QString before = bench->session.info().text();
    bench->say("ERR");
    QCOMPARE(bench->takeTold(),
             QStringList{"info red: " + before + " ... Received Error - Command Not Applied"});
    QVERIFY(bench->session.state() == state);
    QCOMPARE(bench->session.answerWatch().isActive(), waits);
    QCOMPARE(bench->isPortFree(), state == SessionState::Offline);
    QCOMPARE(bench->takeSent(), QByteArray());
}

void SessionAnswersTest::anAnswerEndsTheWaitForIt_data()
{
    QTest::addColumn<QString>("answer");
    QTest::newRow("OK") << "OK";
    QTest::newRow("ERR") << "ERR";
}

/// The next silence is the link's own, not the change's.
void SessionAnswersTest::anAnswerEndsTheWaitForIt()
{
    QFETCH(QString, answer);
    bench->bring(SessionState::Connected);
    bench->sendChange("Velocity");
    bench->say(answer);
    QVERIFY(!bench->session.queue().isAwaitingAnswer());
    bench->takeTold();
    bench->session.serialTimeout(false);
    QCOMPARE(bench->takeTold(),
             (QStringList{"state Offline", "info red: Lost Connection To Device"}));
}

void SessionAnswersTest::anAcknowledgementLetsTheSearchGoOnBehindTheRateOfTheList_data()
{
    QTest::addColumn<QString>("deviceRate");
    QTest::addColumn<QString>("tried"); // empty: none is left
    QTest::newRow("9600") << "9600"
                          << "19200";
    QTest::newRow("57600") << "57600"
                           << "115200";
    QTest::newRow("115200, the last one") << "115200"
                                          << "";
}

void SessionAnswersTest::anAcknowledgementLetsTheSearchGoOnBehindTheRateOfTheList()
{
    QFETCH(QString, deviceRate);
    QFETCH(QString, tried);
    bench->bring(SessionState::Searching);
    bench->choices.deviceRate = deviceRate;
    bench->say("OK");
    QStringList told{"info green: Trying 4800 baud ... Success", "rate " + deviceRate};
    if (tried.isEmpty()) {
        told << "state Offline"
             << "info red: Could Not Connect To Device";
    } else {
        told << "rate " + tried << "info black: Trying " + tried + " baud";
    }
    QCOMPARE(bench->takeTold(), told);
    QCOMPARE(bench->state(), QString(tried.isEmpty() ? "Offline" : "Searching"));
    QCOMPARE(bench->isPortFree(), tried.isEmpty());
}

/// Two changes are under way; the info line knows only of the last one.
void SessionAnswersTest::answersAreToldOfTheSettingsInTheirOrder()
{
    bench->bring(SessionState::Connected);
    QStringList outcomes;
    connect(&bench->session, &LinkSession::settingAccepted, this,
            [&](const QString &key) { outcomes.append(key + " accepted"); });
    connect(&bench->session, &LinkSession::settingNotApplied, this,
            [&](const QString &key, const QString &words) { outcomes.append(key + ": " + words); });
    bench->sendChange("Depth");
    bench->sendChange("Velocity");
    bench->session.sendAtOnce("Sending Save Command to Device", Protocol::Command::saveSettings);
    bench->say("ERR");
    bench->say("OK");
    bench->say("ERR"); // the saving: no setting's
    QCOMPARE(outcomes,
             (QStringList{"Depth: not applied. Reduce pings per second", "Velocity accepted"}));
}

QTEST_MAIN(SessionAnswersTest)

#include "tst_sessionanswers.moc"
