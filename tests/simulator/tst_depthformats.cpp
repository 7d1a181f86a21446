// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

// The reader here follows what programs that read these formats look for: fixed words and places.

#include "depthformats.h"

#include <QtTest>

#include <cmath>

namespace {

struct ReadDepths
{
    double high = -1; ///< negative: the line says nothing about this channel
    double low = -1;
};

double centimetres(const QString &text) { return text.toDouble() / 100; }

ReadDepths readKestrola(const QString &line)
{
    const QStringList items = line.split('T');
    if (line.contains('L') && line.contains('H')) {
        return {centimetres(items.at(1).split('\t').at(1)), centimetres(items.at(0))};
    }
    if (line.contains('L')) {
        return {-1, centimetres(items.at(0))};
    }
    return {centimetres(items.at(0)), -1};
}

/// Programs begin at the second digit behind " et B ".
ReadDepths readOdom(const QString &line)
{
    const int place = line.indexOf(" et");
    return {centimetres(line.mid(place + 7, 5)), centimetres(line.mid(place + 13, 5))};
}

ReadDepths readOrvando(const QString &line)
{
    return {centimetres(line.mid(2, 5)), centimetres(line.mid(8, 5))};
}

ReadDepths readNmea(const QString &line) { return {line.split(',').value(3).toDouble(), -1}; }

ReadDepths readSonarmite(const QString &line, bool isDual)
{
    const QStringList items = line.split(' ');
    return {items.at(1).toDouble(), isDual ? items.at(2).toDouble() : -1};
}

/// What a program makes of one line, tried in the order in which programs try.
ReadDepths read(const QString &line, const QString &chosenFormat)
{
    if (line.contains("-95") || line.contains("-94")) {
        return readKestrola(line);
    }
    if (line.contains(" et")) {
        return readOdom(line);
    }
    if (line.contains(" ,")) {
        return readOrvando(line);
    }
    if (line.contains("$SDDB")) {
        return readNmea(line);
    }
    if (line.contains("DA")) {
        return {line.mid(line.indexOf("DA") + 2, 8).toDouble(), -1};
    }
    if (line.contains("DB")) {
        return {-1, line.mid(line.indexOf("DB") + 2, 8).toDouble()};
    }
    if (line.contains('e')) {
        return {-99, -99}; // no format of this device
    }
    return readSonarmite(line, chosenFormat.contains("DUAL"));
}

ReadDepths readAll(const QByteArrayList &lines, const QString &chosenFormat)
{
    ReadDepths all;
    for (const QByteArray &line : lines) {
        const ReadDepths one = read(QString::fromLatin1(line), chosenFormat);
        all.high = one.high < 0 && one.high > -2 ? all.high : one.high;
        all.low = one.low < 0 && one.low > -2 ? all.low : one.low;
    }
    return all;
}

bool carriesOneDepth(const QString &format)
{
    return format.startsWith("NMEA") || format.endsWith("OLD") || format.endsWith("NEW");
}

} // namespace

Q_DECLARE_METATYPE(DepthPair)

class TestDepthFormats : public QObject
{
    Q_OBJECT

private slots:
    void numbersOfTheDevice_data();
    void numbersOfTheDevice();
    void exactLines_data();
    void exactLines();
    void readersGetBothDepths_data();
    void readersGetBothDepths();
    void noLineIsTakenForAnotherKind_data();
    void noLineIsTakenForAnotherKind();
    void nmeaChecksum();
    void oneDepthFormatsCarryTheChosenChannel_data();
    void oneDepthFormatsCarryTheChosenChannel();
    void unknownFormatHasNoLines();
};

void TestDepthFormats::numbersOfTheDevice_data()
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
    QTest::newRow("nmea dbt") << 2;
    QTest::newRow("NMEA") << 0;
    QTest::newRow("") << 0;
}

void TestDepthFormats::numbersOfTheDevice()
{
    QTEST(DepthFormats::number(QString::fromLatin1(QTest::currentDataTag())), "number");
    QCOMPARE(DepthFormats::names().size(), 9);
}

void TestDepthFormats::exactLines_data()
{
    QTest::addColumn<int>("format");
    QTest::addColumn<DepthPair>("depths");
    QTest::addColumn<QByteArrayList>("expected");
    using List = QByteArrayList;
    const DepthPair both{1.23, 1.31};
    const DepthPair high{1.23, {}};
    const DepthPair low{{}, 1.31};
    const DepthPair none;

    QStringList namesWithoutRow = DepthFormats::names();
    const auto row = [&namesWithoutRow](const QString &name) -> QTestData & {
        namesWithoutRow.removeOne(name.section(',', 0, 0));
        return QTest::newRow(qPrintable(name));
    };
    row("ODOM") << int(Odom) << both << List{" et B 00123 00131"};
    row("ODOM, high only") << int(Odom) << high << List{" et B 00123 00000"};
    row("ODOM, low only") << int(Odom) << low << List{" et B 00000 00131"};
    row("ODOM, none") << int(Odom) << none << List{" et B 00000 00000"};
    row("ODOM, 99.99 m") << int(Odom) << DepthPair{99.99, 99.991} << List{" et B 09999 09999"};
    row("ODOM, 100 m: out of reach")
        << int(Odom) << DepthPair{99.996, 100.0} << List{" et B 00000 00000"};
    row("ODOM, nonsense") << int(Odom) << DepthPair{-0.5, qQNaN()} << List{" et B 00000 00000"};
    row("NMEA DBT") << int(NmeaDbt) << both << List{"$SDDBT,4.04,f,1.23,M,0.67,F*37"};
    row("NMEA DBT, none") << int(NmeaDbt) << none << List{"$SDDBT,,f,,M,,F*28"};
    row("NMEA DBS") << int(NmeaDbs) << both << List{"$SDDBS,4.04,f,1.23,M,0.67,F*30"};
    row("ORVANDO") << int(Orvando) << both << List{"B 00123 00131 ,"};
    row("ORVANDO, high only") << int(Orvando) << high << List{"B 00123 00000 ,"};
    row("DESO 25") << int(Deso25) << both << List{"DA00001.23 m", "DB00001.31 m"};
    row("DESO 25, high only") << int(Deso25) << high << List{"DA00001.23 m"};
    row("DESO 25, low only") << int(Deso25) << low << List{"DB00001.31 m"};
    row("DESO 25, none") << int(Deso25) << none << List{};
    row("KESTROLA") << int(Kestrola) << both << List{"00131T-94L\t00123T-95H"};
    row("KESTROLA, high only") << int(Kestrola) << high << List{"00123T-95H"};
    row("KESTROLA, low only") << int(Kestrola) << low << List{"00131T-94L"};
    row("KESTROLA, none") << int(Kestrola) << none << List{};
    row("SONARMITE OLD") << int(SonarmiteOld) << both << List{"0 1.23 12.4 78"};
    row("SONARMITE NEW") << int(SonarmiteNew) << both << List{"0 1.23 12.4 78"};
    row("SONARMITE NEW, none") << int(SonarmiteNew) << none << List{"0 0.00 12.4 0"};
    row("SONARMITE DUAL") << int(SonarmiteDual) << both << List{"0 1.23 1.31 78"};
    row("SONARMITE DUAL, low only") << int(SonarmiteDual) << low << List{"0 0.00 1.31 78"};
    QCOMPARE(namesWithoutRow.join(", "), QString());
}

void TestDepthFormats::exactLines()
{
    QFETCH(int, format);
    QFETCH(DepthPair, depths);
    QTEST(DepthFormats::lines(format, depths), "expected");
}

void TestDepthFormats::readersGetBothDepths_data()
{
    QTest::addColumn<QString>("format");
    QTest::addColumn<DepthPair>("depths");
    const DepthPair pairs[] = {{1.23, 1.31}, {0.0, 0.0},     {0.5, 9.99},   {9.4, 9.5},
                               {10.0, 21.},  {94.94, 95.95}, {99.99, 0.01}, {0.94, 0.95}};
    for (const QString &format : DepthFormats::names()) {
        for (const DepthPair &pair : pairs) {
            QTest::addRow("%s %.2f %.2f", qPrintable(format), *pair.high, *pair.low)
                << format << pair;
        }
    }
}

void TestDepthFormats::readersGetBothDepths()
{
    QFETCH(QString, format);
    QFETCH(DepthPair, depths);
    const ReadDepths got =
        readAll(DepthFormats::lines(DepthFormats::number(format), depths), format);
    QVERIFY2(std::abs(got.high - *depths.high) < 0.0001, qPrintable(QString::number(got.high)));
    const double low = carriesOneDepth(format) ? -1 : *depths.low;
    QVERIFY2(std::abs(got.low - low) < 0.0001, qPrintable(QString::number(got.low)));
}

void TestDepthFormats::noLineIsTakenForAnotherKind_data()
{
    QTest::addColumn<QString>("format");
    for (const QString &format : DepthFormats::names()) {
        QTest::newRow(qPrintable(format)) << format;
    }
}

/// Programs look for these words before they think of a depth.
void TestDepthFormats::noLineIsTakenForAnotherKind()
{
    QFETCH(QString, format);
    for (int cm = 0; cm < 10000; cm += 7) {
        const DepthPair depths{cm / 100.0, (9999 - cm) / 100.0};
        for (const QByteArray &line : DepthFormats::lines(DepthFormats::number(format), depths)) {
            for (const char *word : {"New", "TalVero", "Talvero", "OK", "ERR", "*H", "*L", "*i",
                                     "UID : ", "BoardTemp: ", "VSupply: ", "\r", "\n"}) {
                QVERIFY2(!line.contains(word), line.constData());
            }
        }
    }
}

void TestDepthFormats::nmeaChecksum()
{
    for (int cm = 0; cm < 10000; cm += 11) {
        const QByteArray line = DepthFormats::lines(NmeaDbt, {cm / 100.0, {}}).value(0);
        const int star = line.indexOf('*');
        int sum = 0;
        for (const char byte : line.mid(1, star - 1)) {
            sum ^= byte;
        }
        QCOMPARE(line.mid(star + 1), QString::asprintf("%02X", sum).toLatin1());
    }
}

void TestDepthFormats::oneDepthFormatsCarryTheChosenChannel_data()
{
    QTest::addColumn<QString>("format");
    for (const QString &format : DepthFormats::names()) {
        if (carriesOneDepth(format)) {
            QTest::newRow(qPrintable(format)) << format;
        }
    }
}

void TestDepthFormats::oneDepthFormatsCarryTheChosenChannel()
{
    QFETCH(QString, format);
    const auto lines =
        DepthFormats::lines(DepthFormats::number(format), {1.23, 1.31}, SounderChannel::Low);
    QCOMPARE(readAll(lines, format).high, 1.31);
}

void TestDepthFormats::unknownFormatHasNoLines()
{
    QCOMPARE(DepthFormats::lines(0, {1.0, 1.0}), QByteArrayList());
    QCOMPARE(DepthFormats::lines(10, {1.0, 1.0}), QByteArrayList());
}

QTEST_GUILESS_MAIN(TestDepthFormats)
#include "tst_depthformats.moc"
