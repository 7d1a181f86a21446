// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

// The help window in the hands of an operator without a mouse.

#include "infoform.h"

#include <QAbstractButton>
#include <QtTest>

namespace {

struct HelpKeys
{
    HelpKeys()
    {
        window.showTopic(QStringLiteral("Gain"));
        open();
    }

    void open()
    {
        window.show();
        window.activateWindow();
        isActive = QTest::qWaitForWindowActive(&window);
    }

    void press(Qt::Key key) { QTest::keyClick(window.windowHandle(), key); }

    InfoForm window;
    bool isActive = false;
    QAbstractButton *closeButton = window.findChild<QAbstractButton *>("pushButton");
};

} // namespace

class TestHelpKeys : public QObject
{
    Q_OBJECT

private slots:
    void closeHasTheFocusWheneverTheWindowOpens();
    void keyCloses_data();
    void keyCloses();
    void otherKeysLeaveItOpen_data();
    void otherKeysLeaveItOpen();
};

void TestHelpKeys::closeHasTheFocusWheneverTheWindowOpens()
{
    HelpKeys help;
    QVERIFY(help.isActive);
    QVERIFY(help.closeButton->hasFocus());
    help.closeButton->clearFocus();
    help.window.close();
    help.open();
    QVERIFY2(help.window.focusWidget() == help.closeButton, "the second time it has not");
}

void TestHelpKeys::keyCloses_data()
{
    QTest::addColumn<Qt::Key>("key");
    QTest::addColumn<bool>("onButton");
    QTest::newRow("Escape") << Qt::Key_Escape << true;
    QTest::newRow("Escape, Close without the focus") << Qt::Key_Escape << false;
    QTest::newRow("Space") << Qt::Key_Space << true;
    QTest::newRow("Return") << Qt::Key_Return << true;
    QTest::newRow("Enter of the number pad") << Qt::Key_Enter << true;
}

void TestHelpKeys::keyCloses()
{
    QFETCH(Qt::Key, key);
    QFETCH(bool, onButton);
    HelpKeys help;
    if (!onButton) {
        help.closeButton->clearFocus();
    }
    help.press(key);
    QTRY_VERIFY2(!help.window.isVisible(), "the help stays open");
    help.open();
    QVERIFY2(help.window.isVisible(), "it does not open again");
}

void TestHelpKeys::otherKeysLeaveItOpen_data()
{
    QTest::addColumn<Qt::Key>("key");
    QTest::newRow("Tab") << Qt::Key_Tab;
    QTest::newRow("Down") << Qt::Key_Down;
    QTest::newRow("a letter") << Qt::Key_C;
    QTest::newRow("Backspace") << Qt::Key_Backspace;
}

void TestHelpKeys::otherKeysLeaveItOpen()
{
    QFETCH(Qt::Key, key);
    HelpKeys help;
    help.press(key);
    QVERIFY(help.window.isVisible());
    QVERIFY2(help.closeButton->hasFocus(), "the focus has left the only control");
}

QTEST_MAIN(TestHelpKeys)
#include "tst_helpkeys.moc"
