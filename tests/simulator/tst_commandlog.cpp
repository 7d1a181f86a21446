// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "commandlog.h"

#include <QtTest>

class TestCommandLog : public QObject
{
    Q_OBJECT

private slots:
    void keepsTheNewestCommands();
    void keepsTheNewestBytes();
    void countsByKind();
    void clearForgetsEverything();
};

void TestCommandLog::keepsTheNewestCommands()
{
    CommandLog log;
    for (int i = 0; i <= 10000; ++i) {
        log.addCommand("*n" + QByteArray::number(i).rightJustified(6, '0'));
    }
    QCOMPARE(log.commands().size(), 10000);
    QCOMPARE(log.commands().first(), QByteArray("*n000001"));
    QCOMPARE(log.commands().last(), QByteArray("*n010000"));
}

void TestCommandLog::keepsTheNewestBytes()
{
    CommandLog log;
    log.addRaw("first");
    log.addRaw(QByteArray(999998, '.') + "ab");
    QCOMPARE(log.raw().size(), 1000000);
    QVERIFY(!log.raw().startsWith('f'));
    QVERIFY(log.raw().endsWith(".ab"));
}

void TestCommandLog::countsByKind()
{
    CommandLog log;
    log.count(QStringLiteral("set"));
    log.count(QStringLiteral("set"));
    log.count(QStringLiteral("noise"), 3);
    log.count(QStringLiteral("save"), 0);
    QCOMPARE(log.counts(), (QMap<QString, int>{{"set", 2}, {"noise", 3}}));
}

void TestCommandLog::clearForgetsEverything()
{
    CommandLog log;
    log.addRaw("*n123456");
    log.addCommand("*n123456");
    log.count(QStringLiteral("identity"));
    log.clear();
    QVERIFY(log.raw().isEmpty() && log.commands().isEmpty() && log.counts().isEmpty());
}

QTEST_GUILESS_MAIN(TestCommandLog)
#include "tst_commandlog.moc"
