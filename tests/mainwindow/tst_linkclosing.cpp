// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "answerbench.h"
#include "linkwatch.h"

#include <QtTest>

#include <memory>

/// Which acknowledgements end the connection, because the device goes on at other settings, and
/// which do not.
class TestLinkClosing : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void acceptedNewRateClosesTheLinkAndIsChosen();
    void acknowledgementWhileTheRatesDifferClosesTheLink();
    void acknowledgementWhileTheRatesAgreeKeepsTheLink();
    void refusedNewRateKeepsTheLink();
    void acceptedFormatKeepsTheLink_data();
    void acceptedFormatKeepsTheLink();
    void kestrolaAtAnotherRateClosesTheLinkAndChooses9600_data();
    void kestrolaAtAnotherRateClosesTheLinkAndChooses9600();
    void newRateGoesBeforeTheFormat();
    void acceptedFactoryResetClosesTheLink();
    void refusedFactoryResetKeepsTheLink();
    void acceptedSaveKeepsTheLink();
    void linesBehindTheClosingOneAreDropped_data();
    void linesBehindTheClosingOneAreDropped();
    void strayAcknowledgementEndsTheAttemptInRed();
    void strayAcknowledgementAtTheSameRateEndsNothing();
    void strayAcknowledgementLetsTheSearchGoOn_data();
    void strayAcknowledgementLetsTheSearchGoOn();
    void strayAcknowledgementAtTheLastRateEndsTheSearchInRed();

private:
    std::unique_ptr<AnswerBench> bench;
};

void TestLinkClosing::init() { bench = std::make_unique<AnswerBench>(); }

void TestLinkClosing::cleanup() { bench.reset(); }

void TestLinkClosing::acceptedNewRateClosesTheLinkAndIsChosen()
{
    QVERIFY(bench->connectAs());
    QVERIFY(bench->tell("*i5,I9600"));
    QVERIFY(bench->chooseNewRate("38400"));
    QVERIFY(bench->showsConnected());
    bench->say("OK");
    QTRY_VERIFY2(bench->isClosed(), "the link stays open at a rate that the device has left");
    QCOMPARE(bench->text("baudComboBox"), QString("38400"));
    QCOMPARE(bench->info(), QString("Setting Baud Rate to 38400 ... Success"));
    QCOMPARE(bench->infoColour(), QString("Green"));
    QVERIFY2(!bench->timer("answerTimer")->isActive(), "the success would be overwritten");
}

/// The lists differ because no settings reply has come.
void TestLinkClosing::acknowledgementWhileTheRatesDifferClosesTheLink()
{
    QVERIFY(bench->connectAs());
    QVERIFY(bench->text("baudComboBox") != bench->text("newBaudComboBox"));
    QVERIFY(bench->setPings());
    bench->say("OK");
    QTRY_VERIFY(bench->isClosed());
    QCOMPARE(bench->text("baudComboBox"), bench->text("newBaudComboBox"));
    QCOMPARE(bench->info(), QString("Setting Pings Per Second to 3 ... Success"));
}

void TestLinkClosing::acknowledgementWhileTheRatesAgreeKeepsTheLink()
{
    QVERIFY(bench->connectAs());
    QVERIFY(bench->tell("*i5,I9600"));
    QVERIFY(bench->chooseNewRate("38400"));
    QVERIFY(bench->chooseNewRate("9600"));
    QVERIFY(bench->tell("OK"));
    QVERIFY(bench->showsConnected());
    QCOMPARE(bench->info(), QString("Setting Baud Rate to 9600 ... Success"));
}

void TestLinkClosing::refusedNewRateKeepsTheLink()
{
    QVERIFY(bench->connectAs());
    QVERIFY(bench->tell("*i5,I9600"));
    QVERIFY(bench->chooseNewRate("38400"));
    QVERIFY(bench->tell("ERR"));
    QVERIFY(bench->showsConnected());
    QCOMPARE(bench->text("baudComboBox"), QString("9600"));
}

void TestLinkClosing::acceptedFormatKeepsTheLink_data()
{
    QTest::addColumn<QString>("rate");
    QTest::addColumn<QString>("format");
    QTest::newRow("KESTROLA at 9600") << "9600"
                                      << "KESTROLA";
    QTest::newRow("ODOM at 9600") << "9600"
                                  << "ODOM";
    QTest::newRow("ODOM at 19200") << "19200"
                                   << "ODOM";
}

void TestLinkClosing::acceptedFormatKeepsTheLink()
{
    QFETCH(QString, rate);
    QFETCH(QString, format);
    QVERIFY(bench->connectAs(ReportBench::dualBanner, rate));
    QVERIFY(bench->tell("*i5,a4,I" + rate.toLatin1()));
    bench->choose("formatComboBox", format);
    QVERIFY(bench->hears("*a"));
    QVERIFY(bench->tell("OK"));
    QVERIFY(bench->showsConnected());
    QCOMPARE(bench->info(), "Setting Output Format to " + format + " ... Success");
    QCOMPARE(bench->text("baudComboBox"), rate);
}

void TestLinkClosing::kestrolaAtAnotherRateClosesTheLinkAndChooses9600_data()
{
    QTest::addColumn<QString>("rate");
    for (const char *rate : {"4800", "19200", "115200"}) {
        QTest::newRow(rate) << rate;
    }
}

void TestLinkClosing::kestrolaAtAnotherRateClosesTheLinkAndChooses9600()
{
    QFETCH(QString, rate);
    QVERIFY(bench->connectAs(ReportBench::dualBanner, rate));
    QVERIFY(bench->tell("*i5,a4,I" + rate.toLatin1()));
    bench->choose("formatComboBox", "KESTROLA");
    QVERIFY(bench->hears("*a6"));
    bench->say("OK");
    QTRY_VERIFY2(bench->isClosed(), "the link stays open at a rate that the format does not have");
    QCOMPARE(bench->text("baudComboBox"), QString("9600"));
    QCOMPARE(bench->info(), QString("Setting Output Format to KESTROLA ... Success"));
}

void TestLinkClosing::newRateGoesBeforeTheFormat()
{
    QVERIFY(bench->connectAs(ReportBench::dualBanner, "19200"));
    QVERIFY(bench->tell("*i5,a4,I19200"));
    QVERIFY(bench->chooseNewRate("57600"));
    bench->choose("formatComboBox", "KESTROLA");
    QVERIFY(bench->hears("*a6"));
    bench->say("OK");
    QTRY_VERIFY(bench->isClosed());
    QCOMPARE(bench->text("baudComboBox"), QString("57600"));
}

void TestLinkClosing::acceptedFactoryResetClosesTheLink()
{
    QVERIFY(bench->connectAs());
    QVERIFY(bench->tell("*i5,I9600"));
    QVERIFY(bench->confirmReset());
    bench->say("OK");
    QTRY_VERIFY2(bench->isClosed(), "the device starts anew: the window must connect again");
    QCOMPARE(bench->info(), QString("Sending Factory Reset to Device ... Success"));
    QCOMPARE(bench->text("baudComboBox"), QString("9600"));
}

void TestLinkClosing::refusedFactoryResetKeepsTheLink()
{
    QVERIFY(bench->connectAs());
    QVERIFY(bench->tell("*i5,I9600"));
    QVERIFY(bench->confirmReset());
    QVERIFY(bench->tell("ERR"));
    QVERIFY(bench->showsConnected());
    QCOMPARE(bench->info(), QString("Sending Factory Reset to Device ... Received Error - Command "
                                    "Not Applied"));
}

void TestLinkClosing::acceptedSaveKeepsTheLink()
{
    QVERIFY(bench->connectAs());
    QVERIFY(bench->tell("*i5,I9600"));
    bench->click("saveSettingsToDevice");
    QVERIFY(bench->hears("*F345678"));
    QVERIFY(bench->tell("OK"));
    QVERIFY(bench->showsConnected());
    QCOMPARE(bench->info(), QString("Sending Save Command to Device ... Success"));
}

void TestLinkClosing::linesBehindTheClosingOneAreDropped_data()
{
    QTest::addColumn<QByteArray>("behind");
    QTest::newRow("banner") << QByteArray("TalVero New HF 9.9.9\r\n");
    QTest::newRow("banner after CR") << QByteArray("TalVero New HF 9.9.9\r");
    QTest::newRow("banner after LF") << QByteArray("\nTalVero New HF 9.9.9\n");
    QTest::newRow("status") << QByteArray("VSupply: 88.88\r\n");
    QTest::newRow("half a line") << QByteArray("VSupply: 8");
    QTest::newRow("depth") << QByteArray(" et B 00123 00131\r\n");
    QTest::newRow("many lines") << QByteArray("UID : 99999999\r\n").repeated(20);
}

/// One arrival holds the acknowledgement that ends the link, and more.
void TestLinkClosing::linesBehindTheClosingOneAreDropped()
{
    QFETCH(QByteArray, behind);
    QVERIFY(bench->connectAs());
    QVERIFY(bench->setPings());
    bench->line.write("OK\r\n" + behind);
    QTRY_VERIFY(bench->isClosed());
    QCOMPARE(bench->text("temperatureLabel"), QString());
    QCOMPARE(bench->text("highDepthLabel"), QString());
    QCOMPARE(bench->text("label_24"), QString());
    QVERIFY2(!bench->text("label_34").contains("9.9.9"), "a closed link took a banner");

    QVERIFY2(bench->connectAs("TalVero New LF 3.0.1"), "what was left over spoilt the next line");
    QCOMPARE(bench->text("label_34"),
             QString("TAL-VERO Firmware Version: 3.0.1 (Low Frequency Only)"));
}

/// An answer that is late by a whole connection.
void TestLinkClosing::strayAcknowledgementEndsTheAttemptInRed()
{
    QVERIFY(bench->startConnecting());
    bench->say("OK");
    QTRY_VERIFY(bench->isClosed());
    QCOMPARE(bench->info(), QString("Could Not Connect To Device"));
    QCOMPARE(bench->infoColour(), QString("Red"));
    QVERIFY2(bench->connectAs(), "the press that should connect only disconnects");
}

/// The rates agree, so the attempt goes on.
void TestLinkClosing::strayAcknowledgementAtTheSameRateEndsNothing()
{
    QVERIFY(bench->startConnecting("4800"));
    QCOMPARE(bench->text("newBaudComboBox"), QString("4800"));
    bench->say("OK");
    bench->say(ReportBench::dualBanner);
    QTRY_VERIFY(bench->showsConnected());
    QCOMPARE(bench->info(), QString("Connected to TAL-VERO"));
}

void TestLinkClosing::strayAcknowledgementLetsTheSearchGoOn_data()
{
    QTest::addColumn<QString>("listed");
    QTest::addColumn<QString>("tried");
    QTest::newRow("the rate after the list's") << "19200"
                                               << "38400";
    QTest::newRow("from the slowest on") << "4800"
                                         << "9600";
}

void TestLinkClosing::strayAcknowledgementLetsTheSearchGoOn()
{
    QFETCH(QString, listed);
    QFETCH(QString, tried);
    bench->find<QComboBox>("newBaudComboBox")->setCurrentText(listed);
    QVERIFY(bench->startConnecting("Auto"));
    if (listed == "4800") {
        QMetaObject::invokeMethod(&bench->window,
                                  "serialTimeout"); // the two seconds pass elsewhere
        QCOMPARE(bench->text("baudComboBox"), QString("9600"));
    }
    bench->line.clearReceived();
    bench->say("OK");
    QVERIFY2(bench->hears("*nasdfd"), "The search does not go on"); // the next rate's wake-up
    QTRY_COMPARE(bench->info(), "Trying " + tried + " baud");
    QCOMPARE(bench->text("baudComboBox"), tried);
    QCOMPARE(bench->text("connectToDevice"), QString("Disconnect"));
    QVERIFY(!LinkWatch::isFree(bench->line.slavePath()));
    bench->say(ReportBench::dualBanner);
    QTRY_VERIFY(bench->showsConnected());
}

void TestLinkClosing::strayAcknowledgementAtTheLastRateEndsTheSearchInRed()
{
    bench->find<QComboBox>("newBaudComboBox")->setCurrentText("115200");
    QVERIFY(bench->startConnecting("Auto"));
    bench->say("OK");
    QTRY_VERIFY(bench->isClosed());
    QCOMPARE(bench->info(), QString("Could Not Connect To Device"));
    QCOMPARE(bench->infoColour(), QString("Red"));
    QVERIFY2(bench->connectAs(), "the press that should connect only ends a search");
}

QTEST_MAIN(TestLinkClosing)

#include "tst_linkclosing.moc"
