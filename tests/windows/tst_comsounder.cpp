// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

// tal-vero-sounder.exe at a COM port, and the program's layer at the other end of a null-modem
// pair.

#include "hostsounder.h"
#include "portclosing.h"
#include "serialportlayer.h"

#include <QProcess>
#include <QtTest>

#include <memory>

namespace {

constexpr int ourPort = 8;
constexpr int sounderPort = 9;

QString terminalFor(int portNumber) { return "pty,raw,echo=0,link=" + comPortLine(portNumber); }

} // namespace

class ComSounderTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void servesThePort();
    void takesCommandsAndRefusesWrongOnes();
    void tellsAPortThatIsNotThere();

private:
    std::unique_ptr<HostProgram> cable;
    std::unique_ptr<QProcess> sounder;
    std::unique_ptr<SerialPortLayer> layer;
};

void ComSounderTest::init()
{
    cable = std::make_unique<HostProgram>(
        "/usr/bin/socat", QStringList{"-d", "-d", terminalFor(ourPort), terminalFor(sounderPort)});
    QVERIFY2(cable->saidSomething(), "the machine's socat does not start");
    sounder = std::make_unique<QProcess>();
    sounder->start(QStringLiteral(SOUNDER_PROGRAM),
                   {"--port", comPort(sounderPort), "--no-soundings"});
    QTRY_VERIFY2_WITH_TIMEOUT(sounder->canReadLine(), sounder->readAllStandardError(), 10000);
    QCOMPARE(sounder->readLine().trimmed(), comPort(sounderPort).toLatin1());
    layer = std::make_unique<SerialPortLayer>();
    layer->portName = comPort(ourPort);
    layer->baudRate = QStringLiteral("9600");
    QVERIFY2(layer->openPort(), qPrintable(layer->openTrouble()));
}

void ComSounderTest::cleanup()
{
    sounder->kill();
    sounder->waitForFinished();
    {
        const PortClosing closing;
        layer.reset();
    }
    cable.reset();
}

void ComSounderTest::servesThePort()
{
    QTRY_COMPARE(layer->receivedLines, QStringList{"TalVero New Dual 2.14.7"});
}

void ComSounderTest::takesCommandsAndRefusesWrongOnes()
{
    QTRY_COMPARE(layer->receivedLines.size(), 1);
    layer->sendCommand("*i05");
    QTRY_COMPARE(layer->receivedLines.mid(1), QStringList{"OK"});
    layer->sendCommand("*i99");
    QTRY_COMPARE(layer->receivedLines.mid(2), QStringList{"ERR"});
}

void ComSounderTest::tellsAPortThatIsNotThere()
{
    QProcess lost;
    lost.start(QStringLiteral(SOUNDER_PROGRAM), {"--port", comPort(vanishedPort)});
    QVERIFY(lost.waitForFinished(10000));
    QCOMPARE(lost.exitCode(), 1);
    const QByteArray said = lost.readAllStandardError();
    QVERIFY2(said.startsWith("tal-vero-sounder: cannot open COM55: "), said);
}

QTEST_GUILESS_MAIN(ComSounderTest)

#include "tst_comsounder.moc"
