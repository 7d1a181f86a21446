// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "fieldbench.h"
#include "logcapture.h"

#include <QSignalSpy>
#include <QtTest>

#include <memory>

namespace {

/// What one edit must show, send and announce. "%1" stands for the channel.
struct Edit
{
    const char *name;
    const char *edit;
    const char *text;
    const char *action; ///< the button's name, or "Return"
    const char *shown;
    const char *command;
    const char *announced;
};

// clang-format off
constexpr Edit commonEdits[] = {
    {"ping rate 5 up",               "pingEdit", "5",  "pingUp",   "6",  "*i06....", "Setting Pings Per Second to 6"},
    {"ping rate 5 down",             "pingEdit", "5",  "pingDown", "4",  "*i04....", "Setting Pings Per Second to 4"},
    {"ping rate 5 typed as 8",       "pingEdit", "8",  "Return",   "8",  "*i08....", "Setting Pings Per Second to 8"},
    {"ping rate held at 10",         "pingEdit", "10", "pingUp",   "10", "*i10....", "Setting Pings Per Second to 10"},
    {"ping rate held at 1",          "pingEdit", "1",  "pingDown", "1",  "*i01....", "Setting Pings Per Second to 1"},
    {"ping rate with a fraction is no whole number", "pingEdit", "5.5", "Return", "1", "*i01....", "Setting Pings Per Second to 1"},

    {"velocity 1500 up",             "soundVelocityEdit", "1500", "soundVelocityUp",   "1501", "*v501000", "Setting Sound Velocity to 1501 m/s"},
    {"velocity 1500 down",           "soundVelocityEdit", "1500", "soundVelocityDown", "1499", "*v499000", "Setting Sound Velocity to 1499 m/s"},
    {"velocity with a fraction is shown without it", "soundVelocityEdit", "1456.7", "Return", "1457", "*v456700", "Setting Sound Velocity to 1457 m/s"},
    {"velocity held at 1750",        "soundVelocityEdit", "1750", "soundVelocityUp",   "1750", "*v750000", "Setting Sound Velocity to 1750 m/s"},
    {"velocity held at 1300",        "soundVelocityEdit", "1300", "soundVelocityDown", "1300", "*v300000", "Setting Sound Velocity to 1300 m/s"},

    {"depth 30 up",                  "maxDepthEdit", "30",  "maxDepthUp",   "35",  "*s035000", "Setting Maximum Depth to 35 m"},
    {"depth 30 down",                "maxDepthEdit", "30",  "maxDepthDown", "25",  "*s025000", "Setting Maximum Depth to 25 m"},
    {"depth typed",                  "maxDepthEdit", "42",  "Return",       "42",  "*s042000", "Setting Maximum Depth to 42 m"},
    {"depth 98 up is held at 100",   "maxDepthEdit", "98",  "maxDepthUp",   "100", "*s100000", "Setting Maximum Depth to 100 m"},
    {"depth 5 down is held at 3",    "maxDepthEdit", "5",   "maxDepthDown", "3",   "*s003000", "Setting Maximum Depth to 3 m"},
};

constexpr Edit channelEdits[] = {
    {"draft 0.45 up",                "Draft", "0.45",   "DraftUp",   "0.55",   "*o00550", "Setting %1 Frequency Draft to 0.55 m"},
    {"draft 0.45 down",              "Draft", "0.45",   "DraftDown", "0.35",   "*o00350", "Setting %1 Frequency Draft to 0.35 m"},
    {"draft typed in millimetres is shown in centimetres", "Draft", "12.344", "Return", "12.34", "*o12344", "Setting %1 Frequency Draft to 12.34 m"},
    {"draft 0.05 down is held at 0", "Draft", "0.05",   "DraftDown", "0.00",   "*o00000", "Setting %1 Frequency Draft to 0.00 m"},

    {"index 0.00 up",                "Index", "0.00",   "IndexUp",   "0.10",   "*q00100", "Setting %1 Frequency Index to 0.10 m"},
    {"index 0.20 down",              "Index", "0.20",   "IndexDown", "0.10",   "*q00100", "Setting %1 Frequency Index to 0.10 m"},
    {"index typed",                  "Index", "3.5",    "Return",    "3.50",   "*q03500", "Setting %1 Frequency Index to 3.50 m"},
    {"index 0.00 down is held at 0", "Index", "0.00",   "IndexDown", "0.00",   "*q00000", "Setting %1 Frequency Index to 0.00 m"},

    {"blanking typed",               "Blank", "2.5",    "Return",    "2.50",   "*m02500", "Setting %1 Frequency Blanking to 2.50 m"},
};

constexpr Edit frequencyEdits[] = {
    {"high frequency 200 up",          "highFreq", "200", "highFreqUp",   "201", "*w0201.H", "Setting High Frequency to 201 kHz"},
    {"high frequency 200 down",        "highFreq", "200", "highFreqDown", "199", "*w0199.H", "Setting High Frequency to 199 kHz"},
    {"high frequency typed",           "highFreq", "195", "Return",       "195", "*w0195.H", "Setting High Frequency to 195 kHz"},
    {"high frequency held at 210",     "highFreq", "210", "highFreqUp",   "210", "*w0210.H", "Setting High Frequency to 210 kHz"},
    {"high frequency held at 190",     "highFreq", "190", "highFreqDown", "190", "*w0190.H", "Setting High Frequency to 190 kHz"},
    {"high frequency with a fraction is announced with it", "highFreq", "199.7", "Return", "200", "*w0199.H", "Setting High Frequency to 199.7 kHz"},
    {"low frequency 33 up",            "lowFreq",  "33",  "lowFreqUp",    "34",  "*w0034.L", "Setting Low Frequency to 34 kHz"},
    {"low frequency 33 down",          "lowFreq",  "33",  "lowFreqDown",  "32",  "*w0032.L", "Setting Low Frequency to 32 kHz"},
    {"low frequency typed",            "lowFreq",  "31",  "Return",       "31",  "*w0031.L", "Setting Low Frequency to 31 kHz"},
    {"low frequency held at 36",       "lowFreq",  "36",  "lowFreqUp",    "36",  "*w0036.L", "Setting Low Frequency to 36 kHz"},
    {"low frequency held at 30",       "lowFreq",  "30",  "lowFreqDown",  "30",  "*w0030.L", "Setting Low Frequency to 30 kHz"},
};
// clang-format on

/// What an edit shows and sends at either end of its range, and for a number within.
struct Limits
{
    const char *edit;
    const char *lowest;
    const char *lowestCommand;
    const char *highest;
    const char *highestCommand;
    const char *between;
    const char *betweenShown;
    const char *betweenCommand;
};

// clang-format off
constexpr Limits limits[] = {
    {"soundVelocityEdit", "1300", "*v300000", "1750",   "*v750000", "1600", "1600", "*v600000"},
    {"maxDepthEdit",      "3",    "*s003000", "100",    "*s100000", "7",    "7",    "*s007000"},
    {"highDraft",         "0.00", "*o00000H", "100.00", "*o100000", "7",    "7.00", "*o07000H"},
    {"lowDraft",          "0.00", "*o00000L", "100.00", "*o100000", "7",    "7.00", "*o07000L"},
    {"highIndex",         "0.00", "*q00000H", "100.00", "*q100000", "7",    "7.00", "*q07000H"},
    {"lowIndex",          "0.00", "*q00000L", "100.00", "*q100000", "7",    "7.00", "*q07000L"},
    {"highFreq",          "190",  "*w0190.H", "210",    "*w0210.H", "205",  "205",  "*w0205.H"},
    {"lowFreq",           "30",   "*w0030.L", "36",     "*w0036.L", "35",   "35",   "*w0035.L"},
    {"highBlank",         "0.30", "*m00300H", "10.00",  "*m10000H", "7",    "7.00", "*m07000H"},
    {"lowBlank",          "0.50", "*m00500L", "10.00",  "*m10000L", "7",    "7.00", "*m07000L"},
};
// clang-format on

void addEditColumns()
{
    QTest::addColumn<QString>("edit");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("action");
    QTest::addColumn<QString>("shown");
    QTest::addColumn<QByteArray>("command");
    QTest::addColumn<QString>("announced");
}

void addRow(const Edit &row)
{
    QTest::newRow(row.name) << row.edit << row.text << row.action << row.shown
                            << QByteArray(row.command) << row.announced;
}

void addChannelRow(const Edit &row, const char *channel, const char *prettyChannel, char mark)
{
    const QString action =
        row.action == QByteArray("Return") ? row.action : channel + QString(row.action);
    QTest::addRow("%s %s", channel, row.name)
        << channel + QString(row.edit) << row.text << action << row.shown
        << QByteArray(row.command) + mark << QString(row.announced).arg(prettyChannel);
}

} // namespace

class FieldsTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();

    void aStepOrReturnShowsSendsAndAnnounces_data();
    void aStepOrReturnShowsSendsAndAnnounces();
    void whatIsTypedIsHeldToTheRange_data();
    void whatIsTypedIsHeldToTheRange();
    void aPingRateOfAMillionIsNoWholeNumber();
    void textThatWasTypedIsSteppedFromThere();
    void anUnreadableTextIsSteppedFromZero();
    void maximumDepthIsToldToTheGraphAsShown_data();
    void maximumDepthIsToldToTheGraphAsShown();
    void onlyTheMaximumDepthIsToldToTheGraph();
    void plainFormLogsTheStoredResultAsQueued();
    void unitFormLogsTheRequestedMetricValueAsQueued();

private:
    void edit(const QString &field, const QString &text, const QString &action);

    std::unique_ptr<LogCapture> log;
    std::unique_ptr<FieldBench> bench;
};

void FieldsTest::initTestCase() { bench = std::make_unique<FieldBench>(); }

void FieldsTest::init()
{
    log = std::make_unique<LogCapture>();
    bench->beginEdit();
}

void FieldsTest::cleanup() { log.reset(); }

void FieldsTest::edit(const QString &field, const QString &text, const QString &action)
{
    bench->showTabOf(field);
    QVERIFY2(bench->find<QWidget>(field)->isVisible(), qPrintable(field + " is not shown"));
    bench->overwrite(field, text);
    bench->act(field, action);
    QVERIFY2(bench->awaitAnswer(), qPrintable("the info line stays at " + bench->info()));
}

void FieldsTest::aStepOrReturnShowsSendsAndAnnounces_data()
{
    addEditColumns();
    for (const Edit &row : commonEdits) {
        addRow(row);
    }
    for (const Edit &row : channelEdits) {
        addChannelRow(row, "high", "High", 'H');
        addChannelRow(row, "low", "Low", 'L');
    }
    for (const Edit &row : frequencyEdits) {
        addRow(row);
    }
}

void FieldsTest::aStepOrReturnShowsSendsAndAnnounces()
{
    QFETCH(QString, edit);
    QFETCH(QString, text);
    QFETCH(QString, action);
    this->edit(edit, text, action);
    QTEST(bench->text(edit), "shown");
    QTEST(bench->announcement(), "announced");
    QCOMPARE(bench->result(), QString("Success"));
    QFETCH(QByteArray, command);
    QCOMPARE(bench->settingCommands(), QByteArrayList{command});
}

void FieldsTest::whatIsTypedIsHeldToTheRange_data()
{
    QTest::addColumn<QString>("edit");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("shown");
    QTest::addColumn<QByteArray>("command");

    // clang-format off
    constexpr const char *lowestTexts[] = {"", "abc", "nan", "inf", "-5", "1 000", "12m", "-1e9", "1e99"};
    // clang-format on
    for (const Limits &row : limits) {
        for (const char *text : lowestTexts) {
            QTest::addRow("%s \"%s\"", row.edit, text)
                << row.edit << text << row.lowest << QByteArray(row.lowestCommand);
        }
        for (const char *text : {"1e9", "100000"}) {
            QTest::addRow("%s \"%s\"", row.edit, text)
                << row.edit << text << row.highest << QByteArray(row.highestCommand);
        }
        QTest::addRow("%s \"  %s \" with blanks around it", row.edit, row.between)
            << row.edit << "  " + QString(row.between) + " " << row.betweenShown
            << QByteArray(row.betweenCommand);
    }
    for (const char *text : {"", "abc", "nan", "inf", "-5", "0,45", "7.5"}) {
        QTest::addRow("pingEdit \"%s\"", text)
            << "pingEdit" << text << "1" << QByteArray("*i01....");
    }
    QTest::newRow("pingEdit \"999999\"") << "pingEdit"
                                         << "999999"
                                         << "10" << QByteArray("*i10....");
    QTest::newRow("pingEdit \" 7 \"") << "pingEdit"
                                      << " 7 "
                                      << "7" << QByteArray("*i07....");
}

void FieldsTest::whatIsTypedIsHeldToTheRange()
{
    QFETCH(QString, edit);
    QFETCH(QString, typed);
    QFETCH(QByteArray, command);
    this->edit(edit, typed, "Return");
    QTEST(bench->text(edit), "shown");
    QCOMPARE(bench->settingCommands(), QByteArrayList{command});
}

/// Six significant digits write a million as "1e+06", which does not read as a whole number.
void FieldsTest::aPingRateOfAMillionIsNoWholeNumber()
{
    edit("pingEdit", "1000000", "Return");
    QCOMPARE(bench->text("pingEdit"), QString("1"));
    QCOMPARE(bench->settingCommands(), QByteArrayList{"*i01...."});
}

void FieldsTest::textThatWasTypedIsSteppedFromThere()
{
    edit("soundVelocityEdit", "1450", "soundVelocityUp");
    QCOMPARE(bench->text("soundVelocityEdit"), QString("1451"));
}

void FieldsTest::anUnreadableTextIsSteppedFromZero()
{
    edit("highDraft", "deep", "highDraftUp");
    QCOMPARE(bench->text("highDraft"), QString("0.10"));
    QCOMPARE(bench->settingCommands(), QByteArrayList{"*o00100H"});
}

void FieldsTest::maximumDepthIsToldToTheGraphAsShown_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("action");
    QTest::addColumn<float>("told");

    QTest::newRow("30 up") << "30"
                           << "maxDepthUp" << 35.0F;
    QTest::newRow("30 down") << "30"
                             << "maxDepthDown" << 25.0F;
    QTest::newRow("typed") << "60"
                           << "Return" << 60.0F;
    QTest::newRow("typed beyond the range: the highest") << "250"
                                                         << "Return" << 100.0F;
    QTest::newRow("typed below the range: the lowest") << "1"
                                                       << "Return" << 3.0F;
    QTest::newRow("rubbish: the lowest") << "deep"
                                         << "Return" << 3.0F;
    QTest::newRow("a fraction, which the edit does not show") << "42.4"
                                                              << "Return" << 42.0F;
}

void FieldsTest::maximumDepthIsToldToTheGraphAsShown()
{
    QFETCH(QString, text);
    QFETCH(QString, action);
    QFETCH(float, told);
    const QSignalSpy maxDepth(&bench->window, &MainWindow::setMaxDepth);
    edit("maxDepthEdit", text, action);
    QCOMPARE(maxDepth.size(), 1);
    QCOMPARE(maxDepth.first().first().toFloat(), told);
    QVERIFY(log->contains("Setting Max Depth To " + QString::number(double(told))));
}

void FieldsTest::onlyTheMaximumDepthIsToldToTheGraph()
{
    const QSignalSpy maxDepth(&bench->window, &MainWindow::setMaxDepth);
    edit("soundVelocityEdit", "1500", "Return");
    edit("highDraft", "0.40", "Return");
    edit("highBlank", "0.45", "Return");
    edit("pingEdit", "5", "Return");
    QCOMPARE(maxDepth.size(), 0);
}

void FieldsTest::plainFormLogsTheStoredResultAsQueued()
{
    edit("pingEdit", "25", "Return");
    const QStringList texts = log->texts();
    const int first = texts.indexOf("tmp =  25");
    QVERIFY2(first >= 0, qPrintable(texts.join('\n')));
    QCOMPARE(texts.mid(first, 5),
             (QStringList{"tmp =  25", "Changing  \"Ping\"  to  \"25\"",
                          "current value is  \"25\"  next is  25  res is  10", "Triggering",
                          "trigger change  \"Ping\"  to  \"10\""}));
}

void FieldsTest::unitFormLogsTheRequestedMetricValueAsQueued()
{
    edit("highDraft", "250", "Return");
    const QStringList texts = log->texts();
    const int first = texts.indexOf("Attempted Displayed Value is   250");
    QVERIFY2(first >= 0, qPrintable(texts.join('\n')));
    QCOMPARE(texts.mid(first, 7),
             (QStringList{"Attempted Displayed Value is   250",
                          " After Conversion to Metric this becomes  250",
                          "Changing  \"highDraft\"  to  \"250\"",
                          " After trying to change the setting in metric, we now have  100",
                          "current value is  \"250\"  metric is  250  res is  100", "Triggering",
                          "trigger change  \"highDraft\"  to  \"250\""}));
}

QTEST_MAIN(FieldsTest)

#include "tst_fields.moc"
