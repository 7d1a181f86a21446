// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "seabed.h"

#include <QtTest>

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
    void depthsAreBetween4And24Metres_data();
    void depthsAreBetween4And24Metres();
    void bottomIsSteadyFromPingToPing();
    void lowFrequencySeesIntoSoftMud();
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

void TestSeabed::lossesAreRareAndShort()
{
    const Seabed bed(1);
    int lost = 0;
    int run = 0;
    int longestRun = 0;
    for (int ping = 0; ping < pings; ++ping) {
        const bool isLost = !bed.depthsAt(timeOf(ping)).high;
        lost += isLost ? 1 : 0;
        run = isLost ? run + 1 : 0;
        longestRun = std::max(longestRun, run);
    }
    QVERIFY2(lost > 0 && lost < pings / 20, qPrintable(QString::number(lost)));
    QVERIFY2(longestRun <= 10, qPrintable(QString::number(longestRun)));
}

QTEST_GUILESS_MAIN(TestSeabed)
#include "tst_seabed.moc"
