// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "appearance.h"
#include "logcapture.h"
#include "readybench.h"

#include <QComboBox>

namespace {

const QStringList kestrolaGreys{"outputRateHolder", "highModeColumn", "highTvgColumn",
                                "lowModeColumn", "lowTvgColumn"};

SounderOptions at(int rate, int format = 0)
{
    SounderOptions options = ReadyBench::quickSounder();
    options.rate = rate;
    options.format = format;
    return options;
}

QStringList entries(WindowBench &bench, const QString &list)
{
    const auto *const box = bench.find<QComboBox>(list);
    QStringList texts;
    for (int i = 0; i < box->count(); ++i) {
        texts.append(box->itemText(i));
    }
    return texts;
}

/// Presses Connect at the rate that the window has selected by itself.
bool connectsAsSelected(WindowBench &bench)
{
    bench.click("connectToDevice");
    return QTest::qWaitFor([&bench] { return bench.showsConnected(); });
}

} // namespace

/// The lists of output formats and of the sounder's own rates.
class OutputListsTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { giveProgramStyle(); }

    void formatsAndRatesStandInTheirOrder();
    void aFormatIsSentByTheDevicesOwnNumber_data();
    void aFormatIsSentByTheDevicesOwnNumber();
    void kestrolaGreysRateModesAndTvgUntilItIsLeft();
    void kestrolaSparesAChannelThatIsOff_data();
    void kestrolaSparesAChannelThatIsOff();
    void kestrolaAt9600KeepsTheLink();
    void kestrolaAtAnotherRateClosesTheLinkFor9600();
    void anotherFormatAtAnotherRateKeepsTheLink();
    void aRefusedKestrolaStaysChosenAndGreys();
    void aNewRateClosesTheLinkAndIsFoundAfterwards_data();
    void aNewRateClosesTheLinkAndIsFoundAfterwards();
    void ratesBelow38400AllCommand9600_data();
    void ratesBelow38400AllCommand9600();
    void aRefusedRateClosesTheLinkWithTheNextAcceptedChange();
    void aForeignWordIsLoggedAndNeverSent_data();
    void aForeignWordIsLoggedAndNeverSent();
};

void OutputListsTest::formatsAndRatesStandInTheirOrder()
{
    WindowBench bench;
    QCOMPARE(entries(bench, "formatComboBox"),
             (QStringList{"ORVANDO", "NMEA DBS", "NMEA DBT", "DESO 25", "ODOM", "KESTROLA",
                          "SONARMITE OLD", "SONARMITE NEW", "SONARMITE DUAL"}));
    QCOMPARE(entries(bench, "newBaudComboBox"),
             (QStringList{"4800", "9600", "19200", "38400", "57600", "115200"}));
}

void OutputListsTest::aFormatIsSentByTheDevicesOwnNumber_data()
{
    QTest::addColumn<int>("number");
    QTest::newRow("ODOM") << 1;
    QTest::newRow("NMEA DBT") << 2;
    QTest::newRow("NMEA DBS") << 3;
    QTest::newRow("ORVANDO") << 4;
    QTest::newRow("DESO 25") << 5;
    QTest::newRow("KESTROLA") << 6;
    QTest::newRow("SONARMITE OLD") << 7;
    QTest::newRow("SONARMITE NEW") << 8;
    QTest::newRow("SONARMITE DUAL") << 9;
}

void OutputListsTest::aFormatIsSentByTheDevicesOwnNumber()
{
    QFETCH(int, number);
    const QString format = QTest::currentDataTag();
    ReadyBench bench(false, {}, at(9600, number == Odom ? Orvando : Odom));
    bench.choose("formatComboBox", format);
    QCOMPARE(bench.takeCommands().join(' '),
             ("*a" + QByteArray::number(number)).leftJustified(8, '.'));
    QCOMPARE(bench.info(), "Setting Output Format to " + format + " ... Success");
    QCOMPARE(bench.device().settings().format, number);
    QVERIFY2(bench.showsConnected(), "the link is closed");
}

void OutputListsTest::kestrolaGreysRateModesAndTvgUntilItIsLeft()
{
    ReadyBench bench;
    bench.choose("formatComboBox", "KESTROLA");
    QVERIFY(!bench.isEnabled("newBaudComboBox"));
    for (const QString &holder : kestrolaGreys) {
        QVERIFY2(bench.isGreyed(holder), qPrintable(holder));
    }
    for (const char *usable : {"highEnableColumn", "highLowerPart", "lowEnableColumn"}) {
        QVERIFY2(bench.isUsable(usable), usable);
    }
    QVERIFY2(bench.isEnabled("formatComboBox"), "the operator could never leave the format");
    QVERIFY(bench.settles());
    bench.choose("formatComboBox", "ODOM");
    for (const QString &holder : kestrolaGreys) {
        QVERIFY2(bench.isUsable(holder), qPrintable(holder));
    }
    QVERIFY(bench.isEnabled("newBaudComboBox"));
}

void OutputListsTest::kestrolaSparesAChannelThatIsOff_data()
{
    QTest::addColumn<QString>("off");
    QTest::addColumn<QString>("channel");
    QTest::addColumn<QString>("other");
    QTest::newRow("high") << "disableHF"
                          << "high"
                          << "low";
    QTest::newRow("low") << "disableLF"
                         << "low"
                         << "high";
}

/// Leaving the format gives back what it took, and a channel that is off is not its to give.
void OutputListsTest::kestrolaSparesAChannelThatIsOff()
{
    QFETCH(QString, off);
    QFETCH(QString, channel);
    QFETCH(QString, other);
    ReadyBench bench;
    bench.click(off);
    bench.choose("formatComboBox", "KESTROLA");
    QVERIFY(bench.settles());
    bench.choose("formatComboBox", "ODOM");
    QVERIFY(bench.isGreyed(channel + "ModeColumn"));
    QVERIFY(bench.isGreyed(channel + "TvgColumn"));
    QVERIFY(bench.isUsable(other + "ModeColumn"));
}

void OutputListsTest::kestrolaAt9600KeepsTheLink()
{
    ReadyBench bench(false, {}, at(9600));
    bench.choose("formatComboBox", "KESTROLA");
    QCOMPARE(bench.takeCommands(), QByteArrayList{"*a6....."});
    QVERIFY(bench.showsConnected());
    QCOMPARE(bench.text("baudComboBox"), QString("9600"));
}

void OutputListsTest::kestrolaAtAnotherRateClosesTheLinkFor9600()
{
    ReadyBench bench(false, {}, at(38400));
    bench.choose("formatComboBox", "KESTROLA");
    QTRY_VERIFY(!bench.showsConnected());
    QCOMPARE(bench.info(), QString("Setting Output Format to KESTROLA ... Success"));
    QCOMPARE(bench.text("baudComboBox"), QString("9600"));
    QCOMPARE(bench.device().lineRate(), 9600);
    QVERIFY2(connectsAsSelected(bench), "the sounder is not found at the selected rate");
    QTRY_COMPARE(bench.text("formatComboBox"), QString("KESTROLA"));
    QTRY_VERIFY2(!bench.isEnabled("newBaudComboBox"), "the format that was read does not grey");
}

void OutputListsTest::anotherFormatAtAnotherRateKeepsTheLink()
{
    ReadyBench bench(false, {}, at(38400));
    bench.choose("formatComboBox", "DESO 25");
    QCOMPARE(bench.takeCommands(), QByteArrayList{"*a5....."});
    QVERIFY(bench.showsConnected());
    QCOMPARE(bench.text("baudComboBox"), QString("38400"));
}

/// The window keeps showing what the operator chose when the device refuses.
void OutputListsTest::aRefusedKestrolaStaysChosenAndGreys()
{
    ReadyBench bench(false, {}, at(38400));
    bench.device().setFault("refuse", 1);
    bench.choose("formatComboBox", "KESTROLA");
    QVERIFY(bench.settles());
    QCOMPARE(bench.info(), QString("Setting Output Format to KESTROLA ... Received Error - Command "
                                   "Not Applied"));
    QVERIFY(bench.showsConnected());
    QCOMPARE(bench.text("formatComboBox"), QString("KESTROLA"));
    QVERIFY(!bench.isEnabled("newBaudComboBox"));
}

void OutputListsTest::aNewRateClosesTheLinkAndIsFoundAfterwards_data()
{
    QTest::addColumn<int>("before");
    QTest::addColumn<QString>("rate");
    QTest::addColumn<QByteArray>("wire");
    QTest::newRow("9600 to 38400") << 9600 << "38400" << QByteArray("*I111...");
    QTest::newRow("9600 to 57600") << 9600 << "57600" << QByteArray("*I222...");
    QTest::newRow("9600 to 115200") << 9600 << "115200" << QByteArray("*I333...");
    QTest::newRow("115200 to 9600") << 115200 << "9600" << QByteArray("*I000...");
}

void OutputListsTest::aNewRateClosesTheLinkAndIsFoundAfterwards()
{
    QFETCH(int, before);
    QFETCH(QString, rate);
    QFETCH(QByteArray, wire);
    ReadyBench bench(false, {}, at(before));
    QVERIFY(bench.holdsPort());
    bench.choose("newBaudComboBox", rate);
    QTRY_COMPARE(bench.info(), "Setting Baud Rate to " + rate + " ... Success");
    QCOMPARE(bench.settingCommands(), QByteArrayList{wire});
    QVERIFY2(!bench.showsConnected(), "the link goes on at the old rate");
    QVERIFY2(!bench.holdsPort(), "the port is still open");
    QCOMPARE(bench.text("connectToDevice"), QString("Connect   "));
    QCOMPARE(bench.text("baudComboBox"), rate);
    QVERIFY2(connectsAsSelected(bench), "the sounder is not found at its new rate");
    QCOMPARE(bench.device().lineRate(), rate.toInt());
}

void OutputListsTest::ratesBelow38400AllCommand9600_data()
{
    QTest::addColumn<QString>("rate");
    QTest::newRow("4800") << "4800";
    QTest::newRow("19200") << "19200";
}

/// Deliberate: the command has one number for the three lowest rates, and the device takes it for
/// 9600. The window selects the rate that was chosen, where the sounder is not.
void OutputListsTest::ratesBelow38400AllCommand9600()
{
    QFETCH(QString, rate);
    ReadyBench bench(false, {}, at(38400));
    bench.timer("answerTimer")->setInterval(300);
    bench.choose("newBaudComboBox", rate);
    QTRY_VERIFY(!bench.showsConnected());
    QCOMPARE(bench.settingCommands(), QByteArrayList{"*I000..."});
    QCOMPARE(bench.text("baudComboBox"), rate);
    bench.click("connectToDevice");
    QTRY_COMPARE(bench.info(), QString("Could Not Connect To Device"));
    QVERIFY2(bench.connectToSounder("9600"), "the sounder is not at 9600 either");
}

/// The device said ERR and stays at its rate, but the list keeps the rate that was chosen: the next
/// OK, whatever it answers, is taken for the change of the rate.
void OutputListsTest::aRefusedRateClosesTheLinkWithTheNextAcceptedChange()
{
    ReadyBench bench(false, {}, at(9600));
    bench.device().setFault("refuse", 1);
    bench.choose("newBaudComboBox", "38400");
    QVERIFY(bench.settles());
    QVERIFY2(bench.showsConnected(), "a refused rate has closed the link");
    bench.device().setFault("refuse", 0);
    bench.click("highPulseUp");
    QTRY_VERIFY(!bench.showsConnected());
    QCOMPARE(bench.text("baudComboBox"), QString("38400"));
    QCOMPARE(bench.device().lineRate(), 9600);
}

void OutputListsTest::aForeignWordIsLoggedAndNeverSent_data()
{
    QTest::addColumn<QString>("list");
    QTest::addColumn<QString>("word");
    QTest::newRow("format") << "formatComboBox"
                            << "Odom";
    QTest::newRow("rate") << "newBaudComboBox"
                          << "300";
}

/// No list of the window holds such a word; one is smuggled in here.
void OutputListsTest::aForeignWordIsLoggedAndNeverSent()
{
    QFETCH(QString, list);
    QFETCH(QString, word);
    ReadyBench bench;
    bench.find<QComboBox>(list)->addItem(word);
    const QString info = bench.info();
    LogCapture log;
    bench.choose(list, word);
    QVERIFY(log.contains("Should never get here! - internal setting string is incorrect"));
    QVERIFY(!log.contains("trigger change "));
    QVERIFY(!bench.hasPendingChange());
    QCOMPARE(bench.info(), info);
    QCOMPARE(bench.settingCommands(), QByteArrayList());
}

QTEST_MAIN(OutputListsTest)
#include "tst_outputlists.moc"
