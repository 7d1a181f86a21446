// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "soakjudge.h"

#include <QtTest>

#include <functional>

namespace {

SoakTally::Counts confirmed(int number)
{
    SoakTally::Counts counts;
    counts.made = counts.confirmed = number;
    return counts;
}

/// A quiet soak of so many seconds; `spoil` may make one of its samples worse.
SoakJudge soakOf(
    int seconds,
    const std::function<void(int second, SoakSample &sample)> &spoil = [](int, auto &) {})
{
    SoakJudge judge({});
    for (int second = 1; second <= seconds; ++second) {
        SoakSample sample;
        sample.seconds = second;
        sample.residentKib = 40000;
        sample.heapKib = 15000;
        sample.openFiles = 13;
        sample.absenceMs = 250; // the machine's doing
        sample.absenceCpuMs = 20;
        spoil(second, sample);
        judge.add(sample);
    }
    return judge;
}

} // namespace

/// What a soak's figures are judged by.
class SoakJudgeTest : public QObject
{
    Q_OBJECT

private slots:
    void quietSoakIsGood();
    void growthIsBad_data();
    void growthIsBad();
    void growthUntilItHasSettledIsGood();
    void peakThatGoesAgainIsNoGrowth();
    void growthOfAShortSoakIsNotJudged();
    void longWorkIsBad_data();
    void longWorkIsBad();
    void filesThatStayOpenAreBad();
    void lostChangeIsBad();
    void soakInWhichNothingWasConfirmedProvesNothing();
};

void SoakJudgeTest::quietSoakIsGood()
{
    const SoakJudge judge = soakOf(600);
    QCOMPARE(judge.complaints(confirmed(100)), QStringList());
    QVERIFY(judge.canTellGrowth());
    QVERIFY(judge.summary(confirmed(100)).join('\n').contains("40000 KiB at the end"));
}

void SoakJudgeTest::growthIsBad_data()
{
    QTest::addColumn<int>("resident");
    QTest::addColumn<int>("heap");
    QTest::addColumn<QString>("complaint");
    QTest::newRow("2 MiB") << 2048 << 2048 << "";
    QTest::newRow("resident above 2 MiB")
        << 2049 << 0 << "The memory grew. Resident: 40000 KiB after 300 s, 42049 KiB at the end";
    QTest::newRow("allocated above 2 MiB")
        << 0 << 2049 << "The memory grew. Allocated: 15000 KiB after 300 s, 17049 KiB at the end";
}

void SoakJudgeTest::growthIsBad()
{
    QFETCH(int, resident);
    QFETCH(int, heap);
    QFETCH(QString, complaint);
    const SoakJudge judge = soakOf(600, [&](int second, SoakSample &sample) {
        sample.residentKib += second > 500 ? resident : 0;
        sample.heapKib += second > 500 ? heap : 0;
    });
    QCOMPARE(judge.complaints(confirmed(1)).join('\n'), complaint);
}

void SoakJudgeTest::growthUntilItHasSettledIsGood()
{
    const SoakJudge judge = soakOf(600, [](int second, SoakSample &sample) {
        sample.residentKib += 100LL * std::min(second, 300);
    });
    QCOMPARE(judge.complaints(confirmed(1)), QStringList());
}

void SoakJudgeTest::peakThatGoesAgainIsNoGrowth()
{
    const SoakJudge judge = soakOf(600, [](int second, SoakSample &sample) {
        sample.residentKib += second > 560 && second < 580 ? 5000 : 0;
    });
    QCOMPARE(judge.complaints(confirmed(1)), QStringList());
}

void SoakJudgeTest::growthOfAShortSoakIsNotJudged()
{
    const SoakJudge judge =
        soakOf(400, [](int second, SoakSample &sample) { sample.residentKib += 100LL * second; });
    QVERIFY(!judge.canTellGrowth());
    QCOMPARE(judge.complaints(confirmed(1)), QStringList());
    QVERIFY(judge.summary(confirmed(1)).contains("Too short to speak of growth."));
}

void SoakJudgeTest::longWorkIsBad_data()
{
    QTest::addColumn<double>("milliseconds");
    QTest::addColumn<QString>("complaint");
    QTest::newRow("100 ms") << 100.0 << "";
    QTest::newRow("100.5 ms") << 100.5 << "The window's thread worked 100.5 ms in one go.";
}

void SoakJudgeTest::longWorkIsBad()
{
    QFETCH(double, milliseconds);
    QFETCH(QString, complaint);
    const SoakJudge judge = soakOf(20, [&](int second, SoakSample &sample) {
        sample.absenceCpuMs = second == 7 ? milliseconds : 0;
    });
    QCOMPARE(judge.complaints(confirmed(1)).join('\n'), complaint);
}

void SoakJudgeTest::filesThatStayOpenAreBad()
{
    const SoakJudge judge = soakOf(
        600, [](int second, SoakSample &sample) { sample.openFiles += second > 400 ? 3 : 0; });
    QCOMPARE(judge.complaints(confirmed(1)), QStringList("16 files are open at the end."));
}

void SoakJudgeTest::lostChangeIsBad()
{
    SoakTally::Counts counts = confirmed(10);
    counts.lost = 1;
    QCOMPARE(soakOf(20).complaints(counts), QStringList("1 changes had no outcome."));
}

void SoakJudgeTest::soakInWhichNothingWasConfirmedProvesNothing()
{
    QCOMPARE(soakOf(20).complaints(confirmed(0)),
             QStringList("No change was confirmed: nothing was tried."));
}

QTEST_GUILESS_MAIN(SoakJudgeTest)

#include "tst_soakjudge.moc"
