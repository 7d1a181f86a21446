// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "logcapture.h"
#include "settings.h"
#include "settingsreport.h"

#include <QtTest>

#include <climits>

class ReportReadersTest : public QObject
{
    Q_OBJECT

private slots:
    void aFieldOfAReport_data();
    void aFieldOfAReport();
    void aPlaceBeyondTheBoundsIsRefused_data();
    void aPlaceBeyondTheBoundsIsRefused();
    void aPlaceThatTheReportDoesNotHaveIsEmpty_data();
    void aPlaceThatTheReportDoesNotHaveIsEmpty();

    void eachSettingIsReadFromItsPlace_data();
    void eachSettingIsReadFromItsPlace();
    void letters_data();
    void letters();
    void blankingInMetres_data();
    void blankingInMetres();
    void blankingFollowsTheVelocity();
    void maximumDepthInMetres_data();
    void maximumDepthInMetres();
    void formatNumbersFollowTheChooser_data();
    void formatNumbersFollowTheChooser();
    void aFormatOutOfRangeIsNotStored_data();
    void aFormatOutOfRangeIsNotStored();
    void modeIgnoresTheReport();
    void aReportWithoutTheLineReadsAsZero();
};

namespace {

constexpr int reportLines = 16;

/// A report whose lines are all "name: -" but for this one.
QByteArray reportWith(int line, const QString &values)
{
    QStringList lines;
    for (int i = 0; i < reportLines; ++i) {
        lines << QString("Name %1: %2").arg(i).arg(i == line ? values : "-");
    }
    return lines.join('\n').toLatin1();
}

/// Lets the setting read a report that holds this text in the setting's own place.
void readField(const Settings &settings, const QString &key, const QString &text)
{
    const SettingRecord *record = settings.record(key);
    const QString values = record->reportField == 2 ? "- " + text : text;
    record->parseFromReport(reportWith(record->reportLine, values).constData());
}

/// Column 1 of line n reads 100 + n, column 2 reads 200 + n.
QByteArray numberedReport()
{
    QStringList lines;
    for (int i = 0; i < reportLines; ++i) {
        lines << QString("Line %1: %2 %3").arg(i).arg(100 + i).arg(200 + i);
    }
    return lines.join('\n').toLatin1();
}

} // namespace

void ReportReadersTest::aFieldOfAReport_data()
{
    QTest::addColumn<QByteArray>("report");
    QTest::addColumn<int>("line");
    QTest::addColumn<int>("field");
    QTest::addColumn<QString>("text");

    const QByteArray report = numberedReport();
    QTest::newRow("first line, first field") << report << 0 << 1 << "100";
    QTest::newRow("first line, second field") << report << 0 << 2 << "200";
    QTest::newRow("last line, first field") << report << 15 << 1 << "115";
    QTest::newRow("last line, second field") << report << 15 << 2 << "215";
    const auto addRow = [](const char *name, const char *text, int line, int field,
                           const char *expected) {
        QTest::newRow(name) << QByteArray(text) << line << field << QString(expected);
    };
    addRow("white space around the report", " \r\n\n\tA: 1 2\nB: 3 4\n \n", 1, 2, "4");
    addRow("lines that end in carriage return and line feed", "A: 1 2\r\nB: 3 4\r\n", 0, 2, "2");
    addRow("no blank after the colon", "A:1 2", 0, 1, "1");
    addRow("blanks around the values", "A:   1 2  ", 0, 2, "2");
    addRow("two blanks between the values make an empty field", "A: 1  2", 0, 2, "");
    addRow("a tab does not part the values", "A: 1\t2", 0, 1, "1\t2");
    addRow("a second colon ends the values", "A: 1 2: 3", 0, 2, "2");
    addRow("an empty line in between counts", "A: 1\n\nC: 3", 2, 1, "3");
}

void ReportReadersTest::aFieldOfAReport()
{
    QFETCH(QByteArray, report);
    QFETCH(int, line);
    QFETCH(int, field);
    const Settings settings(QStringList{});
    const LogCapture log;
    QTEST(settings.getFieldAtLine(report.constData(), line, field), "text");
    QVERIFY(log.lines().isEmpty());
}

void ReportReadersTest::aPlaceBeyondTheBoundsIsRefused_data()
{
    QTest::addColumn<int>("line");
    QTest::addColumn<int>("field");
    QTest::newRow("line 16") << 16 << 1;
    QTest::newRow("line 1000") << 1000 << 1;
    QTest::newRow("field 3") << 0 << 3;
    QTest::newRow("line 16, field 3") << 16 << 3;
    QTest::newRow("negative line, field 3") << -1 << 3;
}

void ReportReadersTest::aPlaceBeyondTheBoundsIsRefused()
{
    QFETCH(int, line);
    QFETCH(int, field);
    const Settings settings(QStringList{});
    const QByteArray report = numberedReport() + "\nLine 16: 116 216 316";
    const LogCapture log;
    QCOMPARE(settings.getFieldAtLine(report.constData(), line, field), QString());
    QCOMPARE(log.texts(), QStringList{"TRIED TO ACCESS LINE OUT OF BOUNDS"});
}

void ReportReadersTest::aPlaceThatTheReportDoesNotHaveIsEmpty_data()
{
    QTest::addColumn<QByteArray>("report");
    QTest::addColumn<int>("line");
    QTest::addColumn<int>("field");

    const QByteArray report = "A: 1 2\nB\nC:";
    QTest::newRow("line behind the last") << report << 3 << 1;
    QTest::newRow("line without a colon") << report << 1 << 1;
    QTest::newRow("line without a value, first field") << report << 2 << 1;
    QTest::newRow("line without a value, second field") << report << 2 << 2;
    QTest::newRow("second field of a single value") << QByteArray("A: 1") << 0 << 2;
    QTest::newRow("field 0") << report << 0 << 0;
    QTest::newRow("field -1") << report << 0 << -1;
    QTest::newRow("line -1") << report << -1 << 1;
    QTest::newRow("line and field -1") << report << -1 << -1;
    QTest::newRow("most negative place") << report << INT_MIN << INT_MIN;
    QTest::newRow("empty report") << QByteArray("") << 0 << 1;
    QTest::newRow("report of white space") << QByteArray(" \n ") << 0 << 1;
}

void ReportReadersTest::aPlaceThatTheReportDoesNotHaveIsEmpty()
{
    QFETCH(QByteArray, report);
    QFETCH(int, line);
    QFETCH(int, field);
    const Settings settings(QStringList{});
    const LogCapture log;
    QCOMPARE(settings.getFieldAtLine(report.constData(), line, field), QString());
    QVERIFY(log.lines().isEmpty());
}

void ReportReadersTest::eachSettingIsReadFromItsPlace_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("stored");

    QTest::newRow("Velocity") << "1482"
                              << "1482";
    QTest::newRow("Ping") << "7"
                          << "7";
    QTest::newRow("baud") << "38400"
                          << "38400";
    for (const char *channel : {"high", "low"}) {
        QTest::addRow("%sDraft", channel) << "0.75"
                                          << "0.75";
        QTest::addRow("%sIndex", channel) << "1.25"
                                          << "1.25";
        QTest::addRow("%sGain", channel) << "64"
                                         << "64";
        QTest::addRow("%sPulse", channel) << "16"
                                          << "16";
        QTest::addRow("%sDetect", channel) << "50"
                                           << "50";
    }
    QTest::newRow("highFreq") << "201"
                              << "201";
    QTest::newRow("lowFreq") << "34"
                             << "34";
}

void ReportReadersTest::eachSettingIsReadFromItsPlace()
{
    QFETCH(QString, text);
    const QString key = QTest::currentDataTag();
    const Settings settings(QStringList{});
    readField(settings, key, text);
    QTEST(settings.getSettingString(key), "stored");
}

void ReportReadersTest::letters_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("field");
    QTest::addColumn<QString>("before");
    QTest::addColumn<QString>("after");

    const auto addRow = [](const QString &key, const char *field, const char *before,
                           const char *after) {
        QTest::addRow("%s reads \"%s\"", qPrintable(key), field)
            << key << QString(field) << QString(before) << QString(after);
    };
    for (const QString channel : {"high", "low"}) {
        const QString mode = channel + "SounderMode";
        addRow(mode, "n", "Manual", "Shallow");
        addRow(mode, "a", "Manual", "Auto");
        addRow(mode, "m", "Auto", "Manual");
        addRow(mode, "s", "Manual", "Manual"); // the command's letter, not the report's
        addRow(mode, "N", "Manual", "Manual");
        addRow(mode, "x", "Manual", "Manual");
        addRow(mode, "Auto", "Manual", "Auto"); // passed on as it stands, and it is a mode
        const QString tvg = channel + "TVG";
        addRow(tvg, "N", "Log 10", "OFF");
        addRow(tvg, "T", "OFF", "Log 10");
        addRow(tvg, "W", "OFF", "Log 20");
        addRow(tvg, "t", "OFF", "OFF");
        addRow(tvg, "x", "Log 20", "Log 20");
        addRow(tvg, "OFF", "Log 20", "OFF"); // passed on as it stands, and it is a word
    }
}

void ReportReadersTest::letters()
{
    QFETCH(QString, key);
    QFETCH(QString, field);
    QFETCH(QString, before);
    Settings settings(QStringList{});
    settings.changeSetting(key, before);
    readField(settings, key, field);
    QTEST(settings.getSettingString(key), "after");
}

void ReportReadersTest::blankingInMetres_data()
{
    QTest::addColumn<QString>("field");
    QTest::addColumn<QString>("metres"); // at 1500 m/s
    QTest::addColumn<QString>("storedHigh");
    QTest::addColumn<QString>("storedLow");

    // clang-format off
    QTest::newRow("0")           << "0"           << "0"    << "0.3" << "0.5";
    QTest::newRow("1999")        << "1999"        << "0"    << "0.3" << "0.5";
    QTest::newRow("2000")        << "2000"        << "1"    << "1"   << "1";
    QTest::newRow("5999")        << "5999"        << "2"    << "2"   << "2";
    QTest::newRow("6000")        << "6000"        << "3"    << "3"   << "3";
    QTest::newRow("50000")       << "50000"       << "25"   << "10"  << "10";
    QTest::newRow("1431655")     << "1431655"     << "715"  << "10"  << "10";
    QTest::newRow("1431656, the product wraps")
                                 << "1431656"     << "-715" << "0.3" << "0.5";
    QTest::newRow("2147483647, the product wraps")
                                 << "2147483647"  << "0"    << "0.3" << "0.5";
    QTest::newRow("-6000")       << "-6000"       << "-3"   << "0.3" << "0.5";
    QTest::newRow("-1999")       << "-1999"       << "0"    << "0.3" << "0.5";
    QTest::newRow("unreadable")  << "x"           << "0"    << "0.3" << "0.5";
    QTest::newRow("empty")       << ""            << "0"    << "0.3" << "0.5";
    // clang-format on
}

void ReportReadersTest::blankingInMetres()
{
    QFETCH(QString, field);
    QTEST(SettingsReport::blanking(field, 1500.0F), "metres");
    const Settings settings(QStringList{});
    readField(settings, "highBlank", field);
    readField(settings, "lowBlank", field);
    QTEST(settings.getSettingString("highBlank"), "storedHigh");
    QTEST(settings.getSettingString("lowBlank"), "storedLow");
}

void ReportReadersTest::blankingFollowsTheVelocity()
{
    Settings settings(QStringList{});
    settings.changeSetting("Velocity", "1499.9"); // counts as 1499: 5.996 m
    readField(settings, "highBlank", "12000");
    QCOMPARE(settings.getSettingString("highBlank"), QString("5"));
    settings.changeSetting("Velocity", "1750"); // 7 m
    readField(settings, "highBlank", "12000");
    QCOMPARE(settings.getSettingString("highBlank"), QString("7"));
}

void ReportReadersTest::maximumDepthInMetres_data()
{
    QTest::addColumn<float>("velocity");
    QTest::addColumn<QString>("field");
    QTest::addColumn<QString>("metres");
    QTest::addColumn<QString>("stored");

    // clang-format off
    QTest::newRow("0")             << 1500.0F << "0"          << "0"     << "3";
    QTest::newRow("1000000")       << 1500.0F << "1000000"    << "5"     << "5";
    QTest::newRow("1199999")       << 1500.0F << "1199999"    << "5"     << "5";
    QTest::newRow("1200000")       << 1500.0F << "1200000"    << "6"     << "6";
    QTest::newRow("16000000")      << 1500.0F << "16000000"   << "80"    << "80";
    QTest::newRow("2147483647")    << 1500.0F << "2147483647" << "10737" << "100";
    QTest::newRow("-1, floored")   << 1500.0F << "-1"         << "-1"    << "3";
    QTest::newRow("slower water")  << 1300.9F << "6000000"    << "26"    << "26";
    QTest::newRow("unreadable")    << 1500.0F << "x"          << "0"     << "3";
    QTest::newRow("empty")         << 1500.0F << ""           << "0"     << "3";
    // clang-format on
}

void ReportReadersTest::maximumDepthInMetres()
{
    QFETCH(float, velocity);
    QFETCH(QString, field);
    QTEST(SettingsReport::maximumDepth(field, velocity), "metres");
    Settings settings(QStringList{});
    settings.changeSetting("Velocity", QString::number(static_cast<double>(velocity)));
    readField(settings, "Depth", field);
    QTEST(settings.getSettingString("Depth"), "stored");
}

void ReportReadersTest::formatNumbersFollowTheChooser_data()
{
    QTest::addColumn<QString>("format");
    QTest::newRow("1") << "ORVANDO";
    QTest::newRow("2") << "NMEA DBS";
    QTest::newRow("3") << "NMEA DBT";
    QTest::newRow("4") << "DESO 25";
    QTest::newRow("5") << "ODOM";
    QTest::newRow("6") << "KESTROLA";
    QTest::newRow("7") << "SONARMITE OLD";
    QTest::newRow("8") << "SONARMITE NEW";
    QTest::newRow("9") << "SONARMITE DUAL";
}

void ReportReadersTest::formatNumbersFollowTheChooser()
{
    QFETCH(QString, format);
    Settings settings(QStringList{});
    settings.changeSetting("format", format == "ODOM" ? "KESTROLA" : "ODOM");
    const LogCapture log;
    readField(settings, "format", QTest::currentDataTag());
    QCOMPARE(settings.getSettingString("format"), format);
    QCOMPARE(log.texts().first(), QString("Format is  %1").arg(QTest::currentDataTag()));
}

void ReportReadersTest::aFormatOutOfRangeIsNotStored_data()
{
    QTest::addColumn<int>("number");
    QTest::newRow("0") << 0;
    QTest::newRow("10") << 10;
    QTest::newRow("-1") << -1;
    QTest::newRow("2147483647") << 2147483647;
    QTest::newRow("ODOM") << 0;
    QTest::newRow("") << 0;
}

void ReportReadersTest::aFormatOutOfRangeIsNotStored()
{
    QFETCH(int, number);
    Settings settings(QStringList{});
    settings.changeSetting("format", "KESTROLA");
    const LogCapture log;
    readField(settings, "format", QTest::currentDataTag());
    QCOMPARE(settings.getSettingString("format"), QString("KESTROLA"));
    QCOMPARE(log.texts(),
             (QStringList{QString("Format is  %1").arg(number), "format out of range!!!"}));
}

void ReportReadersTest::modeIgnoresTheReport()
{
    Settings settings(QStringList{});
    settings.changeSetting("mode", "Standby");
    settings.record("mode")->parseFromReport("Mode: Standby");
    QCOMPARE(settings.getSettingString("mode"), QString("Active"));
}

void ReportReadersTest::aReportWithoutTheLineReadsAsZero()
{
    const Settings settings(QStringList{});
    settings.record("Velocity")->parseFromReport("");
    settings.record("lowPulse")->parseFromReport("A: 1");
    QCOMPARE(settings.getSettingString("Velocity"), QString("1300"));
    QCOMPARE(settings.getSettingString("lowPulse"), QString("1"));
}

QTEST_MAIN(ReportReadersTest)
#include "tst_reportreaders.moc"
