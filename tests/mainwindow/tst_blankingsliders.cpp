// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "appearance.h"
#include "logcapture.h"
#include "sliderbench.h"

#include <memory>

/// The two blanking sliders, which alone have a unit, an edit besides their label, and a floor.
class BlankingSlidersTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { giveProgramStyle(); }
    void cleanupTestCase() { endBenches(); }

    void rangeFollowsTheUnitAndTheLowSliderBeginsHigher_data();
    void rangeFollowsTheUnitAndTheLowSliderBeginsHigher();
    void editAndLabelShowTheSameBlanking_data();
    void editAndLabelShowTheSameBlanking();
    void aDragBelowTheFloorReturnsToTheFloorOfBothChannels_data();
    void aDragBelowTheFloorReturnsToTheFloorOfBothChannels();
    void aMoveLogsItsReckoning();
    void aButtonInFeetStoresMetresBothTimes();
    void blankingCanBeSetInEveryMode_data();
    void blankingCanBeSetInEveryMode();
    void aBurstOfStepsSendsTheLastValueOnce();

private:
    SliderBench &benchOf(const QString &channel, bool imperial);
    void endBenches();

    std::unique_ptr<SliderBench> benches[2]; ///< metric, imperial
};

/// For a test that needs a bench of its own.
void BlankingSlidersTest::endBenches()
{
    for (auto &bench : benches) {
        bench.reset();
    }
}

SliderBench &BlankingSlidersTest::benchOf(const QString &channel, bool imperial)
{
    if (!benches[imperial]) {
        benches[imperial] = std::make_unique<SliderBench>(imperial);
    }
    benches[imperial]->useChannel(channel);
    return *benches[imperial];
}

void BlankingSlidersTest::rangeFollowsTheUnitAndTheLowSliderBeginsHigher_data()
{
    QTest::addColumn<QString>("channel");
    QTest::addColumn<bool>("imperial");
    QTest::addColumn<int>("lowest");
    QTest::addColumn<int>("highest");
    QTest::newRow("high, metric") << "high" << false << 30 << 1000;
    QTest::newRow("low, metric") << "low" << false << 50 << 1000;
    QTest::newRow("high, imperial") << "high" << true << 100 << 3000;
    QTest::newRow("low, imperial") << "low" << true << 200 << 3000;
}

void BlankingSlidersTest::rangeFollowsTheUnitAndTheLowSliderBeginsHigher()
{
    QFETCH(QString, channel);
    QFETCH(bool, imperial);
    SliderBench &bench = benchOf(channel, imperial);
    bench.hand(blanking).press(Qt::Key_Home);
    QTEST(bench.slider(blanking)->value(), "lowest");
    bench.hand(blanking).press(Qt::Key_End);
    QTEST(bench.slider(blanking)->value(), "highest");
    QVERIFY(bench.settles());
}

void BlankingSlidersTest::editAndLabelShowTheSameBlanking_data()
{
    QTest::addColumn<QString>("channel");
    QTest::addColumn<bool>("imperial");
    QTest::addColumn<QString>("byButton");
    QTest::addColumn<QString>("byKey");
    for (const QString &channel : channels) {
        QTest::addRow("%s, metric", qPrintable(channel)) << channel << false << "1.30"
                                                         << "1.31";
        QTest::addRow("%s, imperial", qPrintable(channel)) << channel << true << "4.03"
                                                           << "4.04";
    }
}

void BlankingSlidersTest::editAndLabelShowTheSameBlanking()
{
    QFETCH(QString, channel);
    QFETCH(bool, imperial);
    QFETCH(QString, byButton);
    QFETCH(QString, byKey);
    SliderBench &bench = benchOf(channel, imperial);
    const QString unit = unitOf(blanking, imperial);
    bench.place(blanking, imperial ? 393 : 120);
    bench.press(blanking, "Up");
    QCOMPARE(bench.text(channel + "Blank"), byButton);
    QCOMPARE(bench.label(blanking), byButton + unit);
    bench.hand(blanking).press(Qt::Key_Right);
    QCOMPARE(bench.text(channel + "Blank"), byKey);
    QCOMPARE(bench.label(blanking), byKey + unit);
    QCOMPARE(bench.takeCommands().size(), 1);
    QCOMPARE(bench.info(),
             "Setting " + prettyNameOf(channel, blanking) + " to " + byKey + unit + " ... Success");
}

/// The floor is one for both channels, although the low channel's slider begins above it and the
/// low channel's blanking has a higher limit: there the edit shows what is stored and the label
/// where the slider stands. The slider's range hides all this, so the test opens it to the left.
void BlankingSlidersTest::aDragBelowTheFloorReturnsToTheFloorOfBothChannels_data()
{
    QTest::addColumn<QString>("channel");
    QTest::addColumn<bool>("imperial");
    QTest::addColumn<int>("floor");
    QTest::addColumn<QString>("label");
    QTest::addColumn<QString>("edit");
    QTest::addColumn<QByteArray>("wire");
    QTest::newRow("high, metric") << "high" << false << 30 << "0.30 m"
                                  << "0.30" << QByteArray("*m00300H");
    QTest::newRow("low, metric") << "low" << false << 30 << "0.30 m"
                                 << "0.50" << QByteArray("*m00500L");
    QTest::newRow("high, imperial") << "high" << true << 100 << "1.00 ft"
                                    << "1.00" << QByteArray("*m00304H");
    QTest::newRow("low, imperial") << "low" << true << 100 << "1.00 ft"
                                   << "1.64" << QByteArray("*m00500L");
}

void BlankingSlidersTest::aDragBelowTheFloorReturnsToTheFloorOfBothChannels()
{
    QFETCH(QString, channel);
    QFETCH(bool, imperial);
    endBenches();
    SliderBench bench(imperial);
    bench.useChannel(channel);
    bench.place(blanking, 500);
    bench.slider(blanking)->setMinimum(0);
    bench.hand(blanking).dragTo(0.01);
    QTEST(bench.slider(blanking)->value(), "floor");
    QTEST(bench.label(blanking), "label");
    QTEST(bench.text(channel + "Blank"), "edit");
    QTEST(bench.takeCommands().join(' '), "wire");
}

void BlankingSlidersTest::aMoveLogsItsReckoning()
{
    SliderBench &bench = benchOf("high", false);
    bench.place(blanking, 120);
    LogCapture log;
    bench.hand(blanking).press(Qt::Key_Right);
    QVERIFY(log.contains("Max is  1000 Current is  121 Result is 1.21"));
    QVERIFY(bench.settles());
}

/// The button stores, and the slider that it moves stores once more: neither may take feet for
/// metres, although the second would hide the mistake of the first.
void BlankingSlidersTest::aButtonInFeetStoresMetresBothTimes()
{
    SliderBench &bench = benchOf("high", true);
    bench.place(blanking, 393);
    LogCapture log;
    bench.press(blanking, "Up");
    QCOMPARE(log.count("Changing  \"highBlank\"  to  \"1.22834\""), 2);
    QCOMPARE(log.count("Changing "), 2);
    QVERIFY(bench.settles());
}

void BlankingSlidersTest::blankingCanBeSetInEveryMode_data()
{
    QTest::addColumn<QString>("channel");
    QTest::addColumn<QString>("mode");
    for (const QString &channel : channels) {
        for (const char *mode : {"Auto", "Manual"}) {
            QTest::addRow("%s, %s", qPrintable(channel), mode) << channel << QString(mode);
        }
    }
}

void BlankingSlidersTest::blankingCanBeSetInEveryMode()
{
    QFETCH(QString, channel);
    QFETCH(QString, mode);
    endBenches();
    SliderBench bench;
    bench.useChannel(channel);
    bench.click(channel + mode + "Radio");
    bench.takeCommands();
    bench.place(blanking, 120);
    bench.press(blanking, "Up");
    QCOMPARE(bench.takeCommands().join(' '), marked(channel, "*m01300"));
}

void BlankingSlidersTest::aBurstOfStepsSendsTheLastValueOnce()
{
    SliderBench &bench = benchOf("high", false);
    bench.place(blanking, 120);
    for (int i = 0; i < 10; ++i) {
        bench.press(blanking, "Up");
    }
    QCOMPARE(bench.takeCommands().join(' '), QByteArray("*m02200H"));
}

QTEST_MAIN(BlankingSlidersTest)
#include "tst_blankingsliders.moc"
