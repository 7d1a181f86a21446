// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "soundspeed.h"

#include <QtTest>

using namespace SoundSpeed;

/// That the formula behind the manual's tables has been written down without a slip: a wrong
/// velocity makes every depth of a survey wrong.
class SoundSpeedTest : public QObject
{
    Q_OBJECT

private slots:
    void mackenzieGivesItsPublishedCheckValue();
    void bothFormulasAgreeInTheSea_data();
    void bothFormulasAgreeInTheSea();
    void medwinKnowsFreshWater_data();
    void medwinKnowsFreshWater();
};

void SoundSpeedTest::mackenzieGivesItsPublishedCheckValue()
{
    constexpr double rounding = 0.0005;
    QVERIFY(std::abs(mackenzie(25, 35, 1000) - 1550.744) < rounding);
}

void SoundSpeedTest::bothFormulasAgreeInTheSea_data()
{
    QTest::addColumn<double>("temperature");
    QTest::addColumn<double>("salinity");
    QTest::addColumn<double>("depth");
    for (int temperature = 2; temperature <= 30; temperature += 2) {
        for (int salinity = 25; salinity <= 40; salinity += 5) {
            for (const int depth : {0, 100}) {
                QTest::addRow("%d °C, %d, %d m", temperature, salinity, depth)
                    << double(temperature) << double(salinity) << double(depth);
            }
        }
    }
}

void SoundSpeedTest::bothFormulasAgreeInTheSea()
{
    QFETCH(double, temperature);
    QFETCH(double, salinity);
    QFETCH(double, depth);
    constexpr double bothAreAsGoodAs = 0.5; // m/s
    const double difference =
        medwin(temperature, salinity, depth) - mackenzie(temperature, salinity, depth);
    QVERIFY2(std::abs(difference) < bothAreAsGoodAs, qPrintable(QString::number(difference)));
}

/// Pure water has been measured to hundredths: 1402.39, 1482.34 and 1509.13 m/s.
void SoundSpeedTest::medwinKnowsFreshWater_data()
{
    QTest::addColumn<double>("temperature");
    QTest::addColumn<double>("measured");
    QTest::newRow("0 °C") << 0.0 << 1402.39;
    QTest::newRow("20 °C") << 20.0 << 1482.34;
    QTest::newRow("30 °C") << 30.0 << 1509.13;
}

void SoundSpeedTest::medwinKnowsFreshWater()
{
    QFETCH(double, temperature);
    QFETCH(double, measured);
    QVERIFY(std::abs(medwin(temperature, 0, 0) - measured) < 1.0);
}

QTEST_APPLESS_MAIN(SoundSpeedTest)
#include "tst_soundspeed.moc"
