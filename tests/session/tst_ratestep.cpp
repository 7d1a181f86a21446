// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "ratesearch.h"

#include <QtTest>

/// Which rate a search tries next. (What a search does with it is tested with the session.)
class RateStepTest : public QObject
{
    Q_OBJECT

private slots:
    void theListBeginsWithTheEntriesThatAreNoRates_data();
    void theListBeginsWithTheEntriesThatAreNoRates();
    void theNextRateStandsBelow_data();
    void theNextRateStandsBelow();
};

void RateStepTest::theListBeginsWithTheEntriesThatAreNoRates_data()
{
    QTest::addColumn<QStringList>("rates");
    QTest::addColumn<QStringList>("choices");

    QTest::newRow("no rates") << QStringList() << QStringList{"Select Rate", "Auto"};
    QTest::newRow("one rate") << QStringList{"9600"} << QStringList{"Select Rate", "Auto", "9600"};
    QTest::newRow("rates in their own order")
        << QStringList{"9600", "4800"} << QStringList{"Select Rate", "Auto", "9600", "4800"};
}

void RateStepTest::theListBeginsWithTheEntriesThatAreNoRates()
{
    QFETCH(QStringList, rates);
    QTEST(RateSearch::choices(rates), "choices");
}

void RateStepTest::theNextRateStandsBelow_data()
{
    QTest::addColumn<QString>("current");
    QTest::addColumn<QString>("next"); // empty: there is none

    const auto row = [](const char *current, const char *next) {
        QTest::newRow(current) << QString(current) << QString(next);
    };
    row("Auto", "4800");
    row("4800", "9600");
    row("9600", "19200");
    row("19200", "38400");
    row("38400", "57600");
    row("57600", "115200");
    row("115200", "");
}

void RateStepTest::theNextRateStandsBelow()
{
    const QStringList choices{"Select Rate", "Auto",  "4800",  "9600",
                              "19200",       "38400", "57600", "115200"};
    QFETCH(QString, current);
    QFETCH(QString, next);
    const std::optional<QString> found = RateSearch::next(choices, current);
    QCOMPARE(found.has_value(), !next.isEmpty());
    QCOMPARE(found.value_or(QString()), next);
}

QTEST_APPLESS_MAIN(RateStepTest)

#include "tst_ratestep.moc"
