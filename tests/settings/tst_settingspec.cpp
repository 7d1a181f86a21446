// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "rowsmissing.h"

#include <QtTest>

/// What the row of each setting says.
class SettingSpecTest : public QObject
{
    Q_OBJECT

private slots:
    void aNumberIsShownAndHeld_data();
    void aNumberIsShownAndHeld();
    void aWordIsOneOfTheRow_data();
    void aWordIsOneOfTheRow();
    void anUnknownKeyHasNoRow_data();
    void anUnknownKeyHasNoRow();
    void onlySomeRefusalsHaveAnAdvice();

    void channelsDifferOnlyWhereTheDeviceSetsThemApart_data();
    void channelsDifferOnlyWhereTheDeviceSetsThemApart();
    void everySettingOfAChannelHasATwin();
};

namespace {

template <auto column>
bool differs(const SettingSpec &high, const SettingSpec &low)
{
    return high.*column != low.*column;
}

template <auto message>
bool logs(const SettingSpec &high, const SettingSpec &low)
{
    return qstrcmp(high.log.*message, low.log.*message) != 0;
}

struct Column
{
    const char *name;
    bool (*differs)(const SettingSpec &high, const SettingSpec &low);
};

/// All columns but the key, the names and the channel, by which twins are told apart.
constexpr Column columns[] = {
    {"unit", differs<&SettingSpec::unit>},
    {"decimals", differs<&SettingSpec::decimals>},
    {"step", differs<&SettingSpec::step>},
    {"kind", differs<&SettingSpec::kind>},
    {"lowest", differs<&SettingSpec::lowest>},
    {"highest", differs<&SettingSpec::highest>},
    {"words", differs<&SettingSpec::words>},
    {"defaultValue", differs<&SettingSpec::defaultValue>},
    {"commandFormat", differs<&SettingSpec::commandFormat>},
    {"toCommand", differs<&SettingSpec::toCommand>},
    {"toNumber", differs<&SettingSpec::toNumber>},
    {"replyLetter", differs<&SettingSpec::replyLetter>},
    {"reportLine", differs<&SettingSpec::reportLine>},
    {"reportField", differs<&SettingSpec::reportField>},
    {"fromReport", differs<&SettingSpec::fromReport>},
    {"log.change", logs<&SettingLog::change>},
    {"log.refusal", logs<&SettingLog::refusal>},
    {"log.stored", logs<&SettingLog::stored>},
    {"log.number", logs<&SettingLog::number>},
    {"log.report", logs<&SettingLog::report>},
    {"log.reportRefusal", logs<&SettingLog::reportRefusal>},
    {"refusalAdvice", differs<&SettingSpec::refusalAdvice>},
};

QStringList differences(const SettingSpec &high, const SettingSpec &low)
{
    QStringList names;
    for (const Column &column : columns) {
        if (column.differs(high, low)) {
            names << column.name;
        }
    }
    return names;
}

struct NumberRow
{
    const char *key;
    ValueKind kind;
    float lowest;
    float highest;
    int decimals;
    float step;
    const char *metric;
    const char *imperial;
};

constexpr ValueKind whole = ValueKind::Whole;
constexpr ValueKind real = ValueKind::Real;

// clang-format off
constexpr NumberRow numberRows[] = {
    // key          kind   lowest   highest  dec step  metric  imperial
    {"Velocity",    real,  1300.0F, 1750.0F, 0,  1.0F, " m/s", " ft/s"},
    {"Ping",        whole,    1.0F,   10.0F, 0,  1.0F, "",     ""},
    {"Depth",       real,     3.0F,  100.0F, 0,  5.0F, " m",   " ft"},
    {"highBlank",   real,     0.3F,   10.0F, 2,  0.1F, " m",   " ft"},
    {"highDraft",   real,     0.0F,  100.0F, 2,  0.1F, " m",   " ft"},
    {"highIndex",   real,     0.0F,  100.0F, 2,  0.1F, " m",   " ft"},
    {"highGain",    whole,   30.0F,  100.0F, 0,  5.0F, "%",    "%"},
    {"highPulse",   whole,    1.0F,  100.0F, 0,  1.0F, "",     ""},
    {"highDetect",  whole,    1.0F,  100.0F, 0,  1.0F, "%",    "%"},
    {"highFreq",    real,   190.0F,  210.0F, 0,  1.0F, " kHz", " kHz"},
    {"lowBlank",    real,     0.5F,   10.0F, 2,  0.1F, " m",   " ft"},
    {"lowDraft",    real,     0.0F,  100.0F, 2,  0.1F, " m",   " ft"},
    {"lowIndex",    real,     0.0F,  100.0F, 2,  0.1F, " m",   " ft"},
    {"lowGain",     whole,   30.0F,  100.0F, 0,  5.0F, "%",    "%"},
    {"lowPulse",    whole,    1.0F,  100.0F, 0,  1.0F, "",     ""},
    {"lowDetect",   whole,    1.0F,  100.0F, 0,  1.0F, "%",    "%"},
    {"lowFreq",     real,    30.0F,   36.0F, 0,  1.0F, " kHz", " kHz"},
};
// clang-format on

} // namespace

void SettingSpecTest::aNumberIsShownAndHeld_data()
{
    QTest::addColumn<int>("row");
    QSet<QString> keys;
    for (int row = 0; row < static_cast<int>(std::size(numberRows)); ++row) {
        QTest::newRow(numberRows[row].key) << row;
        keys << numberRows[row].key;
    }
    QCOMPARE(keysMissing(keys, isNumberSetting), QString());
}

void SettingSpecTest::aNumberIsShownAndHeld()
{
    QFETCH(int, row);
    const NumberRow &expected = numberRows[row];
    const SettingSpec *spec = SettingSpecs::find(expected.key);
    QVERIFY(spec);
    QVERIFY(spec->kind == expected.kind);
    QVERIFY(spec->lowest == expected.lowest);
    QVERIFY(spec->highest == expected.highest);
    QCOMPARE(spec->decimals, expected.decimals);
    QVERIFY(spec->step == expected.step);
    QCOMPARE(spec->suffix(false), QString(expected.metric));
    QCOMPARE(spec->suffix(true), QString(expected.imperial));
    QCOMPARE(spec->isConvertible(), QString(expected.metric) != expected.imperial);
}

void SettingSpecTest::aWordIsOneOfTheRow_data()
{
    QTest::addColumn<QStringList>("words");

    const QStringList sounderModes = {"Shallow", "Auto", "Manual"};
    const QStringList gainVariations = {"OFF", "Log 20", "Log 10"};
    QTest::newRow("mode") << QStringList{"Standby", "Active"};
    QTest::newRow("baud") << QStringList{"4800", "9600", "19200", "38400", "57600", "115200"};
    QTest::newRow("format") << QStringList{"ORVANDO",       "NMEA DBS",      "NMEA DBT",
                                           "DESO 25",       "ODOM",          "KESTROLA",
                                           "SONARMITE OLD", "SONARMITE NEW", "SONARMITE DUAL"};
    QTest::newRow("highSounderMode") << sounderModes;
    QTest::newRow("lowSounderMode") << sounderModes;
    QTest::newRow("highTVG") << gainVariations;
    QTest::newRow("lowTVG") << gainVariations;
}

void SettingSpecTest::aWordIsOneOfTheRow()
{
    const SettingSpec *spec = SettingSpecs::find(QTest::currentDataTag());
    QVERIFY(spec);
    QVERIFY(spec->kind == ValueKind::Word);
    QTEST(spec->words, "words");
}

void SettingSpecTest::anUnknownKeyHasNoRow_data()
{
    QTest::addColumn<QString>("key");
    for (const char *key : {"", "port", "Draft", "highdraft", "highDraft ", "highPulseDelay"}) {
        QTest::addRow("\"%s\"", key) << QString(key);
    }
}

void SettingSpecTest::anUnknownKeyHasNoRow()
{
    QFETCH(QString, key);
    QVERIFY(!SettingSpecs::find(key));
}

void SettingSpecTest::onlySomeRefusalsHaveAnAdvice()
{
    QMap<QString, QString> advices;
    for (const SettingSpec &spec : SettingSpecs::all()) {
        if (!spec.refusalAdvice.isEmpty()) {
            advices.insert(spec.key, spec.refusalAdvice);
        }
    }
    QCOMPARE(advices, (QMap<QString, QString>{{"Depth", "Reduce pings per second"},
                                              {"Ping", "Reduce maximum depth"}}));
}

void SettingSpecTest::channelsDifferOnlyWhereTheDeviceSetsThemApart_data()
{
    QTest::addColumn<QStringList>("differences");

    const QStringList columnOfTheReport = {"reportField"};
    QTest::newRow("SounderMode") << columnOfTheReport;
    QTest::newRow("Blank") << QStringList{"lowest", "reportField"};
    QTest::newRow("Draft") << columnOfTheReport;
    QTest::newRow("Index") << columnOfTheReport;
    QTest::newRow("Gain") << columnOfTheReport;
    QTest::newRow("Pulse") << columnOfTheReport;
    QTest::newRow("Detect") << QStringList{}; // both are read from the high channel's column
    QTest::newRow("Freq") << QStringList{"lowest", "highest", "reportField"};
    QTest::newRow("TVG") << columnOfTheReport;
}

void SettingSpecTest::channelsDifferOnlyWhereTheDeviceSetsThemApart()
{
    const SettingSpec *high = SettingSpecs::find(QString("high") + QTest::currentDataTag());
    const SettingSpec *low = SettingSpecs::find(QString("low") + QTest::currentDataTag());
    QVERIFY(high);
    QVERIFY(low);
    QCOMPARE(low->prettyName.mid(3), high->prettyName.mid(4)); // behind "Low" and "High"
    QTEST(differences(*high, *low), "differences");
}

void SettingSpecTest::everySettingOfAChannelHasATwin()
{
    QStringList highs;
    QStringList lows;
    for (const SettingSpec &spec : SettingSpecs::all()) {
        if (spec.channel != SettingChannel::Common) {
            (spec.channel == SettingChannel::High ? highs : lows) << spec.key;
        }
    }
    QCOMPARE(QStringList(lows).replaceInStrings(QRegularExpression("^low"), "high"), highs);
    QCOMPARE(highs.size(), 9); // as many as the differences are written down for
}

QTEST_MAIN(SettingSpecTest)
#include "tst_settingspec.moc"
