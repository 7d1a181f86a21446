// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "unitstatus.h"

#include <QtTest>

/// The unit's temperature and voltage in the operator's words.
class UnitStatusTest : public QObject
{
    Q_OBJECT

private slots:
    void aTemperatureIsShownInTheOperatorsUnit_data();
    void aTemperatureIsShownInTheOperatorsUnit();
    void aVoltageIsShownWithTwoDecimals_data();
    void aVoltageIsShownWithTwoDecimals();
};

void UnitStatusTest::aTemperatureIsShownInTheOperatorsUnit_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<int>("celsius");
    QTest::addColumn<int>("fahrenheit");

    const auto row = [](const char *line, int celsius, int fahrenheit) {
        QTest::newRow(line) << QString(line) << celsius << fahrenheit;
    };
    row("BoardTemp: 298.15", 25, 77);
    row("BoardTemp: 301.90", 29, 84);
    row("BoardTemp: 301.40", 28, 83);
    row("BoardTemp: 273.15", 0, 32);
    row("BoardTemp: 263.15", -10, 14);
    row("BoardTemp: 233.15", -40, -40);
    row("BoardTemp: 298.15 K", 25, 77);
    row("BoardTemp: ", -273, -460);
    row("BoardTemp: warm", -273, -460);
    row("BoardTemp: 298,15", -273, -460);
    row("BoardTemp: nan", -273, -460);
    row("BoardTemp: 1e300", -273, -460);
    row("The BoardTemp: 298.15", -273, -460); // the second item is no number
    row("BoardTemp:  298.15", -273, -460);    // nor is an empty one
}

void UnitStatusTest::aTemperatureIsShownInTheOperatorsUnit()
{
    QFETCH(QString, line);
    QFETCH(int, celsius);
    QFETCH(int, fahrenheit);
    QCOMPARE(UnitStatus::temperatureText(line, false),
             QString("TAL-VERO Temperature : %1°C").arg(celsius));
    QCOMPARE(UnitStatus::temperatureText(line, true),
             QString("TAL-VERO Temperature : %1°F").arg(fahrenheit));
}

void UnitStatusTest::aVoltageIsShownWithTwoDecimals_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<QString>("shown");

    const auto row = [](const char *line, const char *shown) {
        QTest::newRow(line) << QString(line) << QString(shown);
    };
    row("VSupply: 12.41", "Power Supply Voltage : 12.41V");
    row("VSupply: 12", "Power Supply Voltage : 12.00V");
    row("VSupply: 12.408", "Power Supply Voltage : 12.41V");
    row("VSupply: -0.5", "Power Supply Voltage : -0.50V");
    row("VSupply: 12.41 V", "Power Supply Voltage : 12.41V");
    row("VSupply: low", "Power Supply Voltage : 0.00V");
    row("VSupply: ", "Power Supply Voltage : 0.00V");
    row("VSupply: inf", "Power Supply Voltage : 0.00V");
    row("At VSupply: 12.41", "Power Supply Voltage : 0.00V");
}

void UnitStatusTest::aVoltageIsShownWithTwoDecimals()
{
    QFETCH(QString, line);
    QTEST(UnitStatus::voltageText(line), "shown");
}

QTEST_APPLESS_MAIN(UnitStatusTest)

#include "tst_unitstatus.moc"
