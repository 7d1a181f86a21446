// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "soaktally.h"

#include <QtTest>

/// What became of the operator's changes.
class SoakTallyTest : public QObject
{
    Q_OBJECT

private slots:
    void answerSettlesTheChangeThatWasSent_data();
    void answerSettlesTheChangeThatWasSent();
    void answerSettlesNoChangeThatStillWaits();
    void oneCommandSettlesAllChangesThatItCarries();
    void endOfTheLinkSettlesAll();
    void changeWithoutAnOutcomeIsLost();
    void answeredChangeIsNeverLost();
};

void SoakTallyTest::answerSettlesTheChangeThatWasSent_data()
{
    QTest::addColumn<int>("confirmed");
    QTest::addColumn<int>("refused");
    QTest::addColumn<int>("timedOut");
    QTest::newRow("") << 1 << 0 << 0;
    QTest::newRow("Received Error - Command Not Applied") << 0 << 1 << 0;
    QTest::newRow("not applied. Reduce maximum depth") << 0 << 1 << 0;
    QTest::newRow("Command Timed Out") << 0 << 0 << 1;
}

void SoakTallyTest::answerSettlesTheChangeThatWasSent()
{
    QFETCH(int, confirmed);
    QFETCH(int, refused);
    QFETCH(int, timedOut);
    const QString words = QTest::currentDataTag();
    SoakTally tally;
    tally.made("Ping", 0);
    tally.noteWaiting({});
    if (words.isEmpty()) {
        tally.accepted("Ping");
    } else {
        tally.notApplied("Ping", words);
    }
    QCOMPARE(tally.counts().made, 1);
    QCOMPARE(tally.counts().confirmed, confirmed);
    QCOMPARE(tally.counts().refused, refused);
    QCOMPARE(tally.counts().timedOut, timedOut);
}

void SoakTallyTest::answerSettlesNoChangeThatStillWaits()
{
    SoakTally tally;
    tally.made("Ping", 0);
    tally.noteWaiting({});
    tally.made("Ping", 100);
    tally.noteWaiting({"Ping"});
    tally.accepted("Ping");
    QCOMPARE(tally.counts().confirmed, 1);
    QCOMPARE(tally.giveUp(100 + SoakTally::patience + 1), QStringList("Ping"));
}

void SoakTallyTest::oneCommandSettlesAllChangesThatItCarries()
{
    SoakTally tally;
    tally.made("Ping", 0);
    tally.made("Ping", 10);
    tally.made("Depth", 20);
    tally.noteWaiting({"Depth"});
    tally.accepted("Ping");
    QCOMPARE(tally.counts().confirmed, 2);
}

void SoakTallyTest::endOfTheLinkSettlesAll()
{
    SoakTally tally;
    tally.made("Ping", 0);
    tally.made("Depth", 20);
    tally.noteWaiting({"Depth"});
    tally.linkEnded();
    QCOMPARE(tally.counts().linkLost, 2);
    QCOMPARE(tally.giveUp(SoakTally::patience * 2), QStringList());
}

void SoakTallyTest::changeWithoutAnOutcomeIsLost()
{
    SoakTally tally;
    tally.made("Ping", 0);
    tally.made("Depth", 1000);
    tally.noteWaiting({});
    QCOMPARE(tally.giveUp(SoakTally::patience), QStringList());
    QCOMPARE(tally.giveUp(SoakTally::patience + 1), QStringList("Ping"));
    QCOMPARE(tally.counts().lost, 1);
}

void SoakTallyTest::answeredChangeIsNeverLost()
{
    SoakTally tally;
    tally.made("Ping", 0);
    tally.noteWaiting({});
    tally.accepted("Ping");
    tally.accepted("Ping");
    QCOMPARE(tally.giveUp(SoakTally::patience * 2), QStringList());
    QCOMPARE(tally.counts().confirmed, 1);
}

QTEST_GUILESS_MAIN(SoakTallyTest)

#include "tst_soaktally.moc"
