// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "logcapture.h"
#include "replybench.h"

#include <QRegularExpression>
#include <QtTest>

#include <memory>

using Shown = ReplyBench::Shown;
Q_DECLARE_METATYPE(ReplyBench::Shown)

namespace {

/// Controls of one channel, by their names without "high" or "low" in front.
struct Control
{
    const char *name;
    const char *shown;
};
using Controls = std::initializer_list<Control>;

constexpr char isChecked[] = "checked";
constexpr char isNotChecked[] = "";

void addColumns()
{
    QTest::addColumn<QByteArray>("line");
    QTest::addColumn<Shown>("expected");
}

/// A row in which the reply tells this ("g050") of the channel. "?" in it is the channel's letter.
void addRow(const QString &channel, const char *piece, Controls controls)
{
    Shown expected;
    for (const Control &control : controls) {
        expected.insert(channel + control.name, control.shown);
    }
    const char letter = channel == QLatin1String("high") ? 'H' : 'L';
    QTest::addRow("%s %s", qPrintable(channel), piece)
        << QByteArray("*?").append(piece).replace('?', letter) << expected;
}

void addBoth(const char *piece, Controls controls)
{
    addRow("high", piece, controls);
    addRow("low", piece, controls);
}

} // namespace

/// The lines of the settings reply that begin with "*H" and "*L": what each letter of a channel
/// sets in the window. (The common line is tested in tst_commonreply.)
class TestChannelReply : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void letterSetsTheChannelsControls_data();
    void letterSetsTheChannelsControls();
    void letterSetsTheChannelsControlsInFeet_data();
    void letterSetsTheChannelsControlsInFeet();
    void oddValueIsShownAsTheDeviceSaidIt_data();
    void oddValueIsShownAsTheDeviceSaidIt();
    void modeChecksItsOption_data();
    void modeChecksItsOption();
    void gainLawChecksItsOption_data();
    void gainLawChecksItsOption();
    void lineSaysNothingToShow_data();
    void lineSaysNothingToShow();
    void kindOfLineDecidesTheChannel_data();
    void kindOfLineDecidesTheChannel();
    void oneChannelsLineLeavesTheOtherChannelAlone_data();
    void oneChannelsLineLeavesTheOtherChannelAlone();
    void wholeLineSetsEverything();
    void operatorCanEditAfterAReply_data();
    void operatorCanEditAfterAReply();
    void piecesAreLogged();

private:
    void checkLine();

    std::unique_ptr<ReplyBench> bench;
};

/// One window serves many rows: each begins with a reply that brings both channels back to the same
/// values.
void TestChannelReply::init()
{
    const bool wantsFeet = QByteArray(QTest::currentTestFunction()).endsWith("InFeet");
    if (bench == nullptr || bench->isChecked("imperialRadio") != wantsFeet) {
        bench = std::make_unique<ReplyBench>();
        bench->click(wantsFeet ? "imperialRadio" : "metricRadio");
        QVERIFY(bench->connectAs());
    }
    for (const char channel : {'H', 'L'}) {
        const QByteArray line("*?cm,?g064,?lN,?m02000,?o00500,?p16,?q00250,?t50,?w0200");
        QVERIFY(bench->tell(QByteArray(line).replace('?', channel)));
    }
    QVERIFY(bench->hasSentNothing());
}

/// A window that has sent something, or was left in an unknown state, serves no further row.
void TestChannelReply::cleanup()
{
    if (QTest::currentTestFailed() || !bench->hasSentNothing()) {
        bench.reset();
    }
}

void TestChannelReply::checkLine()
{
    QFETCH(QByteArray, line);
    QFETCH(Shown, expected);
    QVERIFY(bench->tell(line));
    QCOMPARE(bench->differences(expected), QString());
    QVERIFY2(bench->hasSentNothing(), "the reply's value went back to the device");
}

void TestChannelReply::letterSetsTheChannelsControls_data()
{
    addColumns();
    addBoth("g050", {{"GainEdit", "65%"}, {"GainSlider", "65"}});
    addBoth("g064", {{"GainEdit", "75%"}, {"GainSlider", "75"}});
    addBoth("g000", {{"GainEdit", "30%"}, {"GainSlider", "30"}});
    addBoth("g001", {{"GainEdit", "31%"}, {"GainSlider", "31"}});
    addBoth("g002", {{"GainEdit", "31%"}, {"GainSlider", "31"}});
    addBoth("g005", {{"GainEdit", "34%"}, {"GainSlider", "34"}});
    addBoth("g100", {{"GainEdit", "100%"}, {"GainSlider", "100"}});
    addBoth("o00430", {{"Draft", "0.43"}});
    addBoth("o12344", {{"Draft", "12.34"}});
    addBoth("o100000", {{"Draft", "100.00"}});
    addBoth("q00120", {{"Index", "0.12"}});
    addBoth("q00008", {{"Index", "0.01"}});
    addBoth("p20", {{"PulseEdit", "20"}, {"PulseSlider", "20"}});
    addBoth("p08", {{"PulseEdit", "08"}, {"PulseSlider", "8"}});
    addBoth("t63", {{"DetectEdit", "63%"}, {"DetectSlider", "63"}});
    addBoth("t07", {{"DetectEdit", "7%"}, {"DetectSlider", "7"}});
    addBoth("w0210", {{"Freq", "210"}});
    addBoth("w0033", {{"Freq", "33"}});
    addBoth("m01234", {{"Blank", "1.23"}, {"BlankEdit", "1.23 m"}, {"BlankingSlider", "123"}});
    addBoth("m10000", {{"Blank", "10.00"}, {"BlankEdit", "10.00 m"}, {"BlankingSlider", "1000"}});
    // The low channel's slider begins at half a metre.
    addRow("high", "m00450",
           {{"Blank", "0.45"}, {"BlankEdit", "0.45 m"}, {"BlankingSlider", "45"}});
    addRow("low", "m00450", {{"Blank", "0.45"}, {"BlankEdit", "0.45 m"}, {"BlankingSlider", "50"}});
}

void TestChannelReply::letterSetsTheChannelsControls() { checkLine(); }

void TestChannelReply::letterSetsTheChannelsControlsInFeet_data()
{
    addColumns();
    addBoth("o00400", {{"Draft", "1.31"}});
    addBoth("q01000", {{"Index", "3.28"}});
    addBoth("m01000", {{"Blank", "3.28"}, {"BlankEdit", "3.28 ft"}, {"BlankingSlider", "328"}});
    addBoth("m10000", {{"Blank", "32.81"}, {"BlankEdit", "32.81 ft"}, {"BlankingSlider", "3000"}});
    addRow("high", "m00450",
           {{"Blank", "1.48"}, {"BlankEdit", "1.48 ft"}, {"BlankingSlider", "147"}});
    addRow("low", "m00450",
           {{"Blank", "1.48"}, {"BlankEdit", "1.48 ft"}, {"BlankingSlider", "200"}});
    addBoth("w0210", {{"Freq", "210"}});
    addBoth("g050", {{"GainEdit", "65%"}, {"GainSlider", "65"}});
}

void TestChannelReply::letterSetsTheChannelsControlsInFeet() { checkLine(); }

void TestChannelReply::oddValueIsShownAsTheDeviceSaidIt_data()
{
    addColumns();
    for (const char *piece : {"g", "gxyz", "g5.5", "g99999999999"}) {
        addBoth(piece, {{"GainEdit", "30%"}, {"GainSlider", "30"}});
    }
    addBoth("g200", {{"GainEdit", "170%"}, {"GainSlider", "100"}});
    addBoth("g-50", {{"GainEdit", "-4%"}, {"GainSlider", "30"}});
    for (const char *piece : {"o", "oxyz", "o0.4", "o99999999999"}) {
        addBoth(piece, {{"Draft", "0.00"}});
    }
    addBoth("o-100", {{"Draft", "-0.10"}});
    addBoth("o2147483647", {{"Draft", "2147483.65"}});
    addBoth("q", {{"Index", "0.00"}});
    addBoth("qxyz", {{"Index", "0.00"}});
    addBoth("p", {{"PulseEdit", ""}, {"PulseSlider", "1"}});
    addBoth("pxyz", {{"PulseEdit", "xyz"}, {"PulseSlider", "1"}});
    addBoth("p99", {{"PulseEdit", "99"}, {"PulseSlider", "34"}});
    addBoth("t", {{"DetectEdit", "0%"}, {"DetectSlider", "1"}});
    addBoth("txyz", {{"DetectEdit", "0%"}, {"DetectSlider", "1"}});
    addBoth("t90", {{"DetectEdit", "90%"}, {"DetectSlider", "75"}});
    addBoth("t1234567", {{"DetectEdit", "1.23457e+06%"}, {"DetectSlider", "75"}});
    addBoth("w", {{"Freq", "0"}});
    addBoth("w33.5", {{"Freq", "0"}});
    addBoth("m20000", {{"Blank", "20.00"}, {"BlankEdit", "20.00 m"}, {"BlankingSlider", "1000"}});
    addBoth("m2147483647",
            {{"Blank", "2147483.65"}, {"BlankEdit", "2147483.65 m"}, {"BlankingSlider", "1000"}});
    for (const char *piece : {"m", "mxyz"}) {
        addRow("high", piece,
               {{"Blank", "0.00"}, {"BlankEdit", "0.00 m"}, {"BlankingSlider", "30"}});
        addRow("low", piece,
               {{"Blank", "0.00"}, {"BlankEdit", "0.00 m"}, {"BlankingSlider", "50"}});
    }
    addRow("high", "m-500",
           {{"Blank", "-0.50"}, {"BlankEdit", "-0.50 m"}, {"BlankingSlider", "30"}});
}

void TestChannelReply::oddValueIsShownAsTheDeviceSaidIt() { checkLine(); }

void TestChannelReply::modeChecksItsOption_data()
{
    addColumns();
    for (const char *manualBefore : {"cm,?ca", "cm,?cauto"}) {
        addBoth(manualBefore, {{"AutoRadio", isChecked}, {"ManualRadio", isNotChecked}});
    }
    addBoth("ca,?cm", {{"ManualRadio", isChecked}, {"AutoRadio", isNotChecked}});
    addRow("high", "cm,?cs", {{"ShallowRadio", isChecked}, {"ManualRadio", isNotChecked}});
    addRow("low", "cm,?cs", {{"ManualRadio", isChecked}, {"ShallowRadio", isNotChecked}});
    for (const char *unknown : {"cm,?cx", "cm,?c", "cm,?cA"}) {
        addBoth(unknown, {{"ManualRadio", isChecked}});
    }
}

void TestChannelReply::modeChecksItsOption() { checkLine(); }

void TestChannelReply::gainLawChecksItsOption_data()
{
    addColumns();
    addBoth("lW,?lN", {{"OffTvg", isChecked}, {"Log10Tvg", ""}, {"Log20Tvg", ""}});
    addBoth("lN,?lT", {{"OffTvg", ""}, {"Log10Tvg", isChecked}, {"Log20Tvg", ""}});
    addBoth("lN,?lW", {{"OffTvg", ""}, {"Log10Tvg", ""}, {"Log20Tvg", isChecked}});
    for (const char *unknown : {"lN,?lx", "lN,?l", "lN,?lw"}) {
        addBoth(unknown, {{"OffTvg", isChecked}});
    }
}

void TestChannelReply::gainLawChecksItsOption() { checkLine(); }

void TestChannelReply::lineSaysNothingToShow_data()
{
    QTest::addColumn<QByteArray>("line");
    for (const char *line : {"*H", "*L", "*H,H,L,", "*H,,,", "*Hz50", "*HG50", "*L ", "*H,50",
                             "g050,*H", "*Hg050,*i", "*L,T50,W50"}) {
        QTest::newRow(line) << QByteArray(line);
    }
}

void TestChannelReply::lineSaysNothingToShow()
{
    QFETCH(QByteArray, line);
    const Shown before = bench->everythingShown();
    QVERIFY2(before.size() > 40, "too few controls looked at to mean anything");
    QVERIFY(bench->tell(line));
    QCOMPARE(bench->differences(before), QString());
    QVERIFY(bench->hasSentNothing());
}

void TestChannelReply::kindOfLineDecidesTheChannel_data()
{
    addColumns();
    const auto row = [](const char *line, const Shown &expected) {
        QTest::newRow(line) << QByteArray(line) << expected;
    };
    row("*H,Lg050", {{"highGainEdit", "65%"}, {"lowGainEdit", "75%"}});
    row("*L,Hg050", {{"highGainEdit", "75%"}, {"lowGainEdit", "65%"}});
    row("*Lg050,*H", {{"highGainEdit", "65%"}, {"lowGainEdit", "75%"}});
    row("?*H,Hg050", {{"highGainEdit", "65%"}, {"lowGainEdit", "75%"}});
}

void TestChannelReply::kindOfLineDecidesTheChannel() { checkLine(); }

void TestChannelReply::oneChannelsLineLeavesTheOtherChannelAlone_data()
{
    QTest::addColumn<QByteArray>("line");
    QTest::addColumn<QString>("other");
    constexpr char rest[] = "g050,?lN,?m01234,?o00777,?p20,?q00888,?t63,?w0199";
    for (const char channel : {'H', 'L'}) {
        const QByteArray line = QByteArray("*?cm,?").append(rest).replace('?', channel);
        QTest::newRow(line) << line << QString(channel == 'H' ? "low" : "high");
    }
}

void TestChannelReply::oneChannelsLineLeavesTheOtherChannelAlone()
{
    QFETCH(QByteArray, line);
    QFETCH(QString, other);
    const Shown before = bench->everythingShown();
    const QStringList others = QStringList(before.keys()).filter(QRegularExpression("^" + other));
    QVERIFY(others.size() > 10);
    QVERIFY(bench->tell(line));
    for (const QString &name : others) {
        QCOMPARE(bench->shown(name), before.value(name));
    }
}

/// A whole line at once, letters in the device's own order.
void TestChannelReply::wholeLineSetsEverything()
{
    QVERIFY(bench->tell("*Hcm,Hg050,HlW,Hm01234,Ho00777,Hp20,Hq00888,Ht63,Hw0199"));
    const Shown expected{{"highManualRadio", isChecked}, {"highGainEdit", "65%"},
                         {"highGainSlider", "65"},       {"highLog20Tvg", isChecked},
                         {"highBlank", "1.23"},          {"highBlankEdit", "1.23 m"},
                         {"highDraft", "0.78"},          {"highBlankingSlider", "123"},
                         {"highPulseEdit", "20"},        {"highPulseSlider", "20"},
                         {"highIndex", "0.89"},          {"highDetectEdit", "63%"},
                         {"highDetectSlider", "63"},     {"highFreq", "199"}};
    QCOMPARE(bench->differences(expected), QString());
    QVERIFY(bench->hasSentNothing());
}

void TestChannelReply::operatorCanEditAfterAReply_data()
{
    QTest::addColumn<QByteArray>("line");
    for (const char *line : {"*Hcm,Hg050", "*Hcm,Hz", "*Lcm,Lxyz"}) {
        QTest::newRow(line) << QByteArray(line);
    }
}

/// The window holds its edits back while it fills itself, and only then.
void TestChannelReply::operatorCanEditAfterAReply()
{
    QFETCH(QByteArray, line);
    QVERIFY(bench->tell(line));
    bench->type("highDraft", "0.55");
    QVERIFY2(bench->hears("*o00550H"), "what the operator typed after a reply was not sent");
}

void TestChannelReply::piecesAreLogged()
{
    const LogCapture log;
    QVERIFY(bench->tell("*Hca,,Hg064"));
    QCOMPARE(log.count("MainWindow::parseSetting"), 1);
    QVERIFY(log.contains("Settings"));
    QVERIFY(log.contains("(\"Hca\", \"\", \"Hg064\")"));
}

QTEST_MAIN(TestChannelReply)

#include "tst_channelreply.moc"
