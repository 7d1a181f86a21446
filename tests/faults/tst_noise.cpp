// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

// Noise as the wrong rate gives it, in every state of the link, and texts that are no texts.

#include "faultbench.h"

#include <QLabel>
#include <QLineEdit>

#include <random>

namespace {

constexpr char notConnected[] = "Could Not Connect To Device";

/// Bytes of every value but those that could make a word of the sounder's.
QByteArray noise(int size)
{
    std::mt19937 dice(20260117);
    QByteArray bytes;
    while (bytes.size() < size) {
        const char byte = static_cast<char>(dice());
        if (!QChar::fromLatin1(byte).isLetter() && byte != '*') {
            bytes += byte;
        }
    }
    return bytes;
}

/// Noise until this is so; false if it does not come.
bool hissesUntil(FaultBench &bench, const std::function<bool()> &condition)
{
    const QByteArray bytes = noise(997);
    return FaultBench::waits([&] {
        bench.line.write(bytes);
        return condition();
    });
}

const FaultRow noises[] = {
    {"noise before connecting",
     [](FaultBench &bench) {
         bench.line.write(noise(2000));
         QCoreApplication::processEvents();
         return bench.isOffline() && bench.connectReady();
     },
     "", true},
    {"noise instead of a banner",
     [](FaultBench &bench) {
         return bench.startConnecting() && hissesUntil(bench, [&] { return bench.isOffline(); });
     },
     notConnected, false},
    {"noise at every rate",
     [](FaultBench &bench) {
         return bench.startConnecting("Auto") &&
                hissesUntil(bench, [&] { return bench.isOffline(); });
     },
     notConnected, false},
    {"noise at the first rate, the banner at the second",
     [](FaultBench &bench) {
         const bool isTrying = bench.startConnecting("Auto") && hissesUntil(bench, [&] {
                                   return bench.text("baudComboBox") == "9600";
                               });
         bench.say("");
         bench.say("TalVero New Dual 2.14.7");
         return isTrying;
     },
     "Connected to TAL-VERO", true},
    {"noise between soundings",
     [](FaultBench &bench) {
         return bench.connectReady() && bench.pour(noise(20000) + "\r\n") &&
                hissesUntil(bench, [&] {
                    bench.line.write("\r\nVSupply: 12.41\r\n");
                    return bench.text("temperatureLabel").contains("12.41V");
                });
     },
     "", true},
    {"noise instead of an OK",
     [](FaultBench &bench) {
         const bool isReady = bench.connectReady();
         bench.click("pingUp");
         return isReady && bench.hears("*i06....") && bench.pour(noise(5000) + "\r\n");
     },
     "Setting Pings Per Second to 6", true},
    {"noise before an OK",
     [](FaultBench &bench) {
         const bool isReady = bench.connectReady();
         bench.click("pingUp");
         return isReady && bench.hears("*i06....") && bench.pour(noise(5000) + "\r\nOK\r\n") &&
                FaultBench::waits([&] {
                    bench.line.write(".\r\n");
                    return bench.info().endsWith("Success");
                });
     },
     "Setting Pings Per Second to 6 ... Success", true},
};

} // namespace

class TestNoise : public FaultTest
{
    Q_OBJECT

private slots:
    void initTestCase();
    void noiseOnTheLine_data() { addRows(noises); }
    void noiseOnTheLine() { play(); }
    void whatIsNoNumberInEveryReport_data();
    void whatIsNoNumberInEveryReport();
};

void TestNoise::initTestCase()
{
    bench = std::make_unique<FaultBench>();
    bench->keepAnswerTime(shortOrLong(1000, 2000));
}

void TestNoise::whatIsNoNumberInEveryReport_data()
{
    QTest::addColumn<QByteArray>("value");
    QTest::newRow("a NUL byte") << QByteArray("1\0"
                                              "2",
                                              3);
    QTest::newRow("bytes above 127") << QByteArray("\x80\xA0\xFF\xFE\xB0");
    QTest::newRow("control characters") << QByteArray("\x01\x07\x08\x0B\x0C\x1B[31m\x7F");
    QTest::newRow("NaN") << QByteArray("NaN");
    QTest::newRow("inf") << QByteArray("inf");
    QTest::newRow("-inf") << QByteArray("-inf");
    QTest::newRow("1e999") << QByteArray("1e999");
    QTest::newRow("0xFFFFFFFF") << QByteArray("0xFFFFFFFF");
    QTest::newRow("2147483648") << QByteArray("2147483648");
    QTest::newRow("a number of forty digits") << QByteArray(40, '9');
    QTest::newRow("forty digits behind the point") << "0." + QByteArray(40, '1');
    QTest::newRow("a comma for the point") << QByteArray("12,5");
    QTest::newRow("mark-up") << QByteArray("<h1><b>1</b><img src='x.png'>");
    QTest::newRow("nothing") << QByteArray();
}

/// Every form of report with this value in place of its numbers; the window keeps its size, shows
/// nothing that is no number, and goes on.
void TestNoise::whatIsNoNumberInEveryReport()
{
    QFETCH(QByteArray, value);
    QVERIFY(bench->connectReady());
    const QSize least = bench->window.minimumSizeHint();
    for (const char *before : {"*i",         "*iv",
                               "*is",        "*ia",
                               "*iI",        "*iH",
                               "*iL",        "*Hc",
                               "*Hg",        "*Hl",
                               "*Hm",        "*Ho",
                               "*Hp",        "*Hq",
                               "*Ht",        "*Hw",
                               "*Lc",        "*Lg",
                               "*Lm",        "*Lo",
                               "*Lp",        "*Lw",
                               "UID : ",     "BoardTemp: ",
                               "VSupply: ",  " et B ",
                               " ,",         "$SDDBT,,f,",
                               "$SDDBS,,f,", "DA",
                               "DB",         "e",
                               "-94T",       "TalVero New Dual "}) {
        QVERIFY2(bench->tell(before + value), before);
        QVERIFY2(bench->showsConnected(), before);
        for (const char *label : {"temperatureLabel", "highDepthLabel", "lowDepthLabel",
                                  "highGainEdit", "highBlankEdit", "highDraft", "maxDepthEdit"}) {
            const QString shown = bench->text(label);
            QVERIFY2(!shown.contains("nan") && !shown.contains("inf"), qPrintable(shown));
        }
    }
    QCOMPARE(bench->window.minimumSizeHint(), least);
}

QTEST_MAIN(TestNoise)
#include "tst_noise.moc"
