// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

// The serial layer on a COM port of Windows, with the simulated sounder at its other end.

#include "hostsounder.h"
#include "logcapture.h"
#include "portclosing.h"
#include "processortime.h"
#include "serialportlayer.h"

#include <QSignalSpy>
#include <QTimer>
#include <QtTest>

#include <memory>

namespace {

constexpr int portNumber = 5;

const QByteArray wakeUp("*nasdfd\r\n");

} // namespace

class ComLayerTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void opensAndWritesAtTheRateThatIsSet_data();
    void opensAndWritesAtTheRateThatIsSet();
    void atAnotherRateTheSounderUnderstandsNothing();
    void answersArriveInLines();
    void commandsArriveByteForByte();
    void aHeldPortDoesNotOpen();
    void aVanishedPortDoesNotOpen();
    void aPulledCableIsNoticedOnceAndCostsNothing();
    void opensAgainAfterThePulledCable();
    void closesWhileACommandIsOnItsWay();

private:
    void open(int rate = 9600);

    std::unique_ptr<SerialPortLayer> layer;
};

void ComLayerTest::init()
{
    layer = std::make_unique<SerialPortLayer>();
    layer->portName = comPort(portNumber);
    layer->baudRate = QStringLiteral("9600");
}

void ComLayerTest::cleanup()
{
    const PortClosing closing;
    layer.reset();
}

void ComLayerTest::open(int rate)
{
    layer->baudRate = QString::number(rate);
    QVERIFY2(layer->openPort(), qPrintable(layer->openTrouble()));
}

void ComLayerTest::opensAndWritesAtTheRateThatIsSet_data()
{
    QTest::addColumn<int>("rate");
    for (const int rate : {4800, 9600, 19200, 38400, 57600, 115200}) {
        QTest::addRow("%d", rate) << rate;
    }
}

/// The sounder answers, so that it has heard; whether the answer is read is another question.
void ComLayerTest::opensAndWritesAtTheRateThatIsSet()
{
    QFETCH(int, rate);
    const HostSounder sounder(portNumber, rate);
    open(rate);
    QTRY_COMPARE(sounder.heard(), wakeUp);
    QTRY_VERIFY(sounder.said().startsWith("TalVero New Dual"));
}

void ComLayerTest::atAnotherRateTheSounderUnderstandsNothing()
{
    const HostSounder sounder(portNumber, 9600);
    open(19200);
    QTRY_COMPARE(sounder.heard(), wakeUp);
    layer->closePort();
    open(9600);
    QTRY_VERIFY(sounder.said().startsWith("TalVero New Dual"));
    QCOMPARE(sounder.said().count("TalVero"), 1);
}

void ComLayerTest::answersArriveInLines()
{
    const HostSounder sounder(portNumber);
    open();
    QTRY_COMPARE(layer->receivedLines, QStringList{"TalVero New Dual 2.14.7"});
    layer->receivedLines.clear();
    layer->sendCommand("*i05");
    QTRY_COMPARE(layer->receivedLines, QStringList{"OK"});
    layer->sendCommand("*i99");
    QTRY_COMPARE(layer->receivedLines, (QStringList{"OK", "ERR"}));
}

void ComLayerTest::commandsArriveByteForByte()
{
    const HostSounder sounder(portNumber);
    open();
    for (const char *command : {"*i5", "*o00500H", "*v500000", "*F345678"}) {
        layer->sendCommand(command);
    }
    QTRY_COMPARE(sounder.heard(), wakeUp + "*i501234*o00500H*v500000*F345678");
}

void ComLayerTest::aHeldPortDoesNotOpen()
{
    auto otherProgram = std::make_unique<HeldPort>(portNumber);
    const QSignalSpy failed(layer.get(), &SerialPortLayer::connectionFailed);
    QVERIFY(!layer->openPort());
    QCOMPARE(failed.count(), 1);
    QCOMPARE(layer->openTrouble(),
             QString("Another program is using this port. Close that program, then try again."));
    otherProgram.reset();
    const HostSounder sounder(portNumber);
    open();
}

void ComLayerTest::aVanishedPortDoesNotOpen()
{
    layer->portName = comPort(vanishedPort);
    QVERIFY(!layer->openPort());
    QCOMPARE(layer->openTrouble(), QString("The port is no longer there. Check the cable, then "
                                           "choose the port again."));
}

void ComLayerTest::aPulledCableIsNoticedOnceAndCostsNothing()
{
    HostSounder sounder(portNumber);
    open();
    QTRY_COMPARE(layer->receivedLines.size(), 1);
    const LogCapture log;
    QSignalSpy timeouts(layer.get(), &SerialPortLayer::gotTimeout);
    sounder.pull();
    QTRY_COMPARE(timeouts.count(), 1);
    const double before = processorSeconds();
    QVERIFY2(timeouts.wait(4000), "the failure is reported until the link is closed");
    const double spent = processorSeconds() - before;
    QVERIFY2(spent < 0.2, qPrintable(QString("%1 s in 2 s").arg(spent)));
    QCOMPARE(log.count("The serial port failed:"), 1);
}

void ComLayerTest::opensAgainAfterThePulledCable()
{
    HostSounder sounder(portNumber);
    open();
    QTRY_COMPARE(layer->receivedLines.size(), 1);
    QSignalSpy timeouts(layer.get(), &SerialPortLayer::gotTimeout);
    sounder.pull();
    QTRY_COMPARE(timeouts.count(), 1);
    layer->closePort();
    const HostSounder plugged(portNumber);
    open();
    QTRY_COMPARE(layer->receivedLines.size(), 2);
}

void ComLayerTest::closesWhileACommandIsOnItsWay()
{
    const HostSounder sounder(portNumber);
    open();
    layer->sendCommand("*GA");
    layer->closePort();
    open();
    QTRY_VERIFY(!layer->receivedLines.isEmpty());
}

QTEST_GUILESS_MAIN(ComLayerTest)

#include "tst_comlayer.moc"
