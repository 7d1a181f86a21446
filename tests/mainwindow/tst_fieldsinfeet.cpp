// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "fieldbench.h"
#include "logcapture.h"

#include <QSignalSpy>
#include <QtTest>

#include <memory>

namespace {

/// An edit while feet are shown: what the operator then sees, the metric text that is kept, what is
/// sent (metric too) and what is announced. "%1" stands for the channel.
struct Edit
{
    const char *name;
    const char *edit;
    const char *text;
    const char *action; ///< the button's name, or "Return"
    const char *shown;
    const char *kept;
    const char *command;
    const char *announced;
};

// clang-format off
constexpr Edit commonEdits[] = {
    {"velocity 4921 ft/s up",            "soundVelocityEdit", "4921", "soundVelocityUp",   "4922", "1500.23", "*v500230", "Setting Sound Velocity to 4922 ft/s"},
    {"velocity 4921 ft/s down",          "soundVelocityEdit", "4921", "soundVelocityDown", "4920", "1499.62", "*v499620", "Setting Sound Velocity to 4920 ft/s"},
    {"velocity typed as 5000 ft/s",      "soundVelocityEdit", "5000", "Return",            "5000", "1524",    "*v524000", "Setting Sound Velocity to 5000 ft/s"},
    {"velocity held at 1750 m/s",        "soundVelocityEdit", "7000", "Return",            "5741", "1750",    "*v750000", "Setting Sound Velocity to 5741 ft/s"},
    {"velocity held at 1300 m/s",        "soundVelocityEdit", "1500", "Return",            "4265", "1300",    "*v300000", "Setting Sound Velocity to 4265 ft/s"},

    {"depth 100 ft up",                  "maxDepthEdit", "100", "maxDepthUp",   "105", "32.004", "*s032004", "Setting Maximum Depth to 105 ft"},
    {"depth 100 ft down",                "maxDepthEdit", "100", "maxDepthDown", "95",  "28.956", "*s028956", "Setting Maximum Depth to 95 ft"},
    {"depth typed as 120 ft",            "maxDepthEdit", "120", "Return",       "120", "36.576", "*s036576", "Setting Maximum Depth to 120 ft"},
    {"depth 325 ft up is held at 100 m", "maxDepthEdit", "325", "maxDepthUp",   "328", "100",    "*s100000", "Setting Maximum Depth to 328 ft"},
    {"depth 10 ft down is held at 3 m",  "maxDepthEdit", "10",  "maxDepthDown", "10",  "3",      "*s003000", "Setting Maximum Depth to 10 ft"},

    {"ping rate is not converted",       "pingEdit", "5",   "pingUp",     "6",   "6",   "*i06....", "Setting Pings Per Second to 6"},
    {"ping rate typed is not converted", "pingEdit", "9",   "Return",     "9",   "9",   "*i09....", "Setting Pings Per Second to 9"},
    {"high frequency is not converted",  "highFreq", "200", "highFreqUp", "201", "201", "*w0201.H", "Setting High Frequency to 201 kHz"},
    {"high frequency typed is not converted", "highFreq", "195", "Return", "195", "195", "*w0195.H", "Setting High Frequency to 195 kHz"},
    {"low frequency is not converted",   "lowFreq",  "33",  "lowFreqDown", "32", "32",  "*w0032.L", "Setting Low Frequency to 32 kHz"},
    {"low frequency typed is not converted", "lowFreq", "35", "Return",   "35",  "35",  "*w0035.L", "Setting Low Frequency to 35 kHz"},
};

constexpr Edit channelEdits[] = {
    {"draft 1.48 ft up",          "Draft", "1.48", "DraftUp",   "1.58", "0.481584", "*o00481", "Setting %1 Frequency Draft to 1.58 ft"},
    {"draft 1.48 ft down",        "Draft", "1.48", "DraftDown", "1.38", "0.420624", "*o00420", "Setting %1 Frequency Draft to 1.38 ft"},
    {"draft typed as 1 ft",       "Draft", "1",    "Return",    "1.00", "0.3048",   "*o00304", "Setting %1 Frequency Draft to 1.00 ft"},
    {"draft 0.05 ft down is held at 0", "Draft", "0.05", "DraftDown", "0.00", "0",  "*o00000", "Setting %1 Frequency Draft to 0.00 ft"},
    {"index 1.00 ft up",          "Index", "1.00", "IndexUp",   "1.10", "0.33528",  "*q00335", "Setting %1 Frequency Index to 1.10 ft"},
    {"index 1.48 ft down",        "Index", "1.48", "IndexDown", "1.38", "0.420624", "*q00420", "Setting %1 Frequency Index to 1.38 ft"},
    {"index typed as 1 ft",       "Index", "1",    "Return",    "1.00", "0.3048",   "*q00304", "Setting %1 Frequency Index to 1.00 ft"},
    {"blanking typed as 5 ft",    "Blank", "5",    "Return",    "5.00", "1.524",    "*m01524", "Setting %1 Frequency Blanking to 5.00 ft"},
    {"blanking held at 10 m",     "Blank", "40",   "Return",    "32.81", "10",      "*m10000", "Setting %1 Frequency Blanking to 32.81 ft"},
};

constexpr Edit blankingLimits[] = {
    {"low blanking of 1 ft is held at 0.5 m",     "lowBlank",  "1",   "Return", "1.64", "0.5",    "*m00500L", "Setting Low Frequency Blanking to 1.64 ft"},
    {"high blanking of 1 ft is kept",             "highBlank", "1",   "Return", "1.00", "0.3048", "*m00304H", "Setting High Frequency Blanking to 1.00 ft"},
    {"high blanking of 0.5 ft is held at 0.3 m",  "highBlank", "0.5", "Return", "0.98", "0.3",    "*m00300H", "Setting High Frequency Blanking to 0.98 ft"},
};
// clang-format on

void addRow(const QString &name, const Edit &row, const QString &edit, const QString &action,
            const QByteArray &command, const QString &announced)
{
    QTest::newRow(qPrintable(name))
        << edit << row.text << action << row.shown << row.kept << command << announced;
}

void addChannelRow(const Edit &row, const QString &prefix, const QString &channel, char mark)
{
    const QString action = row.action;
    addRow(prefix + " " + row.name, row, prefix + row.edit,
           action == "Return" ? action : prefix + action, QByteArray(row.command) + mark,
           QString(row.announced).arg(channel));
}

} // namespace

class FieldsInFeetTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();

    void aStepOrReturnInFeetIsKeptAndSentInMetres_data();
    void aStepOrReturnInFeetIsKeptAndSentInMetres();
    void aDraftOfAHundredMetresIsShownInFeet();
    void whatIsUnreadableIsHeldToTheLowestMetricValue_data();
    void whatIsUnreadableIsHeldToTheLowestMetricValue();
    void maximumDepthIsToldToTheGraphInMetres_data();
    void maximumDepthIsToldToTheGraphInMetres();
    void unitFormLogsBothUnits();

private:
    void edit(const QString &field, const QString &text, const QString &action);

    std::unique_ptr<LogCapture> log;
    std::unique_ptr<FieldBench> bench;
};

void FieldsInFeetTest::initTestCase()
{
    bench = std::make_unique<FieldBench>(FieldBench::Unit::Imperial);
}

void FieldsInFeetTest::init()
{
    log = std::make_unique<LogCapture>();
    bench->beginEdit();
}

void FieldsInFeetTest::cleanup() { log.reset(); }

void FieldsInFeetTest::edit(const QString &field, const QString &text, const QString &action)
{
    bench->showTabOf(field);
    bench->overwrite(field, text);
    bench->act(field, action);
    QVERIFY2(bench->awaitAnswer(), qPrintable("the info line stays at " + bench->info()));
}

void FieldsInFeetTest::aStepOrReturnInFeetIsKeptAndSentInMetres_data()
{
    QTest::addColumn<QString>("edit");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("action");
    QTest::addColumn<QString>("shown");
    QTest::addColumn<QString>("kept");
    QTest::addColumn<QByteArray>("command");
    QTest::addColumn<QString>("announced");

    for (const Edit &row : commonEdits) {
        addRow(row.name, row, row.edit, row.action, row.command, row.announced);
    }
    for (const Edit &row : channelEdits) {
        addChannelRow(row, "high", "High", 'H');
        addChannelRow(row, "low", "Low", 'L');
    }
    for (const Edit &row : blankingLimits) {
        addRow(row.name, row, row.edit, row.action, row.command, row.announced);
    }
}

void FieldsInFeetTest::aStepOrReturnInFeetIsKeptAndSentInMetres()
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
    QFETCH(QString, kept);
    QVERIFY2(log->contains(" value is  \"" + kept + "\""), qPrintable(log->texts().join('\n')));
}

/// Its command fills all eight places, so that no channel stands in it and the sounder refuses it.
void FieldsInFeetTest::aDraftOfAHundredMetresIsShownInFeet()
{
    edit("highDraft", "400", "Return");
    QCOMPARE(bench->text("highDraft"), QString("328.08"));
    QCOMPARE(bench->announcement(), QString("Setting High Frequency Draft to 328.08 ft"));
    QCOMPARE(bench->settingCommands(), QByteArrayList{"*o100000"});
}

void FieldsInFeetTest::whatIsUnreadableIsHeldToTheLowestMetricValue_data()
{
    QTest::addColumn<QString>("edit");
    QTest::addColumn<QString>("shown");
    QTest::addColumn<QByteArray>("command");

    QTest::newRow("velocity") << "soundVelocityEdit"
                              << "4265" << QByteArray("*v300000");
    QTest::newRow("depth") << "maxDepthEdit"
                           << "10" << QByteArray("*s003000");
    QTest::newRow("high draft") << "highDraft"
                                << "0.00" << QByteArray("*o00000H");
    QTest::newRow("low index") << "lowIndex"
                               << "0.00" << QByteArray("*q00000L");
    QTest::newRow("high blanking") << "highBlank"
                                   << "0.98" << QByteArray("*m00300H");
    QTest::newRow("low blanking") << "lowBlank"
                                  << "1.64" << QByteArray("*m00500L");
    QTest::newRow("ping rate") << "pingEdit"
                               << "1" << QByteArray("*i01....");
    QTest::newRow("low frequency") << "lowFreq"
                                   << "30" << QByteArray("*w0030.L");
}

void FieldsInFeetTest::whatIsUnreadableIsHeldToTheLowestMetricValue()
{
    QFETCH(QString, edit);
    QFETCH(QByteArray, command);
    this->edit(edit, "1,5 ft", "Return");
    QTEST(bench->text(edit), "shown");
    QCOMPARE(bench->settingCommands(), QByteArrayList{command});
}

void FieldsInFeetTest::maximumDepthIsToldToTheGraphInMetres_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("action");
    QTest::addColumn<float>("told");

    QTest::newRow("100 ft up") << "100"
                               << "maxDepthUp" << 32.004F;
    QTest::newRow("100 ft down") << "100"
                                 << "maxDepthDown" << 28.956F;
    // 100 m and 3 m as the edit shows them: 328 ft and 10 ft.
    QTest::newRow("400 ft, held at 100 m") << "400"
                                           << "Return" << 99.9744F;
    QTest::newRow("1 ft, held at 3 m") << "1"
                                       << "Return" << 3.048F;
}

void FieldsInFeetTest::maximumDepthIsToldToTheGraphInMetres()
{
    QFETCH(QString, text);
    QFETCH(QString, action);
    const QSignalSpy maxDepth(&bench->window, &MainWindow::setMaxDepth);
    edit("maxDepthEdit", text, action);
    QCOMPARE(maxDepth.size(), 1);
    QTEST(maxDepth.first().first().toFloat(), "told");
}

void FieldsInFeetTest::unitFormLogsBothUnits()
{
    edit("highDraft", "1", "Return");
    const QStringList texts = log->texts();
    const int first = texts.indexOf("Attempted Displayed Value is   1");
    QVERIFY2(first >= 0, qPrintable(texts.join('\n')));
    QCOMPARE(texts.mid(first, 8),
             (QStringList{"Attempted Displayed Value is   1",
                          " After Conversion to Metric this becomes  0.3048",
                          "Changing  \"highDraft\"  to  \"0.3048\"",
                          " After trying to change the setting in metric, we now have  0.3048",
                          " Result in Imperial is now  1",
                          "current value is  \"1\"  metric is  0.3048  res is  1", "Triggering",
                          "trigger change  \"highDraft\"  to  \"0.3048\""}));
}

QTEST_MAIN(FieldsInFeetTest)

#include "tst_fieldsinfeet.moc"
