// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "outputformat.h"
#include "replyvalues.h"

#include <QtTest>

class ReplyValuesTest : public QObject
{
    Q_OBJECT

private slots:
    void millimetresInTheShownUnit_data();
    void millimetresInTheShownUnit();
    void blankingAsAPositionOfItsSlider_data();
    void blankingAsAPositionOfItsSlider();
    void gainInPercent_data();
    void gainInPercent();
    void formatByTheNumberAtTheFront_data();
    void formatByTheNumberAtTheFront();
    void firstLetterOfAValue_data();
    void firstLetterOfAValue();
};

void ReplyValuesTest::millimetresInTheShownUnit_data()
{
    QTest::addColumn<QString>("millimetres");
    QTest::addColumn<int>("decimals");
    QTest::addColumn<QString>("metres");
    QTest::addColumn<QString>("feet");

    const auto row = [](const char *millimetres, int decimals, const char *metres,
                        const char *feet) {
        QTest::addRow("\"%s\" with %d decimals", millimetres, decimals)
            << QString(millimetres) << decimals << QString(metres) << QString(feet);
    };
    // clang-format off
    row("00000",       2, "0.00",       "0.00");
    row("00004",       2, "0.00",       "0.01");
    row("00006",       2, "0.01",       "0.02");
    row("00400",       2, "0.40",       "1.31");
    row("00450",       2, "0.45",       "1.48");
    row("00500",       2, "0.50",       "1.64");
    row("01000",       2, "1.00",       "3.28");
    row("10000",       2, "10.00",      "32.81");
    row("100000",      2, "100.00",     "328.08");
    row("30000",       0, "30",         "98");
    row("80000",       0, "80",         "262");
    row("1500000",     0, "1500",       "4921");
    row("1482300",     0, "1482",       "4863");
    row("1482600",     0, "1483",       "4864");
    row("-450",        2, "-0.45",      "-1.48");
    row(" 450 ",       2, "0.45",       "1.48");
    row("2147483647",  0, "2147484",    "7045550");
    row("2147483648",  2, "0.00",       "0.00");
    row("450.9",       2, "0.00",       "0.00");
    row("deep",        2, "0.00",       "0.00");
    row("",            0, "0",          "0");
    // clang-format on
}

void ReplyValuesTest::millimetresInTheShownUnit()
{
    QFETCH(QString, millimetres);
    QFETCH(int, decimals);
    QTEST(ReplyValues::inShownUnit(millimetres, false, decimals), "metres");
    QTEST(ReplyValues::inShownUnit(millimetres, true, decimals), "feet");
}

void ReplyValuesTest::blankingAsAPositionOfItsSlider_data()
{
    QTest::addColumn<QString>("millimetres");
    QTest::addColumn<int>("metric");
    QTest::addColumn<int>("imperial");

    const auto row = [](const char *millimetres, int metric, int imperial) {
        QTest::addRow("\"%s\"", millimetres) << QString(millimetres) << metric << imperial;
    };
    // clang-format off
    row("00000",                0,          0);
    row("00009",                0,          2);
    row("00010",                1,          3);
    row("00300",               30,         98);
    row("00450",               45,        147);
    row("00457",               45,        149);
    row("00500",               50,        164);
    row("10000",             1000,       3280);
    row("-00457",             -45,       -149);
    row("2147483647",   214748364,  214748364); // in feet beyond 32 bits, held at the nearest end
    row("-2147483648", -214748364, -214748364);
    row("near",                 0,          0);
    row("",                     0,          0);
    // clang-format on
}

void ReplyValuesTest::blankingAsAPositionOfItsSlider()
{
    QFETCH(QString, millimetres);
    QTEST(ReplyValues::blankingPosition(millimetres, false), "metric");
    QTEST(ReplyValues::blankingPosition(millimetres, true), "imperial");
}

void ReplyValuesTest::gainInPercent_data()
{
    QTest::addColumn<int>("percent");

    QTest::newRow("000") << 30;
    QTest::newRow("001") << 31; // 30.7
    QTest::newRow("002") << 31; // 31.4
    QTest::newRow("050") << 65;
    QTest::newRow("064") << 75; // 74.8
    QTest::newRow("065") << 76; // 75.5
    QTest::newRow("099") << 99; // 99.3
    QTest::newRow("100") << 100;
    QTest::newRow("200") << 170;  // the slider holds it
    QTest::newRow("-042") << 1;   // 0.6
    QTest::newRow("-060") << -11; // -12 + 0.5, without its fraction
    QTest::newRow("64.9") << 30;  // no whole number
    QTest::newRow("loud") << 30;
    QTest::newRow("") << 30;
}

void ReplyValuesTest::gainInPercent()
{
    QTEST(ReplyValues::gainPercent(QTest::currentDataTag()), "percent");
}

void ReplyValuesTest::formatByTheNumberAtTheFront_data()
{
    QTest::addColumn<QString>("value");
    QTest::addColumn<QString>("name");

    const auto row = [](const char *value, const char *name) {
        QTest::addRow("\"%s\"", value) << QString(value) << QString(name);
    };
    row("1", "ODOM");
    row("2", "NMEA DBT");
    row("3", "NMEA DBS");
    row("4", "ORVANDO");
    row("5", "DESO 25");
    row("6", "KESTROLA");
    row("7", "SONARMITE OLD");
    row("8", "SONARMITE NEW");
    row("9", "SONARMITE DUAL");
    row("3 ", "NMEA DBS");
    row("9x", "SONARMITE DUAL");
    row("999999999999999999999", "SONARMITE DUAL"); // no number of a format is as long
    for (const char *value : {"", "0", "01", "/", ":", "O", " 1", "-1", "\u0661", "\uff11"}) {
        row(value, "");
    }
}

void ReplyValuesTest::formatByTheNumberAtTheFront()
{
    QFETCH(QString, value);
    const OutputFormat *format = ReplyValues::format(value);
    QTEST(format ? format->name : QString(), "name");
}

void ReplyValuesTest::firstLetterOfAValue_data()
{
    QTest::addColumn<QString>("value");
    QTest::addColumn<QChar>("letter");

    QTest::newRow("one letter") << "a" << QChar('a');
    QTest::newRow("a letter and more") << "m5" << QChar('m');
    QTest::newRow("a blank first") << " m" << QChar(' ');
    QTest::newRow("nothing") << "" << QChar();
}

void ReplyValuesTest::firstLetterOfAValue()
{
    QFETCH(QString, value);
    QTEST(ReplyValues::letter(value), "letter");
}

QTEST_MAIN(ReplyValuesTest)
#include "tst_replyvalues.moc"
