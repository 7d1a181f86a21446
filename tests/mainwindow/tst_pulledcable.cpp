// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

// The cable is pulled, or the operator disconnects: what is shown at the end of a link.

#include "linkwatch.h"
#include "logcapture.h"
#include "processortime.h"
#include "rawbench.h"

#include <QComboBox>
#include <QtTest>

#include <cerrno>
#include <memory>

using namespace LinkWatch;

namespace {

const QString portFailed = QStringLiteral("The serial port failed:");
const QString pingTimedOut = QStringLiteral("Setting Pings Per Second to 6 ... Command Timed Out");

/// What the link is doing when it ends.
enum class LinkState { Connected, CommandInFlight, Connecting, Searching };

bool bring(RawBench &bench, LinkState state)
{
    switch (state) {
    case LinkState::Connecting:
        bench.pressConnectRaw();
        return bench.info() == connectingInfo;
    case LinkState::Searching:
        bench.pressConnectRaw("Auto");
        return bench.info() == "Trying 4800 baud";
    case LinkState::Connected:
        bench.timer("resizeTimer")->stop(); // the window opened long ago
        return bench.connectByBanner();
    case LinkState::CommandInFlight:
        break;
    }
    if (!bring(bench, LinkState::Connected)) {
        return false;
    }
    bench.click("pingUp");
    return bench.hears("*i06....");
}

} // namespace

Q_DECLARE_METATYPE(LinkState)

class TestPulledCable : public QObject
{
    Q_OBJECT

private slots:
    void isReportedOnceAndCostsNothing_data();
    void isReportedOnceAndCostsNothing();
    void isNotReportedAgain();
    void isReportedAfterAResizeToo();
    void isNoMatterWhileNotConnected();
    void connectsAgainAfterPluggingIn();
    void ownDisconnectLeavesTheInfoLineEmpty();
};

void TestPulledCable::isReportedOnceAndCostsNothing_data()
{
    QTest::addColumn<LinkState>("state");
    QTest::addColumn<int>("errorLeftBehind");
    QTest::addColumn<QString>("logged");
    QTest::addColumn<QStringList>("shown");
    constexpr int none = 0; // gives the error that is raised without end
    const QString readError = QStringLiteral("QSerialPort::ReadError");
    const QString resourceError = QStringLiteral("QSerialPort::ResourceError");
    const QStringList lost{lostInfo};
    const QStringList notConnected{notConnectedInfo};
    const QStringList commandFirst{pingTimedOut, lostInfo};
    QTest::newRow("connected, error without end")
        << LinkState::Connected << none << readError << lost;
    QTest::newRow("connected, error raised once")
        << LinkState::Connected << EAGAIN << resourceError << lost;
    QTest::newRow("command in flight")
        << LinkState::CommandInFlight << none << readError << commandFirst;
    QTest::newRow("connecting") << LinkState::Connecting << none << readError << notConnected;
    QTest::newRow("searching") << LinkState::Searching << none << readError << notConnected;
}

void TestPulledCable::isReportedOnceAndCostsNothing()
{
    QFETCH(LinkState, state);
    QFETCH(int, errorLeftBehind);
    QFETCH(QString, logged);
    QFETCH(QStringList, shown);
    RawBench bench;
    bench.sounder.hangUp(); // its own reading leaves errors behind that end an endless one
    QVERIFY(bring(bench, state));
    const LogCapture log;
    InfoRecorder infos(bench);

    ProcessorTime::Stopwatch watch;
    bench.line.hangUp();
    errno = errorLeftBehind;
    QTest::qWait(1000); // the second that is measured
    const double spent = watch.lap();
    QVERIFY2(spent < 200, qPrintable(QStringLiteral("%1 ms of processor time").arg(spent)));
    QVERIFY2(!infos.texts().isEmpty(), "the operator is not told at once");
    QVERIFY2(infos.times().first() < 900, "the operator waits for an answer timer");

    QTRY_COMPARE_WITH_TIMEOUT(bench.info(), shown.last(), 5000);
    QCOMPARE(bench.infoColour(), QString("Red"));
    QTRY_COMPARE(infos.texts(), shown);
    QCOMPARE(bench.text("connectToDevice"), QString(connectText));
    QVERIFY(bench.isEnabled("portComboBox"));
    QVERIFY(!bench.isEnabled("commonHolder"));

    QCOMPARE(log.count(portFailed), 1);
    const QString report = log.texts().filter(portFailed).first();
    QVERIFY2(report.contains(logged), qPrintable(report));
    QCOMPARE(log.count("SERIAL TIMED OUT"), shown.size());
}

void TestPulledCable::isNotReportedAgain()
{
    RawBench bench;
    QVERIFY(bring(bench, LinkState::Connected));
    const LogCapture log;
    bench.line.hangUp();
    QTRY_COMPARE(bench.info(), QString(lostInfo));
    InfoRecorder infos(bench);
    QTest::qWait(2300); // longer than any answer timer
    QCOMPARE(infos.texts(), QStringList());
    QCOMPARE(log.count("SERIAL TIMED OUT"), 1);
}

void TestPulledCable::isReportedAfterAResizeToo()
{
    RawBench bench;
    QVERIFY(bring(bench, LinkState::Connected));
    const LogCapture log;
    bench.window.resize(bench.window.size() - QSize(20, 20));
    QVERIFY(bench.timer("resizeTimer")->isActive());
    bench.line.hangUp();
    QTRY_COMPARE_WITH_TIMEOUT(bench.info(), QString(lostInfo), 10000);
    QCOMPARE(log.count("Ignoring serial timeout because timer is active"), 1);
    QCOMPARE(log.count(portFailed), 1);
}

void TestPulledCable::isNoMatterWhileNotConnected()
{
    RawBench bench;
    bench.choose("portComboBox", bench.line.slavePath());
    const LogCapture log;
    bench.line.hangUp();
    QVERIFY(!QTest::qWaitFor([&] { return !bench.info().isEmpty(); }, 300));
    QCOMPARE(log.count(portFailed), 0);
    QCOMPARE(log.count("SERIAL TIMED OUT"), 0);
}

void TestPulledCable::connectsAgainAfterPluggingIn()
{
    RawPty again; // outlives the window, so that it is free when somebody else gets it
    RawBench bench;
    bench.timer("portScanTimer")->setInterval(5);
    QVERIFY(bring(bench, LinkState::CommandInFlight));
    bench.line.hangUp();
    QTRY_COMPARE_WITH_TIMEOUT(bench.info(), QString(lostInfo), 10000);
    bench.ports.removeAll(bench.line.slavePath());
    QTRY_COMPARE(bench.text("portComboBox"), QString("Select Port"));

    bench.ports.append(again.slavePath());
    QTRY_VERIFY(bench.find<QComboBox>("portComboBox")->findText(again.slavePath()) > 0);
    QCOMPARE(bench.text("portComboBox"), QString("Select Port"));
    bench.choose("portComboBox", again.slavePath());
    bench.click("connectToDevice");
    QTRY_COMPARE(again.received(), QByteArray("*nasdfd\r\n*n1234567*n1234567"));
    again.write("TalVero New Dual 2.14.7\r\n");
    QTRY_COMPARE(bench.info(), QString(connectedInfo));
    QVERIFY(bench.showsConnected());
    QTRY_VERIFY(again.received().endsWith("*Gasdfdsasdf*UUasdfdsa*UAbxxxxxx"));
    again.write("VSupply: 12.41\r\n");
    QTRY_VERIFY(bench.text("temperatureLabel").contains("12.41V"));
}

void TestPulledCable::ownDisconnectLeavesTheInfoLineEmpty()
{
    struct Ended
    {
        LinkState state;
        const char *name;
        std::unique_ptr<RawBench> bench = std::make_unique<RawBench>();
        std::unique_ptr<InfoRecorder> infos = nullptr;
    };
    Ended links[] = {{LinkState::Connected, "connected"},
                     {LinkState::CommandInFlight, "command in flight"},
                     {LinkState::Connecting, "connecting"},
                     {LinkState::Searching, "searching"}};
    for (Ended &link : links) {
        QVERIFY2(bring(*link.bench, link.state), link.name);
        link.bench->click("connectToDevice");
        QVERIFY2(link.bench->info().isEmpty(), link.name);
        link.infos = std::make_unique<InfoRecorder>(*link.bench);
    }
    QTest::qWait(3000); // longer than any answer timer
    for (const Ended &link : links) {
        const QString seen = QStringLiteral("%1: the operator sees %2")
                                 .arg(link.name, link.infos->texts().join(", then "));
        QVERIFY2(link.infos->texts().isEmpty(), qPrintable(seen));
        QVERIFY2(isIdle(*link.bench, link.bench->line.slavePath()), link.name);
    }
}

QTEST_MAIN(TestPulledCable)

#include "tst_pulledcable.moc"
