// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "logcapture.h"
#include "replybench.h"

#include <QSignalSpy>
#include <QtTest>

#include <termios.h>

#include <memory>

using Shown = ReplyBench::Shown;
Q_DECLARE_METATYPE(ReplyBench::Shown)

namespace {

void addColumns()
{
    QTest::addColumn<QByteArray>("line");
    QTest::addColumn<Shown>("expected");
}

void addRow(const char *line, const Shown &expected)
{
    QTest::newRow(line) << QByteArray(line) << expected;
}

Shown channelOptions(const char *high, const char *low)
{
    Shown options{{"enableHF", ""}, {"disableHF", ""}, {"enableLF", ""}, {"disableLF", ""}};
    options[high] = "checked";
    options[low] = "checked";
    return options;
}

Shown bothRates(const char *rate) { return {{"newBaudComboBox", rate}, {"baudComboBox", rate}}; }

} // namespace

/// The line of the settings reply that begins with "*i": what each letter of the common settings
/// sets in the window. (The channels' lines are tested in tst_channelreply.)
class TestCommonReply : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void letterSetsItsControl_data();
    void letterSetsItsControl();
    void letterSetsItsControlInFeet_data();
    void letterSetsItsControlInFeet();
    void oddValueIsShownAsTheDeviceSaidIt_data();
    void oddValueIsShownAsTheDeviceSaidIt();
    void switchChecksItsOption_data();
    void switchChecksItsOption();
    void formatIsChosenByTheDevicesNumber_data();
    void formatIsChosenByTheDevicesNumber();
    void unknownFormatKeepsTheEntry_data();
    void unknownFormatKeepsTheEntry();
    void rateIsShownInBothLists_data();
    void rateIsShownInBothLists();
    void rateLeavesTheOpenLinkAsItIs();
    void nextConnectionRunsAtTheRateOfTheReply();
    void graphIsToldTheExactDepth_data();
    void graphIsToldTheExactDepth();
    void depthIsToldTheGraphInMetresWhileFeetAreShown();
    void piecesThatNameNoSettingChangeNothing_data();
    void piecesThatNameNoSettingChangeNothing();
    void wholeReplyFillsTheWindow();
    void operatorCanEditAfterAReply_data();
    void operatorCanEditAfterAReply();

private:
    void checkLine();

    std::unique_ptr<ReplyBench> bench;
};

void TestCommonReply::init() { bench = std::make_unique<ReplyBench>(); }

void TestCommonReply::cleanup() { bench.reset(); }

void TestCommonReply::checkLine()
{
    QFETCH(QByteArray, line);
    QFETCH(Shown, expected);
    QVERIFY(bench->connectAs());
    QVERIFY(bench->tell(line));
    QCOMPARE(bench->differences(expected), QString());
    QVERIFY2(bench->hasSentNothing(), "the reply's value went back to the device");
}

void TestCommonReply::letterSetsItsControl_data()
{
    addColumns();
    addRow("*i7", {{"pingEdit", "7"}});
    addRow("*i08", {{"pingEdit", "08"}});
    addRow("*i5,v1485300", {{"soundVelocityEdit", "1485"}});
    addRow("*i5,v1485700", {{"soundVelocityEdit", "1486"}});
    addRow("*i5,s45000", {{"maxDepthEdit", "45"}});
    addRow("*i5,s045400", {{"maxDepthEdit", "45"}});
    addRow("*i5,s45600", {{"maxDepthEdit", "46"}});
}

void TestCommonReply::letterSetsItsControl() { checkLine(); }

void TestCommonReply::letterSetsItsControlInFeet_data()
{
    addColumns();
    addRow("*i7", {{"pingEdit", "7"}});
    addRow("*i5,v1500000", {{"soundVelocityEdit", "4921"}});
    addRow("*i5,s30000", {{"maxDepthEdit", "98"}});
    addRow("*i5,s100000", {{"maxDepthEdit", "328"}});
}

void TestCommonReply::letterSetsItsControlInFeet()
{
    bench->click("imperialRadio");
    checkLine();
}

void TestCommonReply::oddValueIsShownAsTheDeviceSaidIt_data()
{
    addColumns();
    addRow("*i", {{"pingEdit", ""}});
    addRow("*ixyz", {{"pingEdit", "xyz"}});
    addRow("*i99", {{"pingEdit", "99"}});
    addRow("*i5,v", {{"soundVelocityEdit", "0"}});
    addRow("*i5,vxyz", {{"soundVelocityEdit", "0"}});
    addRow("*i5,v1500.5", {{"soundVelocityEdit", "0"}});
    addRow("*i5,v99999999999", {{"soundVelocityEdit", "0"}});
    addRow("*i5,v2147483647", {{"soundVelocityEdit", "2147484"}});
    addRow("*i5,s", {{"maxDepthEdit", "0"}});
    addRow("*i5,sxyz", {{"maxDepthEdit", "0"}});
    addRow("*i5,s-7000", {{"maxDepthEdit", "-7"}});
    addRow("*i5,s2147483647", {{"maxDepthEdit", "2147484"}});
}

void TestCommonReply::oddValueIsShownAsTheDeviceSaidIt() { checkLine(); }

void TestCommonReply::switchChecksItsOption_data()
{
    addColumns();
    addRow("*i5,H1,L1", channelOptions("enableHF", "enableLF"));
    addRow("*i5,H0,L1", channelOptions("disableHF", "enableLF"));
    addRow("*i5,H1,L0", channelOptions("enableHF", "disableLF"));
    addRow("*i5,H0,L0", channelOptions("disableHF", "disableLF"));
    addRow("*i5,H0,L0,H1,L1", channelOptions("enableHF", "enableLF"));
    addRow("*i5,H0,H2,H,H10,H01,Hx", channelOptions("disableHF", "enableLF"));
    addRow("*i5,L0,L2,L,L10,L01,Lx", channelOptions("enableHF", "disableLF"));
}

void TestCommonReply::switchChecksItsOption() { checkLine(); }

void TestCommonReply::formatIsChosenByTheDevicesNumber_data()
{
    addColumns();
    addRow("*i5,a1", {{"formatComboBox", "ODOM"}});
    addRow("*i5,a2", {{"formatComboBox", "NMEA DBT"}});
    addRow("*i5,a1,a3", {{"formatComboBox", "NMEA DBS"}});
    addRow("*i5,a4", {{"formatComboBox", "ORVANDO"}});
    addRow("*i5,a5", {{"formatComboBox", "DESO 25"}});
    addRow("*i5,a6", {{"formatComboBox", "KESTROLA"}});
    addRow("*i5,a7", {{"formatComboBox", "SONARMITE OLD"}});
    addRow("*i5,a8", {{"formatComboBox", "SONARMITE NEW"}});
    addRow("*i5,a9", {{"formatComboBox", "SONARMITE DUAL"}});
    addRow("*i5,a12", {{"formatComboBox", "ODOM"}});
}

void TestCommonReply::formatIsChosenByTheDevicesNumber() { checkLine(); }

void TestCommonReply::unknownFormatKeepsTheEntry_data()
{
    addColumns();
    for (const char *line :
         {"*i5,a5,a0", "*i5,a5,a", "*i5,a5,ax", "*i5,a5,a ", "*i5,a5,a:", "*i5,a5,a/"}) {
        addRow(line, {{"formatComboBox", "DESO 25"}});
    }
}

void TestCommonReply::unknownFormatKeepsTheEntry() { checkLine(); }

void TestCommonReply::rateIsShownInBothLists_data()
{
    addColumns();
    for (const char *rate : {"4800", "9600", "19200", "38400", "57600", "115200"}) {
        addRow(QByteArray("*i5,I").append(rate).constData(), bothRates(rate));
    }
    addRow("*i5,I19200,I12345", bothRates("19200"));
    addRow("*i5,I19200,I", bothRates("19200"));
    addRow("*i5,I19200,IAuto", bothRates("19200"));
}

void TestCommonReply::rateIsShownInBothLists() { checkLine(); }

void TestCommonReply::rateLeavesTheOpenLinkAsItIs()
{
    QVERIFY(bench->connectAs());
    const LogCapture log;
    QVERIFY(bench->tell("*i5,I19200"));
    QVERIFY(bench->showsConnected());
    termios settings{};
    QCOMPARE(tcgetattr(bench->line.masterDescriptor(), &settings), 0);
    QVERIFY2(cfgetospeed(&settings) == B9600, "the port was opened anew, or its rate changed");
    QVERIFY2(log.contains("\"baud\"  to  \"19200\""), "the rate was not stored");
}

void TestCommonReply::nextConnectionRunsAtTheRateOfTheReply()
{
    QVERIFY(bench->connectAs());
    QVERIFY(bench->tell("*i5,I19200"));
    bench->click("connectToDevice"); // disconnects
    bench->click("connectToDevice");
    QVERIFY(bench->hears("*n1234567"));
    termios settings{};
    QCOMPARE(tcgetattr(bench->line.masterDescriptor(), &settings), 0);
    QVERIFY(cfgetospeed(&settings) == B19200);
}

void TestCommonReply::graphIsToldTheExactDepth_data()
{
    QTest::addColumn<QByteArray>("line");
    QTest::addColumn<float>("metres");
    const auto row = [](const char *line, float metres) {
        QTest::newRow(line) << QByteArray(line) << metres;
    };
    row("*i5,s30000", 30.0F);
    row("*i5,s30499", 30.499F);
    row("*i5,s99999", 99.999F);
    row("*i5,s", 0.0F);
    row("*i5,sxyz", 0.0F);
}

void TestCommonReply::graphIsToldTheExactDepth()
{
    QFETCH(QByteArray, line);
    QFETCH(float, metres);
    QVERIFY(bench->connectAs());
    const QSignalSpy told(&bench->window, SIGNAL(setMaxDepth(float)));
    QVERIFY(bench->tell(line));
    QCOMPARE(told.size(), 1);
    QCOMPARE(told.first().first().toFloat(), metres);
}

void TestCommonReply::depthIsToldTheGraphInMetresWhileFeetAreShown()
{
    bench->click("imperialRadio");
    QVERIFY(bench->connectAs());
    const QSignalSpy told(&bench->window, SIGNAL(setMaxDepth(float)));
    QVERIFY(bench->tell("*i5,s30499"));
    QCOMPARE(bench->text("maxDepthEdit"), QString("100"));
    QCOMPARE(told.size(), 1);
    QCOMPARE(told.first().first().toFloat(), 30.499F);
}

void TestCommonReply::piecesThatNameNoSettingChangeNothing_data()
{
    QTest::addColumn<QByteArray>("line");
    for (const char *line : {"*i5,,", "*i5,Z9,x,?", "*i5,V1485000,S45000,A1", "*i5, v1485000",
                             "*i5,9600", "*i5,h0,l0"}) {
        QTest::newRow(line) << QByteArray(line);
    }
}

/// The ping rate is 5 already; it is there because it marks the line.
void TestCommonReply::piecesThatNameNoSettingChangeNothing()
{
    QFETCH(QByteArray, line);
    QVERIFY(bench->connectAs());
    const Shown before = bench->everythingShown();
    QCOMPARE(before.value("pingEdit"), QString("5"));
    QVERIFY(bench->tell(line));
    QCOMPARE(bench->differences(before), QString());
    QVERIFY(bench->hasSentNothing());
}

/// The three lines that a dual unit sends, the window beforehand at other values.
void TestCommonReply::wholeReplyFillsTheWindow()
{
    QVERIFY(bench->connectAs());
    QVERIFY(bench->tell("*i7,v1485300,s45000,a1,I9600,H1,L1"));
    QVERIFY(bench->tell("*Hca,Hg064,HlW,Hm01234,Ho00777,Hp20,Hq00888,Ht63,Hw0199"));
    QVERIFY(bench->tell("*Lcm,Lg050,LlT,Lm04321,Lo00100,Lp12,Lq00200,Lt44,Lw0035"));
    const Shown expected{{"pingEdit", "7"},
                         {"soundVelocityEdit", "1485"},
                         {"maxDepthEdit", "45"},
                         {"formatComboBox", "ODOM"},
                         {"newBaudComboBox", "9600"},
                         {"baudComboBox", "9600"},
                         {"enableHF", "checked"},
                         {"enableLF", "checked"},
                         {"highAutoRadio", "checked"},
                         {"highGainEdit", "75%"},
                         {"highLog20Tvg", "checked"},
                         {"highBlank", "1.23"},
                         {"highDraft", "0.78"},
                         {"highPulseEdit", "20"},
                         {"highIndex", "0.89"},
                         {"highDetectEdit", "63%"},
                         {"highFreq", "199"},
                         {"lowManualRadio", "checked"},
                         {"lowGainEdit", "65%"},
                         {"lowLog10Tvg", "checked"},
                         {"lowBlank", "4.32"},
                         {"lowDraft", "0.10"},
                         {"lowPulseEdit", "12"},
                         {"lowIndex", "0.20"},
                         {"lowDetectEdit", "44%"},
                         {"lowFreq", "35"}};
    QCOMPARE(bench->differences(expected), QString());
    QVERIFY2(bench->hasSentNothing(), "the reply went back to the device");
}

void TestCommonReply::operatorCanEditAfterAReply_data()
{
    QTest::addColumn<QByteArray>("line");
    for (const char *line : {"*i5,v1500000,s30000,a3,I9600,H1,L1", "*i", "*i5,axyz,Ixyz,H7"}) {
        QTest::newRow(line) << QByteArray(line);
    }
}

/// The window holds its edits back while it fills itself, and only then.
void TestCommonReply::operatorCanEditAfterAReply()
{
    QFETCH(QByteArray, line);
    QVERIFY(bench->connectAs());
    QVERIFY(bench->tell(line));
    bench->type("pingEdit", "3");
    QVERIFY2(bench->hears("*i03"), "what the operator typed after a reply was not sent");
}

QTEST_MAIN(TestCommonReply)

#include "tst_commonreply.moc"
