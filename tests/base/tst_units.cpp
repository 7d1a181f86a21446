// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "logcapture.h"
#include "numbertext.h"
#include "settings.h"
#include "settingspec.h"
#include "units.h"

#include <QtTest>

#include <limits>

class UnitsTest : public QObject
{
    Q_OBJECT

private slots:
    void aMetricValueIsShown_data();
    void aMetricValueIsShown();
    void aTypedValueIsStoredMetric_data();
    void aTypedValueIsStoredMetric();
    void conversionIsDoneInDoublePrecision();
    void whatOverflowsInFeetIsTheGreatestNumber_data();
    void whatOverflowsInFeetIsTheGreatestNumber();
    void switchingToFeetAndBackKeepsEveryValue();
    void switchingIsLogged();
    void rangesStayMetricWhileFeetAreShown();
};

void UnitsTest::aMetricValueIsShown_data()
{
    QTest::addColumn<float>("metric");
    QTest::addColumn<bool>("imperial");
    QTest::addColumn<int>("decimals");
    QTest::addColumn<QString>("shown");

    QTest::newRow("1500 m/s in ft/s") << 1500.0F << true << 0 << "4921";
    QTest::newRow("1300 m/s in ft/s") << 1300.0F << true << 0 << "4265";
    QTest::newRow("1500 m/s") << 1500.0F << false << 0 << "1500";
    QTest::newRow("draft of 0.45 m in ft") << 0.45F << true << 2 << "1.48";
    QTest::newRow("draft of 0.5 m in ft") << 0.5F << true << 2 << "1.64";
    QTest::newRow("draft of 0.45 m") << 0.45F << false << 2 << "0.45";
    QTest::newRow("no draft in ft") << 0.0F << true << 2 << "0.00";
    QTest::newRow("depth of 80 m in ft") << 80.0F << true << 0 << "262";
    QTest::newRow("depth of 100 m in ft") << 100.0F << true << 0 << "328";
}

void UnitsTest::aMetricValueIsShown()
{
    QFETCH(float, metric);
    QFETCH(bool, imperial);
    QFETCH(int, decimals);
    QTEST(NumberText::fixed(Units::shown(metric, imperial), decimals), "shown");
}

void UnitsTest::aTypedValueIsStoredMetric_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<float>("typed");
    QTest::addColumn<bool>("imperial");
    QTest::addColumn<QString>("stored");
    QTest::addColumn<QString>("shownAgain");

    QTest::newRow("draft of 1 ft") << "highDraft" << 1.0F << true << "0.3048"
                                   << "1.00";
    QTest::newRow("draft of 1 m") << "highDraft" << 1.0F << false << "1"
                                  << "1.00";
    QTest::newRow("low blanking of 1 ft, held to 0.5 m") << "lowBlank" << 1.0F << true << "0.5"
                                                         << "1.64";
    QTest::newRow("high blanking of 1 ft") << "highBlank" << 1.0F << true << "0.3048"
                                           << "1.00";
    QTest::newRow("velocity of 4921 ft/s") << "Velocity" << 4921.0F << true << "1499.92"
                                           << "4921.00";
    QTest::newRow("velocity of 1500 ft/s, held to 1300 m/s")
        << "Velocity" << 1500.0F << true << "1300"
        << "4265.09";
    QTest::newRow("depth of 100 ft") << "Depth" << 100.0F << true << "30.48"
                                     << "100.00";
    QTest::newRow("depth of 1000 ft, held to 100 m") << "Depth" << 1000.0F << true << "100"
                                                     << "328.08";
}

void UnitsTest::aTypedValueIsStoredMetric()
{
    QFETCH(QString, key);
    QFETCH(float, typed);
    QFETCH(bool, imperial);
    Settings settings(QStringList{});
    settings.changeSetting(key, NumberText::fromFloat(Units::metric(typed, imperial)));
    QTEST(settings.getSettingString(key), "stored");
    QTEST(NumberText::fixed(Units::shown(settings.getSetting(key), imperial), 2), "shownAgain");
}

void UnitsTest::conversionIsDoneInDoublePrecision()
{
    QCOMPARE(Units::feetPerMetre, 3.28084);
    for (const float metres : {0.3F, 1.0F, 12.345F, 99.99F, 1482.3F}) {
        QVERIFY(Units::shown(metres, true) == static_cast<float>(metres * 3.28084));
        QVERIFY(Units::metric(metres, true) == static_cast<float>(metres / 3.28084));
        QVERIFY(Units::shown(metres, false) == metres);
        QVERIFY(Units::metric(metres, false) == metres);
    }
}

void UnitsTest::whatOverflowsInFeetIsTheGreatestNumber_data()
{
    constexpr float greatest = std::numeric_limits<float>::max();
    QTest::addColumn<float>("metric");
    QTest::addColumn<float>("feet");
    QTest::newRow("3.4e38") << 3.4e38F << greatest;
    QTest::newRow("-3.4e38") << -3.4e38F << -greatest;
    QTest::newRow("1.04e38") << 1.04e38F << greatest;
    QTest::newRow("1e38") << 1e38F << static_cast<float>(1e38F * 3.28084);
}

void UnitsTest::whatOverflowsInFeetIsTheGreatestNumber()
{
    QFETCH(float, metric);
    QFETCH(float, feet);
    QVERIFY(Units::shown(metric, true) == feet);
    QVERIFY(Units::shown(metric, false) == metric);
}

void UnitsTest::switchingToFeetAndBackKeepsEveryValue()
{
    Settings settings(QStringList{});
    settings.changeSetting("highDraft", "0.45");
    settings.changeSetting("lowBlank", "1.23");
    settings.changeSetting("Velocity", "1482.3");
    QHash<QString, QString> before;
    for (const SettingSpec &spec : SettingSpecs::all()) {
        before.insert(spec.key, settings.getSettingString(spec.key));
    }
    for (const bool imperial : {true, false}) {
        settings.goToImperial(imperial);
        QCOMPARE(settings.isImperial(), imperial);
        for (auto value = before.cbegin(); value != before.cend(); ++value) {
            QCOMPARE(settings.getSettingString(value.key()), value.value());
        }
    }
}

void UnitsTest::switchingIsLogged()
{
    Settings settings(QStringList{});
    const LogCapture log;
    settings.goToImperial(true);
    settings.goToImperial(false);
    QCOMPARE(log.texts(), (QStringList{"SETTINGS TO IMPERIAL true", "SETTINGS TO IMPERIAL false"}));
}

void UnitsTest::rangesStayMetricWhileFeetAreShown()
{
    Settings settings(QStringList{});
    settings.goToImperial(true);
    settings.changeSetting("Depth", "328");
    QCOMPARE(settings.getSettingString("Depth"), QString("100"));
    QCOMPARE(settings.getCommandString("Depth"), QString("*s100000"));
}

QTEST_MAIN(UnitsTest)
#include "tst_units.moc"
