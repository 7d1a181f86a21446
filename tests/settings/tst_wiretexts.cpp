// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "rowsmissing.h"
#include "settings.h"

#include <QtTest>

/// What goes to the device for each setting, letter by letter. A sounder in the water obeys these
/// texts: a change here changes what every unit in the field is told.
class WireTextsTest : public QObject
{
    Q_OBJECT

private slots:
    void aStoredValueGivesItsCommand_data();
    void aStoredValueGivesItsCommand();
    void aSettingThatWasNeverSetGivesItsCommand_data();
    void aSettingThatWasNeverSetGivesItsCommand();
    void aRefusedWordKeepsTheCommandOfTheOldOne_data();
    void aRefusedWordKeepsTheCommandOfTheOldOne();
};

namespace {

struct WireText
{
    const char *value;
    const char *command;
};

/// The values of which the rows of the test at hand speak, by their settings.
QMap<QString, QStringList> valuesWithRow;

void addRows(const QStringList &keys, std::initializer_list<WireText> texts)
{
    for (const QString &key : keys) {
        for (const WireText &text : texts) {
            valuesWithRow[key] << text.value;
            QTest::addRow("%s = \"%s\"", qPrintable(key), text.value)
                << key << QString(text.value) << QString(text.command);
        }
    }
}

QSet<QString> keysWithRow()
{
    const QStringList keys = valuesWithRow.keys();
    return {keys.begin(), keys.end()};
}

} // namespace

void WireTextsTest::aStoredValueGivesItsCommand_data()
{
    valuesWithRow.clear();
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("value");
    QTest::addColumn<QString>("command");

    addRows({"Velocity"}, {{"1300", "*v300000"},
                           {"1300.01", "*v300010"},
                           {"1450", "*v450000"},
                           {"1482.3", "*v482300"},
                           {"1500", "*v500000"},
                           {"1500.5", "*v500500"},
                           {"1749.99", "*v749990"},
                           {"1750", "*v750000"}});
    addRows({"Ping"}, {{"1", "*i01"}, {"5", "*i05"}, {"9", "*i09"}, {"10", "*i10"}});
    addRows({"Depth"}, {{"3", "*s003000"},
                        {"45.7", "*s045700"},
                        {"80", "*s080000"},
                        {"99.99", "*s099990"},
                        {"100", "*s100000"}});
    addRows({"format"}, {{"ODOM", "*a1"},
                         {"NMEA DBT", "*a2"},
                         {"NMEA DBS", "*a3"},
                         {"ORVANDO", "*a4"},
                         {"DESO 25", "*a5"},
                         {"KESTROLA", "*a6"},
                         {"SONARMITE OLD", "*a7"},
                         {"SONARMITE NEW", "*a8"},
                         {"SONARMITE DUAL", "*a9"}});
    addRows({"mode"}, {{"Active", "*b1"}, {"Standby", "*h1"}});
    addRows({"baud"}, {{"4800", "*I000"},
                       {"9600", "*I000"},
                       {"19200", "*I000"},
                       {"38400", "*I111"},
                       {"57600", "*I222"},
                       {"115200", "*I333"}});
    addRows({"highSounderMode", "lowSounderMode"},
            {{"Shallow", "*cs"}, {"Auto", "*ca"}, {"Manual", "*cm"}});
    addRows({"highTVG", "lowTVG"}, {{"OFF", "*lN"}, {"Log 10", "*lT"}, {"Log 20", "*lW"}});
    addRows({"highDraft", "lowDraft"}, {{"0", "*o00000"},
                                        {"0.001", "*o00001"},
                                        {"0.251", "*o00250"},
                                        {"0.3048", "*o00304"},
                                        {"0.45", "*o00450"},
                                        {"1.23", "*o01230"},
                                        {"8.03", "*o08029"},
                                        {"99.999", "*o99999"},
                                        {"100", "*o100000"}});
    addRows({"highIndex", "lowIndex"}, {{"0", "*q00000"},
                                        {"0.251", "*q00250"},
                                        {"0.45", "*q00450"},
                                        {"12.345", "*q12345"},
                                        {"100", "*q100000"}});
    addRows({"highBlank"}, {{"0.3", "*m00300"},
                            {"0.31", "*m00310"},
                            {"0.5", "*m00500"},
                            {"2.34", "*m02340"},
                            {"10", "*m10000"}});
    addRows({"lowBlank"},
            {{"0.5", "*m00500"}, {"0.999", "*m00999"}, {"5.67", "*m05670"}, {"10", "*m10000"}});
    addRows({"highGain", "lowGain"}, {{"30", "*g000"},
                                      {"31", "*g001"},
                                      {"32", "*g003"},
                                      {"50", "*g029"},
                                      {"64", "*g049"},
                                      {"65", "*g050"},
                                      {"66", "*g051"},
                                      {"75", "*g064"},
                                      {"99", "*g099"},
                                      {"100", "*g100"}});
    addRows({"highPulse", "lowPulse"},
            {{"1", "*p01"}, {"16", "*p16"}, {"99", "*p99"}, {"100", "*p100"}});
    addRows({"highDetect", "lowDetect"},
            {{"1", "*t001"}, {"50", "*t050"}, {"99", "*t099"}, {"100", "*t100"}});
    addRows({"highFreq"}, {{"190", "*w0190"},
                           {"199.999", "*w0199"},
                           {"200", "*w0200"},
                           {"200.9", "*w0200"},
                           {"210", "*w0210"}});
    addRows({"lowFreq"},
            {{"30", "*w0030"}, {"33", "*w0033"}, {"35.9", "*w0035"}, {"36", "*w0036"}});
    QCOMPARE(keysMissing(keysWithRow()), QString());
    for (const SettingSpec &spec : SettingSpecs::all()) {
        for (const QString &word : spec.words) {
            QVERIFY2(valuesWithRow.value(spec.key).contains(word),
                     qPrintable(spec.key + " has no row for " + word));
        }
    }
}

void WireTextsTest::aStoredValueGivesItsCommand()
{
    QFETCH(QString, key);
    QFETCH(QString, value);
    Settings settings(QStringList{});
    QVERIFY2(settings.changeSetting(key, value) >= 0.0F, "the value was refused");
    QTEST(settings.getCommandString(key), "command");
}

void WireTextsTest::aSettingThatWasNeverSetGivesItsCommand_data()
{
    valuesWithRow.clear();
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("value");
    QTest::addColumn<QString>("command");

    addRows({"Velocity"}, {{"1500", "*v500000"}});
    addRows({"Ping"}, {{"5", "*i05"}});
    addRows({"Depth"}, {{"80", "*s080000"}});
    addRows({"format"}, {{"ODOM", "*a1"}});
    addRows({"mode"}, {{"Auto", "*h1"}});
    addRows({"baud"}, {{"9600", "*I000"}});
    addRows({"highSounderMode", "lowSounderMode"}, {{"", "*ca"}});
    addRows({"highTVG", "lowTVG"}, {{"", "*lN"}});
    addRows({"highDraft", "lowDraft"}, {{"", "*o00000"}});
    addRows({"highIndex", "lowIndex"}, {{"", "*q00000"}});
    addRows({"highBlank", "lowBlank"}, {{"", "*m00000"}});
    addRows({"highGain", "lowGain"}, {{"", "*g-42"}});
    addRows({"highPulse", "lowPulse"}, {{"", "*p00"}});
    addRows({"highDetect", "lowDetect"}, {{"", "*t000"}});
    addRows({"highFreq", "lowFreq"}, {{"", "*w0000"}});
    QCOMPARE(keysMissing(keysWithRow()), QString());
}

void WireTextsTest::aSettingThatWasNeverSetGivesItsCommand()
{
    QFETCH(QString, key);
    const Settings settings(QStringList{});
    QTEST(settings.getSettingString(key), "value");
    QTEST(settings.getCommandString(key), "command");
}

void WireTextsTest::aRefusedWordKeepsTheCommandOfTheOldOne_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("value");
    QTest::addColumn<QString>("command");

    addRows({"format"}, {{"odom", "*a1"}, {"SURVEY", "*a1"}});
    addRows({"mode"}, {{"Auto", "*h1"}, {"active", "*h1"}});
    addRows({"baud"}, {{"14400", "*I000"}, {"", "*I000"}});
    addRows({"highTVG", "lowTVG"}, {{"Log 30", "*lN"}});
    addRows({"highSounderMode", "lowSounderMode"}, {{"Deep", "*ca"}, {"m", "*ca"}});
}

void WireTextsTest::aRefusedWordKeepsTheCommandOfTheOldOne()
{
    QFETCH(QString, key);
    QFETCH(QString, value);
    Settings settings(QStringList{});
    settings.changeSetting(key, value);
    QTEST(settings.getCommandString(key), "command");
}

QTEST_MAIN(WireTextsTest)
#include "tst_wiretexts.moc"
