// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "logcapture.h"
#include "settings.h"

#include <QtTest>

class SettingsLookupsTest : public QObject
{
    Q_OBJECT

private slots:
    void commandOfAKnownSetting();
    void commandOfAnUnknownSetting();
    void baudCommandReadsTheNumberThreeTimes();
    void prettyNameOfAKnownSetting();
    void prettyNameOfAnUnknownSetting();
    void textOfAKnownSetting();
    void textOfAnUnknownSetting();
    void numberOfAKnownSetting();
    void numberOfAnUnknownSetting();
    void numberOfASounderModeIsLogged_data();
    void numberOfASounderModeIsLogged();
    void numberOfAWord_data();
    void numberOfAWord();
    void lookupsAreCaseSensitive();
    void lookupsChangeNothing();
    void everyLineNamesItsFunction();
};

void SettingsLookupsTest::commandOfAKnownSetting()
{
    Settings settings(QStringList{});
    settings.changeSetting("highFreq", "200");
    const LogCapture log;
    QCOMPARE(settings.getCommandString("highFreq"), QString("*w0200"));
    QCOMPARE(log.texts(), (QStringList{"Got a thing", R"( value is  "200"  Num is  200)"}));
}

void SettingsLookupsTest::commandOfAnUnknownSetting()
{
    const Settings settings(QStringList{});
    const LogCapture log;
    const QString command = settings.getCommandString("nothing");
    QVERIFY2(command.isEmpty(), "the device would be sent something for an unknown setting");
    QCOMPARE(log.texts(), QStringList{R"(ERROR: No match for field  "nothing")"});
}

void SettingsLookupsTest::baudCommandReadsTheNumberThreeTimes()
{
    Settings settings(QStringList{});
    settings.changeSetting("baud", "57600");
    const LogCapture log;
    QCOMPARE(settings.getCommandString("baud"), QString("*I222"));
    QCOMPARE(log.count(R"( value is  "57600"  Num is  2)"), 3);
}

void SettingsLookupsTest::prettyNameOfAKnownSetting()
{
    const Settings settings(QStringList{});
    const LogCapture log;
    QCOMPARE(settings.getPrettyString("lowTVG"), QString("Low Time Variable Gain"));
    QVERIFY(log.lines().isEmpty());
}

void SettingsLookupsTest::prettyNameOfAnUnknownSetting()
{
    const Settings settings(QStringList{});
    const LogCapture log;
    QCOMPARE(settings.getPrettyString("nothing"), QString());
    QCOMPARE(log.texts(), QStringList{R"(NO PRETTY STRING FOR  "nothing")"});
}

void SettingsLookupsTest::textOfAKnownSetting()
{
    const Settings settings(QStringList{});
    const LogCapture log;
    QCOMPARE(settings.getSettingString("Velocity"), QString("1500"));
    QVERIFY(log.lines().isEmpty());
}

void SettingsLookupsTest::textOfAnUnknownSetting()
{
    const Settings settings(QStringList{});
    const LogCapture log;
    QCOMPARE(settings.getSettingString("nothing"), QString());
    QCOMPARE(log.texts(), QStringList{R"(ERROR Don't have setting for  "nothing")"});
}

void SettingsLookupsTest::numberOfAKnownSetting()
{
    Settings settings(QStringList{});
    settings.changeSetting("highDraft", "0.45");
    const LogCapture log;
    QCOMPARE(settings.getSetting("highDraft"), 0.45F);
    QCOMPARE(log.texts(), QStringList{R"( value is  "0.45"  Num is  0.45)"});
}

void SettingsLookupsTest::numberOfAnUnknownSetting()
{
    const Settings settings(QStringList{});
    const LogCapture log;
    QCOMPARE(settings.getSetting("nothing"), -1.0F);
    QCOMPARE(log.texts(), QStringList{R"(ERROR: Don't have setting  "nothing")"});
}

void SettingsLookupsTest::numberOfASounderModeIsLogged_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("logged");
    QTest::newRow("high") << "highSounderMode"
                          << R"(am in highsoundermode toint mode is "Shallow")";
    QTest::newRow("low") << "lowSounderMode"
                         << R"(am in lowsoundermode toint mode is "Shallow")";
}

void SettingsLookupsTest::numberOfASounderModeIsLogged()
{
    QFETCH(QString, key);
    QFETCH(QString, logged);
    Settings settings(QStringList{});
    settings.changeSetting(key, "Shallow");
    const LogCapture log;
    QCOMPARE(settings.getSetting(key), 115.0F);
    // Once for the number in the log and once for the number returned.
    QCOMPARE(log.texts(), (QStringList{logged, R"( value is  "Shallow"  Num is  115)", logged}));
}

void SettingsLookupsTest::numberOfAWord_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("value");
    QTest::addColumn<float>("number");

    for (const char *channel : {"high", "low"}) {
        const QString mode = QString(channel) + "SounderMode";
        const QString tvg = QString(channel) + "TVG";
        QTest::addRow("%s Manual", channel) << mode << "Manual" << 109.0F;
        QTest::addRow("%s Shallow", channel) << mode << "Shallow" << 115.0F;
        QTest::addRow("%s Auto", channel) << mode << "Auto" << 97.0F;
        QTest::addRow("%s mode never set", channel) << mode << QString() << 97.0F;
        QTest::addRow("%s Log 10", channel) << tvg << "Log 10" << 84.0F;
        QTest::addRow("%s Log 20", channel) << tvg << "Log 20" << 87.0F;
        QTest::addRow("%s OFF", channel) << tvg << "OFF" << 78.0F;
        QTest::addRow("%s gain variation never set", channel) << tvg << QString() << 78.0F;
    }
    QTest::newRow("ODOM") << "format"
                          << "ODOM" << 1.0F;
    QTest::newRow("NMEA DBS") << "format"
                              << "NMEA DBS" << 3.0F;
    QTest::newRow("SONARMITE DUAL") << "format"
                                    << "SONARMITE DUAL" << 9.0F;
    QTest::newRow("4800") << "baud"
                          << "4800" << 0.0F;
    QTest::newRow("19200") << "baud"
                           << "19200" << 0.0F;
    QTest::newRow("38400") << "baud"
                           << "38400" << 1.0F;
    QTest::newRow("115200") << "baud"
                            << "115200" << 3.0F;
    QTest::newRow("Active") << "mode"
                            << "Active" << 1.0F;
    QTest::newRow("Standby") << "mode"
                             << "Standby" << 0.0F;
}

void SettingsLookupsTest::numberOfAWord()
{
    QFETCH(QString, key);
    QFETCH(QString, value);
    Settings settings(QStringList{});
    settings.changeSetting(key, value);
    QCOMPARE(settings.getSettingString(key), value);
    QTEST(settings.getSetting(key), "number");
}

void SettingsLookupsTest::lookupsAreCaseSensitive()
{
    const Settings settings(QStringList{});
    QCOMPARE(settings.getCommandString("depth"), QString());
    QCOMPARE(settings.getPrettyString("depth"), QString());
    QCOMPARE(settings.getSettingString("depth"), QString());
    QCOMPARE(settings.getSetting("depth"), -1.0F);
}

void SettingsLookupsTest::lookupsChangeNothing()
{
    const Settings settings(QStringList{});
    for (const char *key : {"Velocity", "lowGain", "nothing"}) {
        const QString before = settings.getSettingString(key);
        const QString command = settings.getCommandString(key);
        settings.getPrettyString(key);
        settings.getSetting(key);
        QCOMPARE(settings.getSettingString(key), before);
        QCOMPARE(settings.getCommandString(key), command);
    }
    QVERIFY(!settings.record("nothing"));
}

void SettingsLookupsTest::everyLineNamesItsFunction()
{
    const Settings settings(QStringList{});
    const LogCapture log;
    settings.getCommandString("nothing");
    settings.getPrettyString("nothing");
    settings.getSettingString("nothing");
    settings.getSetting("nothing");
    settings.getFieldAtLine("", 16, 1);

    const QRegularExpression form("^settings\\.cpp \\d+ Settings::(\\w+)  :  ");
    QStringList functions;
    for (const QString &line : log.lines()) {
        functions << form.match(line).captured(1);
    }
    QCOMPARE(functions, (QStringList{"getCommandString", "getPrettyString", "getSettingString",
                                     "getSetting", "getFieldAtLine"}));
}

QTEST_MAIN(SettingsLookupsTest)
#include "tst_settingslookups.moc"
