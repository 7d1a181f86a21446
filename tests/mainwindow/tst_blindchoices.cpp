// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "answerbench.h"
#include "linkwatch.h"

#include <QComboBox>
#include <QLabel>
#include <QSignalBlocker>

/// What counts is what the lists show, also where nobody was told that it changed.
class BlindChoicesTest : public QObject
{
    Q_OBJECT

private slots:
    void portAndRateAreThoseShown();
    void anOtherDeviceRateThatIsShownClosesTheLink();
    void aSentenceIsReadInTheFormatThatIsShown();
    void leavingShallowSwitchesNothingOff();

private:
    static void setSilently(WindowBench &bench, const char *list, const QString &entry);
};

void BlindChoicesTest::setSilently(WindowBench &bench, const char *list, const QString &entry)
{
    auto *const box = bench.find<QComboBox>(list);
    const QSignalBlocker blocker(box);
    box->setCurrentText(entry);
    QCOMPARE(box->currentText(), entry);
}

void BlindChoicesTest::portAndRateAreThoseShown()
{
    RawBench bench;
    setSilently(bench, "portComboBox", bench.line.slavePath());
    setSilently(bench, "baudComboBox", "9600");
    bench.click("connectToDevice");
    QVERIFY(bench.hears("*n1234567*n1234567"));
}

void BlindChoicesTest::anOtherDeviceRateThatIsShownClosesTheLink()
{
    AnswerBench bench;
    QVERIFY(bench.connectAs());
    QVERIFY(bench.tell("*i5,I9600"));
    setSilently(bench, "newBaudComboBox", "19200");
    bench.say("OK");
    QTRY_VERIFY(bench.isClosed());
    QCOMPARE(bench.text("baudComboBox"), QString("19200"));
}

void BlindChoicesTest::aSentenceIsReadInTheFormatThatIsShown()
{
    AnswerBench bench;
    QVERIFY(bench.connectAs());
    QVERIFY(bench.tell("*i5,I9600,H1,L1"));
    setSilently(bench, "formatComboBox", "SONARMITE DUAL");
    QVERIFY(bench.tell("0 1.23 1.31 78"));
    QCOMPARE(bench.text("highDepthLabel"), QString("HF Depth: 1.23"));
    QCOMPARE(bench.text("lowDepthLabel"), QString("LF Depth: 1.31"));
}

/// The unit has named itself anew and has not told its settings yet; what stands in the window is
/// from the last connection, in which the low channel was off and the high one in shallow mode.
void BlindChoicesTest::leavingShallowSwitchesNothingOff()
{
    AnswerBench bench;
    QVERIFY(bench.connectAs());
    QVERIFY(bench.tell("*i5,I9600,H1,L0"));
    QVERIFY(bench.tell("*Hcs"));
    bench.click("connectToDevice");
    QVERIFY(bench.connectAs());
    QVERIFY(bench.isEnabled("lowDraft"));
    bench.click("highAutoRadio");
    QVERIFY2(bench.isEnabled("lowDraft"), "The low channel was switched off by a mode of the high");
}

QTEST_MAIN(BlindChoicesTest)

#include "tst_blindchoices.moc"
