// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "modelbench.h"

#include <QtTest>

namespace {

const QByteArray banner = QByteArrayLiteral("TalVero New Dual 2.14.7\r\n");

SounderOptions quietUnit(SounderFit fit)
{
    SounderOptions options = ModelBench::quiet();
    options.fit = fit;
    return options;
}

} // namespace

Q_DECLARE_METATYPE(SounderOptions)

class TestSounderModel : public QObject
{
    Q_OBJECT

private slots:
    void banners_data();
    void banners();
    void reports_data();
    void reports();
    void connectingAsTheProgramDoes();
    void temperatureAndVoltageDrift();
    void changesAreCountedByKind_data();
    void changesAreCountedByKind();
    void otherRateIsNoise_data();
    void otherRateIsNoise();
    void noiseBreaksABegunCommand();
    void answersAtAnotherRateAreGarbage();
    void answersTakeTheirTime();
    void newRateWaitsForItsAnswer();
    void newRateWaitsForALateAnswer();
    void newRateComesWithoutAnAnswerToo();
    void kestrolaGoesTo9600AfterItsAnswer();
    void resetGoesTo9600AfterItsAnswer();
    void saveKeepsResetForgets();
    void optionsGoBeforeWhatWasKept();
    void testsMaySetTheRateDirectly();
    void transcript();
};

void TestSounderModel::banners_data()
{
    QTest::addColumn<SounderOptions>("options");
    QTest::addColumn<QByteArray>("expected");
    QTest::newRow("dual") << quietUnit(SounderFit::Dual) << banner;
    QTest::newRow("HF") << quietUnit(SounderFit::HighOnly)
                        << QByteArray("TalVero New HF 2.14.7\r\n");
    QTest::newRow("LF") << quietUnit(SounderFit::LowOnly)
                        << QByteArray("TalVero New LF 2.14.7\r\n");
    SounderOptions older = ModelBench::quiet();
    older.firmware = QStringLiteral("1.0.12");
    QTest::newRow("other firmware") << older << QByteArray("TalVero New Dual 1.0.12\r\n");
}

void TestSounderModel::banners()
{
    QFETCH(SounderOptions, options);
    ModelBench bench(options);
    QTEST(bench.ask("*nasdfdsa"), "expected");
}

void TestSounderModel::reports_data()
{
    QTest::addColumn<QByteArray>("command");
    QTest::addColumn<QByteArray>("answer");
    QTest::addColumn<QString>("kind");
    QTest::newRow("identity") << QByteArray("*nasdfd\r\n") << banner << "identity";
    QTest::newRow("settings") << QByteArray("*Gasdfdsasdf")
                              << QByteArray(
                                     "*i5,v1500000,s30000,a3,I9600,H1,L1\r\n"
                                     "*Hca,Hg064,HlT,Hm00450,Ho00400,Hp16,Hq00000,Ht50,Hw0200\r\n"
                                     "*Lca,Lg064,LlW,Lm00500,Lo00400,Lp16,Lq00000,Lt50,Lw0033\r\n")
                              << "settings";
    QTest::newRow("identifier") << QByteArray("*UUasdfdsa")
                                << QByteArray("UID : 4A5B6C7D8E9F0011\r\n") << "uid";
    QTest::newRow("temperature") << QByteArray("*UAbxxxxxx") << QByteArray("BoardTemp: 301.65\r\n")
                                 << "temperature";
    QTest::newRow("voltage") << QByteArray("*UAsxxxxxx") << QByteArray("VSupply: 12.41\r\n")
                             << "voltage";
}

void TestSounderModel::reports()
{
    QFETCH(QByteArray, command);
    QFETCH(QString, kind);
    ModelBench bench;
    QTEST(bench.ask(command), "answer");
    QCOMPARE(bench.model.counts(), (QMap<QString, int>{{kind, 1}}));
}

void TestSounderModel::connectingAsTheProgramDoes()
{
    ModelBench bench;
    QCOMPARE(bench.ask("*nasdfd\r\n*n1234567*n1234567"), banner + banner + banner);
    const QByteArray lines = bench.ask("*Gasdfdsasdf*UUasdfdsa*UAbxxxxxx");
    QCOMPARE(lines.count("\r\n"), 5);
    QVERIFY(lines.indexOf("*i") < lines.indexOf("*H"));
    QVERIFY(lines.indexOf("*H") < lines.indexOf("*L"));
    QVERIFY(lines.indexOf("*L") < lines.indexOf("UID : "));
    QVERIFY(lines.indexOf("UID : ") < lines.indexOf("BoardTemp: "));
}

void TestSounderModel::temperatureAndVoltageDrift()
{
    ModelBench bench;
    const QByteArray temperature = bench.ask("*UAbxxxxxx");
    const QByteArray voltage = bench.ask("*UAsxxxxxx");
    bench.now += std::chrono::minutes(2);
    const QByteArray later = bench.ask("*UAbxxxxxx");
    QVERIFY(later != temperature);
    QVERIFY(bench.ask("*UAsxxxxxx") != voltage);
    const double kelvin = later.trimmed().split(' ').value(1).toDouble();
    QVERIFY2(kelvin > 298 && kelvin < 305, later.constData());
}

void TestSounderModel::changesAreCountedByKind_data()
{
    QTest::addColumn<QByteArray>("command");
    QTest::addColumn<QByteArray>("answer");
    QTest::addColumn<QString>("kind");
    const QByteArray ok = QByteArrayLiteral("OK\r\n");
    const QByteArray err = QByteArrayLiteral("ERR\r\n");
    QTest::newRow("set") << QByteArray("*i06....") << ok << "set";
    QTest::newRow("set of a channel") << QByteArray("*o00450H") << ok << "set";
    QTest::newRow("HF off") << QByteArray("*hHHHHHHH") << ok << "disable";
    QTest::newRow("LF off") << QByteArray("*hLLLLLLL") << ok << "disable";
    QTest::newRow("HF on") << QByteArray("*bHHHHHHH") << ok << "enable";
    QTest::newRow("LF on") << QByteArray("*bLLLLLLL") << ok << "enable";
    QTest::newRow("save") << QByteArray("*F345678") << ok << "save";
    QTest::newRow("reset") << QByteArray("*R345678") << ok << "reset";
    QTest::newRow("out of range") << QByteArray("*i99....") << err << "set refused";
    QTest::newRow("on, no channel") << QByteArray("*b1......") << err << "enable refused";
    QTest::newRow("unknown") << QByteArray("*z123456") << err << "unknown";
    QTest::newRow("unknown of the *U family") << QByteArray("*UAxxxxx") << err << "unknown";
}

void TestSounderModel::changesAreCountedByKind()
{
    QFETCH(QByteArray, command);
    QFETCH(QString, kind);
    ModelBench bench;
    QTEST(bench.ask(command), "answer");
    QMap<QString, int> expected;
    for (const QString &one : kind.split(' ')) {
        expected[one] = 1;
    }
    QCOMPARE(bench.model.counts(), expected);
}

void TestSounderModel::otherRateIsNoise_data()
{
    QTest::addColumn<int>("rate");
    for (const int rate : {4800, 19200, 38400, 57600, 115200, 300}) {
        QTest::addRow("%d", rate) << rate;
    }
}

void TestSounderModel::otherRateIsNoise()
{
    QFETCH(int, rate);
    ModelBench bench;
    bench.send("*n1234567*n1234567", rate);
    QCOMPARE(bench.listen(500), QByteArray());
    QCOMPARE(bench.model.counts(), (QMap<QString, int>{{"noise", 2}}));
    QVERIFY(bench.model.received().isEmpty());
    QVERIFY(bench.model.rawReceived().isEmpty());
}

void TestSounderModel::noiseBreaksABegunCommand()
{
    ModelBench bench;
    bench.send("*i06");
    bench.send("garbage", 4800);
    bench.send("....");
    QCOMPARE(bench.listen(500), QByteArray());
    QCOMPARE(bench.model.settings().pings, 5);
}

void TestSounderModel::answersAtAnotherRateAreGarbage()
{
    ModelBench bench;
    bench.send("*Gasdfds");
    const QByteArray heard = bench.listen(500, 19200);
    QVERIFY(heard.size() > 100);
    for (const char byte : heard) {
        QVERIFY2(byte < ' ' || byte > '~', heard.constData());
    }
}

void TestSounderModel::answersTakeTheirTime()
{
    ModelBench bench;
    bench.send("*n123456");
    QCOMPARE(bench.listen(10), banner.left(9)); // 9.6 characters
    QCOMPARE(bench.listen(20), banner.mid(9));
}

void TestSounderModel::newRateWaitsForItsAnswer()
{
    ModelBench bench;
    bench.send("*Gasdfds*I333....");
    QCOMPARE(bench.model.settings().rate, 115200);
    QCOMPARE(bench.model.lineRate(), 9600);
    bench.listen(150);
    QCOMPARE(bench.model.lineRate(), 9600); // the settings reply is still leaving
    QVERIFY(bench.listen(100, 9600).endsWith("OK\r\n"));
    QCOMPARE(bench.model.lineRate(), 115200);
    bench.send("*n123456", 9600);
    QCOMPARE(bench.listen(100), QByteArray());
    bench.send("*n123456", 115200);
    QCOMPARE(bench.listen(100), banner);
}

void TestSounderModel::newRateWaitsForALateAnswer()
{
    ModelBench bench;
    bench.model.setFault(QStringLiteral("late"), 300);
    bench.send("*I111....");
    bench.listen(290);
    QCOMPARE(bench.model.lineRate(), 9600);
    QCOMPARE(bench.listen(100, 9600), QByteArray("OK\r\n"));
    QCOMPARE(bench.model.lineRate(), 38400);
}

void TestSounderModel::newRateComesWithoutAnAnswerToo()
{
    ModelBench bench;
    bench.model.setFault(QStringLiteral("silent"), 1);
    bench.send("*I111....");
    bench.listen(10);
    QCOMPARE(bench.model.lineRate(), 38400);
}

void TestSounderModel::kestrolaGoesTo9600AfterItsAnswer()
{
    SounderOptions options = ModelBench::quiet();
    options.rate = 57600;
    ModelBench bench(options);
    bench.send("*a6......");
    QCOMPARE(bench.model.lineRate(), 57600);
    QCOMPARE(bench.listen(50, 57600), QByteArray("OK\r\n"));
    QCOMPARE(bench.model.lineRate(), 9600);
    QCOMPARE(bench.model.settings().format, int(Kestrola));
}

void TestSounderModel::resetGoesTo9600AfterItsAnswer()
{
    SounderOptions options = ModelBench::quiet();
    options.rate = 115200;
    options.format = Odom;
    ModelBench bench(options);
    bench.ask("*g100..H");
    bench.send("*R345678");
    QCOMPARE(bench.model.lineRate(), 115200);
    QCOMPARE(bench.listen(50, 115200), QByteArray("OK\r\n"));
    QCOMPARE(bench.model.lineRate(), 9600);
    QVERIFY(bench.model.settings() == factorySettings(SounderFit::Dual));
}

void TestSounderModel::saveKeepsResetForgets()
{
    ModelBench bench;
    bench.ask("*i06....");
    QCOMPARE(bench.model.keptSettings().pings, 5);
    bench.ask("*F345678");
    QCOMPARE(bench.model.keptSettings().pings, 6);
    QCOMPARE(bench.model.timesKept(), 1);
    bench.ask("*R345678");
    QCOMPARE(bench.model.keptSettings().pings, 5);
    QCOMPARE(bench.model.timesKept(), 2);
}

void TestSounderModel::optionsGoBeforeWhatWasKept()
{
    SounderOptions options = ModelBench::quiet();
    options.rate = 19200;
    ModelBench bench(options);
    SounderSettings kept = factorySettings(SounderFit::Dual);
    kept.rate = 4800;
    kept.format = Deso25;
    bench.model.restore(kept);
    QCOMPARE(bench.model.lineRate(), 19200);
    QCOMPARE(bench.model.settings().format, int(Deso25));
}

void TestSounderModel::testsMaySetTheRateDirectly()
{
    ModelBench bench;
    bench.model.settings().rate = 4800;
    bench.listen(1);
    QCOMPARE(bench.model.lineRate(), 4800);
    QVERIFY(bench.ask("*Gasdfds").contains("I4800"));
}

void TestSounderModel::transcript()
{
    ModelBench bench;
    bench.send("*nasdfd\r\n*i06....");
    QCOMPARE(bench.model.received(), (QByteArrayList{"*nasdfd\r", "*i06...."}));
    QCOMPARE(bench.model.rawReceived(), QByteArray("*nasdfd\r\n*i06...."));
    bench.model.clearTranscript();
    QVERIFY(bench.model.received().isEmpty());
    QVERIFY(bench.model.rawReceived().isEmpty());
    QVERIFY(bench.model.counts().isEmpty());
}

QTEST_GUILESS_MAIN(TestSounderModel)
#include "tst_soundermodel.moc"
