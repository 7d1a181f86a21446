// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "answerbench.h"

#include <QLabel>
#include <QtTest>

#include <memory>

/// What the operator sees when the sounder says "OK" or "ERR". (What ends the connection is tested
/// in tst_linkclosing, the banner in tst_banner, the status lines in tst_statusreports.)
class TestReports : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void acknowledgementIsAppendedInGreen_data();
    void acknowledgementIsAppendedInGreen();
    void acknowledgementWithoutACommandStandsAlone();
    void secondAcknowledgementIsAppendedToTheFirst();
    void lineWithAcknowledgementAndSettingsIsAnAcknowledgementOnly_data();
    void lineWithAcknowledgementAndSettingsIsAnAcknowledgementOnly();
    void refusalGivesItsAdviceInRed_data();
    void refusalGivesItsAdviceInRed();
    void refusalWithoutACommandStandsAlone();
    void refusalLeavesTheOperatorsValueAndTheLink();
    void answerEndsTheWaitForIt_data();
    void answerEndsTheWaitForIt();
    void lowerCaseAnswersCountForNothing();

private:
    std::unique_ptr<AnswerBench> bench;
};

void TestReports::init() { bench = std::make_unique<AnswerBench>(); }

void TestReports::cleanup() { bench.reset(); }

void TestReports::acknowledgementIsAppendedInGreen_data()
{
    QTest::addColumn<QByteArray>("line");
    for (const char *line : {"OK", "xxOKxx", "OK and ERR", "UID : OK", " OK"}) {
        QTest::newRow(line) << QByteArray(line);
    }
}

void TestReports::acknowledgementIsAppendedInGreen()
{
    QFETCH(QByteArray, line);
    QVERIFY(bench->connectAs());
    QVERIFY(bench->tell("*i5,I9600"));
    QVERIFY(bench->setPings());
    QVERIFY(bench->tell(line));
    QCOMPARE(bench->info(), QString("Setting Pings Per Second to 3 ... Success"));
    QCOMPARE(bench->infoColour(), QString("Green"));
    QVERIFY(bench->showsConnected());
}

void TestReports::acknowledgementWithoutACommandStandsAlone()
{
    QVERIFY(bench->connectAs());
    QVERIFY(bench->tell("*i5,I9600"));
    QVERIFY(bench->tell("OK"));
    QCOMPARE(bench->info(), QString("Connected to TAL-VERO ... Success"));
    QVERIFY(bench->letInfoExpire());
    QVERIFY(bench->tell("OK"));
    QVERIFY(bench->find<QLabel>("infoLabel")->text().contains("> ... Success<"));
}

void TestReports::secondAcknowledgementIsAppendedToTheFirst()
{
    QVERIFY(bench->connectAs());
    QVERIFY(bench->tell("*i5,I9600"));
    QVERIFY(bench->setPings());
    QVERIFY(bench->tell("OK"));
    QVERIFY(bench->tell("OK"));
    QCOMPARE(bench->info(), QString("Setting Pings Per Second to 3 ... Success ... Success"));
}

void TestReports::lineWithAcknowledgementAndSettingsIsAnAcknowledgementOnly_data()
{
    QTest::addColumn<QByteArray>("line");
    QTest::addColumn<QString>("ending");
    QTest::newRow("OK, channel") << QByteArray("*HOK,Hg050") << " ... Success";
    QTest::newRow("OK, common") << QByteArray("*i9OK") << " ... Success";
    QTest::newRow("OK, identifier") << QByteArray("UID : OK") << " ... Success";
    QTest::newRow("ERR, channel") << QByteArray("*HERR,Hg050")
                                  << " ... Received Error - Command Not Applied";
    QTest::newRow("ERR, identifier")
        << QByteArray("UID : ERR") << " ... Received Error - Command Not Applied";
}

void TestReports::lineWithAcknowledgementAndSettingsIsAnAcknowledgementOnly()
{
    QFETCH(QByteArray, line);
    QFETCH(QString, ending);
    QVERIFY(bench->connectAs());
    QVERIFY(bench->tell("*i5,I9600"));
    QVERIFY(bench->tell(line));
    QCOMPARE(bench->info(), "Connected to TAL-VERO" + ending);
    QCOMPARE(bench->text("highGainEdit"), QString("75%"));
    QCOMPARE(bench->text("pingEdit"), QString("5"));
    QCOMPARE(bench->text("label_24"), QString());
}

void TestReports::refusalGivesItsAdviceInRed_data()
{
    QTest::addColumn<QString>("edit");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QByteArray>("command");
    QTest::addColumn<QString>("shown");
    QTest::newRow("maximum depth")
        << "maxDepthEdit"
        << "60" << QByteArray("*s060000")
        << "Setting Maximum Depth to 60 m ... not applied. Reduce pings per second";
    QTest::newRow("pings") << "pingEdit"
                           << "3" << QByteArray("*i03")
                           << "Setting Pings Per Second to 3 ... not applied. Reduce maximum depth";
    QTest::newRow("another") << "highDraft"
                             << "0.55" << QByteArray("*o00550H")
                             << "Setting High Frequency Draft to 0.55 m ... Received Error - "
                                "Command Not Applied";
}

void TestReports::refusalGivesItsAdviceInRed()
{
    QFETCH(QString, edit);
    QFETCH(QString, typed);
    QFETCH(QByteArray, command);
    QFETCH(QString, shown);
    QVERIFY(bench->connectAs());
    bench->type(edit, typed);
    QVERIFY2(bench->hears(command), bench->line.received().constData());
    QVERIFY(bench->tell("ERR"));
    QCOMPARE(bench->info(), shown);
    QCOMPARE(bench->infoColour(), QString("Red"));
}

void TestReports::refusalWithoutACommandStandsAlone()
{
    QVERIFY(bench->connectAs());
    QVERIFY(bench->letInfoExpire());
    QVERIFY(bench->tell("ERR"));
    QVERIFY(bench->find<QLabel>("infoLabel")
                ->text()
                .contains("> ... Received Error - Command Not Applied<"));
    QCOMPARE(bench->infoColour(), QString("Red"));
}

void TestReports::refusalLeavesTheOperatorsValueAndTheLink()
{
    QVERIFY(bench->connectAs()); // the rates differ here: an acknowledgement would close the link
    QVERIFY(bench->setPings());
    bench->line.clearReceived();
    QVERIFY(bench->tell("ERR"));
    QCOMPARE(bench->text("pingEdit"), QString("3"));
    QCOMPARE(bench->line.received(), QByteArray()); // nothing is read again
    QVERIFY(bench->showsConnected());
}

void TestReports::answerEndsTheWaitForIt_data()
{
    QTest::addColumn<QByteArray>("line");
    QTest::newRow("OK") << QByteArray("OK");
    QTest::newRow("ERR") << QByteArray("ERR");
}

/// A silence after the answer is the device's, not the command's.
void TestReports::answerEndsTheWaitForIt()
{
    QFETCH(QByteArray, line);
    QVERIFY(bench->connectAs());
    QVERIFY(bench->tell("*i5,I9600"));
    QVERIFY(bench->setPings());
    QVERIFY(bench->tell(line));
    bench->timer("resizeTimer")->stop();
    QMetaObject::invokeMethod(&bench->window, "serialTimeout");
    QCOMPARE(bench->info(), QString("Lost Connection To Device"));
}

void TestReports::lowerCaseAnswersCountForNothing()
{
    QVERIFY(bench->connectAs());
    QVERIFY(bench->setPings());
    for (const char *line : {"ok", "Ok", "oK", "Err", "err", "O K"}) {
        QVERIFY(bench->tell(line));
        QCOMPARE(bench->info(), QString("Setting Pings Per Second to 3"));
    }
}

QTEST_MAIN(TestReports)

#include "tst_reports.moc"
