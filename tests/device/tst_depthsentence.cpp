// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "depthsentence.h"

#include <QtTest>

using DepthSentence::Context;
using DepthSentence::Form;

namespace {

constexpr float none = DepthSentence::noDepth;

} // namespace

Q_DECLARE_METATYPE(DepthSentence::Form)
Q_DECLARE_METATYPE(DepthSentence::Emptied)

class TestDepthSentence : public QObject
{
    Q_OBJECT

private slots:
    void sentenceGivesBothDepths_data();
    void sentenceGivesBothDepths();
    void nmeaCarriesTheChannelThatIsSwitchedOn_data();
    void nmeaCarriesTheChannelThatIsSwitchedOn();
    void desoSentenceBringsTheOtherChannelOfThePair();
    void sonarmiteIsReadByTheChosenFormat_data();
    void sonarmiteIsReadByTheChosenFormat();
};

void TestDepthSentence::sentenceGivesBothDepths_data()
{
    using DepthSentence::Emptied;
    QTest::addColumn<QString>("line");
    QTest::addColumn<Form>("form");
    QTest::addColumn<float>("high");
    QTest::addColumn<float>("low");
    QTest::addColumn<Emptied>("emptied");
    const auto row = [](const char *line, Form form, float high, float low,
                        Emptied emptied = Emptied::None) {
        QTest::newRow(line) << QString(line) << form << high << low << emptied;
    };
    row("00131T-94L\t00123T-95H", Form::Kestrola, 1.23F, 1.31F);
    row("00131T-94L 00123T-95H", Form::Kestrola, none, 1.31F);
    row("00131T-94L", Form::Kestrola, none, 1.31F);
    row("00123T-95H", Form::Kestrola, 1.23F, none, Emptied::Low);
    row("00131T-94", Form::Kestrola, none, 1.31F, Emptied::High);
    row("T-95L", Form::Kestrola, none, 0.0F);
    row("-95", Form::Kestrola, -0.95F, none, Emptied::Low);
    row(" et B 00123 00131", Form::Odom, 1.23F, 1.31F);
    row(" et B   123   131", Form::Odom, 1.23F, 1.31F);
    row(" et B ----- 00131", Form::Odom, 0.0F, 1.31F);
    row(" et", Form::Odom, 0.0F, 0.0F);
    row("B 00123 00131 ,", Form::Orvando, 1.23F, 1.31F);
    row("B   123   131 ,", Form::Orvando, 1.23F, 1.31F);
    row("$SDDBT,7.7,f,2.3,M,1.3,F*05", Form::Nmea, 2.3F, none);
    row("$SDDBS,67.915,f,20.701,M,11.319,F*32", Form::Nmea, 20.701F, none);
    row("$SDDBT,7.7,f,2.3,M,1.3,F", Form::Nmea, 2.3F, none);
    row("noise$SDDBT,7.7,f,2.3,M", Form::Nmea, 2.3F, none);
    row("$SDDBT,,f,,M,,F", Form::Nmea, 0.0F, none);
    row("$SDDBT,7.7,f", Form::Nmea, none, none);
    row("$SDDBT,7.7,f,2.3 DA00009.99", Form::Nmea, 0.0F, none);
    row("DA00001.23 m", Form::DesoHigh, 1.23F, none);
    row("DB00001.31 m", Form::DesoLow, none, 1.31F);
    row("DA", Form::DesoHigh, 0.0F, none);
    row("e00131", Form::SingleLow, none, 1.31F);
    row("depth e00131", Form::SingleLow, none, 0.0F);
    row("e", Form::SingleLow, none, 0.0F);
    row("0 1.23 1.31 78", Form::Unknown, none, none);
    row("nonsens", Form::SingleLow, none, 0.0F);
    row("?", Form::Unknown, none, none);
    row("\xff\xfe", Form::Unknown, none, none);
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

void TestDepthSentence::nmeaCarriesTheChannelThatIsSwitchedOn_data()
{
    QTest::addColumn<bool>("carriesLow");
    QTest::addColumn<float>("high");
    QTest::addColumn<float>("low");
    QTest::newRow("the high channel") << false << 2.3F << none;
    QTest::newRow("the low channel, the high one being off") << true << none << 2.3F;
}

void TestDepthSentence::nmeaCarriesTheChannelThatIsSwitchedOn()
{
    QFETCH(bool, carriesLow);
    Context context;
    context.nmeaCarriesLow = carriesLow;
    const auto depths = DepthSentence::read("$SDDBT,7.7,f,2.3,M,1.3,F*05", context);
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

void TestDepthSentence::sonarmiteIsReadByTheChosenFormat_data()
{
    QTest::addColumn<QString>("format");
    QTest::addColumn<QString>("line");
    QTest::addColumn<float>("high");
    QTest::addColumn<float>("low");
    const auto row = [](const char *format, const char *line, float high, float low) {
        QTest::newRow(qPrintable(QString("%1: %2").arg(format, line)))
            << QString(format) << QString(line) << high << low;
    };
    row("SONARMITE OLD", "0 1.23 12.4 78", 1.23F, none);
    row("SONARMITE NEW", "0 1.23 12.4 78", 1.23F, none);
    row("SONARMITE DUAL", "0 1.23 1.31 78", 1.23F, 1.31F);
    row("SONARMITE DUAL", "0 1.23", 1.23F, none);
    row("SONARMITE DUAL", "0", none, none);
    row("SONARMITE OLD", "0  1.23", 0.0F, none);
    row("SONARMITE NEW", "0 x", 0.0F, none);
    row("NMEA DBS", "0 1.23 1.31 78", none, none);
}

void TestDepthSentence::sonarmiteIsReadByTheChosenFormat()
{
    QFETCH(QString, format);
    QFETCH(QString, line);
    Context context;
    context.outputFormat = format;
    const auto depths = DepthSentence::read(line, context);
    QTEST(depths.high, "high");
    QTEST(depths.low, "low");
}

QTEST_APPLESS_MAIN(TestDepthSentence)

#include "tst_depthsentence.moc"
