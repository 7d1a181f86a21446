// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "depthsentence.h"

#include <QtTest>

#include <iterator>

using DepthSentence::Context;
using DepthSentence::Emptied;
using DepthSentence::Form;

Q_DECLARE_METATYPE(DepthSentence::Form)
Q_DECLARE_METATYPE(DepthSentence::Emptied)

namespace {

constexpr float none = DepthSentence::noDepth;

/// What tells the forms apart, first rule first.
struct Mark
{
    const char *text;
    Form form;
};
constexpr Mark marks[] = {
    {"-95", Form::Kestrola}, {"-94", Form::Kestrola}, {" et", Form::Odom},   {" ,", Form::Orvando},
    {"$SDDB", Form::Nmea},   {"DA", Form::DesoHigh},  {"DB", Form::DesoLow}, {"e", Form::SingleLow},
};

Context inFormat(const QString &format)
{
    Context context;
    context.outputFormat = format;
    return context;
}

} // namespace

/// How whole sentences are told apart and read. (Broken ones: tst_brokensentences.)
class TestDepthSentence : public QObject
{
    Q_OBJECT

private slots:
    void sentenceGivesBothDepths_data();
    void sentenceGivesBothDepths();
    void firstRuleThatMatchesReads_data();
    void firstRuleThatMatchesReads();
    void marksAreCaseSensitive_data();
    void marksAreCaseSensitive();
    void nmeaCarriesTheChannelThatIsSwitchedOn_data();
    void nmeaCarriesTheChannelThatIsSwitchedOn();
    void desoSentenceBringsTheOtherChannelOfThePair();
    void desoSentenceBringsNoOtherChannelAtFirst();
    void otherSentencesKeepNothingOfTheOnesBefore_data();
    void otherSentencesKeepNothingOfTheOnesBefore();
    void sonarmiteIsReadByTheChosenFormat_data();
    void sonarmiteIsReadByTheChosenFormat();
    void markedSentenceIsReadWhateverFormatIsChosen_data();
    void markedSentenceIsReadWhateverFormatIsChosen();
};

void TestDepthSentence::sentenceGivesBothDepths_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<Form>("form");
    QTest::addColumn<float>("high");
    QTest::addColumn<float>("low");
    QTest::addColumn<Emptied>("emptied");
    QSet<int> forms;
    const auto row = [&forms](const char *line, Form form, float high, float low,
                              Emptied emptied = Emptied::None) {
        QTest::newRow(line) << QString(line) << form << high << low << emptied;
        forms << static_cast<int>(form);
    };
    row("00131T-94L\t00123T-95H", Form::Kestrola, 1.23F, 1.31F);
    row("00131T-95L\t00123T-94H", Form::Kestrola, 1.23F, 1.31F);
    row("00131T-94L\t00123T-95H\t00777T", Form::Kestrola, 1.23F, 1.31F);
    row("00131T-94L 00123T-95H", Form::Kestrola, none, 1.31F);
    row("00131T-94L\t00123T", Form::Kestrola, none, 1.31F);
    row("00131T-94L", Form::Kestrola, none, 1.31F);
    row("00131T-95L", Form::Kestrola, none, 1.31F);
    row("00123T-95H", Form::Kestrola, 1.23F, none, Emptied::Low);
    row("00123T-95", Form::Kestrola, 1.23F, none, Emptied::Low);
    row("00123T-95T-94", Form::Kestrola, 1.23F, none, Emptied::Low);
    row("00131T-94", Form::Kestrola, none, 1.31F, Emptied::High);
    row("00131T-94H", Form::Kestrola, none, 1.31F, Emptied::High);
    row(" et B 00123 00131", Form::Odom, 1.23F, 1.31F);
    row(" et B 09999 09998", Form::Odom, 99.99F, 99.98F);
    row(" et B 12345 54321", Form::Odom, 23.45F, 43.21F); // the first digits are not looked at
    row(" et----12345-54321----", Form::Odom, 123.45F, 543.21F);
    row("12 et B 00123 00131", Form::Odom, 1.23F, 1.31F);
    row(" et B 00123 00131 and more", Form::Odom, 1.23F, 1.31F);
    row("B 00123 00131 ,", Form::Orvando, 1.23F, 1.31F);
    row("B 12345 54321 ,", Form::Orvando, 123.45F, 543.21F);
    row("$SDDBT,7.7,f,2.3,M,1.3,F*05", Form::Nmea, 2.3F, none);
    row("$SDDBT,7.7,f,2.3,M,1.3,F", Form::Nmea, 2.3F, none);
    row("$SDDBS,67.915,f,20.701,M,11.319,F*32", Form::Nmea, 20.701F, none);
    row("$SDDBS,67.915,f,20.701,M,11.319,F", Form::Nmea, 20.701F, none);
    row("$SDDBK,7.7,f,2.3,M,1.3,F", Form::Nmea, 2.3F, none);
    row("noise$SDDBT,7.7,f,2.3,M", Form::Nmea, 2.3F, none);
    row("1,2,3,4,$SDDBT,7.7,f,2.3,M", Form::Nmea, 2.3F, none);
    row("$SDDBT,7.7$SDDBS,f,2.3,M", Form::Nmea, 2.3F, none);
    row("DA00001.23 m", Form::DesoHigh, 1.23F, none);
    row("12 DA00001.23 m", Form::DesoHigh, 1.23F, none);
    row("DA00001.239", Form::DesoHigh, 1.23F, none);
    row("DB00001.31 m", Form::DesoLow, none, 1.31F);
    row("12 DB00001.31 m", Form::DesoLow, none, 1.31F);
    row("e00131", Form::SingleLow, none, 1.31F);
    row("12 e00131 m", Form::SingleLow, none, 1.31F);
    row("e00131e00777", Form::SingleLow, none, 1.31F);
    row("0 1.23 1.31 78", Form::Unknown, none, none);
    row("?", Form::Unknown, none, none);
    forms << static_cast<int>(Form::SonarmiteHigh)
          << static_cast<int>(Form::SonarmiteDual); // below
    QCOMPARE(forms.size(), static_cast<int>(Form::Unknown) + 1);
}

void TestDepthSentence::sentenceGivesBothDepths()
{
    QFETCH(QString, line);
    const DepthSentence::Depths depths = DepthSentence::read(line, {});
    QTEST(depths.form, "form");
    QTEST(depths.high, "high");
    QTEST(depths.low, "low");
    QTEST(depths.emptied, "emptied");
}

void TestDepthSentence::firstRuleThatMatchesReads_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<Form>("form");
    for (const Mark *first = std::begin(marks); first != std::end(marks); ++first) {
        for (const Mark *second = first + 1; second != std::end(marks); ++second) {
            for (const QString &line : {QString("%1 %2").arg(first->text, second->text),
                                        QString("%2 %1").arg(first->text, second->text)}) {
                QTest::newRow(qPrintable("\"" + line + "\"")) << line << first->form;
            }
        }
    }
}

void TestDepthSentence::firstRuleThatMatchesReads()
{
    QFETCH(QString, line);
    for (const char *format : {"SONARMITE OLD", "ODOM", ""}) {
        QTEST(DepthSentence::read(line, inFormat(format)).form, "form");
    }
}

void TestDepthSentence::marksAreCaseSensitive_data()
{
    QTest::addColumn<QString>("line");
    for (const char *line : {" ET B 00123 00131", "$sddbt,7.7,f,2.3,M", "da00001.23", "db00001.31",
                             "E00131", "Da00001.23", "dB00001.31"}) {
        QTest::newRow(line) << QString(line);
    }
}

void TestDepthSentence::marksAreCaseSensitive()
{
    QFETCH(QString, line);
    QCOMPARE(DepthSentence::read(line, {}).form, Form::Unknown);
}

void TestDepthSentence::nmeaCarriesTheChannelThatIsSwitchedOn_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<bool>("carriesLow");
    QTest::addColumn<float>("high");
    QTest::addColumn<float>("low");
    const QString belowTransducer = "$SDDBT,7.7,f,2.3,M,1.3,F*05";
    const QString belowSurface = "$SDDBS,67.915,f,20.701,M,11.319,F*32";
    QTest::newRow("DBT, the high channel") << belowTransducer << false << 2.3F << none;
    QTest::newRow("DBT, the low channel, the high one being off")
        << belowTransducer << true << none << 2.3F;
    QTest::newRow("DBS, the high channel") << belowSurface << false << 20.701F << none;
    QTest::newRow("DBS, the low channel, the high one being off")
        << belowSurface << true << none << 20.701F;
}

void TestDepthSentence::nmeaCarriesTheChannelThatIsSwitchedOn()
{
    QFETCH(QString, line);
    QFETCH(bool, carriesLow);
    Context context;
    context.nmeaCarriesLow = carriesLow;
    const auto depths = DepthSentence::read(line, context);
    QTEST(depths.high, "high");
    QTEST(depths.low, "low");
}

void TestDepthSentence::desoSentenceBringsTheOtherChannelOfThePair()
{
    Context context;
    context.lastHigh = 4.0F;
    context.lastLow = 5.0F;
    const auto high = DepthSentence::read("DA00001.23 m", context);
    QCOMPARE(high.high, 1.23F);
    QCOMPARE(high.low, 5.0F);
    const auto low = DepthSentence::read("DB00001.31 m", context);
    QCOMPARE(low.high, 4.0F);
    QCOMPARE(low.low, 1.31F);
}

void TestDepthSentence::desoSentenceBringsNoOtherChannelAtFirst()
{
    QCOMPARE(DepthSentence::read("DA00001.23 m", {}).low, none);
    QCOMPARE(DepthSentence::read("DB00001.31 m", {}).high, none);
}

void TestDepthSentence::otherSentencesKeepNothingOfTheOnesBefore_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<float>("high");
    QTest::addColumn<float>("low");
    QTest::newRow("KESTROLA high") << "00123T-95H" << 1.23F << none;
    QTest::newRow("KESTROLA low") << "00131T-94L" << none << 1.31F;
    QTest::newRow("NMEA") << "$SDDBT,7.7,f,2.3,M" << 2.3F << none;
    QTest::newRow("single low") << "e00131" << none << 1.31F;
    QTest::newRow("SONARMITE") << "0 1.23 12.4 78" << 1.23F << none;
}

void TestDepthSentence::otherSentencesKeepNothingOfTheOnesBefore()
{
    QFETCH(QString, line);
    Context context = inFormat("SONARMITE NEW");
    context.lastHigh = 4.0F;
    context.lastLow = 5.0F;
    const auto depths = DepthSentence::read(line, context);
    QTEST(depths.high, "high");
    QTEST(depths.low, "low");
}

void TestDepthSentence::sonarmiteIsReadByTheChosenFormat_data()
{
    QTest::addColumn<QString>("format");
    QTest::addColumn<QString>("line");
    QTest::addColumn<float>("high");
    QTest::addColumn<float>("low");
    const auto row = [](const char *format, const char *line, float high, float low) {
        QTest::newRow(qPrintable(QString("%1: \"%2\"").arg(format, line)))
            << QString(format) << QString(line) << high << low;
    };
    row("SONARMITE OLD", "0 1.23 12.4 78", 1.23F, none);
    row("SONARMITE NEW", "0 1.23 12.4 78", 1.23F, none);
    row("SONARMITE DUAL", "0 1.23 1.31 78", 1.23F, 1.31F);
    row("SONARMITE DUAL", "0 0.00 0.00 0", 0.0F, 0.0F);
    row("SONARMITE OLD", "0 1.23", 1.23F, none);
    row("SONARMITE DUAL", "0 1.23", 1.23F, none);
    row("SONARMITE OLD", "0", none, none);
    row("SONARMITE NEW", "1.23", none, none);
    row("SONARMITE DUAL", "0", none, none);
    row("SONARMITE OLD", "0  1.23", 0.0F, none); // two blanks, an empty item
    row("SONARMITE OLD", " 1.23 12.4", 1.23F, none);
    row("SONARMITE DUAL", "0 1.23  1.31", 1.23F, 0.0F);
    row("SONARMITE NEW", "0\t1.23", none, none);
    row("SONARMITE NEW", "0 x", 0.0F, none);
    row("SONARMITE DUAL", "0 -1.23 1.31", -1.23F, 1.31F);
    row("SONARMITE DUAL", "0 1.23 -1.31", 1.23F, -1.31F);
    for (const char *other :
         {"ODOM", "NMEA DBT", "NMEA DBS", "ORVANDO", "DESO 25", "KESTROLA", ""}) {
        row(other, "0 1.23 1.31 78", none, none);
    }
}

void TestDepthSentence::sonarmiteIsReadByTheChosenFormat()
{
    QFETCH(QString, format);
    QFETCH(QString, line);
    const auto depths = DepthSentence::read(line, inFormat(format));
    QTEST(depths.high, "high");
    QTEST(depths.low, "low");
}

void TestDepthSentence::markedSentenceIsReadWhateverFormatIsChosen_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<Form>("form");
    QTest::newRow("KESTROLA") << "00131T-94L\t00123T-95H" << Form::Kestrola;
    QTest::newRow("ODOM") << " et B 00123 00131" << Form::Odom;
    QTest::newRow("ORVANDO") << "B 00123 00131 ," << Form::Orvando;
    QTest::newRow("NMEA DBT") << "$SDDBT,7.7,f,2.3,M,1.3,F*05" << Form::Nmea;
    QTest::newRow("DESO 25 high") << "DA00001.23 m" << Form::DesoHigh;
    QTest::newRow("DESO 25 low") << "DB00001.31 m" << Form::DesoLow;
    QTest::newRow("single low") << "e00131" << Form::SingleLow;
}

void TestDepthSentence::markedSentenceIsReadWhateverFormatIsChosen()
{
    QFETCH(QString, line);
    for (const char *format : {"SONARMITE OLD", "SONARMITE NEW", "SONARMITE DUAL", "ODOM"}) {
        QTEST(DepthSentence::read(line, inFormat(format)).form, "form");
    }
}

QTEST_APPLESS_MAIN(TestDepthSentence)

#include "tst_depthsentence.moc"
