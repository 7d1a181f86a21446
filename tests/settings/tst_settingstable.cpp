// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "settings.h"
#include "settingspec.h"

#include <QSerialPortInfo>
#include <QtTest>

#include <functional>

class SettingsTableTest : public QObject
{
    Q_OBJECT

private slots:
    void eachSettingHasItsRow_data();
    void eachSettingHasItsRow();
    void thereAreNoOtherSettings();
    void keysAreCaseSensitive_data();
    void keysAreCaseSensitive();

    void eachRecordHasItsThreeFunctions();
    void unusedFieldsStayEmpty();
    void anEmptyFunctionFailsWhenCalled();
    void aCopiedRecordStillSpeaksOfTheSetting();
    void givingTheFunctionsAgainChangesNoValue();

    void portListBeginsWithSelectPort();
    void portListWithoutAnyPort();
    void portListOfThisComputer();
    void baudListIsInOrder();
    void formatListIsInChooserOrder();

    void unitIsMetricAtStart();
    void deviceTypeIsAlwaysTheOne();
};

void SettingsTableTest::eachSettingHasItsRow_data()
{
    QTest::addColumn<QString>("prettyName");
    QTest::addColumn<QString>("defaultValue");
    QTest::addColumn<QString>("commandFormat");
    QTest::addColumn<int>("line");
    QTest::addColumn<int>("field");

    // clang-format off
    QTest::newRow("Velocity") << "Sound Velocity"    << "1500" << "*v%04d"    <<  8 <<  1;
    QTest::newRow("Ping")     << "Pings Per Second"  << "5"    << "*i%02d"    << 12 <<  1;
    QTest::newRow("Depth")    << "Maximum Depth"     << "80"   << "*s%06d"    <<  4 <<  1;
    QTest::newRow("format")   << "Output Format"     << "ODOM" << "*a%d"      << 15 <<  1;
    QTest::newRow("mode")     << "Mode"              << "Auto" << ""          << -1 << -1;
    QTest::newRow("baud")     << "Baud Rate"         << "9600" << "*I%d%d%d"  << 14 <<  1;

    QTest::newRow("highSounderMode") << "High Frequency Sounder Mode"    << "" << "*c%c"   << 11 << 1;
    QTest::newRow("highBlank")       << "High Frequency Blanking"        << "" << "*m%05d" <<  2 << 1;
    QTest::newRow("highDraft")       << "High Frequency Draft"           << "" << "*o%05d" <<  9 << 1;
    QTest::newRow("highIndex")       << "High Frequency Index"           << "" << "*q%05d" << 10 << 1;
    QTest::newRow("highGain")        << "High Frequency Gain"            << "" << "*g%03d" <<  7 << 1;
    QTest::newRow("highPulse")       << "High Frequency Pulse Cycles"    << "" << "*p%02d" <<  2 << 1;
    QTest::newRow("highDetect")      << "High Frequency Detection Level" << "" << "*t%03d" <<  1 << 1;
    QTest::newRow("highFreq")        << "High Frequency"                 << "" << "*w%04d" <<  1 << 1;
    QTest::newRow("highTVG")         << "High Time Variable Gain"        << "" << "*l%c"   << 13 << 1;

    QTest::newRow("lowSounderMode")  << "Low Frequency Sounder Mode"     << "" << "*c%c"   << 11 << 2;
    QTest::newRow("lowBlank")        << "Low Frequency Blanking"         << "" << "*m%05d" <<  2 << 2;
    QTest::newRow("lowDraft")        << "Low Frequency Draft"            << "" << "*o%05d" <<  9 << 2;
    QTest::newRow("lowIndex")        << "Low Frequency Index"            << "" << "*q%05d" << 10 << 2;
    QTest::newRow("lowGain")         << "Low Frequency Gain"             << "" << "*g%03d" <<  7 << 2;
    QTest::newRow("lowPulse")        << "Low Frequency Pulse Cycles"     << "" << "*p%02d" <<  2 << 2;
    QTest::newRow("lowDetect")       << "Low Frequency Detection Level"  << "" << "*t%03d" <<  1 << 1;
    QTest::newRow("lowFreq")         << "Low Frequency"                  << "" << "*w%04d" <<  1 << 2;
    QTest::newRow("lowTVG")          << "Low Time Variable Gain"         << "" << "*l%c"   << 13 << 2;
    // clang-format on
}

void SettingsTableTest::eachSettingHasItsRow()
{
    const Settings settings(QStringList{});
    const SettingRecord *record = settings.record(QTest::currentDataTag());
    QVERIFY2(record, "the setting is missing: the operator's changes would have no effect");
    QTEST(record->prettyName, "prettyName");
    QTEST(record->value, "defaultValue");
    QTEST(record->commandFormat, "commandFormat");
    QTEST(record->reportLine, "line");
    QTEST(record->reportField, "field");
}

void SettingsTableTest::thereAreNoOtherSettings()
{
    QCOMPARE(SettingSpecs::all().size(), std::size_t(24));
}

void SettingsTableTest::keysAreCaseSensitive_data()
{
    QTest::addColumn<QString>("key");
    for (const char *key : {"velocity", "PING", "Format", "Mode", "HighDraft", "hightvg", ""}) {
        QTest::addRow("key \"%s\"", key) << QString(key);
    }
}

void SettingsTableTest::keysAreCaseSensitive()
{
    QFETCH(QString, key);
    const Settings settings(QStringList{});
    QVERIFY2(!settings.record(key), "a key in other letter case is another key");
}

void SettingsTableTest::eachRecordHasItsThreeFunctions()
{
    const Settings settings(QStringList{});
    for (const SettingSpec &spec : SettingSpecs::all()) {
        const SettingRecord *record = settings.record(spec.key);
        QVERIFY2(record->parseFromReport, qPrintable(spec.key));
        QVERIFY2(record->toCommand, qPrintable(spec.key));
        QVERIFY2(record->toNumber, qPrintable(spec.key));
    }
}

void SettingsTableTest::unusedFieldsStayEmpty()
{
    const Settings settings(QStringList{});
    for (const SettingSpec &spec : SettingSpecs::all()) {
        const SettingRecord *record = settings.record(spec.key);
        QVERIFY2(record->spare.isEmpty(), qPrintable(spec.key));
        QVERIFY2(!record->spareFunction, qPrintable(spec.key));
    }
}

void SettingsTableTest::anEmptyFunctionFailsWhenCalled()
{
    const SettingRecord record;
    QVERIFY_EXCEPTION_THROWN(record.spareFunction(), std::bad_function_call);
    QVERIFY_EXCEPTION_THROWN(record.parseFromReport(""), std::bad_function_call);
    QVERIFY_EXCEPTION_THROWN(record.toCommand(), std::bad_function_call);
    QVERIFY_EXCEPTION_THROWN(record.toNumber(), std::bad_function_call);
}

void SettingsTableTest::aCopiedRecordStillSpeaksOfTheSetting()
{
    Settings settings(QStringList{});
    const SettingRecord copy = *settings.record("Ping");
    settings.changeSetting("Ping", "7");
    QCOMPARE(copy.value, QString("5"));
    QCOMPARE(copy.toNumber(), 7.0F);
    QCOMPARE(copy.toCommand(), QString("*i07"));
}

void SettingsTableTest::givingTheFunctionsAgainChangesNoValue()
{
    Settings settings(QStringList{});
    settings.changeSetting("Depth", "42");
    settings.initTalVeroNew();
    QCOMPARE(settings.getSettingString("Depth"), QString("42"));
    QCOMPARE(settings.getCommandString("Depth"), QString("*s042000"));
}

void SettingsTableTest::portListBeginsWithSelectPort()
{
    const Settings settings(QStringList{"COM7", "COM3", "ttyUSB0"});
    QCOMPARE(settings.portList(), (QStringList{"Select Port", "COM7", "COM3", "ttyUSB0"}));
}

void SettingsTableTest::portListWithoutAnyPort()
{
    const Settings settings(QStringList{});
    QCOMPARE(settings.portList(), QStringList{"Select Port"});
}

void SettingsTableTest::portListOfThisComputer()
{
    QStringList expected{"Select Port"};
    for (const QSerialPortInfo &port : QSerialPortInfo::availablePorts()) {
        expected << port.portName();
    }
    const Settings settings;
    QCOMPARE(settings.portList(), expected);
}

void SettingsTableTest::baudListIsInOrder()
{
    const Settings settings(QStringList{});
    QCOMPARE(settings.baudList(),
             (QStringList{"4800", "9600", "19200", "38400", "57600", "115200"}));
}

void SettingsTableTest::formatListIsInChooserOrder()
{
    const Settings settings(QStringList{});
    QCOMPARE(settings.formatList(),
             (QStringList{"ORVANDO", "NMEA DBS", "NMEA DBT", "DESO 25", "ODOM", "KESTROLA",
                          "SONARMITE OLD", "SONARMITE NEW", "SONARMITE DUAL"}));
}

void SettingsTableTest::unitIsMetricAtStart()
{
    const Settings settings(QStringList{});
    QVERIFY(!settings.isImperial());
}

void SettingsTableTest::deviceTypeIsAlwaysTheOne()
{
    Settings settings(QStringList{});
    QCOMPARE(settings.deviceType(), QString("TalVeroNew"));
    settings.changeSetting("Ping", "7");
    settings.setDeviceType("Some Other Sounder");
    QCOMPARE(settings.deviceType(), QString("TalVeroNew"));
    QCOMPARE(settings.getSettingString("Ping"), QString("7"));
}

QTEST_MAIN(SettingsTableTest)
#include "tst_settingstable.moc"
