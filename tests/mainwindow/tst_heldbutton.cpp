// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "appearance.h"
#include "logcapture.h"
#include "sliderbench.h"

#include <QElapsedTimer>
#include <QPushButton>
#include <QRegularExpression>

namespace {

/// Ten repeats a second for a minute.
constexpr int repeatsOfAMinute = 600;
constexpr int fastMotionMs = 2;
constexpr int pauseMs = 600; // less than all repeats take together

/// Repeats an action as a finger does that stays down, in fast motion. Returns how often the
/// machine, not the finger, made a pause that was long enough for the window to send.
int hold(const std::function<void()> &action)
{
    int pauses = 0;
    QElapsedTimer sinceLast;
    for (int i = 0; i < repeatsOfAMinute; ++i) {
        sinceLast.start();
        action();
        QTest::qWait(fastMotionMs);
        constexpr int surelyTooShortMs = pauseMs * 9 / 10; // a timer may be some percent early
        pauses += sinceLast.elapsed() > surelyTooShortMs ? 1 : 0;
    }
    return pauses;
}

/// What the sounder got up to this command, which is to be the last: waits for it, since an answer
/// on its way may be that to the command before. What else comes until all is answered is there
/// too.
QByteArrayList commandsUntil(SliderBench &bench, const QByteArray &last)
{
    constexpr int patienceMs = 20000;
    const auto isThere = [&] {
        const QByteArrayList commands = bench.settingCommands();
        return !bench.hasPendingChange() && !commands.isEmpty() && commands.last() == last;
    };
    const bool came = QTest::qWaitFor(isThere, patienceMs);
    bench.settles();
    const QByteArrayList commands = bench.settingCommands();
    bench.device().clearTranscript();
    return came ? commands : commands + QByteArrayList{"and no " + last};
}

} // namespace

/// A button or key that is held for a minute leaves one command for each pause, and nothing behind.
class HeldButtonTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { giveProgramStyle(); }

    void everyStepButtonRepeatsWhileItIsHeld();
    void aHeldButtonStepsOnAndSendsOnce();
    void aFieldsButton();
    void aSlidersButtonIgnoredAtItsEnd();
    void aSlidersArrowKey();

private:
    /// Holds as often as there are `wires`, with a pause after each time: each must be the last
    /// that the sounder got then, and the only one.
    static void holdRepeatedly(SliderBench &bench, const std::function<void()> &action,
                               const QByteArrayList &wires);
};

void HeldButtonTest::holdRepeatedly(SliderBench &bench, const std::function<void()> &action,
                                    const QByteArrayList &wires)
{
    bench.stopPainting();
    bench.timer("commandTimer")->setInterval(pauseMs);
    for (const QByteArray &wire : wires) {
        const int pauses = hold(action);
        const QByteArrayList commands = commandsUntil(bench, wire);
        QVERIFY2(!commands.isEmpty(), "the held change was not sent");
        QCOMPARE(commands.last(), wire);
        QVERIFY2(commands.size() <= 1 + pauses, qPrintable(commands.join(' ')));
    }
    QVERIFY2(!bench.hasPendingChange(), "something is left in the queue");
}

void HeldButtonTest::everyStepButtonRepeatsWhileItIsHeld()
{
    SliderBench bench;
    int stepButtons = 0;
    const auto buttons = bench.window.findChildren<QPushButton *>(QRegularExpression("(Up|Down)$"));
    for (const QPushButton *button : buttons) {
        QVERIFY2(button->autoRepeat(), qPrintable(button->objectName()));
        ++stepButtons;
    }
    QCOMPARE(stepButtons, 34);
}

void HeldButtonTest::aHeldButtonStepsOnAndSendsOnce()
{
    SliderBench bench;
    bench.useChannel("high");
    auto *const button = bench.find<QPushButton>("highDraftUp");
    const double before = bench.text("highDraft").toDouble();
    constexpr double fiveSteps = 0.5;
    QTest::mousePress(button, Qt::LeftButton);
    QTRY_VERIFY2(bench.text("highDraft").toDouble() > before + fiveSteps, "it steps but once");
    QTest::mouseRelease(button, Qt::LeftButton);
    const double reached = bench.text("highDraft").toDouble();
    const QByteArray wire =
        "*o" + QByteArray::number(qRound(reached * 1000)).rightJustified(5, '0') + "H";
    const QByteArrayList commands = commandsUntil(bench, wire);
    QVERIFY(!commands.isEmpty());
    QCOMPARE(commands.last(), wire);
}

void HeldButtonTest::aFieldsButton()
{
    SliderBench bench;
    bench.useChannel("high");
    const auto click = [&bench] { bench.click("highDraftUp"); };
    holdRepeatedly(bench, click, {"*o60400H", "*o100000"});
    LogCapture log;
    bench.click("highDraftDown");
    QCOMPARE(commandsUntil(bench, "*o99900H").join(' '), QByteArray("*o99900H"));
    QVERIFY2(!log.contains("Have duplicates"), "repeats from before are still queued");
}

void HeldButtonTest::aSlidersButtonIgnoredAtItsEnd()
{
    SliderBench bench;
    bench.useChannel("low");
    bench.place(blanking, 65);
    const auto click = [&bench] { bench.press(blanking, "Up"); };
    holdRepeatedly(bench, click, {"*m09950L"});
}

void HeldButtonTest::aSlidersArrowKey()
{
    SliderBench bench;
    bench.useChannel("low");
    const auto repeatedKey = [&bench] {
        QKeyEvent event(QEvent::KeyPress, Qt::Key_Right, Qt::NoModifier, QString(), true);
        QApplication::sendEvent(bench.slider(blanking), &event);
    };
    holdRepeatedly(bench, repeatedKey, {"*m06500L", "*m10000L"});
}

QTEST_MAIN(HeldButtonTest)
#include "tst_heldbutton.moc"
