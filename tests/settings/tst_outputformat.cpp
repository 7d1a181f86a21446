// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "outputformat.h"

#include <QtTest>

class OutputFormatTest : public QObject
{
    Q_OBJECT

private slots:
    void eachFormatHasItsRow_data();
    void eachFormatHasItsRow();
    void thereAreNoOtherFormats();
    void namesAreUnique();
    void numbersAreUnique();
    void anUnknownNameHasNoFormat_data();
    void anUnknownNameHasNoFormat();
    void anUnknownNumberHasNoFormat_data();
    void anUnknownNumberHasNoFormat();
};

void OutputFormatTest::eachFormatHasItsRow_data()
{
    QTest::addColumn<int>("place");
    QTest::addColumn<int>("number");
    QTest::addColumn<int>("fixedRate");
    QTest::addColumn<bool>("fixesOptions");

    // clang-format off
    QTest::newRow("ORVANDO")        << 0 << 4 <<    0 << false;
    QTest::newRow("NMEA DBS")       << 1 << 3 <<    0 << false;
    QTest::newRow("NMEA DBT")       << 2 << 2 <<    0 << false;
    QTest::newRow("DESO 25")        << 3 << 5 <<    0 << false;
    QTest::newRow("ODOM")           << 4 << 1 <<    0 << false;
    QTest::newRow("KESTROLA")       << 5 << 6 << 9600 << true;
    QTest::newRow("SONARMITE OLD")  << 6 << 7 <<    0 << false;
    QTest::newRow("SONARMITE NEW")  << 7 << 8 <<    0 << false;
    QTest::newRow("SONARMITE DUAL") << 8 << 9 <<    0 << false;
    // clang-format on
}

void OutputFormatTest::eachFormatHasItsRow()
{
    QFETCH(int, place);
    QFETCH(int, number);
    const QString name = QTest::currentDataTag();
    const OutputFormat *format = OutputFormats::find(name);
    QVERIFY2(format, "the operator could not choose the format");
    QCOMPARE(format->name, name);
    QCOMPARE(format->placeInChooser, place);
    QCOMPARE(format->deviceNumber, number);
    QTEST(format->fixedRate, "fixedRate");
    QTEST(format->fixesOptions(), "fixesOptions");
    QCOMPARE(OutputFormats::findByNumber(number), format);
    QCOMPARE(OutputFormats::names().at(place), name);
}

void OutputFormatTest::thereAreNoOtherFormats()
{
    QCOMPARE(OutputFormats::all().size(), std::size_t(9));
    QCOMPARE(OutputFormats::names().size(), 9);
}

void OutputFormatTest::namesAreUnique()
{
    QStringList names = OutputFormats::names();
    QCOMPARE(names.removeDuplicates(), 0);
    QVERIFY2(!names.contains(QString()), "a format without a name");
}

void OutputFormatTest::numbersAreUnique()
{
    QSet<int> numbers;
    for (const OutputFormat &format : OutputFormats::all()) {
        QVERIFY2(format.deviceNumber > 0, qPrintable(format.name));
        QVERIFY2(!numbers.contains(format.deviceNumber), qPrintable(format.name));
        numbers.insert(format.deviceNumber);
    }
}

void OutputFormatTest::anUnknownNameHasNoFormat_data()
{
    QTest::addColumn<QString>("name");
    for (const char *name : {"", "odom", "ODOM ", " ODOM", "NMEA", "SONARMITE"}) {
        QTest::addRow("\"%s\"", name) << QString(name);
    }
}

void OutputFormatTest::anUnknownNameHasNoFormat()
{
    QFETCH(QString, name);
    QVERIFY(!OutputFormats::find(name));
}

void OutputFormatTest::anUnknownNumberHasNoFormat_data()
{
    QTest::addColumn<int>("number");
    for (const int number : {-1, 0, 10, 2147483647}) {
        QTest::addRow("%d", number) << number;
    }
}

void OutputFormatTest::anUnknownNumberHasNoFormat()
{
    QFETCH(int, number);
    QVERIFY(!OutputFormats::findByNumber(number));
}

QTEST_MAIN(OutputFormatTest)
#include "tst_outputformat.moc"
