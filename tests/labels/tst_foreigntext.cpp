// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "foreigntext.h"

#include <QtTest>

class ForeignTextTest : public QObject
{
    Q_OBJECT

private slots:
    void aTextIsShownOnOneLine_data();
    void aTextIsShownOnOneLine();
    void aLongTextIsCut_data();
    void aLongTextIsCut();
};

void ForeignTextTest::aTextIsShownOnOneLine_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("shown");
    const auto same = [](const char *text) {
        QTest::newRow(text) << QString::fromLatin1(text) << QString::fromLatin1(text);
    };
    same("");
    same("16");
    same("08");
    same(" 16 ");
    same("<b>16</b>");
    same("&amp;");
    same("1\t6");
    same("\xB0\xC6\xFF");
    QTest::newRow("line feed") << "1\n6"
                               << "1 6";
    QTest::newRow("vertical tab") << "1\v6"
                                  << "1 6";
    QTest::newRow("form feed") << "1\f6"
                               << "1 6";
    QTest::newRow("carriage return") << "1\r6"
                                     << "1 6";
    QTest::newRow("next line") << QString('1') + QChar(0x85) + '6' << "1 6";
    QTest::newRow("line separator") << QString('1') + QChar(0x2028) + '6' << "1 6";
    QTest::newRow("paragraph separator") << QString('1') + QChar(0x2029) + '6' << "1 6";
}

void ForeignTextTest::aTextIsShownOnOneLine()
{
    QFETCH(QString, text);
    QTEST(ForeignText::shown(text), "shown");
}

void ForeignTextTest::aLongTextIsCut_data()
{
    QTest::addColumn<int>("length");
    QTest::addColumn<QString>("shown");
    QTest::newRow("one less than the longest") << 79 << QString(79, 'x');
    QTest::newRow("the longest") << 80 << QString(80, 'x');
    QTest::newRow("one more") << 81 << QString(79, 'x') + QChar(0x2026);
    QTest::newRow("10000") << 10000 << QString(79, 'x') + QChar(0x2026);
}

void ForeignTextTest::aLongTextIsCut()
{
    QFETCH(int, length);
    QTEST(ForeignText::shown(QString(length, 'x')), "shown");
}

QTEST_MAIN(ForeignTextTest)
#include "tst_foreigntext.moc"
