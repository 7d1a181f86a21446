// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "modelbench.h"

#include <QtTest>

namespace {

const QByteArray banner = QByteArrayLiteral("TalVero New Dual 2.14.7\r\n");

SounderOptions sounding(const char *fault, double value)
{
    SounderOptions options;
    options.format = Odom;
    options.faults.set(QLatin1String(fault), value);
    return options;
}

} // namespace

class TestSounderFaults : public QObject
{
    Q_OBJECT

private slots:
    void valuesOfFaults_data();
    void valuesOfFaults();
    void aWrongValueChangesNothing();
    void silentAnswersNothingButObeys();
    void silentSendsNoSoundings();
    void silentHalfOfTheTime();
    void lateAnswersInOrderSoundingsInTime();
    void refuseAnswersErrAndChangesNothing_data();
    void refuseAnswersErrAndChangesNothing();
    void garbleSpoilsTheTextNotTheLineEnd();
    void splitSendsSingleBytes();
    void burstSendsLinesTogether();
    void dropLineLosesSomeLines();
    void rebootForgetsWhatWasNotKept();
    void rebootWhileRunning();
    void rebootComesAgain();
    void hangUpFallsDueOnce();
    void otherChannelsComeWithARestart_data();
    void otherChannelsComeWithARestart();
    void channelsThatComeBackAreOn();
    void sameSeedSameFaults();
};

void TestSounderFaults::valuesOfFaults_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<double>("value");
    QTest::addColumn<bool>("isRight");
    for (const char *name : {"silent", "refuse", "garble", "split", "burst", "drop-line"}) {
        QTest::addRow("%s=0.5", name) << name << 0.5 << true;
        QTest::addRow("%s=0", name) << name << 0.0 << true;
        QTest::addRow("%s=1", name) << name << 1.0 << true;
        QTest::addRow("%s=1.1", name) << name << 1.1 << false;
        QTest::addRow("%s=-0.1", name) << name << -0.1 << false;
        QTest::addRow("%s=nan", name) << name << qQNaN() << false;
    }
    for (const char *name : {"late", "reboot", "hang-up"}) {
        QTest::addRow("%s=2.5", name) << name << 2.5 << true;
        QTest::addRow("%s=0", name) << name << 0.0 << true;
        QTest::addRow("%s=-1", name) << name << -1.0 << false;
        QTest::addRow("%s=inf", name) << name << qInf() << false;
    }
    QTest::newRow("unknown name") << "Silent" << 1.0 << false;
    QTest::newRow("no name") << "" << 1.0 << false;
}

void TestSounderFaults::valuesOfFaults()
{
    QFETCH(QString, name);
    QFETCH(double, value);
    SounderFaults faults;
    const QString problem = faults.set(name, value);
    QTEST(problem.isEmpty(), "isRight");
    QVERIFY2(problem.isEmpty() || problem.contains('"' + name + '"'), qPrintable(problem));
}

void TestSounderFaults::aWrongValueChangesNothing()
{
    SounderFaults faults;
    faults.set(QStringLiteral("garble"), 0.25);
    faults.set(QStringLiteral("garble"), 7);
    QCOMPARE(faults.garble, 0.25);
}

void TestSounderFaults::silentAnswersNothingButObeys()
{
    ModelBench bench;
    QCOMPARE(bench.model.setFault(QStringLiteral("silent"), 1), QString());
    QCOMPARE(bench.ask("*n123456*Gasdfds*i06...."), QByteArray());
    QCOMPARE(bench.model.settings().pings, 6);
    QCOMPARE(bench.model.counts().value(QStringLiteral("identity")), 1);

    bench.model.setFault(QStringLiteral("silent"), 0);
    QCOMPARE(bench.ask("*n123456"), banner);
}

void TestSounderFaults::silentSendsNoSoundings()
{
    ModelBench bench(sounding("silent", 1));
    QCOMPARE(bench.listen(3000), QByteArray());
}

void TestSounderFaults::silentHalfOfTheTime()
{
    ModelBench bench;
    bench.model.setFault(QStringLiteral("silent"), 0.5);
    int answered = 0;
    for (int i = 0; i < 100; ++i) {
        const QByteArray answer = bench.ask("*Gasdfds");
        answered += answer.isEmpty() ? 0 : 1;
        QVERIFY2(answer.isEmpty() || answer.count('\n') == 3, "a part of an answer is missing");
    }
    QVERIFY2(answered > 30 && answered < 70, qPrintable(QString::number(answered)));
}

void TestSounderFaults::lateAnswersInOrderSoundingsInTime()
{
    ModelBench bench(sounding("late", 500));
    bench.listen(100);
    bench.send("*n123456*i06....");
    const QByteArray before = bench.listen(450);
    QVERIFY2(before.contains(" et B "), "soundings wait for late answers");
    QVERIFY(!before.contains("TalVero"));
    const QByteArray after = bench.listen(300);
    QVERIFY(after.contains(banner));
    QVERIFY(after.indexOf("OK\r\n") > after.indexOf(banner));
}

void TestSounderFaults::refuseAnswersErrAndChangesNothing_data()
{
    QTest::addColumn<QByteArray>("command");
    for (const char *command :
         {"*i06....", "*o00450H", "*hHHHHHHH", "*bLLLLLLL", "*F345678", "*R345678"}) {
        QTest::newRow(command) << QByteArray(command);
    }
}

void TestSounderFaults::refuseAnswersErrAndChangesNothing()
{
    QFETCH(QByteArray, command);
    ModelBench bench;
    bench.model.settings().maxDepthMm = 20000;
    bench.model.settings().lowOn = false;
    const SounderSettings before = bench.model.settings();
    const SounderSettings keptBefore = bench.model.keptSettings();
    bench.model.setFault(QStringLiteral("refuse"), 1);
    QCOMPARE(bench.ask(command), QByteArray("ERR\r\n"));
    QVERIFY(bench.model.settings() == before);
    QVERIFY(bench.model.keptSettings() == keptBefore);
    QCOMPARE(bench.model.counts().value(QStringLiteral("refused")), 1);
    QCOMPARE(bench.ask("*n123456"), banner);
}

void TestSounderFaults::garbleSpoilsTheTextNotTheLineEnd()
{
    ModelBench bench;
    bench.model.setFault(QStringLiteral("garble"), 1);
    for (int i = 0; i < 50; ++i) {
        const QByteArray answer = bench.ask("*n123456");
        QCOMPARE(answer.size(), banner.size());
        QVERIFY(answer.endsWith("\r\n"));
        QVERIFY2(answer != banner, "the line is not spoilt");
    }
}

void TestSounderFaults::splitSendsSingleBytes()
{
    ModelBench bench;
    bench.model.setFault(QStringLiteral("split"), 1);
    bench.send("*n123456");
    QByteArray heard;
    for (int i = 0; i < banner.size() * 5; ++i) {
        bench.now += std::chrono::milliseconds(20); // time for nineteen characters
        const QByteArray piece = bench.model.transmit(9600, bench.now);
        QVERIFY(piece.size() <= 1);
        heard += piece;
    }
    QCOMPARE(heard, banner);
}

void TestSounderFaults::burstSendsLinesTogether()
{
    ModelBench bench;
    bench.model.setFault(QStringLiteral("burst"), 1);
    bench.send("*Gasdfds");
    bench.now += std::chrono::milliseconds(1);
    QCOMPARE(bench.model.transmit(9600, bench.now).count("\r\n"), 3);

    ModelBench sounder(sounding("burst", 1));
    int most = 0;
    for (int i = 0; i < 3000; ++i) {
        most = std::max(most, int(sounder.listen(1).count("\r\n")));
    }
    QVERIFY2(most >= 2, "no two soundings came together");
}

void TestSounderFaults::dropLineLosesSomeLines()
{
    ModelBench bench;
    bench.model.setFault(QStringLiteral("drop-line"), 0.5);
    int lines = 0;
    int cutReplies = 0;
    for (int i = 0; i < 100; ++i) {
        const int got = bench.ask("*Gasdfds").count("\r\n");
        lines += got;
        cutReplies += got == 1 || got == 2 ? 1 : 0;
    }
    QVERIFY2(lines > 100 && lines < 200, qPrintable(QString::number(lines)));
    QVERIFY2(cutReplies > 0, "lines are lost only by whole answers");
}

void TestSounderFaults::rebootForgetsWhatWasNotKept()
{
    ModelBench bench;
    bench.ask("*i06....");
    bench.ask("*F345678");
    bench.ask("*i07....");
    bench.model.reboot();
    QCOMPARE(bench.model.settings().pings, 6);
    bench.send("*n123456");
    QCOMPARE(bench.listen(1400), QByteArray());
    bench.listen(200);
    QCOMPARE(bench.ask("*n123456"), banner);
}

void TestSounderFaults::rebootWhileRunning()
{
    ModelBench bench;
    bench.ask("*I333....");
    QCOMPARE(bench.model.lineRate(), 115200);
    bench.model.setFault(QStringLiteral("reboot"), 2);
    bench.listen(1900);
    QCOMPARE(bench.model.lineRate(), 115200);
    bench.listen(200);
    QCOMPARE(bench.model.lineRate(), 9600);
}

void TestSounderFaults::rebootComesAgain()
{
    ModelBench bench;
    bench.model.setFault(QStringLiteral("reboot"), 3);
    int silences = 0;
    for (int i = 0; i < 10; ++i) {
        silences += bench.ask("*n123456").isEmpty() ? 1 : 0;
    }
    QVERIFY2(silences >= 3, qPrintable(QString::number(silences)));
}

void TestSounderFaults::hangUpFallsDueOnce()
{
    SounderOptions options = ModelBench::quiet();
    options.faults.set(QStringLiteral("hang-up"), 1.5);
    ModelBench bench(options);
    bench.listen(1499);
    QVERIFY(!bench.model.hangUpIsDue());
    bench.listen(1);
    QVERIFY(bench.model.hangUpIsDue());
}

void TestSounderFaults::otherChannelsComeWithARestart_data()
{
    QTest::addColumn<int>("fit");
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<QByteArray>("lines");
    QTest::newRow("high alone") << int(SounderFit::HighOnly) << QByteArray("HF")
                                << QByteArray("H1,L0");
    QTest::newRow("low alone") << int(SounderFit::LowOnly) << QByteArray("LF")
                               << QByteArray("H0,L1");
}

void TestSounderFaults::otherChannelsComeWithARestart()
{
    QFETCH(int, fit);
    QFETCH(QByteArray, name);
    QFETCH(QByteArray, lines);
    ModelBench bench;
    bench.ask("*i06....");
    bench.model.setFit(SounderFit(fit));
    bench.send("*n123456");
    QCOMPARE(bench.listen(1400), QByteArray());
    bench.listen(200);
    QCOMPARE(bench.ask("*n123456"), "TalVero New " + name + " 2.14.7\r\n");
    const QByteArray reply = bench.ask("*Gasdfds");
    QVERIFY2(reply.startsWith("*i5,"), "what was not kept is still there");
    QVERIFY2(reply.contains(lines), reply.constData());
    QCOMPARE(reply.count("\r\n"), 2);
}

void TestSounderFaults::channelsThatComeBackAreOn()
{
    ModelBench bench;
    bench.ask("*o00700L");
    bench.ask("*F345678");
    bench.model.setFit(SounderFit::HighOnly);
    bench.listen(1600);
    QCOMPARE(bench.ask("*o00800L"), QByteArray("ERR\r\n"));
    bench.model.setFit(SounderFit::Dual);
    bench.listen(1600);
    const QByteArray reply = bench.ask("*Gasdfds");
    QVERIFY2(reply.contains("H1,L1") && reply.contains("Lo00700"), reply.constData());
}

void TestSounderFaults::sameSeedSameFaults()
{
    const auto traffic = [](quint32 seed) {
        SounderOptions options;
        options.seed = seed;
        for (const char *fault : {"silent", "refuse", "garble", "split", "burst", "drop-line"}) {
            options.faults.set(QLatin1String(fault), 0.3);
        }
        ModelBench bench(options);
        QByteArray heard;
        for (int i = 0; i < 20; ++i) {
            heard += bench.ask("*Gasdfds*i05....");
        }
        return heard;
    };
    QCOMPARE(traffic(5), traffic(5));
    QVERIFY(traffic(5) != traffic(6));
}

QTEST_GUILESS_MAIN(TestSounderFaults)
#include "tst_sounderfaults.moc"
