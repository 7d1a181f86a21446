// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "soundings.h"

#include "logcapture.h"

#include <QtTest>

namespace {

constexpr float none = -1.0F;
constexpr float off = 1000.0F; // what the graph is told for a channel that is off

constexpr char odomPair[] = " et B 00123 00131";
constexpr char belowTransducer[] = "$SDDBT,4.0,f,1.23,M,0.67,F*2C";
constexpr char belowSurface[] = "$SDDBS,4.0,f,1.23,M,0.67,F*2B";
constexpr char hf[] = "HF Depth: 1.23";
constexpr char lf[] = "LF Depth: 1.31";
constexpr char dbt[] = "(Depth Below Transducer)";

/// A label that the sounding leaves as it is.
constexpr char same[] = "(unchanged)";

/// Each letter tells of the state in which the sentence comes: "H" and "L" switched off by the
/// operator, "h" and "l" off for another reason, "f" feet.
SoundingContext contextOf(const QString &state, const QString &format = "ODOM")
{
    SoundingContext context;
    context.highEnabled = !state.contains('H');
    context.lowEnabled = !state.contains('L');
    context.highIsOff = state.contains('H') || state.contains('h');
    context.lowIsOff = state.contains('L') || state.contains('l');
    context.outputFormat = format;
    context.imperial = state.contains('f');
    return context;
}

void addDepthColumns()
{
    QTest::addColumn<QString>("state");
    QTest::addColumn<QString>("sentence");
    QTest::addColumn<float>("high");
    QTest::addColumn<float>("low");
    QTest::addColumn<QString>("highText");
    QTest::addColumn<QString>("lowText");
}

/// A sentence in a state, what the graph is told of it and what the two labels show.
void row(const char *state, const char *sentence, float high, float low, const char *highText,
         const char *lowText)
{
    QTest::addRow("[%s] %s", state, sentence) << QString(state) << QString(sentence) << high << low
                                              << QString(highText) << QString(lowText);
}

} // namespace

/// What the depths of a sentence change in the window. (The reading of the sentences themselves is
/// tested in tst_depthsentence.)
class SoundingViewTest : public QObject
{
    Q_OBJECT

private slots:
    void aDepthIsToldAndShown_data();
    void aDepthIsToldAndShown();
    void aChannelThatIsOffIsToldAsAThousand_data();
    void aChannelThatIsOffIsToldAsAThousand() { aDepthIsToldAndShown(); }
    void anNmeaDepthIsNamedAfterTheChannelThatIsOnAlone_data();
    void anNmeaDepthIsNamedAfterTheChannelThatIsOnAlone() { aDepthIsToldAndShown(); }
    void depthsAreShownInFeetButToldInMetres_data();
    void depthsAreShownInFeetButToldInMetres() { aDepthIsToldAndShown(); }
    void aSentenceWithoutDepthClearsWhatIsNotThere_data();
    void aSentenceWithoutDepthClearsWhatIsNotThere();
    void theChosenFormatReadsWhatBearsNoMark_data();
    void theChosenFormatReadsWhatBearsNoMark();
    void twoSentencesMakeOneSounding();
    void theFirstOfTwoSentencesIsRemembered();
    void theLengthOfASingleLowSentenceIsLogged();
    void madeUpSentencesFollowTwoWaves();
};

void SoundingViewTest::aDepthIsToldAndShown_data()
{
    addDepthColumns();
    row("", odomPair, 1.23F, 1.31F, hf, lf);
    row("", " et B ----- 00131", 0.0F, 1.31F, "HF Depth: 0.00", lf);
    row("", "B 00123 00131 ,", 1.23F, 1.31F, hf, lf);
    row("", "00131T-94L\t00123T-95H", 1.23F, 1.31F, hf, lf);
    row("", "00131T-94L", none, 1.31F, "", lf);
    row("", "00123T-95", 1.23F, none, hf, "");
    row("", "00131T-94", none, 1.31F, "", lf);
    row("", "-----T-95H", 0.0F, none, "HF Depth: 0.00", "");
    row("", belowTransducer, 1.23F, none, hf, dbt);
    row("", belowSurface, 1.23F, none, hf, "");
    row("", "@@$SDDBS,4.0,f,1.23,M", 1.23F, none, hf, "");
    row("", "$SDDBT,,f,,M", 0.0F, none, "HF Depth: 0.00", dbt);
    row("", "DA00001.23 m", 1.23F, none, hf, "");
    row("", "DB00001.31 m", none, 1.31F, "", lf);
    row("", "e00131", none, 1.31F, "", lf);
    row("", " et B  -123 00131", -1.23F, 1.31F, "", lf);
}

void SoundingViewTest::aDepthIsToldAndShown()
{
    const LogCapture log;
    QFETCH(QString, state);
    QFETCH(QString, sentence);
    Soundings soundings;
    const SoundingView view = soundings.parseDepth(sentence, contextOf(state));
    QVERIFY2(view.depths, "the graph is told nothing");
    QTEST(view.depths->high, "high");
    QTEST(view.depths->low, "low");
    QTEST(view.highText.value_or(same), "highText");
    QTEST(view.lowText.value_or(same), "lowText");
}

void SoundingViewTest::aChannelThatIsOffIsToldAsAThousand_data()
{
    addDepthColumns();
    for (const char *high : {"H", "h"}) {
        row(high, odomPair, off, 1.31F, "", lf);
        row(high, "00123T-95H", off, none, "", "");
    }
    for (const char *low : {"L", "l"}) {
        row(low, odomPair, 1.23F, off, hf, "");
        row(low, "e00131", none, off, "", "");
        row(low, "00123T-95H", 1.23F, off, hf, "");
    }
    row("HL", odomPair, off, off, "", "");
    row("hl", odomPair, off, off, "", "");
}

void SoundingViewTest::anNmeaDepthIsNamedAfterTheChannelThatIsOnAlone_data()
{
    addDepthColumns();
    row("H", belowTransducer, off, 1.23F, "LF Depth: 1.23", dbt);
    row("H", belowSurface, off, 1.23F, "LF Depth: 1.23", "");
    row("L", belowTransducer, 1.23F, off, hf, dbt);
    row("HL", belowTransducer, off, off, hf, dbt);
    row("h", belowSurface, off, none, hf, ""); // its "Enable" is still chosen
    row("Hl", belowSurface, off, off, "LF Depth: 1.23", "");
    // Noise may give a sentence the marks of two forms; then it may hold two depths, or the other.
    row("", "$SDDBS et B 00123 00131", 1.23F, 1.31F, hf, "");
    row("H", "$SDDBS et B 00123 00131", off, 1.31F, "LF Depth: 1.31", "");
    row("", "00131T-94L$SDDBT", none, 1.31F, "HF Depth: 1.31", dbt);
    row("H", "00123T-95$SDDBS", off, none, "LF Depth: 1.23", "");
}

void SoundingViewTest::depthsAreShownInFeetButToldInMetres_data()
{
    addDepthColumns();
    row("f", odomPair, 1.23F, 1.31F, "HF Depth: 4.04", "LF Depth: 4.30");
    row("f", belowTransducer, 1.23F, none, "HF Depth: 4.04", dbt);
    row("f", "e10000", none, 100.0F, "", "LF Depth: 328.08");
    row("fH", odomPair, off, 1.31F, "", "LF Depth: 4.30");
}

void SoundingViewTest::aSentenceWithoutDepthClearsWhatIsNotThere_data()
{
    QTest::addColumn<QString>("state");
    QTest::addColumn<QString>("sentence");
    QTest::addColumn<QString>("highText");
    QTest::addColumn<QString>("lowText");
    const auto without = [](const char *state, const char *sentence, const char *highText,
                            const char *lowText) {
        QTest::addRow("[%s] %s", state, sentence)
            << QString(state) << QString(sentence) << QString(highText) << QString(lowText);
    };
    for (const char *sentence : {"$SDDBT,4.0,f", "$SDDBS", "noisy", "B 00123 00131", "@@", "D"}) {
        without("", sentence, same, same);
        without("H", sentence, same, same);
        without("l", sentence, same, same);
        without("L", sentence, same, "");
        without("HL", sentence, same, "");
    }
    without("", "-95T", same, "");
    without("L", "-95T", same, "");
    without("", "-94T00131", "", same);
    without("L", "-94T00131", "", "");
    without("", "-0131T-94L", same, same);
}

void SoundingViewTest::aSentenceWithoutDepthClearsWhatIsNotThere()
{
    QFETCH(QString, state);
    QFETCH(QString, sentence);
    Soundings soundings;
    const SoundingView view = soundings.parseDepth(sentence, contextOf(state));
    QVERIFY2(!view.depths, "a line without a depth reaches the graph");
    QTEST(view.highText.value_or(same), "highText");
    QTEST(view.lowText.value_or(same), "lowText");
}

void SoundingViewTest::theChosenFormatReadsWhatBearsNoMark_data()
{
    QTest::addColumn<QString>("format");
    QTest::addColumn<QString>("shown"); // of both labels
    QTest::newRow("SONARMITE OLD") << "SONARMITE OLD" << QString(hf) + "/";
    QTest::newRow("SONARMITE NEW") << "SONARMITE NEW" << QString(hf) + "/";
    QTest::newRow("SONARMITE DUAL") << "SONARMITE DUAL" << QString(hf) + "/" + lf;
    QTest::newRow("ODOM") << "ODOM" << QString(same) + "/" + same;
    QTest::newRow("no format") << "" << QString(same) + "/" + same;
}

void SoundingViewTest::theChosenFormatReadsWhatBearsNoMark()
{
    QFETCH(QString, format);
    Soundings soundings;
    const SoundingView view = soundings.parseDepth("0 1.23 1.31 78", contextOf("", format));
    QTEST(view.highText.value_or(same) + "/" + view.lowText.value_or(same), "shown");
}

void SoundingViewTest::twoSentencesMakeOneSounding()
{
    Soundings soundings;
    const SoundingContext context = contextOf("");
    const auto told = [&soundings, &context](const char *sentence) {
        const SoundingView view = soundings.parseDepth(sentence, context);
        return QString("%1/%2").arg(view.depths->high).arg(view.depths->low);
    };
    QCOMPARE(told("DA00001.23 m"), QString("1.23/-1"));
    QCOMPARE(told("DB00001.31 m"), QString("1.23/1.31"));
    QCOMPARE(told("DA00002.46 m"), QString("2.46/1.31"));
    QCOMPARE(told("DB00002.62 m"), QString("2.46/2.62"));
    QCOMPARE(told("DA-------- m"), QString("0/2.62"));
}

void SoundingViewTest::theFirstOfTwoSentencesIsRemembered()
{
    Soundings soundings;
    soundings.parseDepth("DA00002.46 m", contextOf(""));
    soundings.parseDepth(odomPair, contextOf("")); // no form of a pair of sentences
    soundings.parseDepth("?", contextOf(""));
    soundings.parseDepth("DA00002.47 m", contextOf("H")); // what is off is remembered all the same
    const SoundingView view = soundings.parseDepth("DB00001.31 m", contextOf(""));
    QCOMPARE(view.highText.value_or(same), QString("HF Depth: 2.47"));
    QCOMPARE(view.lowText.value_or(same), QString(lf));

    Soundings others;
    QCOMPARE(others.parseDepth("DB00001.31 m", contextOf("")).highText.value_or(same), QString());
}

void SoundingViewTest::theLengthOfASingleLowSentenceIsLogged()
{
    const LogCapture log;
    Soundings soundings;
    soundings.parseDepth("e00131 ", contextOf(""));
    soundings.parseDepth(odomPair, contextOf(""));
    QCOMPARE(log.texts(), QStringList{"length is  7"});
    QVERIFY2(log.contains(" MainWindow::parseDepth "), qPrintable(log.lines().first()));
}

void SoundingViewTest::madeUpSentencesFollowTwoWaves()
{
    Soundings soundings;
    QStringList sentences;
    for (int count = 0; count < 48; ++count) {
        sentences << soundings.nextMadeUp();
    }
    QCOMPARE(sentences.at(0), QString(" et B 00100 00330\r"));
    QCOMPARE(sentences.at(5), QString(" et B 00147 00317\r"));
    QCOMPARE(sentences.at(16), QString(" et B 00199 00227\r"));
    QCOMPARE(sentences.at(31), QString(" et B 00104 00130\r"));
    QCOMPARE(sentences.at(47), QString(" et B 00000 00228\r"));

    const SoundingView view = soundings.parseDepth(sentences.at(5), contextOf(""));
    QCOMPARE(view.highText.value_or(same), QString("HF Depth: 1.47"));
    QCOMPARE(view.lowText.value_or(same), QString("LF Depth: 3.17"));
}

QTEST_APPLESS_MAIN(SoundingViewTest)

#include "tst_soundingview.moc"
