// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

// The rate "Auto" with a device that names itself at one of the rates.

#include "linkwatch.h"

#include <QSignalSpy>
#include <QtTest>

using namespace LinkWatch;

namespace {

const QStringList rates{"4800", "9600", "19200", "38400", "57600", "115200"};

/// Cuts short what a rate gets: still long enough for the device to be heard on a busy machine.
void hurry(WindowBench &bench) { bench.timer("answerTimer")->setInterval(500); }

} // namespace

class TestRateFound : public QObject
{
    Q_OBJECT

private slots:
    void deviceIsFoundAtItsRate_data();
    void deviceIsFoundAtItsRate();
    void foundAmongSoundingsThatArriveAsGarbage();
    void foundRateStays();
    void searchAfterASearchThatFailed();
};

void TestRateFound::deviceIsFoundAtItsRate_data()
{
    QTest::addColumn<int>("rate");
    for (const QString &rate : rates) {
        QTest::newRow(qPrintable(rate)) << rate.toInt();
    }
}

void TestRateFound::deviceIsFoundAtItsRate()
{
    QFETCH(int, rate);
    const QString itsRate = QString::number(rate);
    SounderOptions options = WindowBench::quietSounder();
    options.rate = rate;
    WindowBench bench(options);
    hurry(bench);
    InfoRecorder infos(bench);
    bench.pressConnect("Auto");
    QTRY_COMPARE_WITH_TIMEOUT(bench.info(), QString(connectedInfo), 15000);
    QCOMPARE(bench.text("baudComboBox"), itsRate);
    QCOMPARE(bench.infoColour(), QString("Green"));
    QVERIFY(bench.showsConnected());
    QVERIFY2(!bench.timer("answerTimer")->isActive(), "the search goes on");
    QStringList expected;
    for (const QString &tried : rates.mid(0, rates.indexOf(itsRate) + 1)) {
        expected.append("Trying " + tried + " baud");
    }
    expected.append(connectedInfo);
    QTRY_COMPARE(infos.texts(), expected);
}

void TestRateFound::foundAmongSoundingsThatArriveAsGarbage()
{
    SounderOptions options;
    options.rate = 38400;
    options.soundings = true; // as it does when it is switched on
    options.format = 1;
    WindowBench bench(options);
    hurry(bench);
    QSignalSpy sounder(&bench.sounder, &SounderLine::bytesSent);
    bench.pressConnect("Auto");
    QTRY_COMPARE(bench.info(), QString("Trying 19200 baud"));
    QVERIFY2(sounder.count() > 0, "no sounding came while the rate was wrong");
    QTRY_COMPARE_WITH_TIMEOUT(bench.info(), QString(connectedInfo), 15000);
    QCOMPARE(bench.text("baudComboBox"), QString("38400"));
}

void TestRateFound::foundRateStays()
{
    WindowBench bench;
    hurry(bench);
    QVERIFY(bench.connectToSounder("Auto"));
    QVERIFY(!QTest::qWaitFor([&] { return bench.text("baudComboBox") != "9600"; }, 700));
    QVERIFY(bench.showsConnected());
    bench.click("connectToDevice");
    QCOMPARE(bench.text("baudComboBox"), QString("9600"));
    QCOMPARE(bench.info(), QString());
}

void TestRateFound::searchAfterASearchThatFailed()
{
    WindowBench bench;
    bench.timer("answerTimer")->setInterval(30);
    bench.device().setFault("silent", 1);
    bench.pressConnect("Auto");
    QTRY_COMPARE(bench.info(), QString(notConnectedInfo));
    bench.device().setFault("silent", 0);
    hurry(bench);
    QVERIFY(bench.connectToSounder("Auto"));
    QCOMPARE(bench.text("baudComboBox"), QString("9600"));
}

QTEST_MAIN(TestRateFound)

#include "tst_ratefound.moc"
