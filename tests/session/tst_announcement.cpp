// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "announcement.h"

#include "logcapture.h"
#include "settings.h"

#include <QtTest>

#include <algorithm>
#include <iterator>

namespace {

/// A value as it is kept, and as the operator reads it in either unit.
struct Value
{
    const char *key;
    const char *kept;
    const char *metric;
    const char *imperial;
};

// clang-format off
constexpr Value values[] = {
    {"Velocity",        "1500",     "1500 m/s",  "4921 ft/s"},
    {"Velocity",        "1499.6",   "1500 m/s",  "4920 ft/s"},
    {"Ping",            "6",        "6",         "6"},
    {"Depth",           "30",       "30 m",      "98 ft"},
    {"Depth",           "36.576",   "37 m",      "120 ft"},
    {"format",          "ODOM",     "ODOM",      "ODOM"},
    {"mode",            "Standby",  "Standby",   "Standby"},
    {"baud",            "38400",    "38400",     "38400"},
    {"highSounderMode", "Shallow",  "Shallow",   "Shallow"},
    {"highBlank",       "0.55",     "0.55 m",    "1.80 ft"},
    {"highDraft",       "0.5",      "0.50 m",    "1.64 ft"},
    {"highDraft",       "100",      "100.00 m",  "328.08 ft"},
    {"highIndex",       "0.1",      "0.10 m",    "0.33 ft"},
    {"highGain",        "65",       "65%",       "65%"},
    {"highPulse",       "16",       "16",        "16"},
    {"highDetect",      "51",       "51%",       "51%"},
    {"highFreq",        "201",      "201 kHz",   "201 kHz"},
    {"highFreq",        "199.5",    "199.5 kHz", "199.5 kHz"},
    {"highTVG",         "Log 20",   "Log 20",    "Log 20"},
    {"lowSounderMode",  "Manual",   "Manual",    "Manual"},
    {"lowBlank",        "1.524",    "1.52 m",    "5.00 ft"},
    {"lowDraft",        "0.5",      "0.50 m",    "1.64 ft"},
    {"lowIndex",        "0",        "0.00 m",    "0.00 ft"},
    {"lowGain",         "80",       "80%",       "80%"},
    {"lowPulse",        "17",       "17",        "17"},
    {"lowDetect",       "1",        "1%",        "1%"},
    {"lowFreq",         "34",       "34 kHz",    "34 kHz"},
    {"lowTVG",          "OFF",      "OFF",       "OFF"},
};
// clang-format on

} // namespace

/// How a change is told to the operator and to the sounder.
class AnnouncementTest : public QObject
{
    Q_OBJECT

private slots:
    void aValueIsToldWithItsUnit_data();
    void aValueIsToldWithItsUnit();
    void everySettingHasItsRow();
    void theTextNamesSettingAndValue_data();
    void theTextNamesSettingAndValue();
    void aShortCommandIsFilledAndMarked_data();
    void aShortCommandIsFilledAndMarked();
};

void AnnouncementTest::aValueIsToldWithItsUnit_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("kept");
    QTest::addColumn<QString>("metric");
    QTest::addColumn<QString>("imperial");
    for (const Value &value : values) {
        QTest::addRow("%s %s", value.key, value.kept)
            << value.key << value.kept << value.metric << value.imperial;
    }
}

void AnnouncementTest::aValueIsToldWithItsUnit()
{
    QFETCH(QString, key);
    QFETCH(QString, kept);
    const LogCapture log;
    Settings settings{QStringList()};
    QVERIFY2(settings.changeSetting(key, kept) >= 0, "the row's value is not accepted");
    const SettingSpec *setting = SettingSpecs::find(key);
    QTEST(Announcement::value(*setting, settings), "metric");
    settings.goToImperial(true);
    QTEST(Announcement::value(*setting, settings), "imperial");
}

void AnnouncementTest::everySettingHasItsRow()
{
    for (const SettingSpec &setting : SettingSpecs::all()) {
        const auto *const row =
            std::find_if(std::begin(values), std::end(values),
                         [&setting](const Value &value) { return setting.key == value.key; });
        QVERIFY2(row != std::end(values), qPrintable(setting.key));
    }
}

void AnnouncementTest::theTextNamesSettingAndValue_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("value");
    QTest::addColumn<QString>("text");

    QTest::newRow("highDraft") << "highDraft"
                               << "1.64 ft"
                               << "Setting High Frequency Draft to 1.64 ft";
    QTest::newRow("lowFreq") << "lowFreq"
                             << "33 kHz"
                             << "Setting Low Frequency to 33 kHz";
    QTest::newRow("Ping") << "Ping"
                          << "6"
                          << "Setting Pings Per Second to 6";
}

void AnnouncementTest::theTextNamesSettingAndValue()
{
    QFETCH(QString, key);
    QFETCH(QString, value);
    QTEST(Announcement::text(*SettingSpecs::find(key), value), "text");
}

void AnnouncementTest::aShortCommandIsFilledAndMarked_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("command");
    QTest::addColumn<QString>("sent");

    const auto row = [](const char *key, const char *command, const char *sent) {
        QTest::addRow("%s %s", key, command) << QString(key) << QString(command) << QString(sent);
    };
    row("Ping", "*i06", "*i06....");
    row("format", "*a1", "*a1.....");
    row("Velocity", "*v50000", "*v50000.");
    row("Velocity", "*v501000", "*v501000");
    row("highTVG", "*lT", "*lT....H");
    row("highDraft", "*o00500", "*o00500H");
    row("highDraft", "*o100000", "*o100000");
    row("highDraft", "*o1000000", "*o1000000");
    row("lowTVG", "*lT", "*lT....L");
    row("lowDraft", "*o00500", "*o00500L");
    row("lowDraft", "*o100000", "*o100000");
}

void AnnouncementTest::aShortCommandIsFilledAndMarked()
{
    QFETCH(QString, key);
    QFETCH(QString, command);
    QTEST(Announcement::paddedCommand(*SettingSpecs::find(key), command), "sent");
}

QTEST_MAIN(AnnouncementTest)

#include "tst_announcement.moc"
