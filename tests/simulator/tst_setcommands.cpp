// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "soundersettings.h"

#include <QtTest>

#include <functional>

namespace {

using Value = std::function<int(const SounderSettings &)>;

void addRow(const char *command, int expected, const Value &value)
{
    QTest::newRow(command) << QByteArray(command) << expected << value;
}

} // namespace

Q_DECLARE_METATYPE(Value)

class TestSetCommands : public QObject
{
    Q_OBJECT

private slots:
    void accepted_data();
    void accepted();
    void refused_data();
    void refused();
    void unknown_data();
    void unknown();
    void echoesMustNotOverlap_data();
    void echoesMustNotOverlap();
    void aLowerVelocityIsNotRefusedForTheEchoes();
    void kestrolaSetsTheRate();
    void missingChannelIsRefused_data();
    void missingChannelIsRefused();
};

void TestSetCommands::accepted_data()
{
    QTest::addColumn<QByteArray>("command");
    QTest::addColumn<int>("expected");
    QTest::addColumn<Value>("value");

    const Value pings = [](const SounderSettings &s) { return s.pings; };
    addRow("*i01....", 1, pings);
    addRow("*i10....", 10, pings);
    addRow("*i070123", 7, pings); // filled up with digits
    const Value velocity = [](const SounderSettings &s) { return s.velocityMmS; };
    addRow("*v500000", 1500000, velocity);
    addRow("*v300000", 1300000, velocity);
    addRow("*v750000", 1750000, velocity);
    const Value depth = [](const SounderSettings &s) { return s.maxDepthMm; };
    addRow("*s080000", 80000, depth);
    addRow("*s003000", 3000, depth);
    addRow("*s100000", 100000, depth);
    const Value format = [](const SounderSettings &s) { return s.format; };
    addRow("*a1.....", 1, format);
    addRow("*a9.....", 9, format);
    addRow("*a401234", 4, format);
    const Value rate = [](const SounderSettings &s) { return s.rate; };
    addRow("*I000...", 9600, rate);
    addRow("*I111...", 38400, rate);
    addRow("*I222...", 57600, rate);
    addRow("*I333...", 115200, rate);

    addRow("*o00450H", 450, [](const SounderSettings &s) { return s.high.draftMm; });
    addRow("*o00450L", 450, [](const SounderSettings &s) { return s.low.draftMm; });
    addRow("*o99999H", 99999, [](const SounderSettings &s) { return s.high.draftMm; });
    addRow("*q00000H", 0, [](const SounderSettings &s) { return s.high.indexMm; });
    addRow("*q01234L", 1234, [](const SounderSettings &s) { return s.low.indexMm; });
    addRow("*m00300H", 300, [](const SounderSettings &s) { return s.high.blankingMm; });
    addRow("*m00500L", 500, [](const SounderSettings &s) { return s.low.blankingMm; });
    addRow("*m10000L", 10000, [](const SounderSettings &s) { return s.low.blankingMm; });
    addRow("*g000..H", 0, [](const SounderSettings &s) { return s.high.gain; });
    addRow("*g100..L", 100, [](const SounderSettings &s) { return s.low.gain; });
    addRow("*p01...H", 1, [](const SounderSettings &s) { return s.high.pulse; });
    addRow("*p34...L", 34, [](const SounderSettings &s) { return s.low.pulse; });
    addRow("*p100..H", 100, [](const SounderSettings &s) { return s.high.pulse; });
    addRow("*t001..H", 1, [](const SounderSettings &s) { return s.high.detect; });
    addRow("*t075..L", 75, [](const SounderSettings &s) { return s.low.detect; });
    addRow("*w0210.H", 210, [](const SounderSettings &s) { return s.high.freqKHz; });
    addRow("*w0190.H", 190, [](const SounderSettings &s) { return s.high.freqKHz; });
    addRow("*w0030.L", 30, [](const SounderSettings &s) { return s.low.freqKHz; });
    addRow("*w0036.L", 36, [](const SounderSettings &s) { return s.low.freqKHz; });
    addRow("*ca....L", 'a', [](const SounderSettings &s) { return int(s.low.mode); });
    addRow("*cm....H", 'm', [](const SounderSettings &s) { return int(s.high.mode); });
    addRow("*cs....H", 's', [](const SounderSettings &s) { return int(s.high.mode); });
    addRow("*lN....H", 'N', [](const SounderSettings &s) { return int(s.high.tvg); });
    addRow("*lT....L", 'T', [](const SounderSettings &s) { return int(s.low.tvg); });
    addRow("*lW....H", 'W', [](const SounderSettings &s) { return int(s.high.tvg); });
    addRow("*hHHHHHH", 0, [](const SounderSettings &s) { return int(s.highOn); });
    addRow("*hLLLLLL", 0, [](const SounderSettings &s) { return int(s.lowOn); });
}

void TestSetCommands::accepted()
{
    QFETCH(QByteArray, command);
    QFETCH(Value, value);
    SounderSettings settings = factorySettings(SounderFit::Dual);
    settings.pings = 2; // leaves room for every maximum depth
    QCOMPARE(applySetCommand(command, SounderFit::Dual, settings), SetResult::Done);
    QTEST(value(settings), "expected");
}

void TestSetCommands::refused_data()
{
    QTest::addColumn<QByteArray>("command");
    for (const char *command : {
             "*i00....", "*i11....", "*i5.....", "*ixx....",             // pings
             "*v299999", "*v750001", "*v0000..", "*v50000.", "*v-50000", // velocity
             "*s002999", "*s100001", "*s80000.",                         // maximum depth
             "*a0.....", "*a.....a",                                     // format
             "*I444...", "*I012...", "*I33....", "*I......",             // rate
             "*o00450.", "*o100000", "*o0045.H", "*o00450h", "*q00000.", // draft, index
             "*m00299H", "*m00499L", "*m10001H", "*m00500X",             // blanking
             "*g101..H", "*g64...H", "*g064...", "*p00...H", "*p101..H", "*p1....H", "*t000..H",
             "*t101..L", "*t50...H", "*w0189.H", "*w0211.H", "*w0033.H", "*w0029.L", "*w0037.L",
             "*w0200.L", "*cn....H", "*cS....H", "*c.....H", "*ca.....", "*lX....L", "*lT.....",
             "*b1.....", "*h1.....", "*bHHHHH.", // the channel stands in the eighth place
         }) {
        QTest::newRow(command) << QByteArray(command);
    }
}

void TestSetCommands::refused()
{
    QFETCH(QByteArray, command);
    SounderSettings settings = factorySettings(SounderFit::Dual);
    settings.pings = 2;
    const SounderSettings before = settings;
    QCOMPARE(applySetCommand(command, SounderFit::Dual, settings), SetResult::Refused);
    QVERIFY2(settings == before, "a refused command has changed something");
}

void TestSetCommands::unknown_data()
{
    QTest::addColumn<QByteArray>("command");
    QTest::newRow("letter") << QByteArray("*z00000H");
    QTest::newRow("capital letter of another command") << QByteArray("*V500000");
    QTest::newRow("too short") << QByteArray("*i05");
    QTest::newRow("empty") << QByteArray();
}

void TestSetCommands::unknown()
{
    QFETCH(QByteArray, command);
    SounderSettings settings = factorySettings(SounderFit::Dual);
    QCOMPARE(applySetCommand(command, SounderFit::Dual, settings), SetResult::Unknown);
    QVERIFY(settings == factorySettings(SounderFit::Dual));
}

void TestSetCommands::echoesMustNotOverlap_data()
{
    QTest::addColumn<int>("pings");
    QTest::addColumn<int>("maxDepthMm");
    QTest::addColumn<int>("velocityMmS");
    QTest::addColumn<QByteArray>("command");
    QTest::addColumn<bool>("isDone");
    QTest::newRow("5 pings, 80 m") << 5 << 30000 << 1500000 << QByteArray("*s080000") << true;
    QTest::newRow("10 pings, 75 m: just")
        << 10 << 30000 << 1500000 << QByteArray("*s075000") << true;
    QTest::newRow("10 pings, 75.001 m")
        << 10 << 30000 << 1500000 << QByteArray("*s075001") << false;
    QTest::newRow("100 m, 7 pings") << 2 << 100000 << 1500000 << QByteArray("*i07....") << true;
    QTest::newRow("100 m, 8 pings") << 2 << 100000 << 1500000 << QByteArray("*i08....") << false;
    QTest::newRow("100 m, 8 pings, fast water")
        << 2 << 100000 << 1700000 << QByteArray("*i08....") << true;
}

void TestSetCommands::echoesMustNotOverlap()
{
    QFETCH(int, pings);
    QFETCH(int, maxDepthMm);
    QFETCH(int, velocityMmS);
    QFETCH(QByteArray, command);
    QFETCH(bool, isDone);
    SounderSettings settings = factorySettings(SounderFit::Dual);
    settings.pings = pings;
    settings.maxDepthMm = maxDepthMm;
    settings.velocityMmS = velocityMmS;
    QCOMPARE(applySetCommand(command, SounderFit::Dual, settings),
             isDone ? SetResult::Done : SetResult::Refused);
}

void TestSetCommands::aLowerVelocityIsNotRefusedForTheEchoes()
{
    SounderSettings settings = factorySettings(SounderFit::Dual);
    settings.pings = 10;
    settings.maxDepthMm = 75000;
    QCOMPARE(applySetCommand("*v300000", SounderFit::Dual, settings), SetResult::Done);
}

void TestSetCommands::kestrolaSetsTheRate()
{
    SounderSettings settings = factorySettings(SounderFit::Dual);
    settings.rate = 115200;
    QCOMPARE(applySetCommand("*a6.....", SounderFit::Dual, settings), SetResult::Done);
    QCOMPARE(settings.rate, 9600);
}

void TestSetCommands::missingChannelIsRefused_data()
{
    QTest::addColumn<QByteArray>("command");
    QTest::addColumn<int>("fit");
    const int high = int(SounderFit::HighOnly);
    const int low = int(SounderFit::LowOnly);
    QTest::newRow("draft of LF on an HF unit") << QByteArray("*o00450L") << high;
    QTest::newRow("LF on, on an HF unit") << QByteArray("*bLLLLLL") << high;
    QTest::newRow("LF off, on an HF unit") << QByteArray("*hLLLLLL") << high;
    QTest::newRow("gain of HF on an LF unit") << QByteArray("*g050..H") << low;
    QTest::newRow("HF on, on an LF unit") << QByteArray("*bHHHHHH") << low;
}

void TestSetCommands::missingChannelIsRefused()
{
    QFETCH(QByteArray, command);
    QFETCH(int, fit);
    SounderSettings settings = factorySettings(SounderFit(fit));
    QCOMPARE(applySetCommand(command, SounderFit(fit), settings), SetResult::Refused);
    QVERIFY(settings == factorySettings(SounderFit(fit)));
}

QTEST_GUILESS_MAIN(TestSetCommands)
#include "tst_setcommands.moc"
