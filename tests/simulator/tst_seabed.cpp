// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "seabed.h"

#include <QtTest>

#include <algorithm>
#include <cmath>

namespace {

constexpr int pings = 5 * 60 * 20; // twenty minutes at five pings a second

double timeOf(int ping) { return ping * 0.2; }

} // namespace

class TestSeabed : public QObject
{
    Q_OBJECT

private slots:
    void sameSeedSameBed();
    void otherSeedOtherBed();
    void doesNotDependOnTheOrderOfAsking();
    void seedOneIsTheSameEverywhere_data();
    void seedOneIsTheSameEverywhere();
    void depthsAreBetween4And24Metres_data();
    void depthsAreBetween4And24Metres();
    void bottomSlopesOverMinutes();
    void rocksStandOutOfTheSlope();
    void bottomIsSteadyFromPingToPing();
    void lowFrequencySeesIntoSoftMud();
    void lossesAreRareAndShort_data();
    void lossesAreRareAndShort();
};

void TestSeabed::sameSeedSameBed()
{
    const Seabed one(7);
    const Seabed other(7);
    for (int ping = 0; ping < pings; ++ping) {
        QCOMPARE(one.depthsAt(timeOf(ping)).high, other.depthsAt(timeOf(ping)).high);
        QCOMPARE(one.depthsAt(timeOf(ping)).low, other.depthsAt(timeOf(ping)).low);
    }
}

void TestSeabed::otherSeedOtherBed()
{
    const Seabed one(1);
    const Seabed other(2);
    int differing = 0;
    for (int ping = 0; ping < 1000; ++ping) {
        const auto a = one.depthsAt(timeOf(ping)).high;
        const auto b = other.depthsAt(timeOf(ping)).high;
        differing += a && b && std::abs(*a - *b) > 0.1 ? 1 : 0;
    }
    QVERIFY2(differing > 800, qPrintable(QString::number(differing)));
}

void TestSeabed::doesNotDependOnTheOrderOfAsking()
{
    const Seabed bed(3);
    const auto later = bed.depthsAt(100).high;
    bed.depthsAt(5);
    QCOMPARE(bed.depthsAt(100).high, later);
    QVERIFY(later.has_value());
}

void TestSeabed::seedOneIsTheSameEverywhere_data()
{
    QTest::addColumn<double>("seconds");
    QTest::addColumn<double>("high");
    QTest::addColumn<double>("low");
    QTest::newRow("at the start") << 0.0 << 16.956042968 << 16.946202589;
    QTest::newRow("after 10 s") << 10.0 << 17.579196790 << 17.594469975;
    QTest::newRow("after 100 s") << 100.0 << 13.590864647 << 13.584896069;
    QTest::newRow("after 1000 s") << 1000.0 << 14.372303936 << 14.371675601;
}

/// A run that showed a fault can be repeated on another machine.
void TestSeabed::seedOneIsTheSameEverywhere()
{
    QFETCH(double, seconds);
    const DepthPair depths = Seabed(1).depthsAt(seconds);
    QFETCH(double, high);
    QFETCH(double, low);
    QVERIFY2(std::abs(*depths.high - high) < 1e-6,
             qPrintable(QString::number(*depths.high, 'f', 9)));
    QVERIFY2(std::abs(*depths.low - low) < 1e-6, qPrintable(QString::number(*depths.low, 'f', 9)));
}

void TestSeabed::depthsAreBetween4And24Metres_data()
{
    QTest::addColumn<quint32>("seed");
    for (const quint32 seed : {0U, 1U, 2U, 42U, 4294967295U}) {
        QTest::addRow("seed %u", seed) << seed;
    }
}

void TestSeabed::depthsAreBetween4And24Metres()
{
    QFETCH(quint32, seed);
    const Seabed bed(seed);
    for (int ping = 0; ping < pings; ++ping) {
        const DepthPair depths = bed.depthsAt(timeOf(ping));
        for (const auto &depth : {depths.high, depths.low}) {
            QVERIFY(!depth || (*depth > 4 && *depth < 24));
        }
    }
}

void TestSeabed::bottomSlopesOverMinutes()
{
    const Seabed bed(1);
    double shallowest = 100;
    double deepest = 0;
    for (int ping = 0; ping < pings; ++ping) {
        const double depth = bed.depthsAt(timeOf(ping)).high.value_or(14);
        shallowest = std::min(shallowest, depth);
        deepest = std::max(deepest, depth);
    }
    QVERIFY2(deepest - shallowest > 6, qPrintable(QString::number(deepest - shallowest)));
}

/// A rock is some metres wide, between level ground on both sides: nine seconds from foot to foot.
/// The slope alone bends by 2.1 m at most over that time.
void TestSeabed::rocksStandOutOfTheSlope()
{
    const Seabed bed(1);
    constexpr double half = 4.5;
    int rocks = 0;
    for (int cell = 0; cell < 130; ++cell) {
        const double top = cell * 2 * half + half;
        const auto before = bed.depthsAt(top - half).high;
        const auto above = bed.depthsAt(top).high;
        const auto behind = bed.depthsAt(top + half - 0.001).high;
        rocks += before && above && behind && *before + *behind - 2 * *above > 2.5 ? 1 : 0;
    }
    QVERIFY2(rocks > 10, qPrintable(QString::number(rocks)));
}

void TestSeabed::bottomIsSteadyFromPingToPing()
{
    const Seabed bed(1);
    std::optional<double> before;
    for (int ping = 0; ping < pings; ++ping) {
        const auto depth = bed.depthsAt(timeOf(ping)).high;
        QVERIFY2(!depth || !before || std::abs(*depth - *before) < 0.4,
                 "the bottom leaps from one ping to the next");
        before = depth;
    }
}

void TestSeabed::lowFrequencySeesIntoSoftMud()
{
    const Seabed bed(1);
    int inMud = 0;
    for (int ping = 0; ping < pings; ++ping) {
        const DepthPair depths = bed.depthsAt(timeOf(ping));
        if (depths.high && depths.low) {
            QVERIFY2(*depths.low > *depths.high - 0.05, "the low frequency sees less deep");
            inMud += *depths.low > *depths.high + 0.45 ? 1 : 0;
        }
    }
    QVERIFY2(inMud > pings / 50, qPrintable(QString::number(inMud)));
}

void TestSeabed::lossesAreRareAndShort_data()
{
    QTest::addColumn<bool>("isHigh");
    QTest::newRow("high") << true;
    QTest::newRow("low") << false;
}

void TestSeabed::lossesAreRareAndShort()
{
    QFETCH(bool, isHigh);
    const Seabed bed(1);
    int lost = 0;
    int lostAlone = 0;
    int run = 0;
    int longestRun = 0;
    for (int ping = 0; ping < pings; ++ping) {
        const DepthPair depths = bed.depthsAt(timeOf(ping));
        const bool isLost = !(isHigh ? depths.high : depths.low);
        const bool isOtherLost = !(isHigh ? depths.low : depths.high);
        lost += isLost ? 1 : 0;
        lostAlone += isLost && !isOtherLost ? 1 : 0;
        run = isLost ? run + 1 : 0;
        longestRun = std::max(longestRun, run);
    }
    QVERIFY2(lost > 0 && lost < pings / 20, qPrintable(QString::number(lost)));
    QVERIFY2(lostAlone > lost / 2, "the channels lose the bottom together");
    QVERIFY2(longestRun <= 10, qPrintable(QString::number(longestRun)));
}

QTEST_GUILESS_MAIN(TestSeabed)
#include "tst_seabed.moc"
