// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "fieldbench.h"
#include "logcapture.h"

#include <QtTest>

#include <memory>

/// One change, all the way from the operator's hand to what the sounder holds and back.
class ChangeRoadTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void aClickOnPlusIsHeldByTheSounder_data();
    void aClickOnPlusIsHeldByTheSounder();
    void aClickOnPlusInFeetIsHeldInMillimetres_data();
    void aClickOnPlusInFeetIsHeldInMillimetres();
    void tenQuickClicksAreOneCommand_data();
    void tenQuickClicksAreOneCommand();
    void bothChannelsAreHeldApart();
    void aRefusedDepthAdvisesFewerPings();
    void aRefusedPingRateAdvisesLessDepth();
    void anyOtherRefusalGivesNoAdvice_data();
    void anyOtherRefusalGivesNoAdvice();
    void aDraftOfAHundredMetresCarriesNoChannelAndIsRefused_data();
    void aDraftOfAHundredMetresCarriesNoChannelAndIsRefused();
    void theNextConnectionShowsWhatTheSounderHolds();
    void whatTheSounderRefusedIsGoneAtTheNextConnection();

private:
    ChannelSettings &held(const QString &channel);
    void addChannelRows();

    std::unique_ptr<LogCapture> log;
    std::unique_ptr<FieldBench> bench;
};

namespace {

QString pretty(const QString &channel) { return channel == "high" ? "High" : "Low"; }

QByteArray mark(const QString &channel) { return channel == "high" ? "H" : "L"; }

} // namespace

void ChangeRoadTest::init()
{
    log = std::make_unique<LogCapture>();
    bench = std::make_unique<FieldBench>();
    bench->device().clearTranscript();
}

void ChangeRoadTest::cleanup()
{
    bench.reset();
    log.reset();
}

ChannelSettings &ChangeRoadTest::held(const QString &channel)
{
    SounderSettings &settings = bench->device().settings();
    return channel == "high" ? settings.high : settings.low;
}

void ChangeRoadTest::addChannelRows()
{
    QTest::addColumn<QString>("channel");
    QTest::newRow("high") << "high";
    QTest::newRow("low") << "low";
}

void ChangeRoadTest::aClickOnPlusIsHeldByTheSounder_data() { addChannelRows(); }

void ChangeRoadTest::aClickOnPlusIsHeldByTheSounder()
{
    QFETCH(QString, channel);
    held(channel).draftMm = 0; // so that only the command can make it 500
    QCOMPARE(bench->text(channel + "Draft"), QString("0.40"));
    bench->timer("commandTimer")->setInterval(500);
    bench->showTabOf(channel + "DraftUp");
    bench->click(channel + "DraftUp");
    QCOMPARE(bench->text(channel + "Draft"), QString("0.50"));
    QVERIFY(bench->awaitAnswer());
    QCOMPARE(bench->info(),
             "Setting " + pretty(channel) + " Frequency Draft to 0.50 m ... Success");
    QCOMPARE(bench->infoColour(), QString("Green"));
    QCOMPARE(held(channel).draftMm, 500);
    QCOMPARE(bench->settingCommands(), QByteArrayList{"*o00500" + mark(channel)});
}

void ChangeRoadTest::aClickOnPlusInFeetIsHeldInMillimetres_data() { addChannelRows(); }

void ChangeRoadTest::aClickOnPlusInFeetIsHeldInMillimetres()
{
    QFETCH(QString, channel);
    bench = nullptr;
    bench = std::make_unique<FieldBench>(FieldBench::Unit::Imperial);
    bench->showTabOf(channel + "DraftUp");
    QCOMPARE(bench->text(channel + "Draft"), QString("1.31")); // 400 mm
    bench->click(channel + "DraftUp");
    QCOMPARE(bench->text(channel + "Draft"), QString("1.41"));
    QVERIFY(bench->awaitAnswer());
    QCOMPARE(bench->info(),
             "Setting " + pretty(channel) + " Frequency Draft to 1.41 ft ... Success");
    QCOMPARE(held(channel).draftMm, 429);
}

void ChangeRoadTest::tenQuickClicksAreOneCommand_data() { addChannelRows(); }

void ChangeRoadTest::tenQuickClicksAreOneCommand()
{
    QFETCH(QString, channel);
    bench->timer("commandTimer")->setInterval(500);
    bench->showTabOf(channel + "DraftUp");
    for (int click = 0; click < 10; ++click) {
        bench->click(channel + "DraftUp");
    }
    QVERIFY(bench->awaitAnswer());
    QCOMPARE(bench->text(channel + "Draft"), QString("1.40"));
    QCOMPARE(bench->settingCommands(), QByteArrayList{"*o01400" + mark(channel)});
    QCOMPARE(held(channel).draftMm, 1400);
}

void ChangeRoadTest::bothChannelsAreHeldApart()
{
    bench->type("highIndex", "1.25");
    bench->type("lowIndex", "2.5");
    QTRY_COMPARE(held("low").indexMm, 2500);
    QCOMPARE(held("high").indexMm, 1250);
    QCOMPARE(bench->text("highIndex"), QString("1.25"));
    QCOMPARE(bench->text("lowIndex"), QString("2.50"));
}

/// Ten pings a second do not leave time for echoes from 80 m.
void ChangeRoadTest::aRefusedDepthAdvisesFewerPings()
{
    bench->device().settings().pings = 10;
    bench->type("maxDepthEdit", "80");
    QVERIFY(bench->awaitAnswer());
    QCOMPARE(bench->info(), QString("Setting Maximum Depth to 80 m ... not applied. "
                                    "Reduce pings per second"));
    QCOMPARE(bench->infoColour(), QString("Red"));
    QCOMPARE(bench->text("maxDepthEdit"), QString("80"));
    QCOMPARE(bench->device().settings().maxDepthMm, 30000);
}

void ChangeRoadTest::aRefusedPingRateAdvisesLessDepth()
{
    bench->device().settings().maxDepthMm = 100000;
    bench->type("pingEdit", "9");
    QVERIFY(bench->awaitAnswer());
    QCOMPARE(bench->info(), QString("Setting Pings Per Second to 9 ... not applied. "
                                    "Reduce maximum depth"));
    QCOMPARE(bench->infoColour(), QString("Red"));
    QCOMPARE(bench->text("pingEdit"), QString("9"));
    QCOMPARE(bench->device().settings().pings, 5);
}

void ChangeRoadTest::anyOtherRefusalGivesNoAdvice_data() { addChannelRows(); }

void ChangeRoadTest::anyOtherRefusalGivesNoAdvice()
{
    QFETCH(QString, channel);
    QVERIFY(bench->device().setFault("refuse", 1).isEmpty());
    bench->showTabOf(channel + "DraftUp");
    bench->click(channel + "DraftUp");
    QVERIFY(bench->awaitAnswer());
    QCOMPARE(bench->info(), "Setting " + pretty(channel) +
                                " Frequency Draft to 0.50 m ... Received Error - Command Not "
                                "Applied");
    QCOMPARE(bench->infoColour(), QString("Red"));
    QCOMPARE(bench->text(channel + "Draft"), QString("0.50"));
    QCOMPARE(held(channel).draftMm, 400);
}

void ChangeRoadTest::aDraftOfAHundredMetresCarriesNoChannelAndIsRefused_data() { addChannelRows(); }

/// Deliberate: a command that fills all eight places goes out as it is.
void ChangeRoadTest::aDraftOfAHundredMetresCarriesNoChannelAndIsRefused()
{
    QFETCH(QString, channel);
    bench->showTabOf(channel + "Draft");
    bench->type(channel + "Draft", "100");
    QVERIFY(bench->awaitAnswer());
    QCOMPARE(bench->settingCommands(), QByteArrayList{"*o100000"});
    QCOMPARE(bench->result(), QString("Received Error - Command Not Applied"));
    QCOMPARE(held("high").draftMm, 400);
    QCOMPARE(held("low").draftMm, 400);
}

void ChangeRoadTest::theNextConnectionShowsWhatTheSounderHolds()
{
    bench->type("lowDraft", "1.23");
    QVERIFY(bench->awaitAnswer());
    bench->click("connectToDevice");
    QVERIFY(bench->connectToSounder());
    QCOMPARE(bench->text("lowDraft"), QString("1.23"));
    QCOMPARE(bench->text("highDraft"), QString("0.40"));
}

void ChangeRoadTest::whatTheSounderRefusedIsGoneAtTheNextConnection()
{
    QVERIFY(bench->device().setFault("refuse", 1).isEmpty());
    bench->type("soundVelocityEdit", "1600");
    QVERIFY(bench->awaitAnswer());
    QCOMPARE(bench->text("soundVelocityEdit"), QString("1600"));
    bench->click("connectToDevice");
    QVERIFY(bench->connectToSounder());
    QCOMPARE(bench->text("soundVelocityEdit"), QString("1500"));
}

QTEST_MAIN(ChangeRoadTest)

#include "tst_changeroad.moc"
