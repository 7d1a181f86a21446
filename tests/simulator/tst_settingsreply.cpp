// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "settingsmemory.h"

#include <QTemporaryDir>
#include <QtTest>

namespace {

const QByteArray commonLine = QByteArrayLiteral("*i5,v1500000,s30000,a3,I9600,H1,L1");
const QByteArray highLine =
    QByteArrayLiteral("*Hca,Hg064,HlT,Hm00450,Ho00400,Hp16,Hq00000,Ht50,Hw0200");
const QByteArray lowLine =
    QByteArrayLiteral("*Lca,Lg064,LlW,Lm00500,Lo00400,Lp16,Lq00000,Lt50,Lw0033");

/// Everything differs from the factory's.
SounderSettings changedSettings()
{
    SounderSettings settings;
    settings.pings = 10;
    settings.velocityMmS = 1432100;
    settings.maxDepthMm = 3000;
    settings.format = 9;
    settings.rate = 115200;
    settings.lowOn = false;
    settings.high = {'m', 100, 'N', 300, 99999, 12, 100, 1, 190};
    settings.low = {'s', 0, 'T', 10000, 0, 345, 1, 100, 36};
    return settings;
}

} // namespace

class TestSettingsReply : public QObject
{
    Q_OBJECT

private slots:
    void factoryReplyOfADualUnit();
    void singleChannelUnitsSendTheirOwnLineOnly();
    void replyOfChangedSettings();
    void readsWhatItWrites_data();
    void readsWhatItWrites();
    void readsSettingsWhoseEchoesOverlap();
    void refusesABrokenReply_data();
    void refusesABrokenReply();
    void memoryFileLasts();
    void missingMemoryFileIsNoProblem();
    void brokenMemoryFileIsAProblem_data();
    void brokenMemoryFileIsAProblem();
    void memoryThatCannotBeWrittenIsAProblem();
};

void TestSettingsReply::factoryReplyOfADualUnit()
{
    QCOMPARE(settingsReply(factorySettings(SounderFit::Dual), SounderFit::Dual),
             (QByteArrayList{commonLine, highLine, lowLine}));
}

void TestSettingsReply::singleChannelUnitsSendTheirOwnLineOnly()
{
    QCOMPARE(settingsReply(factorySettings(SounderFit::HighOnly), SounderFit::HighOnly),
             (QByteArrayList{"*i5,v1500000,s30000,a3,I9600,H1,L0", highLine}));
    QCOMPARE(settingsReply(factorySettings(SounderFit::LowOnly), SounderFit::LowOnly),
             (QByteArrayList{"*i5,v1500000,s30000,a3,I9600,H0,L1", lowLine}));
}

void TestSettingsReply::replyOfChangedSettings()
{
    QCOMPARE(settingsReply(changedSettings(), SounderFit::Dual),
             (QByteArrayList{"*i10,v1432100,s3000,a9,I115200,H1,L0",
                             "*Hcm,Hg100,HlN,Hm00300,Ho99999,Hp100,Hq00012,Ht1,Hw0190",
                             "*Lcs,Lg000,LlT,Lm10000,Lo00000,Lp1,Lq00345,Lt100,Lw0036"}));
}

void TestSettingsReply::readsWhatItWrites_data()
{
    QTest::addColumn<int>("fit");
    QTest::newRow("dual") << int(SounderFit::Dual);
    QTest::newRow("HF only") << int(SounderFit::HighOnly);
    QTest::newRow("LF only") << int(SounderFit::LowOnly);
}

void TestSettingsReply::readsWhatItWrites()
{
    QFETCH(int, fit);
    const auto kind = SounderFit(fit);
    const SounderSettings settings =
        kind == SounderFit::Dual ? changedSettings() : factorySettings(kind);
    const auto read = readSettingsReply(settingsReply(settings, kind), kind);
    QVERIFY(read.has_value());
    QVERIFY(*read == settings);
}

void TestSettingsReply::readsSettingsWhoseEchoesOverlap()
{
    // A device gets there when the velocity is lowered last.
    SounderSettings settings = factorySettings(SounderFit::Dual);
    settings.pings = 10;
    settings.maxDepthMm = 75000;
    settings.velocityMmS = 1300000;
    QVERIFY(readSettingsReply(settingsReply(settings, SounderFit::Dual), SounderFit::Dual));
}

void TestSettingsReply::refusesABrokenReply_data()
{
    QTest::addColumn<QByteArrayList>("lines");
    using List = QByteArrayList;
    const QByteArray c = commonLine;
    QTest::newRow("nothing") << List{};
    QTest::newRow("an empty line") << List{QByteArray()};
    QTest::newRow("no low channel") << List{c, highLine};
    QTest::newRow("other order") << List{c, lowLine, highLine};
    QTest::newRow("a line too many") << List{c, highLine, lowLine, lowLine};
    QTest::newRow("cut off") << List{c, highLine, lowLine.chopped(3)};
    QTest::newRow("a piece missing") << List{"*i5,v1500000,s30000,I9600,H1,L1", highLine, lowLine};
    QTest::newRow("word for a number")
        << List{"*ifive,v1500000,s30000,a3,I9600,H1,L1", highLine, lowLine};
    QTest::newRow("11 pings") << List{"*i11,v1500000,s30000,a3,I9600,H1,L1", highLine, lowLine};
    QTest::newRow("no such rate") << List{"*i5,v1500000,s30000,a3,I1200,H1,L1", highLine, lowLine};
    QTest::newRow("no such format")
        << List{"*i5,v1500000,s30000,a0,I9600,H1,L1", highLine, lowLine};
    QTest::newRow("no such mode") << List{c, QByteArray(highLine).replace("Hca", "Hcx"), lowLine};
    QTest::newRow("LF frequency on HF")
        << List{c, QByteArray(highLine).replace("Hw0200", "Hw0033"), lowLine};
    QTest::newRow("binary") << List{QByteArray("\x00\xff\x80*", 4)};
}

void TestSettingsReply::refusesABrokenReply()
{
    QFETCH(QByteArrayList, lines);
    QVERIFY(!readSettingsReply(lines, SounderFit::Dual));
}

void TestSettingsReply::memoryFileLasts()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("memory"));
    QCOMPARE(SettingsMemory::save(path, SounderFit::Dual, changedSettings()), QString());
    QString problem;
    const auto loaded = SettingsMemory::load(path, SounderFit::Dual, &problem);
    QCOMPARE(problem, QString());
    QVERIFY(loaded && *loaded == changedSettings());
}

void TestSettingsReply::missingMemoryFileIsNoProblem()
{
    const QTemporaryDir folder;
    QString problem;
    QVERIFY(
        !SettingsMemory::load(folder.filePath(QStringLiteral("none")), SounderFit::Dual, &problem));
    QCOMPARE(problem, QString());
}

void TestSettingsReply::brokenMemoryFileIsAProblem_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("text") << QByteArray("hello\n");
    QTest::newRow("of an HF unit")
        << QByteArray("*i5,v1500000,s30000,a3,I9600,H1,L0\n") + highLine + "\n";
    QTest::newRow("huge") << QByteArray(1000000, 'x');
}

void TestSettingsReply::brokenMemoryFileIsAProblem()
{
    QFETCH(QByteArray, content);
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("memory"));
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(content);
    file.close();
    QString problem;
    QVERIFY(!SettingsMemory::load(path, SounderFit::Dual, &problem));
    QVERIFY2(problem.contains(path), qPrintable(problem));
}

void TestSettingsReply::memoryThatCannotBeWrittenIsAProblem()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("no/such/folder/memory"));
    const QString problem = SettingsMemory::save(path, SounderFit::Dual, changedSettings());
    QVERIFY2(problem.contains(path), qPrintable(problem));
}

QTEST_GUILESS_MAIN(TestSettingsReply)
#include "tst_settingsreply.moc"
