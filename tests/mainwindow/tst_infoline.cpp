// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

// The line in which the window tells the operator what is going on.

#include "linkwatch.h"
#include "rawbench.h"

#include <QLabel>
#include <QtTest>

using namespace LinkWatch;

namespace {

QString rawInfo(WindowBench &bench) { return bench.find<QLabel>("infoLabel")->text(); }

} // namespace

class TestInfoLine : public QObject
{
    Q_OBJECT

private slots:
    void coloursSayWhatKindOfMessageItIs();
    void textIsClearedTenSecondsAfterItWasShown();
    void newerTextRestartsTheTenSeconds();
    void clearedLineIsEmptyAndBlack();
    void resultIsNotAppendedToAClearedText();
};

void TestInfoLine::coloursSayWhatKindOfMessageItIs()
{
    RawBench bench;
    bench.timer("answerTimer")->setInterval(100);
    bench.pressConnectRaw();
    QCOMPARE(rawInfo(bench), QString("<font color='black'>Connecting to Device</font>"));
    QTRY_COMPARE(rawInfo(bench), QString("<font color='Red'>Could Not Connect To Device</font>"));
    bench.timer("answerTimer")->setInterval(2000);
    QVERIFY(bench.connectByBanner());
    QCOMPARE(rawInfo(bench), QString("<font color='Green'>Connected to TAL-VERO</font>"));
}

void TestInfoLine::textIsClearedTenSecondsAfterItWasShown()
{
    RawBench bench;
    bench.timer("answerTimer")->setInterval(50);
    bench.pressConnectRaw();
    InfoRecorder infos(bench);
    QTRY_COMPARE(bench.info(), QString(notConnectedInfo));
    QTRY_COMPARE_WITH_TIMEOUT(bench.info(), QString(), 20000);
    QTRY_COMPARE(infos.texts(), (QStringList{notConnectedInfo, QString()}));
    const qint64 shownFor = infos.times().at(1) - infos.times().at(0);
    QVERIFY2(shownFor >= 9000, qPrintable(QStringLiteral("cleared after %1 ms").arg(shownFor)));
}

void TestInfoLine::newerTextRestartsTheTenSeconds()
{
    RawBench bench;
    QTimer *const timer = bench.timer("infoTimer");
    timer->setTimerType(Qt::PreciseTimer); // others round the time that they have left
    bench.pressConnectRaw();
    QVERIFY(timer->isActive());
    QTRY_VERIFY(timer->remainingTime() < 9900);
    const int before = timer->remainingTime();
    bench.click("connectToDevice"); // shows the empty text
    QVERIFY2(timer->remainingTime() > before, "the newer text goes with the older one");
    QTRY_VERIFY(timer->remainingTime() < 9900);
    bench.timer("answerTimer")->setInterval(50);
    bench.pressConnectRaw();
    QTRY_COMPARE(bench.info(), QString(notConnectedInfo));
    QVERIFY2(timer->remainingTime() > 9500, qPrintable(QString::number(timer->remainingTime())));
}

void TestInfoLine::clearedLineIsEmptyAndBlack()
{
    RawBench bench;
    bench.timer("infoTimer")->setInterval(50);
    bench.pressConnectRaw();
    QTRY_COMPARE(rawInfo(bench), QString("<font color='black'></font>"));
    QCOMPARE(bench.text("connectToDevice"), QString(disconnectText));
}

void TestInfoLine::resultIsNotAppendedToAClearedText()
{
    RawBench bench;
    QVERIFY(bench.connectByBanner());
    bench.say("*i5,v1500000,s30000,a3,I9600,H1,L1"); // an "OK" would close the link before
    QTRY_COMPARE(bench.text("newBaudComboBox"), QString("9600"));
    bench.timer("infoTimer")->setInterval(300);
    bench.click("saveSettingsToDevice");
    QTRY_COMPARE(bench.info(), QString());
    bench.timer("infoTimer")->setInterval(10000);
    bench.say("OK");
    QTRY_COMPARE(rawInfo(bench), QString("<font color='Green'> ... Success</font>"));
}

QTEST_MAIN(TestInfoLine)

#include "tst_infoline.moc"
