// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

// A sounder at a serial port. The port is a terminal's; the test holds the cable's other end.

#include "rawpty.h"
#include "serialsounder.h"

#include <QSignalSpy>
#include <QtTest>

#include <termios.h>

namespace {

const QByteArray banner = QByteArrayLiteral("TalVero New Dual 2.14.7\r\n");

SounderOptions quiet(int rate = 0)
{
    SounderOptions options;
    options.soundings = false;
    options.rate = rate;
    return options;
}

speed_t rateOf(const RawPty &pty)
{
    termios settings{};
    return tcgetattr(pty.masterDescriptor(), &settings) == 0 ? cfgetospeed(&settings) : B0;
}

} // namespace

class TestSerialSounder : public QObject
{
    Q_OBJECT

private slots:
    void answersAtItsPort();
    void thePortRunsAtItsRate();
    void thePortFollowsANewRateAfterTheAnswer();
    void sendsSoundings();
    void noSuchPort();
    void hangUpClosesThePort();
    void aPulledCableEndsItOnce();
};

void TestSerialSounder::answersAtItsPort()
{
    RawPty cable;
    SerialSounder sounder(cable.slavePath(), quiet());
    QVERIFY2(sounder.isOpen(), qPrintable(sounder.errorText()));
    QCOMPARE(cable.write("*n1234567*n1234567"), 18);
    QTRY_COMPARE(cable.received(), banner + banner);
}

void TestSerialSounder::thePortRunsAtItsRate()
{
    const RawPty cable;
    const SerialSounder sounder(cable.slavePath(), quiet(57600));
    QCOMPARE(rateOf(cable), speed_t(B57600));
}

void TestSerialSounder::thePortFollowsANewRateAfterTheAnswer()
{
    RawPty cable;
    const SerialSounder sounder(cable.slavePath(), quiet());
    cable.write("*I333....");
    QTRY_COMPARE(rateOf(cable), speed_t(B115200));
    QCOMPARE(cable.received(), QByteArray("OK\r\n"));
    cable.write("*n123456");
    QTRY_COMPARE(cable.received(), "OK\r\n" + banner);
}

void TestSerialSounder::sendsSoundings()
{
    RawPty cable;
    SounderOptions options;
    options.format = 1;
    const SerialSounder sounder(cable.slavePath(), options);
    QTRY_VERIFY(cable.received().count("\r\n") >= 2);
    QVERIFY2(cable.received().startsWith(" et B "), cable.received().constData());
}

void TestSerialSounder::noSuchPort()
{
    const SerialSounder sounder(QStringLiteral("/dev/no-such-port"), quiet());
    QVERIFY(!sounder.isOpen());
    QVERIFY(!sounder.errorText().isEmpty());
}

void TestSerialSounder::hangUpClosesThePort()
{
    const RawPty cable;
    SerialSounder sounder(cable.slavePath(), quiet());
    QSignalSpy hungUp(&sounder, &SounderLine::hungUp);
    sounder.hangUp();
    sounder.hangUp();
    QVERIFY(!sounder.isOpen());
    QCOMPARE(hungUp.size(), 1);
}

void TestSerialSounder::aPulledCableEndsItOnce()
{
    RawPty cable;
    SerialSounder sounder(cable.slavePath(), quiet());
    QSignalSpy hungUp(&sounder, &SounderLine::hungUp);
    cable.hangUp();
    QTRY_VERIFY2(!sounder.isOpen(), "the sounder does not see that its cable was pulled");
    QTRY_COMPARE(hungUp.size(), 1);
    QVERIFY(!sounder.errorText().isEmpty());
}

QTEST_GUILESS_MAIN(TestSerialSounder)
#include "tst_serialsounder.moc"
