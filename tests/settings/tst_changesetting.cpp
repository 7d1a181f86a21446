// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "logcapture.h"
#include "settings.h"

#include <QtTest>

class ChangeSettingTest : public QObject
{
    Q_OBJECT

private slots:
    void aKnownWordIsStored_data();
    void aKnownWordIsStored();
    void anUnknownWordKeepsTheOldValue_data();
    void anUnknownWordKeepsTheOldValue();
    void anUnknownKeyChangesNothing_data();
    void anUnknownKeyChangesNothing();
    void aChangeOfOneChannelLeavesTheOther();
    void itLogsItsSteps_data();
    void itLogsItsSteps();
};

namespace {

struct Words
{
    const char *before;
    QStringList values;
};

void addWordRows(const QStringList &keys, const Words &words)
{
    for (const QString &key : keys) {
        for (const QString &value : words.values) {
            QTest::addRow("%s = \"%s\"", qPrintable(key), qPrintable(value))
                << key << QString(words.before) << value;
        }
    }
}

} // namespace

void ChangeSettingTest::aKnownWordIsStored_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("before");
    QTest::addColumn<QString>("value");

    addWordRows({"mode"}, {"Active", {"Standby"}});
    addWordRows({"mode"}, {"Standby", {"Active"}});
    addWordRows({"highTVG", "lowTVG"}, {"OFF", {"Log 10", "Log 20"}});
    addWordRows({"highTVG", "lowTVG"}, {"Log 10", {"OFF"}});
    addWordRows({"highSounderMode", "lowSounderMode"}, {"Auto", {"Shallow", "Manual"}});
    addWordRows({"highSounderMode", "lowSounderMode"}, {"Manual", {"Auto"}});
    addWordRows({"baud"}, {"9600", {"4800", "19200", "38400", "57600", "115200"}});
    addWordRows({"baud"}, {"4800", {"9600"}});
    addWordRows({"format"}, {"ODOM",
                             {"ORVANDO", "NMEA DBS", "NMEA DBT", "DESO 25", "KESTROLA",
                              "SONARMITE OLD", "SONARMITE NEW", "SONARMITE DUAL"}});
    addWordRows({"format"}, {"DESO 25", {"ODOM"}});
}

void ChangeSettingTest::aKnownWordIsStored()
{
    QFETCH(QString, key);
    QFETCH(QString, before);
    QFETCH(QString, value);
    Settings settings(QStringList{});
    QCOMPARE(settings.changeSetting(key, before), 0.0F);
    QCOMPARE(settings.changeSetting(key, value), 0.0F);
    QCOMPARE(settings.getSettingString(key), value);
}

void ChangeSettingTest::anUnknownWordKeepsTheOldValue_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("before");
    QTest::addColumn<QString>("value");

    addWordRows({"mode"}, {"Active", {"Auto", "", "active", "STANDBY", " Standby", "1"}});
    addWordRows({"highTVG", "lowTVG"},
                {"Log 20", {"", "Off", "off", "log 10", "Log10", "Log 10 ", "N", "0"}});
    addWordRows({"highSounderMode", "lowSounderMode"},
                {"Manual", {"", "auto", "SHALLOW", "Auto ", "n", "a", "50"}});
    addWordRows({"baud"}, {"38400", {"", "14400", " 9600", "9600 ", "Auto", "0"}});
    addWordRows({"format"}, {"KESTROLA", {"", "odom", "Odom", "ODOM ", "NMEA", "1"}});
}

void ChangeSettingTest::anUnknownWordKeepsTheOldValue()
{
    QFETCH(QString, key);
    QFETCH(QString, before);
    QFETCH(QString, value);
    Settings settings(QStringList{});
    QCOMPARE(settings.changeSetting(key, before), 0.0F);
    QCOMPARE(settings.changeSetting(key, value), -1.0F);
    QCOMPARE(settings.getSettingString(key), before);
}

void ChangeSettingTest::anUnknownKeyChangesNothing_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("value");
    QTest::newRow("port, with a port of the list") << "port"
                                                   << "COM3";
    QTest::newRow("LowFreqEnabled = \"1\"") << "LowFreqEnabled"
                                            << "1";
    QTest::newRow("Version = \"2\"") << "Version"
                                     << "2";
    QTest::newRow("ping, in other letter case") << "ping"
                                                << "7";
    QTest::newRow("Draft, without its channel") << "Draft"
                                                << "1";
    QTest::newRow("highDraft with a blank behind") << "highDraft "
                                                   << "1";
    QTest::newRow("empty key") << ""
                               << "1";
}

void ChangeSettingTest::anUnknownKeyChangesNothing()
{
    QFETCH(QString, key);
    QFETCH(QString, value);
    Settings settings(QStringList{"COM3"});
    const LogCapture log;
    QCOMPARE(settings.changeSetting(key, value), -1.0F);
    QCOMPARE(log.texts(), QStringList{QString("Unknown command \"%1\"").arg(key)});
    QVERIFY(!settings.record(key));
}

void ChangeSettingTest::aChangeOfOneChannelLeavesTheOther()
{
    Settings settings(QStringList{});
    settings.changeSetting("highDraft", "1.5");
    settings.changeSetting("lowDraft", "2.5");
    QCOMPARE(settings.getSettingString("highDraft"), QString("1.5"));
    QCOMPARE(settings.getSettingString("lowDraft"), QString("2.5"));
}

void ChangeSettingTest::itLogsItsSteps_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("value");
    QTest::addColumn<QStringList>("logged");

    QTest::newRow("a number") << "Ping"
                              << "7" << QStringList{R"(Changing  "Ping"  to  "7")"};
    QTest::newRow("a blanking, with the distance that is kept")
        << "lowBlank"
        << "0.4" << QStringList{R"(Changing  "lowBlank"  to  "0.4")", "value is 0.5"};
    QTest::newRow("a word of a list") << "format"
                                      << "ODOM" << QStringList{R"(Changing  "format"  to  "ODOM")"};
    QTest::newRow("a word that no list has")
        << "format"
        << "odom" << QStringList{R"(Changing  "format"  to  "odom")"};
    QTest::newRow("a mode that does not exist")
        << "mode"
        << "Auto" << QStringList{R"(Changing  "mode"  to  "Auto")"};
    QTest::newRow("a time variable gain")
        << "highTVG"
        << "OFF" << QStringList{R"(Changing  "highTVG"  to  "OFF")"};
    QTest::newRow("a time variable gain that does not exist")
        << "lowTVG"
        << "Log 30" << QStringList{R"(Changing  "lowTVG"  to  "Log 30")", " Doesn't contain value"};
    QTest::newRow("a sounder mode")
        << "highSounderMode"
        << "Manual"
        << QStringList{R"(Changing  "highSounderMode"  to  "Manual")",
                       R"(!!!!!!changing  "highSounderMode"  to  "Manual")"};
    QTest::newRow("a sounder mode that does not exist")
        << "lowSounderMode"
        << "Deep"
        << QStringList{R"(Changing  "lowSounderMode"  to  "Deep")",
                       R"(!!!!!!changing  "lowSounderMode"  to  "Deep")"};
}

void ChangeSettingTest::itLogsItsSteps()
{
    QFETCH(QString, key);
    QFETCH(QString, value);
    Settings settings(QStringList{});
    const LogCapture log;
    settings.changeSetting(key, value);
    QTEST(log.texts(), "logged");
    for (const QString &line : log.lines()) {
        QVERIFY2(line.startsWith("settings.cpp "), qPrintable(line));
    }
    QVERIFY2(log.lines().first().contains(" Settings::changeSetting "),
             qPrintable(log.lines().first()));
}

QTEST_MAIN(ChangeSettingTest)
#include "tst_changesetting.moc"
