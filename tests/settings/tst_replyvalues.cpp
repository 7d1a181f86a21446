// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

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
    void formatAsAPlaceInTheList_data();
    void formatAsAPlaceInTheList();
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

void ReplyValuesTest::formatAsAPlaceInTheList_data()
{
    QTest::addColumn<QChar>("number");
    QTest::addColumn<int>("place");

    const auto row = [](const char *name, QChar number, int place) {
        QTest::newRow(name) << number << place;
    };
    row("1, ODOM", '1', 4);
    row("2, NMEA DBT", '2', 2);
    row("3, NMEA DBS", '3', 1);
    row("4, ORVANDO", '4', 0);
    row("5, DESO 25", '5', 3);
    row("6, KESTROLA", '6', 5);
    row("7, SONARMITE OLD", '7', 6);
    row("8, SONARMITE NEW", '8', 7);
    row("9, SONARMITE DUAL", '9', 8);
    row("0", '0', -1);
    row("the character before 0", '/', -1);
    row("the character behind 9", ':', -1);
    row("a letter", 'O', -1);
    row("a blank", ' ', -1);
    row("an arabic 1", QChar(0x0661), -1);
    row("a wide 1", QChar(0xFF11), -1);
    row("none", QChar(), -1);
}

void ReplyValuesTest::formatAsAPlaceInTheList()
{
    QFETCH(QChar, number);
    QTEST(ReplyValues::formatPlace(number), "place");
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
