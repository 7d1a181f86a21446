// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "fieldbench.h"
#include "logcapture.h"

#include <QSlider>
#include <QtTest>

#include <memory>

/// Return in a blanking edit: the one field that stands in three places, the edit, the label and
/// the slider.
class BlankingEntryTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();

    void returnShowsTheBlankingInAllThreePlaces_data();
    void returnShowsTheBlankingInAllThreePlaces();
    void theSliderFollowsTheTypedTextNotTheKeptValue_data();
    void theSliderFollowsTheTypedTextNotTheKeptValue();
    void theSliderThatFollowsChangesNothing();
    void theSliderActsAgainAfterwards();
    void theOtherChannelStaysAsItIs();

private:
    void enter(FieldBench &bench, const QString &channel, const QString &text);
    FieldBench &benchFor(bool inFeet) { return inFeet ? *feet : *metres; }

    std::unique_ptr<LogCapture> log;
    std::unique_ptr<FieldBench> metres;
    std::unique_ptr<FieldBench> feet;
};

void BlankingEntryTest::initTestCase()
{
    metres = std::make_unique<FieldBench>(FieldBench::Unit::Metric);
    feet = std::make_unique<FieldBench>(FieldBench::Unit::Imperial);
}

void BlankingEntryTest::init() { log = std::make_unique<LogCapture>(); }

void BlankingEntryTest::cleanup() { log.reset(); }

void BlankingEntryTest::enter(FieldBench &bench, const QString &channel, const QString &text)
{
    bench.beginEdit();
    log->clear();
    bench.showTabOf(channel + "Blank");
    bench.overwrite(channel + "Blank", text);
    bench.act(channel + "Blank", "Return");
    QVERIFY2(bench.awaitAnswer(), qPrintable("the info line stays at " + bench.info()));
}

void BlankingEntryTest::returnShowsTheBlankingInAllThreePlaces_data()
{
    QTest::addColumn<bool>("inFeet");
    QTest::addColumn<QString>("channel");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("shown");
    QTest::addColumn<QString>("beside");
    QTest::addColumn<int>("position");
    QTest::addColumn<QByteArray>("command");

    // clang-format off
    constexpr struct
    {
        const char *channel;
        const char *typed;
        const char *shown;
        const char *beside;
        const char *command;
        int position;
        bool inFeet;
    } rows[] = {
        {"high", "2.5",  "2.50",  "2.50 m",   "*m02500H", 250,  false},
        {"low",  "2.5",  "2.50",  "2.50 m",   "*m02500L", 250,  false},
        {"high", "20",   "10.00", "10.00 m",  "*m10000H", 1000, false},
        {"low",  "20",   "10.00", "10.00 m",  "*m10000L", 1000, false},
        {"high", "0.1",  "0.30",  "0.30 m",   "*m00300H", 30,   false},
        {"low",  "0.45", "0.50",  "0.50 m",   "*m00500L", 50,   false},
        {"high", "near", "0.30",  "0.30 m",   "*m00300H", 30,   false},
        {"low",  "",     "0.50",  "0.50 m",   "*m00500L", 50,   false},
        {"high", "-5",   "0.30",  "0.30 m",   "*m00300H", 30,   false},
        {"high", "1e9",  "10.00", "10.00 m",  "*m10000H", 1000, false},
        {"low",  "-1e9", "0.50",  "0.50 m",   "*m00500L", 50,   false},
        {"high", "5",    "5.00",  "5.00 ft",  "*m01524H", 500,  true},
        {"low",  "5",    "5.00",  "5.00 ft",  "*m01524L", 500,  true},
        {"high", "40",   "32.81", "32.81 ft", "*m10000H", 3000, true},
        {"high", "0.5",  "0.98",  "0.98 ft",  "*m00300H", 100,  true},
        {"low",  "1",    "1.64",  "1.64 ft",  "*m00500L", 200,  true},
    };
    // clang-format on
    for (const auto &row : rows) {
        QTest::addRow("%s \"%s\" %s", row.channel, row.typed, row.inFeet ? "ft" : "m")
            << row.inFeet << row.channel << row.typed << row.shown << row.beside << row.position
            << QByteArray(row.command);
    }
}

void BlankingEntryTest::returnShowsTheBlankingInAllThreePlaces()
{
    QFETCH(bool, inFeet);
    QFETCH(QString, channel);
    QFETCH(QString, typed);
    FieldBench &bench = benchFor(inFeet);
    enter(bench, channel, typed);
    QTEST(bench.text(channel + "Blank"), "shown");
    QTEST(bench.text(channel + "BlankEdit"), "beside");
    QTEST(bench.find<QSlider>(channel + "BlankingSlider")->value(), "position");
    QFETCH(QByteArray, command);
    QCOMPARE(bench.settingCommands(), QByteArrayList{command});
}

/// Deliberate: the position comes from the typed text, also where rounding makes the kept value
/// another one.
void BlankingEntryTest::theSliderFollowsTheTypedTextNotTheKeptValue_data()
{
    QTest::addColumn<bool>("inFeet");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("shown");
    QTest::addColumn<int>("position");

    QTest::newRow("9.999999 m is kept as 10 m") << false << "9.999999"
                                                << "10.00" << 999;
    QTest::newRow("1.009 m is shown as 1.01 m") << false << "1.009"
                                                << "1.01" << 100;
    QTest::newRow("29.99 ft is kept as 9.14095 m, which is less") << true << "29.99"
                                                                  << "29.99" << 2999;
}

void BlankingEntryTest::theSliderFollowsTheTypedTextNotTheKeptValue()
{
    QFETCH(bool, inFeet);
    QFETCH(QString, typed);
    FieldBench &bench = benchFor(inFeet);
    enter(bench, "high", typed);
    QTEST(bench.text("highBlank"), "shown");
    QTEST(bench.find<QSlider>("highBlankingSlider")->value(), "position");
}

/// The slider's own steps are coarser than what was typed: it must not overwrite it.
void BlankingEntryTest::theSliderThatFollowsChangesNothing()
{
    enter(*metres, "high", "1.009");
    QCOMPARE(log->count("trigger change"), 1);
    QCOMPARE(metres->settingCommands(), QByteArrayList{"*m01008H"});
    QCOMPARE(metres->text("highBlank"), QString("1.01"));
}

void BlankingEntryTest::theSliderActsAgainAfterwards()
{
    enter(*metres, "high", "2");
    metres->beginEdit();
    metres->find<QSlider>("highBlankingSlider")->setValue(300);
    QVERIFY(metres->awaitAnswer());
    QCOMPARE(metres->text("highBlank"), QString("3.00"));
    QCOMPARE(metres->settingCommands(), QByteArrayList{"*m03000H"});
}

void BlankingEntryTest::theOtherChannelStaysAsItIs()
{
    enter(*metres, "low", "4");
    enter(*metres, "high", "6");
    QCOMPARE(metres->text("lowBlank"), QString("4.00"));
    QCOMPARE(metres->text("lowBlankEdit"), QString("4.00 m"));
    QCOMPARE(metres->find<QSlider>("lowBlankingSlider")->value(), 400);
}

QTEST_MAIN(BlankingEntryTest)

#include "tst_blankingentry.moc"
