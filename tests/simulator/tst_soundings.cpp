// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

// What a sounder says of its own accord.

#include "modelbench.h"

#include <QtTest>

namespace {

/// A level bottom, measured at 10.00 m and 10.50 m, and ODOM for the depths in plain centimetres.
struct LevelBottom : ModelBench
{
    LevelBottom()
        : ModelBench(odom())
    {
        model.setDepthSource([](double) { return DepthPair{10.0, 10.5}; });
        model.settings().high.draftMm = 0;
        model.settings().low.draftMm = 0;
    }

    static SounderOptions odom()
    {
        SounderOptions options;
        options.format = Odom;
        return options;
    }

    /// The last whole line of half a second, without its end.
    QByteArray nextLine()
    {
        listen(250);
        return listen(500).split('\n').value(1).trimmed();
    }
};

/// So many soundings of the level bottom in this format, with their line ends.
QByteArray soundedText(int format, int soundings)
{
    static const QMap<int, QByteArray> texts{
        {Odom, " et B 01000 01050\r\n"},
        {NmeaDbt, "$SDDBT,32.81,f,10.00,M,5.47,F*39\r\n"},
        {NmeaDbs, "$SDDBS,32.81,f,10.00,M,5.47,F*3E\r\n"},
        {Orvando, "B 01000 01050 ,\r\n"},
        {Deso25, "DA00010.00 m\r\nDB00010.50 m\r\n"},
        {Kestrola, "01050T-94L\t01000T-95H\r\n"},
        {SonarmiteOld, "0 10.00 12.4 78\r\n"},
        {SonarmiteNew, "0 10.00 12.4 78\r\n"},
        {SonarmiteDual, "0 10.00 10.50 78\r\n"},
    };
    return texts.value(format).repeated(soundings);
}

} // namespace

class TestSoundings : public QObject
{
    Q_OBJECT

private slots:
    void leaveAtThePingRate_data();
    void leaveAtThePingRate();
    void stopAndGoOn();
    void missedPingsAreNotMadeUpFor();
    void followTheFormat_data();
    void followTheFormat();
    void newFormatBeginsWithTheVeryNextSounding_data();
    void newFormatBeginsWithTheVeryNextSounding();
    void draftAndIndexAreAdded();
    void depthBelowTransducerHasNoDraft();
    void wrongVelocityGivesWrongDepths();
    void nothingIsSeenBeyondTheMaximumDepth();
    void nothingIsSeenWithinTheBlanking();
    void switchedOffChannel_data();
    void switchedOffChannel();
    void bothChannelsOff();
    void singleChannelUnits();
    void comeFromTheSeabedOfTheSeed();
    void everyLineIsWhole();
};

void TestSoundings::leaveAtThePingRate_data()
{
    QTest::addColumn<int>("pings");
    for (const int pings : {1, 2, 5, 10}) {
        QTest::addRow("%d a second", pings) << pings;
    }
}

void TestSoundings::leaveAtThePingRate()
{
    QFETCH(int, pings);
    LevelBottom bench;
    bench.model.settings().pings = pings;
    bench.listen(1000);
    QCOMPARE(bench.listen(10000).count("\r\n"), pings * 10);
}

void TestSoundings::stopAndGoOn()
{
    LevelBottom bench;
    bench.model.setSoundings(false);
    QCOMPARE(bench.listen(2000), QByteArray());
    bench.model.setSoundings(true);
    QCOMPARE(bench.listen(1000).count("\r\n"), 5);
}

void TestSoundings::missedPingsAreNotMadeUpFor()
{
    LevelBottom bench;
    bench.listen(100);
    bench.now += std::chrono::minutes(5);
    QCOMPARE(bench.listen(1000).count("\r\n"), 5);
}

void TestSoundings::followTheFormat_data()
{
    QTest::addColumn<int>("format");
    QTest::addColumn<QByteArray>("line");
    QTest::newRow("ODOM") << int(Odom) << QByteArray("et B 01000 01050");
    QTest::newRow("NMEA DBT") << int(NmeaDbt) << QByteArray("$SDDBT,32.81,f,10.00,M,5.47,F*39");
    QTest::newRow("NMEA DBS") << int(NmeaDbs) << QByteArray("$SDDBS,32.81,f,10.00,M,5.47,F*3E");
    QTest::newRow("ORVANDO") << int(Orvando) << QByteArray("B 01000 01050 ,");
    QTest::newRow("KESTROLA") << int(Kestrola) << QByteArray("01050T-94L\t01000T-95H");
    QTest::newRow("SONARMITE OLD") << int(SonarmiteOld) << QByteArray("0 10.00 12.4 78");
    QTest::newRow("SONARMITE NEW") << int(SonarmiteNew) << QByteArray("0 10.00 12.4 78");
    QTest::newRow("SONARMITE DUAL") << int(SonarmiteDual) << QByteArray("0 10.00 10.50 78");
}

void TestSoundings::followTheFormat()
{
    QFETCH(int, format);
    LevelBottom bench;
    bench.model.setSoundings(false);
    QCOMPARE(bench.ask("*a" + QByteArray::number(format) + "......"), QByteArray("OK\r\n"));
    bench.model.setSoundings(true);
    QTEST(bench.nextLine(), "line");
}

void TestSoundings::newFormatBeginsWithTheVeryNextSounding_data()
{
    QTest::addColumn<int>("from");
    QTest::addColumn<int>("to");
    for (const QString &from : DepthFormats::names()) {
        for (const QString &to : DepthFormats::names()) {
            QTest::addRow("from %s to %s", qPrintable(from), qPrintable(to))
                << DepthFormats::number(from) << DepthFormats::number(to);
        }
    }
}

/// Who has read the answer may choose another reader at once: nothing in the old format follows.
void TestSoundings::newFormatBeginsWithTheVeryNextSounding()
{
    QFETCH(int, from);
    QFETCH(int, to);
    LevelBottom bench;
    bench.model.settings().pings = 10;
    bench.model.settings().format = from;
    QByteArray heard = bench.listen(450);
    bench.send("*a" + QByteArray::number(to) + "......");
    heard += bench.listen(540); // soundings at 501 ms and so on, the last line is out by then
    const int answer = heard.indexOf("OK\r\n");
    QVERIFY2(answer >= 0, heard.constData());
    QCOMPARE(heard.left(answer), soundedText(from, 5));
    QCOMPARE(heard.mid(answer + 4), soundedText(to, 5));
}

void TestSoundings::draftAndIndexAreAdded()
{
    LevelBottom bench;
    bench.model.settings().high.draftMm = 450;
    bench.model.settings().low.indexMm = 1000;
    QCOMPARE(bench.nextLine(), QByteArray("et B 01045 01150"));
    QCOMPARE(*bench.model.lastSounding().high, 10.45);
}

void TestSoundings::depthBelowTransducerHasNoDraft()
{
    LevelBottom bench;
    bench.model.settings().high.draftMm = 450;
    bench.model.settings().format = NmeaDbt;
    QVERIFY(bench.nextLine().contains(",10.00,M,"));
    bench.model.settings().format = NmeaDbs;
    QVERIFY(bench.nextLine().contains(",10.45,M,"));
}

void TestSoundings::wrongVelocityGivesWrongDepths()
{
    LevelBottom bench;
    bench.model.settings().velocityMmS = 1650000;
    QCOMPARE(bench.nextLine(), QByteArray("et B 01100 01155"));
}

void TestSoundings::nothingIsSeenBeyondTheMaximumDepth()
{
    LevelBottom bench;
    bench.model.settings().maxDepthMm = 10200;
    QCOMPARE(bench.nextLine(), QByteArray("et B 01000 00000"));
    QVERIFY(!bench.model.lastSounding().low);
}

void TestSoundings::nothingIsSeenWithinTheBlanking()
{
    LevelBottom bench;
    bench.model.setDepthSource([](double) { return DepthPair{0.4, 0.6}; });
    QCOMPARE(bench.nextLine(), QByteArray("et B 00000 00060"));
}

void TestSoundings::switchedOffChannel_data()
{
    QTest::addColumn<int>("format");
    QTest::addColumn<QByteArray>("highOnly");
    QTest::addColumn<QByteArray>("lowOnly");
    QTest::newRow("ODOM") << int(Odom) << QByteArray("et B 01000 00000")
                          << QByteArray("et B 00000 01050");
    QTest::newRow("NMEA DBS: the one that is on")
        << int(NmeaDbs) << QByteArray("$SDDBS,32.81,f,10.00,M,5.47,F*3E")
        << QByteArray("$SDDBS,34.45,f,10.50,M,5.74,F*35");
    QTest::newRow("DESO 25") << int(Deso25) << QByteArray("DA00010.00 m")
                             << QByteArray("DB00010.50 m");
    QTest::newRow("KESTROLA") << int(Kestrola) << QByteArray("01000T-95H")
                              << QByteArray("01050T-94L");
    QTest::newRow("SONARMITE OLD: the one that is on")
        << int(SonarmiteOld) << QByteArray("0 10.00 12.4 78") << QByteArray("0 10.50 12.4 78");
    QTest::newRow("SONARMITE DUAL")
        << int(SonarmiteDual) << QByteArray("0 10.00 0.00 78") << QByteArray("0 0.00 10.50 78");
}

void TestSoundings::switchedOffChannel()
{
    QFETCH(int, format);
    LevelBottom bench;
    bench.model.settings().format = format;
    bench.send("*hLLLLLLL");
    QTEST(bench.nextLine(), "highOnly");
    bench.send("*hHHHHHHH*bLLLLLLL");
    QTEST(bench.nextLine(), "lowOnly");
}

void TestSoundings::bothChannelsOff()
{
    LevelBottom bench;
    bench.send("*hLLLLLLL*hHHHHHHH");
    bench.listen(500);
    QCOMPARE(bench.listen(2000), QByteArray());
}

void TestSoundings::singleChannelUnits()
{
    for (const SounderFit fit : {SounderFit::HighOnly, SounderFit::LowOnly}) {
        SounderOptions options;
        options.fit = fit;
        options.format = Kestrola;
        ModelBench bench(options);
        const QByteArray heard = bench.listen(5000);
        QCOMPARE(heard.contains("T-95H"), fit == SounderFit::HighOnly);
        QCOMPARE(heard.contains("T-94L"), fit == SounderFit::LowOnly);
    }
}

void TestSoundings::comeFromTheSeabedOfTheSeed()
{
    const auto soundings = [](quint32 seed) {
        SounderOptions options = LevelBottom::odom();
        options.seed = seed;
        return ModelBench(options).listen(20000);
    };
    QCOMPARE(soundings(1), soundings(1));
    QVERIFY(soundings(1) != soundings(2));
}

void TestSoundings::everyLineIsWhole()
{
    const QRegularExpression form(QStringLiteral("^ et B \\d{5} \\d{5}\r$"));
    ModelBench bench(LevelBottom::odom());
    const QByteArrayList lines = bench.listen(60100).split('\n');
    QCOMPARE(lines.size(), 302); // what is behind the last line end is empty
    for (int i = 0; i < lines.size() - 1; ++i) {
        QVERIFY2(form.match(QString::fromLatin1(lines[i])).hasMatch(), lines[i].constData());
    }
}

QTEST_GUILESS_MAIN(TestSoundings)
#include "tst_soundings.moc"
