// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "commandline.h"
#include "depthformats.h"
#include "version.h"

#include <QtTest>

namespace {

CommandLine readArguments(const QStringList &arguments)
{
    return readCommandLine(QStringList{QStringLiteral("tal-vero-sounder")} + arguments);
}

} // namespace

class TestCommandLine : public QObject
{
    Q_OBJECT

private slots:
    void nothingGiven();
    void everythingGiven();
    void fits_data();
    void fits();
    void portAndNoSoundings();
    void mistakes_data();
    void mistakes();
    void help();
    void version();
};

void TestCommandLine::nothingGiven()
{
    const CommandLine line = readArguments({});
    QCOMPARE(line.problem, QString());
    QCOMPARE(line.options.fit, SounderFit::Dual);
    QCOMPARE(line.options.rate, 0);
    QCOMPARE(line.options.format, 0);
    QCOMPARE(line.options.firmware, QStringLiteral("2.14.7"));
    QVERIFY(line.options.soundings);
    QVERIFY(line.options.pace);
    QVERIFY(line.linkPath.isEmpty() && line.portName.isEmpty() && line.transcriptPath.isEmpty());
}

void TestCommandLine::everythingGiven()
{
    const CommandLine line = readArguments(
        {"--fit",      "hf",       "--rate",       "57600",      "--format", "SONARMITE DUAL",
         "--firmware", "3.1.4",    "--seed",       "42",         "--memory", "mem",
         "--fault",    "late=250", "--fault",      "garble=0.1", "--fault",  "silent=1",
         "--link",     "/tmp/x",   "--transcript", "log"});
    QCOMPARE(line.problem, QString());
    QCOMPARE(line.options.fit, SounderFit::HighOnly);
    QCOMPARE(line.options.rate, 57600);
    QCOMPARE(line.options.format, int(SonarmiteDual));
    QCOMPARE(line.options.firmware, QStringLiteral("3.1.4"));
    QCOMPARE(line.options.seed, 42U);
    QCOMPARE(line.options.memoryFile, QStringLiteral("mem"));
    QCOMPARE(line.options.faults.lateMs, 250.0);
    QCOMPARE(line.options.faults.garble, 0.1);
    QCOMPARE(line.options.faults.silent, 1.0);
    QCOMPARE(line.linkPath, QStringLiteral("/tmp/x"));
    QCOMPARE(line.transcriptPath, QStringLiteral("log"));
}

void TestCommandLine::fits_data()
{
    QTest::addColumn<int>("fit");
    QTest::newRow("dual") << int(SounderFit::Dual);
    QTest::newRow("hf") << int(SounderFit::HighOnly);
    QTest::newRow("lf") << int(SounderFit::LowOnly);
}

void TestCommandLine::fits()
{
    const CommandLine line = readArguments({"--fit", QString::fromLatin1(QTest::currentDataTag())});
    QTEST(int(line.options.fit), "fit");
}

void TestCommandLine::portAndNoSoundings()
{
    const CommandLine line = readArguments({"--port", "COM7", "--no-soundings"});
    QCOMPARE(line.problem, QString());
    QCOMPARE(line.portName, QStringLiteral("COM7"));
    QVERIFY(!line.options.soundings);
}

void TestCommandLine::mistakes_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("named");
    using List = QStringList;
    QTest::newRow("no such option") << List{"--frob"} << "frob";
    QTest::newRow("no such fit") << List{"--fit", "triple"} << "triple";
    QTest::newRow("no such rate") << List{"--rate", "1200"} << "1200";
    QTest::newRow("a rate in words") << List{"--rate", "fast"} << "fast";
    QTest::newRow("no such format") << List{"--format", "NMEA"} << "NMEA DBT, NMEA DBS";
    QTest::newRow("no such fault") << List{"--fault", "sleepy=1"} << "drop-line";
    QTest::newRow("no such fault, no value") << List{"--fault", "sleepy"} << "drop-line";
    QTest::newRow("fault without a value") << List{"--fault", "silent"} << "silent=1";
    QTest::newRow("fault with a word") << List{"--fault", "late=long"} << "late=long";
    QTest::newRow("probability above 1") << List{"--fault", "silent=2"} << "0 to 1";
    QTest::newRow("the second fault is wrong")
        << List{"--fault", "silent=1", "--fault", "late=-1"} << "late";
    QTest::newRow("seed below 0") << List{"--seed", "-1"} << "-1";
    QTest::newRow("value missing") << List{"--seed"} << "seed";
    QTest::newRow("something else") << List{"sounder"} << "sounder";
    QTest::newRow("a link to a real port") << List{"--link", "x", "--port", "COM7"} << "--link";
}

void TestCommandLine::mistakes()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, named);
    const QString problem = readArguments(arguments).problem;
    QVERIFY2(problem.contains(named), qPrintable("\"" + problem + "\""));
}

void TestCommandLine::help()
{
    const CommandLine line = readArguments({"--help"});
    QCOMPARE(line.problem, QString());
    for (const char *option : {"--fit", "--rate", "--format", "--firmware", "--seed", "--memory",
                               "--fault", "--link", "--port", "--transcript", "--no-soundings"}) {
        QVERIFY2(line.wantedText.contains(QLatin1String(option)), option);
    }
}

void TestCommandLine::version()
{
    const CommandLine line = readArguments({"--version"});
    QCOMPARE(line.problem, QString());
    QCOMPARE(line.wantedText, QString("tal-vero-sounder ") + TalVero::version);
}

QTEST_GUILESS_MAIN(TestCommandLine)
#include "tst_commandline.moc"
