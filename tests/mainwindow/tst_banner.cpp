// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "logcapture.h"
#include "reportbench.h"

#include <QSignalSpy>
#include <QTabWidget>
#include <QtTest>

#include <memory>

/// The line by which the sounder names itself: it completes the connection, and later ones count
/// for nothing.
class TestBanner : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void bannerConnectsAndNamesTheUnit_data();
    void bannerConnectsAndNamesTheUnit();
    void bannerTellsTheGraphAndChoosesTheTab_data();
    void bannerTellsTheGraphAndChoosesTheTab();
    void bannerWithoutAFitLeavesTheLastUnitsTab();
    void bannerIsFollowedByThreeRequestsInOrder();
    void bannerEndsTheSearchAtTheRateBeingTried();
    void bannerStopsWaitingForAnAnswerAndLookingForPorts();
    void silenceAfterTheBannerIsALostConnection_data();
    void silenceAfterTheBannerIsALostConnection();
    void bannerIsLogged();
    void otherLineDoesNotConnect_data();
    void otherLineDoesNotConnect();
    void bannerWhileConnectedIsIgnored_data();
    void bannerWhileConnectedIsIgnored();
    void bannerCountsAgainAfterADisconnect();
    void sounderIsShownWithWhatItIs_data();
    void sounderIsShownWithWhatItIs();

private:
    QString shownTab() { return bench->find<QTabWidget>("h")->currentWidget()->objectName(); }

    std::unique_ptr<ReportBench> bench;
};

void TestBanner::init() { bench = std::make_unique<ReportBench>(); }

void TestBanner::cleanup() { bench.reset(); }

void TestBanner::bannerConnectsAndNamesTheUnit_data()
{
    QTest::addColumn<QByteArray>("line");
    QTest::addColumn<QString>("title");
    const auto row = [](const char *line, const char *title) {
        QTest::newRow(line) << QByteArray(line) << QString(title);
    };
    row("TalVero New Dual 2.14.7", "TAL-VERO Firmware Version: 2.14.7 (Dual Frequency)");
    row("TalVero New HF 2.14.7", "TAL-VERO Firmware Version: 2.14.7 (High Frequency Only)");
    row("TalVero New LF 2.14.7", "TAL-VERO Firmware Version: 2.14.7 (Low Frequency Only)");
    row("Talvero Dual 12.34.56", "TAL-VERO Firmware Version: 12.34.56 (Dual Frequency)");
    row("TalVero HF and LF 1.2.3", "TAL-VERO Firmware Version: 1.2.3 (High Frequency Only)");
    row("TalVero Dual LF 1.2.3", "TAL-VERO Firmware Version: 1.2.3 (Low Frequency Only)");
    row("TalVero", "TAL-VERO Firmware Version: ");
    row("Talvero", "TAL-VERO Firmware Version: ");
    row("TalVero New 2.14.7", "TAL-VERO Firmware Version: 2.14.7");
    row("TalVero New Dual", "TAL-VERO Firmware Version:  (Dual Frequency)");
    row("TalVero New Dual 2.14", "TAL-VERO Firmware Version:  (Dual Frequency)");
    row("TalVero New Dual 2-14x7", "TAL-VERO Firmware Version: 2-14x7 (Dual Frequency)");
    row("TalVero New Dual 2.14.789", "TAL-VERO Firmware Version: 2.14.78 (Dual Frequency)");
    row("TalVero New Dual 1.2.3 4.5.6", "TAL-VERO Firmware Version: 1.2.3 (Dual Frequency)");
    row("New", " Firmware Version: ");
    row("xNewx 2.14.7 dual", " Firmware Version: 2.14.7");
    row("OK New Dual 2.14.7", " Firmware Version: 2.14.7 (Dual Frequency)");
    row("ERR TalVero", "TAL-VERO Firmware Version: ");
    row("*i5,vNew", " Firmware Version: ");
    row("*HaNew,HF", " Firmware Version:  (High Frequency Only)");
}

void TestBanner::bannerConnectsAndNamesTheUnit()
{
    QFETCH(QByteArray, line);
    QFETCH(QString, title);
    QVERIFY(bench->startConnecting());
    QVERIFY(!bench->showsConnected());
    QVERIFY(bench->tell(line));
    QVERIFY2(bench->showsConnected(), "the window does not take the line for a sounder's name");
    QCOMPARE(bench->text("label_34"), title);
    QCOMPARE(bench->info(), QString("Connected to TAL-VERO"));
    QCOMPARE(bench->infoColour(), QString("Green"));
}

void TestBanner::bannerTellsTheGraphAndChoosesTheTab_data()
{
    QTest::addColumn<QByteArray>("line");
    QTest::addColumn<QString>("told");
    QTest::addColumn<QString>("tab");
    const auto row = [](const char *line, const char *told, const char *tab) {
        QTest::newRow(line) << QByteArray(line) << QString(told) << QString(tab);
    };
    row("TalVero New Dual 2.14.7", "Dual", "highFreqTab");
    row("TalVero New HF 2.14.7", "HF", "highFreqTab");
    row("TalVero New LF 2.14.7", "LF", "lowFreqTab");
    row("TalVero New LF HF 2.14.7", "HF", "highFreqTab");
    row("TalVero New 2.14.7", "", "lowFreqTab"); // stays where the operator left it
}

void TestBanner::bannerTellsTheGraphAndChoosesTheTab()
{
    QFETCH(QByteArray, line);
    QFETCH(QString, told);
    QFETCH(QString, tab);
    bench->find<QTabWidget>("h")->setCurrentIndex(tab == "lowFreqTab" && !told.isEmpty() ? 0 : 1);
    const QSignalSpy frequencies(&bench->window, SIGNAL(setFrequency(QString)));
    QVERIFY(bench->connectAs(line));
    QCOMPARE(shownTab(), tab);
    QCOMPARE(frequencies.size(), told.isEmpty() ? 0 : 1);
    if (!told.isEmpty()) {
        QCOMPARE(frequencies.first().first().toString(), told);
    }
}

void TestBanner::bannerWithoutAFitLeavesTheLastUnitsTab()
{
    QVERIFY(bench->connectAs("TalVero New LF 2.14.7"));
    bench->click("connectToDevice");
    QVERIFY(bench->connectAs("TalVero New 2.14.7"));
    QCOMPARE(shownTab(), QString("lowFreqTab"));
    QVERIFY2(!bench->isEnabled("highDraft"), "the channel fit changed without a word of it");
    QVERIFY(bench->isEnabled("lowDraft"));
}

void TestBanner::bannerIsFollowedByThreeRequestsInOrder()
{
    QVERIFY(bench->startConnecting());
    bench->line.clearReceived();
    bench->say(ReportBench::dualBanner);
    QTRY_COMPARE(bench->line.received(), QByteArray("*Gasdfdsasdf*UUasdfdsa*UAbxxxxxx"));
}

void TestBanner::bannerEndsTheSearchAtTheRateBeingTried()
{
    QVERIFY(bench->startConnecting("Auto"));
    QVERIFY(bench->tell(ReportBench::dualBanner));
    QVERIFY(bench->showsConnected());
    QVERIFY2(!bench->timer("answerTimer")->isActive(), "the search would go on");
    QCOMPARE(bench->text("baudComboBox"), QString("4800"));
    bench->click("connectToDevice");
    QVERIFY2(!bench->showsConnected(), "one press disconnects");
    QCOMPARE(bench->text("connectToDevice"), QString("Connect   "));
}

void TestBanner::bannerStopsWaitingForAnAnswerAndLookingForPorts()
{
    QVERIFY(bench->startConnecting());
    QVERIFY(bench->timer("answerTimer")->isActive());
    QVERIFY(bench->tell(ReportBench::dualBanner));
    QVERIFY(!bench->timer("answerTimer")->isActive());
    QVERIFY(!bench->timer("portScanTimer")->isActive());
}

void TestBanner::silenceAfterTheBannerIsALostConnection_data()
{
    QTest::addColumn<QString>("rate");
    QTest::newRow("fixed rate") << "9600";
    QTest::newRow("search") << "Auto";
}

/// No longer a failed attempt to connect, and no reason to search on.
void TestBanner::silenceAfterTheBannerIsALostConnection()
{
    QFETCH(QString, rate);
    QVERIFY(bench->connectAs(ReportBench::dualBanner, rate));
    bench->timer("resizeTimer")->stop();
    QMetaObject::invokeMethod(&bench->window, "serialTimeout"); // the two seconds pass elsewhere
    QCOMPARE(bench->info(), QString("Lost Connection To Device"));
}

void TestBanner::bannerIsLogged()
{
    const LogCapture log;
    QVERIFY(bench->connectAs());
    QCOMPARE(log.count("we have a TalVero New"), 1);
}

void TestBanner::otherLineDoesNotConnect_data()
{
    QTest::addColumn<QByteArray>("line");
    for (const char *line :
         {"talvero", "TALVERO", "Tal Vero", "NEW", "new dual 2.14.7", "HF", "*i5", "UID : 1"}) {
        QTest::newRow(line) << QByteArray(line);
    }
}

void TestBanner::otherLineDoesNotConnect()
{
    QFETCH(QByteArray, line);
    QVERIFY(bench->startConnecting());
    bench->line.clearReceived();
    QVERIFY(bench->tell(line));
    QVERIFY(!bench->showsConnected());
    QCOMPARE(bench->info(), QString("Connecting to Device"));
    QCOMPARE(bench->text("label_34"), QString());
    QCOMPARE(bench->line.received(), QByteArray());
}

void TestBanner::bannerWhileConnectedIsIgnored_data()
{
    QTest::addColumn<QByteArray>("line");
    for (const char *line : {"TalVero New HF 9.9.9", "Talvero LF 9.9.9", "OK New", "ERR New",
                             "*i9,vNew", "UID : New", "BoardTemp: New", "DA00001.23New"}) {
        QTest::newRow(line) << QByteArray(line);
    }
}

void TestBanner::bannerWhileConnectedIsIgnored()
{
    QFETCH(QByteArray, line);
    QVERIFY(bench->connectAs());
    QVERIFY(bench->tell("UID : 12345678"));
    const QSignalSpy frequencies(&bench->window, SIGNAL(setFrequency(QString)));
    const QSignalSpy depths(&bench->window, SIGNAL(gotDepths(float, float)));
    QVERIFY(bench->tell(line));
    QCOMPARE(bench->text("label_34"),
             QString("TAL-VERO Firmware Version: 2.14.7 (Dual Frequency)"));
    QCOMPARE(bench->info(), QString("Connected to TAL-VERO"));
    QCOMPARE(bench->text("label_24"), QString("Serial Number: QZ12345678"));
    QCOMPARE(bench->text("pingEdit"), QString("5"));
    QVERIFY(frequencies.isEmpty() && depths.isEmpty());
    QCOMPARE(bench->line.received(), QByteArray());
    QVERIFY(bench->showsConnected());
}

void TestBanner::bannerCountsAgainAfterADisconnect()
{
    QVERIFY(bench->connectAs());
    bench->click("connectToDevice");
    QVERIFY(!bench->showsConnected());
    QVERIFY(bench->connectAs("TalVero New HF 3.0.1"));
    QCOMPARE(bench->text("label_34"),
             QString("TAL-VERO Firmware Version: 3.0.1 (High Frequency Only)"));
}

void TestBanner::sounderIsShownWithWhatItIs_data()
{
    QTest::addColumn<int>("fit");
    QTest::addColumn<QString>("title");
    QTest::addColumn<bool>("hasHigh");
    QTest::addColumn<bool>("hasLow");
    QTest::newRow("dual") << int(SounderFit::Dual)
                          << "TAL-VERO Firmware Version: 2.14.7 (Dual Frequency)" << true << true;
    QTest::newRow("high only") << int(SounderFit::HighOnly)
                               << "TAL-VERO Firmware Version: 2.14.7 (High Frequency Only)" << true
                               << false;
    QTest::newRow("low only") << int(SounderFit::LowOnly)
                              << "TAL-VERO Firmware Version: 2.14.7 (Low Frequency Only)" << false
                              << true;
}

void TestBanner::sounderIsShownWithWhatItIs()
{
    QFETCH(int, fit);
    QFETCH(QString, title);
    QFETCH(bool, hasHigh);
    QFETCH(bool, hasLow);
    SounderOptions options = WindowBench::quietSounder();
    options.fit = static_cast<SounderFit>(fit);
    WindowBench beside(options);
    QVERIFY(beside.connectToSounder());
    QCOMPARE(beside.text("label_34"), title);
    QCOMPARE(beside.text("label_24"), QString("Serial Number: QZ4A5B6C7D"));
    QCOMPARE(beside.isEnabled("highDraft"), hasHigh);
    QCOMPARE(beside.isEnabled("lowDraft"), hasLow);
    QVERIFY(beside.find<QWidget>(hasHigh ? "highFreqTab" : "lowFreqTab")->isVisible());
    QCOMPARE(beside.device().received().mid(3), // after the wake-up and the two of the probe
             QByteArrayList({"*Gasdfds", "*UUasdfd", "*UAbxxxx"}));
}

QTEST_MAIN(TestBanner)

#include "tst_banner.moc"
