// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

// The whole window on a COM port above COM9, with the simulated sounder at its other end.

#include "appearance.h"
#include "comwindow.h"
#include "logcapture.h"
#include "processortime.h"

#include <QMessageBox>
#include <QSerialPort>
#include <QTimer>

#include <memory>

namespace {

constexpr int portNumber = 12;

const QString lost = QStringLiteral("Lost Connection To Device");

/// What the link is doing when the window is closed.
enum class LinkState { Offline, Connecting, Searching, Connected, CommandInFlight, CablePulled };

} // namespace

Q_DECLARE_METATYPE(LinkState)

class ComWindowTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { giveProgramStyle(); }

    void portsAreListed();
    void connectsAtTheChosenRate();
    void findsTheRate_data();
    void findsTheRate();
    void changesArriveByteForByte();
    void soundingsArrive();
    void followsTheSounderToAnotherRate();
    void aHeldPortIsToldWithItsReason();
    void aPulledCableIsToldOnceAndCostsNothing();
    void connectsAgainAfterThePulledCable();
    void closingFreesThePort_data();
    void closingFreesThePort();

private:
    static bool bring(ComWindow &window, HostSounder &sounder, LinkState state);
};

void ComWindowTest::portsAreListed()
{
    ComWindow window(portNumber);
    auto *const list = window.find<QComboBox>("portComboBox");
    QVERIFY(list->findText("COM5") > 0);
    QVERIFY(list->findText("COM12") > 0);
}

void ComWindowTest::connectsAtTheChosenRate()
{
    const HostSounder sounder(portNumber);
    ComWindow window(portNumber);
    window.pressConnect();
    QVERIFY2(window.isConnectedSoon(), qPrintable(window.info()));
    QVERIFY(window.find<QWidget>("commonHolder")->isEnabled());
    QVERIFY2(sounder.heard().startsWith("*nasdfd\r\n*n1234567*n1234567"), sounder.heard());
}

void ComWindowTest::findsTheRate_data()
{
    QTest::addColumn<int>("rate");
    QTest::newRow("9600, the second tried") << 9600;
    QTest::newRow("38400, the fourth") << 38400;
}

void ComWindowTest::findsTheRate()
{
    QFETCH(int, rate);
    const HostSounder sounder(portNumber, rate);
    ComWindow window(portNumber);
    window.pressConnect("Auto");
    QVERIFY2(window.isConnectedSoon(), qPrintable(window.info()));
    QCOMPARE(window.find<QComboBox>("baudComboBox")->currentText(), QString::number(rate));
}

void ComWindowTest::changesArriveByteForByte()
{
    const HostSounder sounder(portNumber);
    ComWindow window(portNumber);
    window.pressConnect();
    QVERIFY(window.isConnectedSoon());
    window.click("highDraftUp");
    QTRY_COMPARE(window.info(), QString("Setting High Frequency Draft to 0.50 m ... Success"));
    QVERIFY2(sounder.heard().contains("*o00500H"), sounder.heard());
}

void ComWindowTest::soundingsArrive()
{
    const HostSounder sounder(portNumber, 9600, {});
    ComWindow window(portNumber);
    QSignalSpy depths(&window.window, &MainWindow::gotDepths);
    window.pressConnect();
    QTRY_VERIFY_WITH_TIMEOUT(depths.count() >= 20, 20000);
}

void ComWindowTest::followsTheSounderToAnotherRate()
{
    const HostSounder sounder(portNumber);
    ComWindow window(portNumber);
    window.pressConnect();
    QVERIFY(window.isConnectedSoon());
    window.choose("newBaudComboBox", "57600");
    QTRY_VERIFY2(window.info().contains("Baud Rate to 57600 ... Success"),
                 qPrintable(window.info()));
    QTRY_COMPARE(window.find<QComboBox>("baudComboBox")->currentText(), QString("57600"));
    window.click("connectToDevice");
    QVERIFY2(window.isConnectedSoon(), qPrintable(window.info()));
}

void ComWindowTest::aHeldPortIsToldWithItsReason()
{
    const HeldPort otherProgram(portNumber);
    ComWindow window(portNumber);
    QString reason;
    QTimer hand;
    connect(&hand, &QTimer::timeout, this, [&reason] {
        if (auto *const box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget())) {
            reason = box->informativeText();
            box->accept();
        }
    });
    hand.start(10);
    window.pressConnect();
    QCOMPARE(reason,
             QString("Another program is using this port. Close that program, then try again."));
}

void ComWindowTest::aPulledCableIsToldOnceAndCostsNothing()
{
    HostSounder sounder(portNumber);
    ComWindow window(portNumber);
    QVERIFY(bring(window, sounder, LinkState::Connected));
    const LogCapture log;
    sounder.pull();
    QTRY_COMPARE(window.info(), lost);
    QCOMPARE(window.find<QAbstractButton>("connectToDevice")->text(), QString("Connect   "));
    const double before = processorSeconds();
    QElapsedTimer time;
    time.start();
    QTRY_VERIFY_WITH_TIMEOUT(time.hasExpired(2500), 5000); // longer than an answer may take
    const double spent = processorSeconds() - before;
    QVERIFY2(spent < 0.5, qPrintable(QString("%1 s in 2.5 s").arg(spent)));
    QCOMPARE(window.info(), lost);
    QCOMPARE(log.count("The serial port failed:"), 1);
}

void ComWindowTest::connectsAgainAfterThePulledCable()
{
    HostSounder sounder(portNumber);
    ComWindow window(portNumber);
    QVERIFY(bring(window, sounder, LinkState::CablePulled));
    const HostSounder plugged(portNumber);
    window.find<QLabel>("temperatureLabel")->clear();
    window.pressConnect();
    QVERIFY2(window.isConnectedSoon(), qPrintable(window.info()));
}

bool ComWindowTest::bring(ComWindow &window, HostSounder &sounder, LinkState state)
{
    switch (state) {
    case LinkState::Offline:
        return true;
    case LinkState::Connecting:
        window.pressConnect("19200"); // not the sounder's rate
        return window.info() == "Connecting to Device";
    case LinkState::Searching:
        window.pressConnect("Auto");
        return window.info() == "Trying 4800 baud";
    case LinkState::Connected:
        window.window.findChild<QTimer *>("resizeTimer")->stop(); // the window opened long ago
        window.pressConnect();
        return window.isConnectedSoon();
    case LinkState::CommandInFlight:
        if (!bring(window, sounder, LinkState::Connected)) {
            return false;
        }
        window.click("pingUp");
        return QTest::qWaitFor([&] { return window.info().startsWith("Setting Pings"); });
    case LinkState::CablePulled:
        if (!bring(window, sounder, LinkState::Connected)) {
            return false;
        }
        sounder.pull();
        return QTest::qWaitFor([&] { return window.info() == lost; });
    }
    return false;
}

void ComWindowTest::closingFreesThePort_data()
{
    QTest::addColumn<LinkState>("state");
    QTest::newRow("offline") << LinkState::Offline;
    QTest::newRow("connecting") << LinkState::Connecting;
    QTest::newRow("searching") << LinkState::Searching;
    QTest::newRow("connected") << LinkState::Connected;
    QTest::newRow("command in flight") << LinkState::CommandInFlight;
    QTest::newRow("cable pulled") << LinkState::CablePulled;
}

void ComWindowTest::closingFreesThePort()
{
    QFETCH(LinkState, state);
    auto sounder = std::make_unique<HostSounder>(portNumber);
    auto window = std::make_unique<ComWindow>(portNumber);
    QVERIFY2(bring(*window, *sounder, state), qPrintable(window->info()));
    QVERIFY(window->window.close());
    window.reset();
    if (state == LinkState::CablePulled) {
        sounder = std::make_unique<HostSounder>(portNumber);
    }
    const PortClosing closing;
    QSerialPort next(comPort(portNumber));
    QVERIFY2(next.open(QIODevice::ReadWrite), qPrintable(next.errorString()));
}

QTEST_MAIN(ComWindowTest)

#include "tst_comwindow.moc"
