// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

// Ten seconds without traffic: the program asks whether the device is still there.

#include "linkwatch.h"
#include "logcapture.h"
#include "rawbench.h"

#include <QtTest>

using namespace LinkWatch;

class TestKeepAlive : public QObject
{
    Q_OBJECT

private slots:
    void answeredItKeepsTheLinkUnansweredItEndsIt();
};

void TestKeepAlive::answeredItKeepsTheLinkUnansweredItEndsIt()
{
    RawBench silent;
    RawBench answering;
    for (RawBench *bench : {&silent, &answering}) {
        QVERIFY(bench->connectByBanner());
        bench->timer("temperatureTimer")->stop(); // its polls would end the silence
    }
    const QString title = answering.text("label_34");
    const LogCapture log;
    QElapsedTimer time;
    time.start();
    QTRY_COMPARE_WITH_TIMEOUT(answering.line.received(), QByteArray("*nasdfdsa"), 20000);
    QVERIFY2(time.elapsed() >= 9000, qPrintable(QString::number(time.elapsed())));
    answering.say("TalVero New HF 9.9.9");

    QTRY_COMPARE_WITH_TIMEOUT(silent.info(), QString(lostInfo), 10000);
    QVERIFY2(time.elapsed() >= 10700, qPrintable(QString::number(time.elapsed())));
    QCOMPARE(silent.infoColour(), QString("Red"));
    QCOMPARE(silent.line.received(), QByteArray("*nasdfdsa"));
    QVERIFY(isIdle(silent, silent.line.slavePath()));

    QVERIFY2(answering.showsConnected(), qPrintable("the operator sees: " + answering.info()));
    QCOMPARE(answering.text("label_34"), title);
    answering.say("VSupply: 12.41");
    QTRY_VERIFY(answering.text("temperatureLabel").contains("12.41V"));
    QCOMPARE(log.count("SERIAL TIMED OUT"), 1);
    QVERIFY2(!log.contains("we have a TalVero New"), "a keep-alive's answer is no new connection");
}

QTEST_MAIN(TestKeepAlive)

#include "tst_keepalive.moc"
