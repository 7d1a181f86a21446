// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "readybench.h"

#include <QApplication>
#include <QClipboard>
#include <QLineEdit>

#include <memory>

namespace {

const QStringList edits{"pingEdit",  "soundVelocityEdit", "maxDepthEdit", "highDraft",
                        "highIndex", "highFreq",          "highBlank",    "lowDraft",
                        "lowIndex",  "lowFreq",           "lowBlank"};

constexpr char waitingWords[] = "Press Return to send";

} // namespace

/// A typed value that the sounder has not been sent must not look as if it had; and who writes a
/// comma means a point.
class UnsentValueTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void anEditWaitsFromTheFirstCharacterUntilReturn_data();
    void anEditWaitsFromTheFirstCharacterUntilReturn();
    void whatElseEndsTheWaiting_data();
    void whatElseEndsTheWaiting();
    void leavingTheFieldChangesNothing();
    void theMarkIsSeenAndMovesNothing();
    void aCommaBecomesAPoint_data();
    void aCommaBecomesAPoint();
    void aPastedCommaBecomesAPoint();
    void theCursorStaysBehindThePoint();
    void textsOfTheProgramKeepTheirComma();

private:
    bool waits(const QString &name);
    void typeOnly(const QString &name, const QString &text);
    void show(const QString &name);

    std::unique_ptr<ReadyBench> bench;
};

void UnsentValueTest::init() { bench = std::make_unique<ReadyBench>(); }

void UnsentValueTest::cleanup() { bench.reset(); }

bool UnsentValueTest::waits(const QString &name)
{
    const auto *edit = bench->find<QLineEdit>(name);
    const bool isMarked = edit->property("mark") == "waiting";
    if (isMarked != (edit->toolTip() == waitingWords)) {
        qFatal("%s: mark and tooltip disagree", qPrintable(name));
    }
    return isMarked;
}

/// Over what stands there, without Return.
void UnsentValueTest::typeOnly(const QString &name, const QString &text)
{
    auto *const edit = bench->find<QLineEdit>(name);
    edit->setFocus();
    edit->selectAll();
    QTest::keyClicks(edit, text);
}

void UnsentValueTest::show(const QString &name)
{
    if (name.startsWith("low")) {
        bench->openTab("low");
    } else if (name.startsWith("high")) {
        bench->openTab("high");
    }
}

void UnsentValueTest::anEditWaitsFromTheFirstCharacterUntilReturn_data()
{
    QTest::addColumn<QString>("name");
    for (const QString &name : edits) {
        QTest::newRow(qPrintable(name)) << name;
    }
}

void UnsentValueTest::anEditWaitsFromTheFirstCharacterUntilReturn()
{
    QFETCH(QString, name);
    show(name);
    QVERIFY2(!waits(name), "What the sounder told waits for nothing");
    typeOnly(name, "5");
    QVERIFY2(waits(name), "A typed value looks as if it had been sent");
    QVERIFY2(!bench->hasPendingChange(), "It is sent before Return");
    QTest::keyClick(bench->find<QLineEdit>(name), Qt::Key_Return);
    QVERIFY(!waits(name));
    QCOMPARE(bench->takeCommands().size(), 1);
}

void UnsentValueTest::whatElseEndsTheWaiting_data()
{
    QTest::addColumn<QString>("end");
    QTest::newRow("a step") << "step";
    QTest::newRow("a step at the limit, which changes nothing") << "limit";
    QTest::newRow("a reading from the device") << "reading";
    QTest::newRow("a reading of just what was typed") << "same";
    QTest::newRow("a change of units") << "units";
}

void UnsentValueTest::whatElseEndsTheWaiting()
{
    QFETCH(QString, end);
    typeOnly("highDraft", end == "limit" ? "100.00" : end == "same" ? "0.40" : "0.45");
    QVERIFY(waits("highDraft"));
    if (end == "step" || end == "limit") {
        bench->click("highDraftUp");
        QCOMPARE(bench->text("highDraft"), QString(end == "limit" ? "100.00" : "0.55"));
    } else if (end == "units") {
        bench->click("connectToDevice");
        bench->click("imperialRadio");
    } else {
        bench->click("connectToDevice");
        bench->reconnect();
        QCOMPARE(bench->text("highDraft"), QString("0.40"));
    }
    QVERIFY(!waits("highDraft"));
}

void UnsentValueTest::leavingTheFieldChangesNothing()
{
    typeOnly("highDraft", "0.45");
    QTest::keyClick(bench->find<QLineEdit>("highDraft"), Qt::Key_Tab);
    QVERIFY(!bench->find<QLineEdit>("highDraft")->hasFocus());
    QVERIFY(waits("highDraft"));
    QCOMPARE(bench->text("highDraft"), QString("0.45"));
    bench->click("highDraftUp"); // steps what was typed
    QCOMPARE(bench->text("highDraft"), QString("0.55"));
}

void UnsentValueTest::theMarkIsSeenAndMovesNothing()
{
    auto *const edit = bench->find<QLineEdit>("highDraft");
    const QRect place = edit->geometry();
    const QSize wanted = edit->sizeHint();
    typeOnly("highDraft", "0.45");
    QTRY_COMPARE(edit->geometry(), place);
    const QColor border = edit->grab().toImage().pixelColor(edit->width() / 2, 0);
    QVERIFY2(border.red() > 180 && border.green() < 180 && border.blue() < 80,
             qPrintable("The border is " + border.name()));
    QVERIFY2(qAbs(edit->sizeHint().height() - wanted.height()) <= 6, "The edit grows");
}

void UnsentValueTest::aCommaBecomesAPoint_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("shown");
    QTest::addColumn<QByteArray>("command");
    QTest::newRow("0,45") << "0,45"
                          << "0.45" << QByteArray("*o00450H");
    QTest::newRow("1,2") << "1,2"
                         << "1.2" << QByteArray("*o01200H");
    QTest::newRow(",5") << ",5"
                        << ".5" << QByteArray("*o00500H");
    QTest::newRow("0.3") << "0.3"
                         << "0.3" << QByteArray("*o00300H");
    QTest::newRow("1,2,3 is no number") << "1,2,3"
                                        << "1.2.3" << QByteArray("*o00000H");
}

void UnsentValueTest::aCommaBecomesAPoint()
{
    QFETCH(QString, typed);
    QFETCH(QByteArray, command);
    typeOnly("highDraft", typed);
    QTEST(bench->text("highDraft"), "shown");
    QVERIFY(waits("highDraft"));
    QTest::keyClick(bench->find<QLineEdit>("highDraft"), Qt::Key_Return);
    QCOMPARE(bench->takeCommands(), QByteArrayList{command});
}

void UnsentValueTest::aPastedCommaBecomesAPoint()
{
    QApplication::clipboard()->setText("1,75");
    auto *const edit = bench->find<QLineEdit>("highDraft");
    edit->setFocus();
    edit->selectAll();
    edit->paste();
    QCOMPARE(edit->text(), QString("1.75"));
    QVERIFY(waits("highDraft"));
}

void UnsentValueTest::theCursorStaysBehindThePoint()
{
    auto *const edit = bench->find<QLineEdit>("highDraft");
    typeOnly("highDraft", "45");
    QTest::keyClick(edit, Qt::Key_Home);
    QTest::keyClicks(edit, "0,");
    QCOMPARE(edit->cursorPosition(), 2);
    QTest::keyClicks(edit, "6");
    QCOMPARE(edit->text(), QString("0.645"));
}

void UnsentValueTest::textsOfTheProgramKeepTheirComma()
{
    auto *const edit = bench->find<QLineEdit>("pingEdit");
    edit->setText("5,3");
    QCOMPARE(edit->text(), QString("5,3"));
    QVERIFY(!waits("pingEdit"));
}

QTEST_MAIN(UnsentValueTest)

#include "tst_unsentvalue.moc"
