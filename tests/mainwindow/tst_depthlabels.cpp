// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "depthbench.h"
#include "logcapture.h"

#include <QLabel>
#include <QtTest>

#include <memory>

using Pairs = DepthBench::Pairs;

namespace {

constexpr float none = DepthBench::none;
constexpr const auto &odomPair = DepthBench::odomPair;
constexpr const auto &nmeaBelowTransducer = DepthBench::nmeaBelowTransducer;

/// What the device calls its output formats in the settings reply.
constexpr char orvando[] = "*i5,a4";
constexpr char sonarmiteOld[] = "*i5,a7";
constexpr char sonarmiteNew[] = "*i5,a8";
constexpr char sonarmiteDual[] = "*i5,a9";

} // namespace

/// What the operator reads in the two depth labels, and what the depth graph is told, for the
/// sentences of the output formats.
class TestDepthLabels : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void sentenceIsShownAndTold_data();
    void sentenceIsShownAndTold();
    void sentenceWithoutDepthLeavesTheLabels_data();
    void sentenceWithoutDepthLeavesTheLabels();
    void sonarmiteIsReadByTheChosenFormat_data();
    void sonarmiteIsReadByTheChosenFormat();
    void sonarmiteWithoutDepthTellsNothing_data();
    void sonarmiteWithoutDepthTellsNothing();
    void sonarmiteSentenceInAnotherFormatIsIgnored();
    void depthsAreShownInFeet_data();
    void depthsAreShownInFeet();
    void secondSentenceOfAPairBringsBothDepths();
    void pairStaysCompleteWhenOneDepthChanges();
    void lowSentenceFirstLeavesTheHighLabelEmpty();
    void pairIsKeptWhileOtherSentencesCome();
    void unreadableDepthOfAPairIsKeptAsZero();
    void aNegativeHighDepthEmptiesTheLowLabelOnly();
    void singleLowSentenceIsLoggedWithItsLength();
    void graphWindowShowsThePair();

private:
    std::unique_ptr<DepthBench> bench;
};

void TestDepthLabels::init() { bench = std::make_unique<DepthBench>(); }

void TestDepthLabels::cleanup() { bench.reset(); }

void TestDepthLabels::sentenceIsShownAndTold_data()
{
    QTest::addColumn<QByteArray>("sentence");
    QTest::addColumn<float>("high");
    QTest::addColumn<float>("low");
    QTest::addColumn<QString>("highLabel");
    QTest::addColumn<QString>("lowLabel");
    const auto row = [](const char *name, const char *sentence, float high, float low,
                        const char *highLabel, const char *lowLabel) {
        QTest::addRow("%s: %s", name, sentence)
            << QByteArray(sentence) << high << low << QString(highLabel) << QString(lowLabel);
    };
    constexpr char hf[] = "HF Depth: 1.23";
    constexpr char lf[] = "LF Depth: 1.31";
    row("KESTROLA both", "00131T-94L\t00123T-95H", 1.23F, 1.31F, hf, lf);
    row("KESTROLA both, no tab", "00131T-94L 00123T-95H", none, 1.31F, "", lf);
    row("KESTROLA both, nothing after T", "00131-94LH", none, 0.0F, "", "LF Depth: 0.00");
    row("KESTROLA low", "00131T-94L", none, 1.31F, "", lf);
    row("KESTROLA low with the high mark", "00131T-95L", none, 1.31F, "", lf);
    row("KESTROLA high", "00123T-95H", 1.23F, none, hf, "");
    row("KESTROLA high, no letter", "00123T-95", 1.23F, none, hf, "");
    row("KESTROLA low, no letter", "00131T-94", none, 1.31F, "", lf);
    row("KESTROLA unreadable", "-----T-95H", 0.0F, none, "HF Depth: 0.00", "");
    row("ODOM", " et B 00123 00131", 1.23F, 1.31F, hf, lf);
    row("ODOM after other text", "12 et B 00123 00131", 1.23F, 1.31F, hf, lf);
    row("ODOM, one depth unreadable", " et B ----- 00131", 0.0F, 1.31F, "HF Depth: 0.00", lf);
    row("ODOM cut short", " et", 0.0F, 0.0F, "HF Depth: 0.00", "LF Depth: 0.00");
    row("ORVANDO", "B 00123 00131 ,", 1.23F, 1.31F, hf, lf);
    row("ORVANDO unreadable", "B ----- ----- ,", 0.0F, 0.0F, "HF Depth: 0.00", "LF Depth: 0.00");
    row("NMEA DBT", nmeaBelowTransducer, 1.23F, none, hf, "(Depth Below Transducer)");
    row("NMEA DBS", DepthBench::nmeaBelowSurface, 1.23F, none, hf, "");
    row("NMEA after other text", "@@$SDDBS,4.0,f,1.23,M", 1.23F, none, hf, "");
    row("NMEA unreadable", "$SDDBS,4.0,f,x,M", 0.0F, none, "HF Depth: 0.00", "");
    row("NMEA empty fourth item", "$SDDBT,,f,,M", 0.0F, none, "HF Depth: 0.00",
        "(Depth Below Transducer)");
    row("NMEA with an ORVANDO mark", "$SDDBT,4.0 ,f,1.23,M", 0.0F, 0.0F, "HF Depth: 0.00",
        "(Depth Below Transducer)");
    row("NMEA with an ODOM mark", "$SDDBS et B 00123 00131", 1.23F, 1.31F, hf, "");
    row("NMEA with KESTROLA's low mark", "00131T-94L$SDDBT", none, 1.31F, "HF Depth: 1.31",
        "(Depth Below Transducer)");
    row("DESO 25 high", "DA00001.23 m", 1.23F, none, hf, "");
    row("DESO 25 low", "DB00001.31 m", none, 1.31F, "", lf);
    row("DESO 25 unreadable", "DA--------", 0.0F, none, "HF Depth: 0.00", "");
    row("single low", "e00131", none, 1.31F, "", lf);
    row("single low unreadable", "hello", none, 0.0F, "", "LF Depth: 0.00");
    row("KESTROLA mark before ODOM's", "00123T-95 et B 00777 00888", 1.23F, none, hf, "");
    row("ODOM mark before ORVANDO's", " et B 00123 00131 ,", 1.23F, 1.31F, hf, lf);
    row("NMEA mark before DESO's", "$SDDBS,DA,e,1.23,DB00009.99", 1.23F, none, hf, "");
    row("DESO high mark before low", "DA00001.23DB00009.99", 1.23F, none, hf, "");
    row("DESO mark before e", "e00777DB00001.31", none, 1.31F, "", lf);
}

void TestDepthLabels::sentenceIsShownAndTold()
{
    QFETCH(QByteArray, sentence);
    QFETCH(QString, highLabel);
    QFETCH(QString, lowLabel);
    QFETCH(float, high);
    QFETCH(float, low);
    QVERIFY(bench->connectAs());
    QVERIFY(bench->tell(orvando));
    QVERIFY(bench->tell("B 04444 05555 ,")); // the labels must change from this
    QCOMPARE(bench->labels(), QStringList({"HF Depth: 44.44", "LF Depth: 55.55"}));
    bench->takeTold();

    QVERIFY(bench->tell(sentence));
    QCOMPARE(bench->takeTold(), (Pairs{{high, low}}));
    QCOMPARE(bench->labels(), QStringList({highLabel, lowLabel}));
}

void TestDepthLabels::sentenceWithoutDepthLeavesTheLabels_data()
{
    QTest::addColumn<QByteArray>("sentence");
    for (const char *sentence : {"$SDDBT,4.0,f", "$SDDBS", "-94T00131", "noisy", "B 00123 00131",
                                 "@@", "00123", ",", "D"}) {
        QTest::newRow(sentence) << QByteArray(sentence);
    }
}

void TestDepthLabels::sentenceWithoutDepthLeavesTheLabels()
{
    QFETCH(QByteArray, sentence);
    QVERIFY(bench->connectAs());
    QVERIFY(bench->tell(odomPair));
    bench->takeTold();
    QVERIFY(bench->tell(sentence));
    QVERIFY2(bench->takeTold().isEmpty(), "a line without a depth reached the graph");
    const bool emptiesHigh = sentence.startsWith("-94"); // the low channel's mark, no letter
    QCOMPARE(bench->labels(), QStringList({emptiesHigh ? "" : "HF Depth: 1.23", "LF Depth: 1.31"}));
}

void TestDepthLabels::sonarmiteIsReadByTheChosenFormat_data()
{
    QTest::addColumn<QByteArray>("format");
    QTest::addColumn<QByteArray>("sentence");
    QTest::addColumn<float>("high");
    QTest::addColumn<float>("low");
    QTest::addColumn<QString>("highLabel");
    QTest::addColumn<QString>("lowLabel");
    const auto row = [](const char *name, const char *format, const char *sentence, float high,
                        float low, const char *highLabel, const char *lowLabel) {
        QTest::addRow("%s: %s", name, sentence)
            << QByteArray(format) << QByteArray(sentence) << high << low << QString(highLabel)
            << QString(lowLabel);
    };
    constexpr char hf[] = "HF Depth: 1.23";
    row("OLD", sonarmiteOld, "0 1.23 12.4 78", 1.23F, none, hf, "");
    row("OLD, two items", sonarmiteOld, "0 1.23", 1.23F, none, hf, "");
    row("OLD unreadable", sonarmiteOld, "0 x 12.4 78", 0.0F, none, "HF Depth: 0.00", "");
    row("OLD, two blanks", sonarmiteOld, "0  1.23", 0.0F, none, "HF Depth: 0.00", "");
    row("NEW", sonarmiteNew, "0 1.23 12.4 78", 1.23F, none, hf, "");
    row("DUAL", sonarmiteDual, "0 1.23 1.31 78", 1.23F, 1.31F, hf, "LF Depth: 1.31");
    row("DUAL, two items", sonarmiteDual, "0 1.23", 1.23F, none, hf, "");
    row("DUAL unreadable", sonarmiteDual, "0 x y", 0.0F, 0.0F, "HF Depth: 0.00", "LF Depth: 0.00");
    row("DUAL, high negative", sonarmiteDual, "0 -1.23 1.31", -1.23F, 1.31F, "", "LF Depth: 1.31");
}

void TestDepthLabels::sonarmiteIsReadByTheChosenFormat()
{
    QFETCH(QByteArray, format);
    QFETCH(QByteArray, sentence);
    QFETCH(QString, highLabel);
    QFETCH(QString, lowLabel);
    QFETCH(float, high);
    QFETCH(float, low);
    QVERIFY(bench->connectAs());
    QVERIFY(bench->tell(format));
    QVERIFY(bench->tell(sentence));
    QCOMPARE(bench->takeTold(), (Pairs{{high, low}}));
    QCOMPARE(bench->labels(), QStringList({highLabel, lowLabel}));
}

void TestDepthLabels::sonarmiteWithoutDepthTellsNothing_data()
{
    QTest::addColumn<QByteArray>("format");
    QTest::newRow("OLD") << QByteArray(sonarmiteOld);
    QTest::newRow("NEW") << QByteArray(sonarmiteNew);
    QTest::newRow("DUAL") << QByteArray(sonarmiteDual);
}

void TestDepthLabels::sonarmiteWithoutDepthTellsNothing()
{
    QFETCH(QByteArray, format);
    QVERIFY(bench->connectAs());
    QVERIFY(bench->tell(format));
    QVERIFY(bench->tell("1.23"));
    QVERIFY2(bench->takeTold().isEmpty(), "a line of one item has no depth");
    QCOMPARE(bench->labels(), QStringList({"", ""}));
}

void TestDepthLabels::sonarmiteSentenceInAnotherFormatIsIgnored()
{
    QVERIFY(bench->connectAs());
    QVERIFY(bench->tell(orvando));
    QVERIFY(bench->tell("0 1.23 12.4 78"));
    QCOMPARE(bench->takeTold(), Pairs());
    QCOMPARE(bench->labels(), QStringList({"", ""}));
}

void TestDepthLabels::depthsAreShownInFeet_data()
{
    QTest::addColumn<QByteArray>("sentence");
    QTest::addColumn<float>("high");
    QTest::addColumn<float>("low");
    QTest::addColumn<QString>("highLabel");
    QTest::addColumn<QString>("lowLabel");
    QTest::newRow("both") << QByteArray(odomPair) << 1.23F << 1.31F << "HF Depth: 4.04"
                          << "LF Depth: 4.30";
    QTest::newRow("NMEA DBT") << QByteArray(nmeaBelowTransducer) << 1.23F << none
                              << "HF Depth: 4.04"
                              << "(Depth Below Transducer)";
    QTest::newRow("low") << QByteArray("e10000") << none << 100.0F << QString()
                         << "LF Depth: 328.08";
}

void TestDepthLabels::depthsAreShownInFeet()
{
    QFETCH(QByteArray, sentence);
    QFETCH(float, high);
    QFETCH(float, low);
    QFETCH(QString, highLabel);
    QFETCH(QString, lowLabel);
    bench->click("imperialRadio");
    QVERIFY(bench->connectAs());
    QVERIFY(bench->tell(sentence));
    QCOMPARE(bench->labels(), QStringList({highLabel, lowLabel}));
    QVERIFY2(bench->takeTold() == Pairs({{high, low}}),
             "the graph is told metres, whatever is shown");
}

void TestDepthLabels::secondSentenceOfAPairBringsBothDepths()
{
    QVERIFY(bench->connectAs());
    QVERIFY(bench->tell("DA00001.23 m"));
    QCOMPARE(bench->takeTold(), (Pairs{{1.23F, none}}));
    QCOMPARE(bench->labels(), QStringList({"HF Depth: 1.23", ""}));
    QVERIFY(bench->tell("DB00001.31 m"));
    QCOMPARE(bench->takeTold(), (Pairs{{1.23F, 1.31F}}));
    QCOMPARE(bench->labels(), QStringList({"HF Depth: 1.23", "LF Depth: 1.31"}));
}

void TestDepthLabels::pairStaysCompleteWhenOneDepthChanges()
{
    QVERIFY(bench->connectAs());
    QVERIFY(bench->tell("DA00001.23 m"));
    QVERIFY(bench->tell("DB00001.31 m"));
    bench->takeTold();
    QVERIFY(bench->tell("DA00002.46 m"));
    QCOMPARE(bench->takeTold(), (Pairs{{2.46F, 1.31F}}));
    QCOMPARE(bench->labels(), QStringList({"HF Depth: 2.46", "LF Depth: 1.31"}));
    QVERIFY(bench->tell("DB00002.62 m"));
    QCOMPARE(bench->takeTold(), (Pairs{{2.46F, 2.62F}}));
    QCOMPARE(bench->labels(), QStringList({"HF Depth: 2.46", "LF Depth: 2.62"}));
}

void TestDepthLabels::lowSentenceFirstLeavesTheHighLabelEmpty()
{
    QVERIFY(bench->connectAs());
    QVERIFY(bench->tell("DB00001.31 m"));
    QCOMPARE(bench->takeTold(), (Pairs{{none, 1.31F}}));
    QCOMPARE(bench->labels(), QStringList({"", "LF Depth: 1.31"}));
}

void TestDepthLabels::pairIsKeptWhileOtherSentencesCome()
{
    QVERIFY(bench->connectAs());
    QVERIFY(bench->tell("DA00002.46 m"));
    QVERIFY(bench->tell(odomPair));
    QVERIFY(bench->tell("?"));
    bench->takeTold();
    QVERIFY(bench->tell("DB00001.31 m"));
    QCOMPARE(bench->takeTold(), (Pairs{{2.46F, 1.31F}}));
    QCOMPARE(bench->labels(), QStringList({"HF Depth: 2.46", "LF Depth: 1.31"}));
}

void TestDepthLabels::unreadableDepthOfAPairIsKeptAsZero()
{
    QVERIFY(bench->connectAs());
    QVERIFY(bench->tell("DA00001.23 m"));
    QVERIFY(bench->tell("DA-------- m"));
    bench->takeTold();
    QVERIFY(bench->tell("DB00001.31 m"));
    QCOMPARE(bench->takeTold(), (Pairs{{0.0F, 1.31F}}));
    QCOMPARE(bench->labels(), QStringList({"HF Depth: 0.00", "LF Depth: 1.31"}));
}

void TestDepthLabels::aNegativeHighDepthEmptiesTheLowLabelOnly()
{
    QVERIFY(bench->connectAs());
    QVERIFY(bench->tell(odomPair));
    bench->takeTold();
    QVERIFY(bench->tell("-95T"));
    QCOMPARE(bench->takeTold(), Pairs());
    QCOMPARE(bench->labels(), QStringList({"HF Depth: 1.23", ""}));
}

void TestDepthLabels::singleLowSentenceIsLoggedWithItsLength()
{
    QVERIFY(bench->connectAs());
    const LogCapture log;
    QVERIFY(bench->tell("e00131 "));
    QCOMPARE(log.texts().filter("length is ").size(), 1);
    QVERIFY2(log.texts().filter("length is ").first().endsWith(" 7"), "the line has 7 characters");
    const QString logged = log.lines().filter("length is ").first();
    QVERIFY2(logged.contains(" MainWindow::parseDepth "), qPrintable(logged));
}

void TestDepthLabels::graphWindowShowsThePair()
{
    QVERIFY(bench->connectAs());
    QVERIFY(bench->tell(odomPair));
    const QWidgetList windows = QApplication::topLevelWidgets();
    const auto graph = std::find_if(windows.begin(), windows.end(), [](const QWidget *window) {
        return window->findChild<QLabel *>("depthGraphFieldHF") != nullptr;
    });
    QVERIFY(graph != windows.end());
    const auto shown = [&graph](const char *label) {
        return (*graph)->findChild<QLabel *>(label)->text();
    };
    QCOMPARE(shown("depthGraphFieldHF"), QString("High Frequency Depth: <b>1.23m</b>"));
    QCOMPARE(shown("depthGraphFieldLF"), QString("Low Frequency Depth: <b>1.31m</b>"));
}

QTEST_MAIN(TestDepthLabels)

#include "tst_depthlabels.moc"
