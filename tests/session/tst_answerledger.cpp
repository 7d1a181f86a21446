// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "answerledger.h"

#include <QtTest>

/// Whose answer an answer is.
class AnswerLedgerTest : public QObject
{
    Q_OBJECT

private slots:
    void theFirstAnswerIsThatToTheOldestCommand();
    void anAnswerWithoutACommandIsNobodys();
    void whoWaitsTooLongIsGivenUpOldestFirst();
    void aLateAnswerBelongsToTheCommandGivenUp();
    void aLateAnswerIsNotThatOfALongLostCommand();
    void aLateAnswerCountsOnce();
    void theTimeLeftIsThatOfTheOldest();
    void clearedLedgerKnowsNothing();

private:
    AnswerLedger ledger;
};

void AnswerLedgerTest::theFirstAnswerIsThatToTheOldestCommand()
{
    ledger.clear();
    ledger.sent("Ping", 0);
    ledger.sent("", 10); // changes no setting
    ledger.sent("Depth", 500);
    QCOMPARE(ledger.answered(), QString("Ping"));
    QCOMPARE(ledger.answered(), QString());
    QCOMPARE(ledger.answered(), QString("Depth"));
}

void AnswerLedgerTest::anAnswerWithoutACommandIsNobodys()
{
    ledger.clear();
    QCOMPARE(ledger.answered(), QString());
}

void AnswerLedgerTest::whoWaitsTooLongIsGivenUpOldestFirst()
{
    ledger.clear();
    ledger.sent("Ping", 0);
    ledger.sent("Depth", 500);
    ledger.sent("Velocity", 1000);
    QCOMPARE(ledger.giveUp(1999), QStringList());
    QCOMPARE(ledger.giveUp(2500), (QStringList{"Ping", "Depth"}));
    QCOMPARE(ledger.giveUp(2500), QStringList());
    QCOMPARE(ledger.answered(), QString("Velocity"));
}

void AnswerLedgerTest::aLateAnswerBelongsToTheCommandGivenUp()
{
    ledger.clear();
    ledger.sent("Ping", 0);
    ledger.sent("Depth", 500);
    ledger.giveUp(2000);
    ledger.giveUp(2500);
    QCOMPARE(ledger.answered(), QString("Ping"));
    QCOMPARE(ledger.answered(), QString("Depth"));
}

/// The first was lost on the line; what looks unanswered must go on looking so.
void AnswerLedgerTest::aLateAnswerIsNotThatOfALongLostCommand()
{
    ledger.clear();
    ledger.sent("Ping", 0);
    ledger.giveUp(2000);
    ledger.sent("Depth", 60000);
    QCOMPARE(ledger.giveUp(62000), QStringList{"Depth"});
    QCOMPARE(ledger.answered(), QString("Depth"));
    QCOMPARE(ledger.answered(), QString());
}

void AnswerLedgerTest::aLateAnswerCountsOnce()
{
    ledger.clear();
    ledger.sent("Ping", 0);
    ledger.giveUp(2000);
    ledger.answered();
    QCOMPARE(ledger.answered(), QString());
}

void AnswerLedgerTest::theTimeLeftIsThatOfTheOldest()
{
    ledger.clear();
    QVERIFY(ledger.untilNext(0) < 0);
    ledger.sent("Ping", 100);
    ledger.sent("Depth", 600);
    QCOMPARE(ledger.untilNext(700), qint64(1400));
    QCOMPARE(ledger.untilNext(9000), qint64(0));
    ledger.answered();
    QCOMPARE(ledger.untilNext(700), qint64(1900));
}

void AnswerLedgerTest::clearedLedgerKnowsNothing()
{
    ledger.sent("Ping", 0);
    ledger.giveUp(2000);
    ledger.sent("Depth", 2000);
    ledger.clear();
    QCOMPARE(ledger.answered(), QString());
    QVERIFY(ledger.untilNext(2000) < 0);
}

QTEST_APPLESS_MAIN(AnswerLedgerTest)

#include "tst_answerledger.moc"
