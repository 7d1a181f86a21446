// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "depthsentence.h"

#include <QtTest>

#include <cmath>

using DepthSentence::Context;
using DepthSentence::Depths;

namespace {

constexpr float none = DepthSentence::noDepth;

void addColumns()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<float>("high");
    QTest::addColumn<float>("low");
}

void addRow(const char *line, float high, float low)
{
    QTest::newRow(qPrintable(QString("\"%1\"").arg(line))) << QString(line) << high << low;
}

/// A number as each form carries it, and the depth that the form makes of a readable 123.
struct Carrier
{
    const char *name;
    const char *before;
    const char *behind;
    bool isHigh;
    float depthOf123;
};

/// Those that take a number of any length.
constexpr Carrier carriers[] = {
    {"KESTROLA high", "", "T-95H", true, 1.23F},
    {"KESTROLA low", "", "T-94L", false, 1.23F},
    {"NMEA", "$SDDBS,4.0,f,", ",M,0.67,F", true, 123.0F},
    {"SONARMITE high", "0 ", " 7 1", true, 123.0F},
    {"SONARMITE low", "0 7 ", " 1", false, 123.0F},
};

Depths readDual(const QString &line)
{
    Context context;
    context.outputFormat = QStringLiteral("SONARMITE DUAL");
    return DepthSentence::read(line, context);
}

} // namespace

/// Sentences that are cut short, or spoilt on their way: no depth, or 0 for a number that does not
/// read, and never a crash.
class TestBrokenSentences : public QObject
{
    Q_OBJECT

private slots:
    void shortLine_data() { cutShort(); }
    void shortLine() { isRead(); }
    void everyBeginningOfASentence_data();
    void everyBeginningOfASentence();
    void missingItem_data();
    void missingItem() { isRead(); }
    void blanksInsteadOfZeros_data();
    void blanksInsteadOfZeros() { isRead(); }
    void numberThatDoesNotReadCountsAsZero_data();
    void numberThatDoesNotReadCountsAsZero();
    void unusualNumberIsRead_data();
    void unusualNumberIsRead();
    void bytesThatAreNoAscii_data();
    void bytesThatAreNoAscii() { isRead(); }
    void veryLongLine_data();
    void veryLongLine() { isRead(); }

private:
    static void cutShort();
    static void isRead();
};

void TestBrokenSentences::cutShort()
{
    addColumns();
    addRow(" et", 0.0F, 0.0F);
    addRow(" et B", 0.0F, 0.0F);
    addRow(" et B 0", 0.0F, 0.0F);
    addRow(" et B 0012", 0.12F, 0.0F);
    addRow(" et B 00123", 1.23F, 0.0F);
    addRow(" et B 00123 001", 1.23F, 0.01F);
    addRow(" ,", 0.0F, 0.0F);
    addRow("B ,", 0.0F, 0.0F);
    addRow("B 001 ,", 0.0F, 0.0F); // "001 ," is no number
    addRow("B 00123 ,", 1.23F, 0.0F);
    addRow("DA", 0.0F, none);
    addRow("DA1", 1.0F, none);
    addRow("DA1.23 m", 0.0F, none); // the unit within the eight characters
    addRow("DB", none, 0.0F);
    addRow("DB0001.31", none, 1.31F);
    addRow("e", none, 0.0F);
    addRow("e1", none, 0.01F);
    addRow("-95", -0.95F, none); // all of it is the first item
    addRow("-94", none, -0.94F);
    addRow("T-95", 0.0F, none);
    addRow("T-94", none, 0.0F);
    addRow("-94LH", none, 0.0F);
    addRow("T-94L\tH", 0.0F, 0.0F);
}

void TestBrokenSentences::isRead()
{
    QFETCH(QString, line);
    const Depths depths = DepthSentence::read(line, {});
    QTEST(depths.high, "high");
    QTEST(depths.low, "low");
}

void TestBrokenSentences::everyBeginningOfASentence_data()
{
    QTest::addColumn<QString>("sentence");
    for (const char *sentence :
         {" et B 00123 00131", "$SDDBT,7.7,f,2.3,M,1.3,F*05",
          "$SDDBS,67.915,f,20.701,M,11.319,F*32", "B 00123 00131 ,", "DA00001.23 m", "DB00001.31 m",
          "00131T-94L\t00123T-95H", "e00131", "0 1.23 1.31 78"}) {
        QTest::newRow(sentence) << QString(sentence);
    }
}

/// A line end on its own in the noise cuts a sentence anywhere, before and behind.
void TestBrokenSentences::everyBeginningOfASentence()
{
    QFETCH(QString, sentence);
    for (int length = 1; length <= sentence.size(); ++length) {
        for (const QString &part : {sentence.left(length), sentence.right(length)}) {
            const Depths depths = readDual(part);
            for (const float depth : {depths.high, depths.low}) {
                QVERIFY2(std::isfinite(depth) && depth <= 1350.0F, qPrintable(part));
            }
        }
    }
}

void TestBrokenSentences::missingItem_data()
{
    addColumns();
    addRow("$SDDB", none, none);
    addRow("$SDDBT", none, none);
    addRow("$SDDBT,7.7", none, none);
    addRow("$SDDBT,7.7,f", none, none);
    addRow("1,2,3,4,$SDDBT,7.7,f", none, none);
    addRow("$SDDBT,7.7,f,", 0.0F, none);
    addRow("$SDDBT,7.7,f,,M", 0.0F, none);
    addRow("$SDDBT,,f,,M,,F", 0.0F, none);
    addRow("$SDDBT,,,2.3,,,", 2.3F, none);
    addRow("$SDDBT,7.7,f,2.3", 2.3F, none);
    addRow("$SDDBT,7.7,f,2.3*05", 0.0F, none); // the checksum belongs to the item
    addRow("$SDDBT,7.7,f,2.3 DA00009.99", 0.0F, none);
    addRow("$SDDBT 7.7 f 2.3 M", none, none);
    addRow("00131T-94L\t", none, 1.31F); // no "H"
    addRow("00131T-94L\tT-95H", 0.0F, 1.31F);
    addRow("T-94L\t00123T-95H", 1.23F, 0.0F);
    addRow("\t00123T-95H", 1.23F, none);
}

void TestBrokenSentences::blanksInsteadOfZeros_data()
{
    addColumns();
    addRow(" et B   123   131", 1.23F, 1.31F);
    addRow(" et B             ", 0.0F, 0.0F);
    addRow("B   123   131 ,", 1.23F, 1.31F);
    addRow("B             ,", 0.0F, 0.0F);
    addRow("DA    1.23 m", 1.23F, none);
    addRow("DB    1.31 m", none, 1.31F);
    addRow("DA          ", 0.0F, none);
    addRow("e  131", none, 1.31F);
    addRow("  131T-94L\t  123T-95H", 1.23F, 1.31F);
    addRow("     T-95H", 0.0F, none);
    addRow("$SDDBT, 7.7,f, 2.3,M", 2.3F, none);
    addRow("$SDDBT,7.7,f, 2.3 ,M", 0.0F, 0.0F); // a blank before a comma is ORVANDO's mark
}

void TestBrokenSentences::numberThatDoesNotReadCountsAsZero_data()
{
    QTest::addColumn<QString>("number");
    for (const char *number :
         {"",   "-----", "x",    "12x",   "12,3",  "1.2.3",    "--1",  "+-1",     ".",   "-",
          "+",  "nan",   "NAN",  "inf",   "-inf",  "INFINITY", "0x10", "0X1P3",   "12F", "1d5",
          "1E", "1E+",   "1E39", "-1E39", "1E400", "1E-60",    "#",    "\xC2\xB2"}) {
        QTest::newRow(qPrintable(QString("\"%1\"").arg(number))) << QString::fromUtf8(number);
    }
}

void TestBrokenSentences::numberThatDoesNotReadCountsAsZero()
{
    QFETCH(QString, number);
    for (const Carrier &carrier : carriers) {
        const QString line = carrier.before + number + carrier.behind;
        const bool isOtherForm = // "e" and "," mean other forms to a SONARMITE line
            QString(carrier.name).startsWith("SONARMITE") && number.contains('e');
        const bool isOtherItem = QString(carrier.name) == "NMEA" && number.contains(',');
        if (!isOtherForm && !isOtherItem) {
            const Depths depths = readDual(line);
            QVERIFY2((carrier.isHigh ? depths.high : depths.low) == 0.0F, qPrintable(line));
        }
    }
}

void TestBrokenSentences::unusualNumberIsRead_data()
{
    QTest::addColumn<QString>("number");
    for (const char *number : {"123", "0123", "000000000123", "123.", "123.00", "+123", "1.23E2",
                               "12300E-2", " 123", "123 ", "\t123"}) {
        QTest::newRow(qPrintable(QString("\"%1\"").arg(number))) << QString(number);
    }
}

void TestBrokenSentences::unusualNumberIsRead()
{
    QFETCH(QString, number);
    for (const Carrier &carrier : carriers) {
        const QString name = carrier.name;
        const bool blankSeparates = name.startsWith("SONARMITE") && number.contains(' ');
        const bool isOrvando = name == "NMEA" && number.endsWith(' ');
        if (!blankSeparates && !isOrvando) {
            const QString line = carrier.before + number + carrier.behind;
            const Depths depths = readDual(line);
            QVERIFY2((carrier.isHigh ? depths.high : depths.low) == carrier.depthOf123,
                     qPrintable(line));
        }
    }
}

void TestBrokenSentences::bytesThatAreNoAscii_data()
{
    addColumns();
    const auto row = [](const char *name, const QByteArray &bytes, float high, float low) {
        QTest::newRow(name) << QString::fromLatin1(bytes.constData(), bytes.size()) << high << low;
    };
    row("noise alone", "\xff\xfe\x80\x9f", none, none);
    row("a zero byte alone", QByteArray(1, '\0'), none, none);
    row("noise before NMEA", "\xff\x80\x01$SDDBT,7.7,f,2.3,M", 2.3F, none);
    row("a spoilt digit in NMEA", "$SDDBT,7.7,f,2.\xb3,M", 0.0F, none);
    row("a zero byte in NMEA", QByteArray("$SDDBT,7.7,f,2\0003,M", 18), 0.0F, none);
    row("noise before ODOM", "\xb5\xff et B 00123 00131", 1.23F, 1.31F);
    row("a spoilt digit in ODOM",
        " et B 00123 001\xb3"
        "1",
        1.23F, 0.0F);
    row("a spoilt digit in ORVANDO", "B 001\xb2\x33 00131 ,", 0.0F, 1.31F);
    row("a spoilt digit in DESO 25", "DA0000\xb1.23 m", 0.0F, none);
    row("noise before DESO 25",
        "\xe9\xe8"
        "DA00001.23 m",
        1.23F, none);
    row("a spoilt digit in KESTROLA",
        "001\xb3"
        "1T-94L\t00123T-95H",
        1.23F, 0.0F);
    row("an accented e is no e",
        "\xe9"
        "00131",
        none, none);
}

void TestBrokenSentences::veryLongLine_data()
{
    addColumns();
    const QString noise(1000000, 'x');
    const auto row = [](const char *name, const QString &line, float high, float low) {
        QTest::newRow(name) << line << high << low;
    };
    row("noise alone", noise, none, none);
    row("noise before ODOM", noise + " et B 00123 00131", 1.23F, 1.31F);
    row("noise before NMEA", noise + "$SDDBT,7.7,f,2.3,M", 2.3F, none);
    row("NMEA before noise", "$SDDBT,7.7,f,2.3,M" + noise, 2.3F, none);
    row("noise before DESO 25", noise + "DA00001.23", 1.23F, none);
    row("noise before a single low depth", noise + "e00131", none, 1.31F);
    row("many separators before KESTROLA", QString(1000000, 'T') + "-95H", 0.0F, none);
    row("many commas behind NMEA", "$SDDBT,7.7,f,2.3" + QString(1000000, ','), 2.3F, none);
    row("a number of many digits", "$SDDBT,7.7,f," + QString(100000, '9') + ",M", 0.0F, none);
    row("a number of many zeros", "$SDDBT,7.7,f," + QString(100000, '0') + "2.3,M", 2.3F, none);
}

QTEST_APPLESS_MAIN(TestBrokenSentences)

#include "tst_brokensentences.moc"
