// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

// Up and Down in an edit.

#include "appearance.h"
#include "keyhand.h"
#include "readybench.h"

#include <QScrollArea>
#include <QScrollBar>

namespace {

void pressRepeatedly(const QWidget &window, Qt::Key key, int times)
{
    for (int i = 0; i < times; ++i) {
        QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, QString(), i > 0);
        QApplication::sendEvent(window.windowHandle(), &press);
    }
    QKeyEvent release(QEvent::KeyRelease, key, Qt::NoModifier);
    QApplication::sendEvent(window.windowHandle(), &release);
}

} // namespace

class TestStepKeys : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { giveProgramStyle(); }

    void keyStepsAsTheButtonDoes_data();
    void keyStepsAsTheButtonDoes();
    void everyEditHasItsButtons();
    void typedNumberIsWhatIsStepped();
    void heldKeyStepsOnAndSendsOnce();
    void keyThatIsNotAStepDoesNothing_data();
    void keyThatIsNotAStepDoesNothing();
    void formStaysWhereItIs();
};

void TestStepKeys::keyStepsAsTheButtonDoes_data()
{
    QTest::addColumn<QString>("edit");
    QTest::addColumn<Qt::Key>("key");
    QTest::addColumn<QString>("shown");
    QTest::addColumn<QByteArray>("command");
    QTest::newRow("pings up") << "pingEdit" << Qt::Key_Up << "6" << QByteArray("*i06....");
    QTest::newRow("pings down") << "pingEdit" << Qt::Key_Down << "4" << QByteArray("*i04....");
    QTest::newRow("maximum depth down")
        << "maxDepthEdit" << Qt::Key_Down << "25" << QByteArray("*s025000");
    QTest::newRow("draft up") << "highDraft" << Qt::Key_Up << "0.50" << QByteArray("*o00500H");
}

void TestStepKeys::keyStepsAsTheButtonDoes()
{
    QFETCH(QString, edit);
    QFETCH(Qt::Key, key);
    QFETCH(QByteArray, command);
    ReadyBench bench;
    bench.find<QLineEdit>(edit)->setFocus(Qt::MouseFocusReason);
    KeyHand::press(bench.window, key);
    QTEST(bench.text(edit), "shown");
    QTRY_COMPARE(bench.settingCommands(), QByteArrayList{command});
    QVERIFY2(bench.find<QLineEdit>(edit)->hasFocus(), "the key has moved the focus");
}

void TestStepKeys::everyEditHasItsButtons()
{
    ReadyBench bench;
    const auto edits = bench.window.findChildren<QLineEdit *>();
    QCOMPARE(edits.size(), 11);
    for (const Qt::Key key : {Qt::Key_Up, Qt::Key_Down}) {
        for (QLineEdit *edit : edits) {
            bench.openTab(edit->objectName().startsWith("low") ? "low" : "high");
            edit->setFocus(Qt::MouseFocusReason);
            const double before = edit->text().toDouble();
            KeyHand::press(bench.window, key);
            const double after = edit->text().toDouble();
            const bool isAtItsEnd = qFuzzyIsNull(before) && key == Qt::Key_Down;
            QVERIFY2(isAtItsEnd || (key == Qt::Key_Up ? after > before : after < before),
                     qPrintable(edit->objectName()));
        }
    }
}

void TestStepKeys::typedNumberIsWhatIsStepped()
{
    ReadyBench bench;
    auto *const edit = bench.find<QLineEdit>("highDraft");
    edit->setFocus(Qt::MouseFocusReason);
    edit->selectAll();
    QTest::keyClicks(edit, "2.5");
    KeyHand::press(bench.window, Qt::Key_Up);
    QCOMPARE(edit->text(), QString("2.60"));
}

void TestStepKeys::heldKeyStepsOnAndSendsOnce()
{
    ReadyBench bench;
    bench.find<QLineEdit>("highDraft")->setFocus(Qt::MouseFocusReason);
    pressRepeatedly(bench.window, Qt::Key_Up, 20);
    QCOMPARE(bench.text("highDraft"), QString("2.40"));
    QTRY_COMPARE(bench.settingCommands(), QByteArrayList{"*o02400H"});
}

void TestStepKeys::keyThatIsNotAStepDoesNothing_data()
{
    QTest::addColumn<Qt::Key>("key");
    QTest::addColumn<Qt::KeyboardModifiers>("modifiers");
    QTest::newRow("Shift+Up") << Qt::Key_Up << Qt::KeyboardModifiers(Qt::ShiftModifier);
    QTest::newRow("Ctrl+Down") << Qt::Key_Down << Qt::KeyboardModifiers(Qt::ControlModifier);
    QTest::newRow("Left") << Qt::Key_Left << Qt::KeyboardModifiers();
}

void TestStepKeys::keyThatIsNotAStepDoesNothing()
{
    QFETCH(Qt::Key, key);
    QFETCH(Qt::KeyboardModifiers, modifiers);
    ReadyBench bench;
    bench.find<QLineEdit>("highDraft")->setFocus(Qt::MouseFocusReason);
    KeyHand::press(bench.window, key, modifiers);
    QCOMPARE(bench.text("highDraft"), QString("0.40"));
    QVERIFY(!bench.timer("commandTimer")->isActive());
}

/// Without a step the arrows scroll the form, which an operator who steps a number does not want.
void TestStepKeys::formStaysWhereItIs()
{
    ReadyBench bench;
    bench.window.resize(1136, 600);
    QScrollBar *const bar = bench.find<QScrollArea>("scrollArea")->verticalScrollBar();
    QTRY_VERIFY(bar->maximum() > 0);
    bar->setValue(bar->maximum() / 2);
    const int before = bar->value();
    bench.find<QLineEdit>("highDraft")->setFocus(Qt::MouseFocusReason);
    KeyHand::press(bench.window, Qt::Key_Down);
    QCOMPARE(bar->value(), before);
}

QTEST_MAIN(TestStepKeys)
#include "tst_stepkeys.moc"
