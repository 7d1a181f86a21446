// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "version.h"

#include <QRegularExpression>
#include <QtTest>

class VersionTest : public QObject
{
    Q_OBJECT

private slots:
    void itIsThreeNumbers();
};

void VersionTest::itIsThreeNumbers()
{
    const QRegularExpression form("^\\d+\\.\\d+\\.\\d+$");
    QVERIFY2(form.match(TalVero::version).hasMatch(), TalVero::version);
}

QTEST_MAIN(VersionTest)
#include "tst_version.moc"
