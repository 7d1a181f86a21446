// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "depthbench.h"

#include <QtTest>

#include <memory>

using Pairs = DepthBench::Pairs;

namespace {

constexpr float none = DepthBench::none;
constexpr const auto &odomPair = DepthBench::odomPair;
constexpr const auto &nmeaBelowTransducer = DepthBench::nmeaBelowTransducer;
constexpr float switchedOff = DepthBench::switchedOff;

} // namespace

/// What becomes of depths while a channel is switched off, or is not in the unit at all.
class TestDepthChannels : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void switchedOffChannelIsToldAsAThousand_data();
    void switchedOffChannelIsToldAsAThousand();
    void channelThatTheUnitLacksIsToldAsAThousand_data();
    void channelThatTheUnitLacksIsToldAsAThousand();
    void nmeaDepthIsNamedAfterTheChannelThatIsOn_data();
    void nmeaDepthIsNamedAfterTheChannelThatIsOn();
    void nmeaDepthIsThatOfTheChannelItIsNamedAfter();
    void sentenceWithoutDepthEmptiesTheLowLabelWhileLowIsOff();
    void sentenceWithoutDepthLeavesTheLowLabelWhileLowIsOn();
    void emptyLineLeavesTheLabelsWhileLowIsOff();

private:
    std::unique_ptr<DepthBench> bench;
};

void TestDepthChannels::init() { bench = std::make_unique<DepthBench>(); }

void TestDepthChannels::cleanup() { bench.reset(); }

void TestDepthChannels::switchedOffChannelIsToldAsAThousand_data()
{
    QTest::addColumn<QByteArray>("off");
    QTest::addColumn<QByteArray>("sentence");
    QTest::addColumn<float>("high");
    QTest::addColumn<float>("low");
    QTest::addColumn<QString>("highLabel");
    QTest::addColumn<QString>("lowLabel");
    const auto row = [](const char *name, const char *off, const char *sentence, float high,
                        float low, const char *highLabel, const char *lowLabel) {
        QTest::addRow("%s", name) << QByteArray(off) << QByteArray(sentence) << high << low
                                  << QString(highLabel) << QString(lowLabel);
    };
    row("high off", "H", odomPair, switchedOff, 1.31F, "", "LF Depth: 1.31");
    row("low off", "L", odomPair, 1.23F, switchedOff, "HF Depth: 1.23", "");
    row("both off", "HL", odomPair, switchedOff, switchedOff, "", "");
    row("high off, sentence of the high channel", "H", "00123T-95H", switchedOff, none, "", "");
    row("low off, sentence of the low channel", "L", "e00131", none, switchedOff, "", "");
    row("low off, sentence of the high channel", "L", "00123T-95H", 1.23F, switchedOff,
        "HF Depth: 1.23", "");
}

void TestDepthChannels::switchedOffChannelIsToldAsAThousand()
{
    QFETCH(QByteArray, off);
    QFETCH(QByteArray, sentence);
    QFETCH(QString, highLabel);
    QFETCH(QString, lowLabel);
    QFETCH(float, high);
    QFETCH(float, low);
    QVERIFY(bench->connectAs());
    QVERIFY(bench->tell(odomPair));
    QVERIFY(bench->switchOff(off));
    bench->takeTold();
    QVERIFY(bench->tell(sentence));
    QCOMPARE(bench->takeTold(), (Pairs{{high, low}}));
    QCOMPARE(bench->labels(), QStringList({highLabel, lowLabel}));
}

void TestDepthChannels::channelThatTheUnitLacksIsToldAsAThousand_data()
{
    QTest::addColumn<QByteArray>("banner");
    QTest::addColumn<float>("high");
    QTest::addColumn<float>("low");
    QTest::addColumn<QString>("highLabel");
    QTest::addColumn<QString>("lowLabel");
    QTest::newRow("HF unit") << QByteArray("TalVero New HF 2.14.7") << 1.23F << switchedOff
                             << "HF Depth: 1.23" << QString();
    QTest::newRow("LF unit") << QByteArray("TalVero New LF 2.14.7") << switchedOff << 1.31F
                             << QString() << "LF Depth: 1.31";
}

void TestDepthChannels::channelThatTheUnitLacksIsToldAsAThousand()
{
    QFETCH(QByteArray, banner);
    QFETCH(QString, highLabel);
    QFETCH(QString, lowLabel);
    QFETCH(float, high);
    QFETCH(float, low);
    QVERIFY(bench->connectAs(banner));
    QVERIFY(bench->tell(odomPair));
    QCOMPARE(bench->takeTold(), (Pairs{{high, low}}));
    QCOMPARE(bench->labels(), QStringList({highLabel, lowLabel}));
}

void TestDepthChannels::nmeaDepthIsNamedAfterTheChannelThatIsOn_data()
{
    QTest::addColumn<QByteArray>("off");
    QTest::addColumn<float>("high");
    QTest::addColumn<float>("low");
    QTest::addColumn<QString>("highLabel");
    QTest::newRow("both on") << QByteArray() << 1.23F << none << "HF Depth: 1.23";
    QTest::newRow("low off") << QByteArray("L") << 1.23F << switchedOff << "HF Depth: 1.23";
    QTest::newRow("high off") << QByteArray("H") << switchedOff << 1.23F << "LF Depth: 1.23";
    QTest::newRow("both off") << QByteArray("HL") << switchedOff << switchedOff << "HF Depth: 1.23";
}

void TestDepthChannels::nmeaDepthIsNamedAfterTheChannelThatIsOn()
{
    QFETCH(QByteArray, off);
    QFETCH(QString, highLabel);
    QFETCH(float, high);
    QFETCH(float, low);
    QVERIFY(bench->connectAs());
    QVERIFY(bench->switchOff(off));
    QVERIFY(bench->tell(nmeaBelowTransducer));
    QCOMPARE(bench->takeTold(), (Pairs{{high, low}}));
    QCOMPARE(bench->labels(), QStringList({highLabel, "(Depth Below Transducer)"}));

    QVERIFY(bench->tell(DepthBench::nmeaBelowSurface));
    QCOMPARE(bench->takeTold(), (Pairs{{high, low}}));
    QCOMPARE(bench->labels(), QStringList({highLabel, ""}));
}

/// Noise may give a sentence the marks of two forms; then it holds two depths.
void TestDepthChannels::nmeaDepthIsThatOfTheChannelItIsNamedAfter()
{
    QVERIFY(bench->connectAs());
    QVERIFY(bench->switchOff("H"));
    QVERIFY(bench->tell("$SDDBS et B 00131 00123"));
    QCOMPARE(bench->labels(), QStringList({"LF Depth: 1.23", ""}));
}

void TestDepthChannels::sentenceWithoutDepthEmptiesTheLowLabelWhileLowIsOff()
{
    QVERIFY(bench->connectAs());
    QVERIFY(bench->switchOff("L"));
    QVERIFY(bench->tell(nmeaBelowTransducer));
    QCOMPARE(bench->labels(), QStringList({"HF Depth: 1.23", "(Depth Below Transducer)"}));
    bench->takeTold();
    QVERIFY(bench->tell("nothing"));
    QCOMPARE(bench->takeTold(), Pairs());
    QCOMPARE(bench->labels(), QStringList({"HF Depth: 1.23", ""}));
}

void TestDepthChannels::sentenceWithoutDepthLeavesTheLowLabelWhileLowIsOn()
{
    QVERIFY(bench->connectAs());
    QVERIFY(bench->tell(nmeaBelowTransducer));
    QVERIFY(bench->tell("nothing"));
    QCOMPARE(bench->labels(), QStringList({"HF Depth: 1.23", "(Depth Below Transducer)"}));
}

/// Any other line without a depth empties the label in that state (see above).
void TestDepthChannels::emptyLineLeavesTheLabelsWhileLowIsOff()
{
    QVERIFY(bench->connectAs());
    QVERIFY(bench->switchOff("L"));
    QVERIFY(bench->tell(nmeaBelowTransducer));
    bench->takeTold();
    // Line ends in front of a line are taken for an empty line; it takes more traffic to see the
    // rest.
    bench->line.write("\r\nVSupply: 77.75\r\n");
    QVERIFY(QTest::qWaitFor([this] {
        bench->say("*i5");
        return bench->text("temperatureLabel").contains("77.75V");
    }));
    QCOMPARE(bench->takeTold(), Pairs());
    QCOMPARE(bench->labels(), QStringList({"HF Depth: 1.23", "(Depth Below Transducer)"}));
}

QTEST_MAIN(TestDepthChannels)

#include "tst_depthchannels.moc"
