// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "answerbench.h"

#include <QLabel>
#include <QLineEdit>
#include <QMap>

#include <memory>

/// A value that the sounder refused, or did not answer, stays in its control and must not look as
/// if the sounder had it. The test plays the sounder.
class UnappliedValueTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void aRefusedValueIsMarkedUntilAnotherIsAccepted_data();
    void aRefusedValueIsMarkedUntilAnotherIsAccepted();
    void anUnansweredValueIsMarked_data();
    void anUnansweredValueIsMarked();
    void anUnansweredSwitchIsMarkedUntilTheUnitTellsIt();
    void aLateAnswerTakesTheMarkAway();
    void lateAnswersBelongToTheCommandsInTheirOrder();
    void aSpoiltReplyLeavesTheMark();
    void aValueToldAnewIsNotMarked();
    void afterReconnectingNothingIsMarked();
    void answersBelongToTheCommandsInTheirOrder();
    void anAnswerToAnotherCommandMarksNothing();
    void whatWaitsIsMoreUrgentThanWhatWasRefused();

private:
    QString wordsAt(const QString &control);
    void change(const QString &button, const QByteArray &command);

    std::unique_ptr<AnswerBench> bench;
};

void UnappliedValueTest::init()
{
    bench = std::make_unique<AnswerBench>();
    QVERIFY(bench->connectAs());
    QVERIFY(bench->tell("*i5,v1500000,s30000,a3,I9600,H1,L1"));
    QVERIFY(bench->tell("*Hcm,Hg064,HlT,Hm00450,Ho00400,Hp16,Hq00000,Ht50,Hw0200"));
    QVERIFY(bench->tell("*Lcm,Lg064,LlW,Lm00500,Lo00400,Lp16,Lq00000,Lt50,Lw0033"));
}

void UnappliedValueTest::cleanup() { bench.reset(); }

/// What the control says of its value if it is marked as not applied; else empty.
QString UnappliedValueTest::wordsAt(const QString &control)
{
    const auto *widget = bench->find<QWidget>(control);
    return widget->property("mark") == "notApplied" ? widget->toolTip() : QString();
}

void UnappliedValueTest::change(const QString &button, const QByteArray &command)
{
    bench->line.clearReceived();
    bench->find<QAbstractButton>(button)->click();
    QVERIFY2(bench->hears(command), bench->line.received().constData());
}

void UnappliedValueTest::aRefusedValueIsMarkedUntilAnotherIsAccepted_data()
{
    QTest::addColumn<QString>("button");
    QTest::addColumn<QByteArray>("command");
    QTest::addColumn<QString>("control");
    QTest::addColumn<QString>("words");
    const QString plain = "Received Error - Command Not Applied";
    const auto row = [&](const char *button, const char *command, const char *control,
                         const QString &words) {
        QTest::newRow(control) << button << QByteArray(command) << control << words;
    };
    row("pingUp", "*i", "pingEdit", "not applied. Reduce maximum depth");
    row("maxDepthUp", "*s", "maxDepthEdit", "not applied. Reduce pings per second");
    row("soundVelocityUp", "*v", "soundVelocityEdit", plain);
    row("highDraftUp", "*o", "highDraft", plain);
    row("highIndexUp", "*q", "highIndex", plain);
    row("highFreqDown", "*w", "highFreq", plain);
    row("highBlankUp", "*m", "highBlank", plain);
    row("highPulseUp", "*p", "highPulseEdit", plain);
    row("lowGainUp", "*g", "lowGainEdit", plain);
    row("lowDetectUp", "*t", "lowDetectEdit", plain);
    row("highAutoRadio", "*c", "highAutoRadio", plain);
    row("lowOffTvg", "*l", "lowOffTvg", plain);
    row("disableHF", "*hHHHHHHH", "disableHF", plain);
    row("disableLF", "*hLLLLLLL", "disableLF", plain);
}

void UnappliedValueTest::aRefusedValueIsMarkedUntilAnotherIsAccepted()
{
    QFETCH(QString, button);
    QFETCH(QByteArray, command);
    QFETCH(QString, control);
    QCOMPARE(wordsAt(control), QString());
    const QString itsOwn = bench->find<QWidget>(control)->toolTip();
    change(button, command);
    QCOMPARE(wordsAt(control), QString());
    QVERIFY(bench->tell("ERR"));
    QTEST(wordsAt(control), "words");
    if (!button.endsWith("Up") && !button.endsWith("Down")) {
        // An option that is chosen cannot be chosen again. Another one is accepted.
        const QMap<QString, std::pair<QString, QByteArray>> others{
            {"highAutoRadio", {"highManualRadio", "*c"}},
            {"lowOffTvg", {"lowLog10Tvg", "*l"}},
            {"disableHF", {"enableHF", "*bHHHHHHH"}},
            {"disableLF", {"enableLF", "*bLLLLLLL"}}};
        change(others[button].first, others[button].second);
        QVERIFY(bench->tell("OK"));
        QCOMPARE(wordsAt(control), QString());
        return;
    }
    change(button, command);
    QVERIFY(bench->tell("OK"));
    QCOMPARE(wordsAt(control), QString());
    QCOMPARE(bench->find<QWidget>(control)->toolTip(), itsOwn);
}

void UnappliedValueTest::anUnansweredValueIsMarked_data()
{
    QTest::addColumn<bool>("soundings");
    QTest::newRow("in silence") << false;
    QTest::newRow("while depths arrive") << true;
}

void UnappliedValueTest::anUnansweredValueIsMarked()
{
    QFETCH(bool, soundings);
    QTimer pinging;
    QObject::connect(&pinging, &QTimer::timeout, &pinging,
                     [this] { bench->say(" et B 00123 00131"); });
    if (soundings) {
        pinging.start(200);
    }
    change("highDraftUp", "*o");
    QTRY_COMPARE(wordsAt("highDraft"), QString("Command Timed Out"));
    QVERIFY(bench->showsConnected());
}

/// The transducer may go on pinging, whatever the form shows.
void UnappliedValueTest::anUnansweredSwitchIsMarkedUntilTheUnitTellsIt()
{
    QTimer pinging; // or the link would be taken for lost
    QObject::connect(&pinging, &QTimer::timeout, &pinging,
                     [this] { bench->say(" et B 00123 00131"); });
    pinging.start(200);
    change("disableHF", "*hHHHHHHH");
    QTRY_COMPARE(wordsAt("disableHF"), QString("Command Timed Out"));
    QVERIFY(bench->tell("*L1"));
    QCOMPARE(wordsAt("disableHF"), QString("Command Timed Out"));
    QVERIFY(bench->tell("*i5,H2")); // no answer that says on or off
    QCOMPARE(wordsAt("disableHF"), QString("Command Timed Out"));
    QVERIFY(bench->tell("*i5,H0"));
    QCOMPARE(wordsAt("disableHF"), QString());
}

void UnappliedValueTest::lateAnswersBelongToTheCommandsInTheirOrder()
{
    change("highDraftUp", "*o");
    change("highIndexUp", "*q");
    QTRY_COMPARE(wordsAt("highDraft"), QString("Command Timed Out"));
    QTRY_COMPARE(wordsAt("highIndex"), QString("Command Timed Out"));
    QVERIFY(bench->tell("OK"));
    QVERIFY(bench->tell("ERR"));
    QCOMPARE(wordsAt("highDraft"), QString());
    QCOMPARE(wordsAt("highIndex"), QString("Received Error - Command Not Applied"));
}

void UnappliedValueTest::aSpoiltReplyLeavesTheMark()
{
    change("lowOffTvg", "*l");
    QVERIFY(bench->tell("ERR"));
    QVERIFY(bench->tell("*Llx"));
    QVERIFY2(!wordsAt("lowOffTvg").isEmpty(), "no gain law was told");
    QVERIFY(bench->tell("*LlN"));
    QCOMPARE(wordsAt("lowOffTvg"), QString());
}

void UnappliedValueTest::aLateAnswerTakesTheMarkAway()
{
    change("highDraftUp", "*o");
    QTRY_COMPARE(wordsAt("highDraft"), QString("Command Timed Out"));
    QVERIFY(bench->tell("OK"));
    QCOMPARE(wordsAt("highDraft"), QString());
}

void UnappliedValueTest::aValueToldAnewIsNotMarked()
{
    change("highDraftUp", "*o");
    QVERIFY(bench->tell("ERR"));
    QVERIFY(!wordsAt("highDraft").isEmpty());
    QVERIFY(bench->tell("*Lo00400"));
    QVERIFY2(!wordsAt("highDraft").isEmpty(), "The other channel's value says nothing of it");
    QVERIFY(bench->tell("*Ho00400"));
    QCOMPARE(wordsAt("highDraft"), QString());
    QCOMPARE(bench->text("highDraft"), QString("0.40"));
}

void UnappliedValueTest::afterReconnectingNothingIsMarked()
{
    change("highDraftUp", "*o");
    QVERIFY(bench->tell("ERR"));
    change("highPulseUp", "*p");
    QVERIFY(bench->tell("ERR"));
    QVERIFY(!wordsAt("highDraft").isEmpty() && !wordsAt("highPulseEdit").isEmpty());
    bench->click("connectToDevice");
    QVERIFY(bench->connectAs());
    const QList<QWidget *> widgets = bench->window.findChildren<QWidget *>();
    for (const QWidget *widget : widgets) {
        QVERIFY2(widget->property("mark") != "notApplied", qPrintable(widget->objectName()));
    }
}

/// Two changes are under way when the answer to the first one comes.
void UnappliedValueTest::answersBelongToTheCommandsInTheirOrder()
{
    bench->find<QAbstractButton>("highDraftUp")->click();
    change("highIndexUp", "*q");
    QVERIFY(bench->line.received().contains("*o"));
    QVERIFY(bench->tell("ERR"));
    QVERIFY(bench->tell("OK"));
    QCOMPARE(wordsAt("highDraft"), QString("Received Error - Command Not Applied"));
    QCOMPARE(wordsAt("highIndex"), QString());
}

void UnappliedValueTest::anAnswerToAnotherCommandMarksNothing()
{
    change("highDraftUp", "*o");
    bench->find<QAbstractButton>("saveSettingsToDevice")->click();
    QVERIFY(bench->hears("*F345678"));
    QVERIFY(bench->tell("OK"));  // the draft
    QVERIFY(bench->tell("ERR")); // the saving
    QCOMPARE(wordsAt("highDraft"), QString());
}

void UnappliedValueTest::whatWaitsIsMoreUrgentThanWhatWasRefused()
{
    change("highDraftUp", "*o");
    QVERIFY(bench->tell("ERR"));
    auto *const edit = bench->find<QLineEdit>("highDraft");
    edit->setFocus();
    QTest::keyClick(edit, Qt::Key_5);
    QCOMPARE(edit->property("mark").toString(), QString("waiting"));
    QCOMPARE(edit->toolTip(), QString("Press Return to send"));
    bench->line.clearReceived();
    QTest::keyClick(edit, Qt::Key_Return);
    QVERIFY(bench->hears("*o"));
    QVERIFY2(!wordsAt("highDraft").isEmpty(), "Nothing has been accepted yet");
    QVERIFY(bench->tell("OK"));
    QCOMPARE(edit->property("mark").toString(), QString());
}

QTEST_MAIN(UnappliedValueTest)

#include "tst_unappliedvalue.moc"
