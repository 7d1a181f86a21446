// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "commandencoding.h"

#include <QtTest>

#include <limits>

/// The encodings beyond what the settings' ranges let through; within the ranges the wire texts
/// themselves are tested.
class CommandEncodingTest : public QObject
{
    Q_OBJECT

private slots:
    void fractionsAreDroppedTowardZero_data();
    void fractionsAreDroppedTowardZero();
    void velocityWrapsAround_data();
    void velocityWrapsAround();
    void gainOutsideItsRange_data();
    void gainOutsideItsRange();
    void unknownWordsHaveANumber();
    void templatesAreFilled_data();
    void templatesAreFilled();
};

namespace {

constexpr qint32 least = std::numeric_limits<qint32>::min();
constexpr qint32 most = std::numeric_limits<qint32>::max();

} // namespace

void CommandEncodingTest::fractionsAreDroppedTowardZero_data()
{
    QTest::addColumn<float>("number");
    QTest::addColumn<qint32>("whole");
    QTest::addColumn<qint32>("thousandths");

    QTest::newRow("0.9999") << 0.9999F << 0 << 999;
    QTest::newRow("-0.9999") << -0.9999F << 0 << -999;
    QTest::newRow("200.9") << 200.9F << 200 << 200900;
    QTest::newRow("-42.4") << -42.4F << -42 << -42400;
    QTest::newRow("a million") << 1e6F << 1000000 << 1000000000;
    QTest::newRow("thousandths beyond 32 bits") << 1e7F << 10000000 << most;
    QTest::newRow("beyond 32 bits") << 1e10F << most << most;
    QTest::newRow("2 to the 31st") << 2147483648.0F << most << most;
    QTest::newRow("minus 2 to the 31st") << -2147483648.0F << least << least;
    QTest::newRow("beyond 32 bits, negative") << -1e10F << least << least;
    QTest::newRow("infinite") << std::numeric_limits<float>::infinity() << most << most;
    QTest::newRow("not a number") << std::numeric_limits<float>::quiet_NaN() << least << least;
}

void CommandEncodingTest::fractionsAreDroppedTowardZero()
{
    QFETCH(float, number);
    QTEST(CommandEncoding::whole(number), "whole");
    QTEST(CommandEncoding::thousandths(number), "thousandths");
}

void CommandEncodingTest::velocityWrapsAround_data()
{
    QTest::addColumn<float>("velocity");
    QTest::addColumn<qint32>("number");

    QTest::newRow("1500") << 1500.0F << 500000;
    QTest::newRow("0") << 0.0F << -1000000;
    QTest::newRow("1000") << 1000.0F << 0;
    QTest::newRow("-1500") << -1500.0F << -2500000;
    QTest::newRow("far beyond 32 bits") << 1e10F << 2146483648;
    QTest::newRow("far beyond 32 bits, negative") << -1e10F << 2146483649;
}

void CommandEncodingTest::velocityWrapsAround()
{
    QFETCH(float, velocity);
    QTEST(CommandEncoding::velocity(velocity), "number");
}

void CommandEncodingTest::gainOutsideItsRange_data()
{
    QTest::addColumn<float>("percent");
    QTest::addColumn<qint32>("gain");

    QTest::newRow("0") << 0.0F << -42;
    QTest::newRow("29") << 29.0F << 0;
    QTest::newRow("30") << 30.0F << 0;
    QTest::newRow("30.36, just past half a step") << 30.36F << 1;
    QTest::newRow("170") << 170.0F << 200;
    QTest::newRow("beyond 32 bits") << 1e12F << most;
}

void CommandEncodingTest::gainOutsideItsRange()
{
    QFETCH(float, percent);
    QTEST(CommandEncoding::gain(percent), "gain");
}

void CommandEncodingTest::unknownWordsHaveANumber()
{
    using namespace CommandEncoding;
    QCOMPARE(sounderModeLetter("manual"), 97.0F);
    QCOMPARE(tvgLetter("Log 30"), 78.0F);
    QCOMPARE(formatNumber("odom"), 1.0F);
    QCOMPARE(formatNumber(""), 1.0F);
    QCOMPARE(baudCode("14400", {"4800", "9600", "19200", "38400"}), 0.0F);
    QCOMPARE(baudCode("38400", {"4800", "9600", "19200", "38400"}), 1.0F);
    QCOMPARE(modeNumber("active"), 0.0F);
}

void CommandEncodingTest::templatesAreFilled_data()
{
    QTest::addColumn<QByteArray>("commandFormat");
    QTest::addColumn<qint32>("number");
    QTest::addColumn<QString>("command");

    QTest::newRow("padded") << QByteArray("*v%04d") << 7 << "*v0007";
    QTest::newRow("exactly as wide") << QByteArray("*v%04d") << 1234 << "*v1234";
    QTest::newRow("longer is not cut") << QByteArray("*v%04d") << 500000 << "*v500000";
    QTest::newRow("negative") << QByteArray("*g%03d") << -42 << "*g-42";
    QTest::newRow("least") << QByteArray("*i%02d") << least << "*i-2147483648";
    QTest::newRow("a character") << QByteArray("*c%c") << 109 << "*cm";
    QTest::newRow("no number in it") << QByteArray("*b1") << 5 << "*b1";
    QTest::newRow("empty") << QByteArray("") << 5 << "";
}

void CommandEncodingTest::templatesAreFilled()
{
    QFETCH(QByteArray, commandFormat);
    QFETCH(qint32, number);
    QTEST(CommandEncoding::fill(commandFormat, number), "command");
}

QTEST_MAIN(CommandEncodingTest)
#include "tst_commandencoding.moc"
