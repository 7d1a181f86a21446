// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

// A sounder that falls silent, and a cable that is pulled.

#include "processortime.h"
#include "seriallink.h"

#include <QtTest>

#include <cerrno>
#include <functional>
#include <memory>

namespace {

/// Runs an action when a log line with this text is written, that is, in the midst of the code
/// that logs.
class WhenLogged
{
public:
    WhenLogged(const QString &text, std::function<void()> action)
    {
        trigger = text;
        reaction = std::move(action);
        previous = qInstallMessageHandler(handle);
    }

    ~WhenLogged() { qInstallMessageHandler(previous); }

    WhenLogged(const WhenLogged &) = delete;
    WhenLogged &operator=(const WhenLogged &) = delete;

private:
    static void handle(QtMsgType, const QMessageLogContext &, const QString &message)
    {
        if (message.contains(trigger)) {
            reaction();
        }
    }

    inline static QString trigger;
    inline static std::function<void()> reaction;
    QtMessageHandler previous;
};

const QString portFailed = QStringLiteral("The serial port failed:");
const QString timedOut = QStringLiteral("Timed out am in serialportlayer");

} // namespace

class TestSerialPortFailure : public QObject
{
    Q_OBJECT

private slots:
    void noAnswerAfterTwoSeconds();
    void timeoutIsLogged();
    void timeoutThrowsThePartialTextAway();
    void silenceSendsTheKeepAlive();
    void silenceCheckGoesOn();
    void unansweredKeepAliveIsALostDevice();
    void onlyReceivedDataClearsAPendingKeepAlive();

    void pulledCableIsReportedAtOnce_data();
    void pulledCableIsReportedAtOnce();
    void pulledCableIsReportedUntilTheLinkIsClosed();
    void pulledCableCostsNoProcessorTime();
    void pulledCableThrowsThePartialTextAway();
    void commandsAfterThePulledCableLeaveNoTrace();
    void linkOpensAgainAfterThePulledCable();
    void searchMayGoOnFromTheReport();
    void linkReopenedBeforeTheFailedPortIsDroppedStaysOpen();
    void secondPulledCableIsReportedLikeTheFirst();
    void layerMayGoRightAfterTheFailure();
};

void TestSerialPortFailure::noAnswerAfterTwoSeconds()
{
    SerialLink link;
    link.open();
    QElapsedTimer time;
    link.layer.sendCommand(QStringLiteral("*F345678"));
    time.start();
    QVERIFY(link.timeouts.wait(4000));
    QVERIFY2(time.elapsed() >= 1800, qPrintable(QString::number(time.elapsed())));
    QCOMPARE(link.timeouts.count(), 1);
    QCOMPARE(link.lost.count(), 0);
    QVERIFY2(link.silenceTimer()->isActive(), "a silent link stays open");
}

void TestSerialPortFailure::timeoutIsLogged()
{
    SerialLink link;
    link.open();
    link.answerTimer()->setInterval(20);
    link.layer.sendCommand(QStringLiteral("*F345678"));
    QVERIFY(link.timeouts.wait());
    QCOMPARE(link.log.texts(), (QStringList{"Sending  \"*F345678\"", timedOut}));
    QVERIFY2(link.log.contains("SerialPortLayer::timeout"), qPrintable(link.log.lines().last()));
}

void TestSerialPortFailure::timeoutThrowsThePartialTextAway()
{
    SerialLink link;
    link.open();
    link.arrive("half a li");
    QTRY_VERIFY(!link.answerTimer()->isActive());
    link.answerTimer()->setInterval(20);
    link.layer.sendCommand(QStringLiteral("*F345678"));
    QVERIFY(link.timeouts.wait());
    link.arrive("OK\r\n");
    QTRY_COMPARE(link.layer.receivedLines, QStringList{"OK"});
}

void TestSerialPortFailure::silenceSendsTheKeepAlive()
{
    SerialLink link;
    link.open();
    link.silenceTimer()->setInterval(20);
    QTRY_VERIFY(link.pty.received().startsWith("*nasdfdsa"));
    QVERIFY2(link.answerTimer()->isActive(), "the keep-alive wants an answer");
}

void TestSerialPortFailure::silenceCheckGoesOn()
{
    SerialLink link;
    link.open();
    link.silenceTimer()->setInterval(20);
    QTRY_VERIFY(link.pty.received().startsWith("*nasdfdsa*nasdfdsa*nasdfdsa"));
}

void TestSerialPortFailure::unansweredKeepAliveIsALostDevice()
{
    SerialLink link;
    link.open();
    link.arrive("TalVero New Dual 2.14.7\r\n");
    QTRY_COMPARE(link.gotData.count(), 1);
    link.answerTimer()->setInterval(20);
    link.silenceTimer()->setInterval(100);
    QVERIFY(link.lost.wait());
    QCOMPARE(link.timeouts.count(), 1);
}

void TestSerialPortFailure::onlyReceivedDataClearsAPendingKeepAlive()
{
    SerialLink link;
    link.open();
    link.answerTimer()->setInterval(20);
    link.layer.checkConnection();
    QVERIFY(link.timeouts.wait());
    QCOMPARE(link.lost.count(), 1);

    link.layer.sendCommand(QStringLiteral("*F345678"));
    QVERIFY(link.timeouts.wait());
    QCOMPARE(link.lost.count(), 2);

    link.arrive("OK\r\n");
    QTRY_COMPARE(link.gotData.count(), 1);
    link.layer.sendCommand(QStringLiteral("*F345678"));
    QVERIFY(link.timeouts.wait());
    QCOMPARE(link.timeouts.count(), 3);
    QCOMPARE(link.lost.count(), 2);
}

void TestSerialPortFailure::pulledCableIsReportedAtOnce_data()
{
    QTest::addColumn<int>("errorLeftBehind");
    QTest::addColumn<QString>("logged");
    QTest::newRow("an error raised without end") << 0 << "QSerialPort::ReadError";
    QTest::newRow("an error raised once") << EAGAIN << "QSerialPort::ResourceError";
}

void TestSerialPortFailure::pulledCableIsReportedAtOnce()
{
    QFETCH(int, errorLeftBehind);
    QFETCH(QString, logged);
    SerialLink link;
    link.open();
    link.layer.setConnected();
    QElapsedTimer time;
    time.start();
    link.pty.hangUp();
    errno = errorLeftBehind;
    QVERIFY(link.timeouts.wait(1500));
    QVERIFY2(time.elapsed() < 1500, "the operator waits for the answer timer");
    QCOMPARE(link.timeouts.count(), 1);
    QCOMPARE(link.log.texts().size(), 2);
    QVERIFY2(link.log.texts().first().startsWith(portFailed), qPrintable(link.log.texts().first()));
    QVERIFY2(link.log.texts().first().contains(logged), qPrintable(link.log.texts().first()));
    QCOMPARE(link.log.texts().last(), timedOut);
    QVERIFY2(link.layer.isConnected(), "closing the link is up to the window");
}

void TestSerialPortFailure::pulledCableIsReportedUntilTheLinkIsClosed()
{
    SerialLink link;
    link.open();
    link.pty.hangUp();
    QVERIFY(link.timeouts.wait());
    QCOMPARE(link.timeouts.count(), 1);
    QVERIFY2(link.answerTimer()->isActive(), "the report is repeated");
    QVERIFY2(!link.silenceTimer()->isActive(), "there is nobody to probe");
    QVERIFY(link.answerTimer()->remainingTime() > 1500);

    link.answerTimer()->setInterval(20);
    QTRY_VERIFY(link.timeouts.count() >= 4);
    QCOMPARE(link.log.count(portFailed), 1);

    link.layer.closePort();
    const int reports = link.timeouts.count();
    QVERIFY2(!link.timeouts.wait(100), "reported after the link was closed");
    QCOMPARE(link.timeouts.count(), reports);
}

void TestSerialPortFailure::pulledCableCostsNoProcessorTime()
{
    SerialLink link;
    link.open();
    ProcessorTime::Stopwatch watch;
    link.pty.hangUp();
    QVERIFY(link.timeouts.wait());
    link.answerTimer()->setInterval(1000);
    QVERIFY(link.timeouts.wait());
    const double spent = watch.lap();
    QVERIFY2(spent < 200, qPrintable(QStringLiteral("%1 ms within 1 s").arg(spent)));
    QCOMPARE(link.log.count(portFailed), 1);
}

void TestSerialPortFailure::pulledCableThrowsThePartialTextAway()
{
    SerialLink link;
    link.open();
    link.arrive("half a li");
    QTRY_VERIFY(!link.answerTimer()->isActive());
    link.pty.hangUp();
    QVERIFY(link.timeouts.wait());
    link.layer.closePort();

    RawPty other;
    link.layer.portName = other.slavePath();
    QVERIFY(link.layer.openPort());
    other.write("OK\r\n");
    QTRY_COMPARE(link.layer.receivedLines, QStringList{"OK"});
}

void TestSerialPortFailure::commandsAfterThePulledCableLeaveNoTrace()
{
    SerialLink link;
    link.open();
    link.pty.hangUp();
    QVERIFY(link.timeouts.wait());
    const int remaining = link.answerTimer()->remainingTime();
    link.log.clear();
    link.layer.sendCommand(QStringLiteral("*UAbxxxxxx"));
    QVERIFY2(link.log.lines().isEmpty(), qPrintable(link.log.lines().join('\n')));
    QVERIFY2(link.answerTimer()->remainingTime() <= remaining, "a poll must not delay the report");
    QVERIFY(!link.silenceTimer()->isActive());
}

void TestSerialPortFailure::linkOpensAgainAfterThePulledCable()
{
    SerialLink link;
    link.open();
    link.pty.hangUp();
    QVERIFY(link.timeouts.wait());
    link.layer.closePort();
    link.layer.portName = QStringLiteral("/dev/no-such-port"); // the cable is still out
    QVERIFY(!link.layer.openPort());
    QCOMPARE(link.failed.count(), 1);

    RawPty other;
    link.layer.portName = other.slavePath();
    QVERIFY(link.layer.openPort());
    QTRY_COMPARE(other.received(), QByteArray("*nasdfd\r\n"));
    other.write("OK\r\n");
    QTRY_COMPARE(link.layer.receivedLines, QStringList{"OK"});
    QCOMPARE(link.timeouts.count(), 1);
}

void TestSerialPortFailure::searchMayGoOnFromTheReport()
{
    SerialLink link;
    link.open();
    RawPty other;
    connect(&link.layer, &SerialPortLayer::gotTimeout, this, [&] {
        link.layer.closePort();
        link.layer.portName = other.slavePath();
        QVERIFY(link.layer.openPort());
    });
    link.pty.hangUp();
    QTRY_COMPARE(other.received(), QByteArray("*nasdfd\r\n"));
    other.write("OK\r\n");
    QTRY_COMPARE(link.layer.receivedLines, QStringList{"OK"});
    QCOMPARE(link.timeouts.count(), 1);
    QVERIFY2(!link.answerTimer()->isActive(), "the old failure is still being reported");
}

void TestSerialPortFailure::linkReopenedBeforeTheFailedPortIsDroppedStaysOpen()
{
    SerialLink link;
    link.open();
    RawPty other;
    bool reopened = false;
    const auto reopen = [&] {
        link.layer.closePort();
        link.layer.portName = other.slavePath();
        reopened = link.layer.openPort();
    };
    const WhenLogged queueBeforeTheDrop(
        portFailed, [&] { QMetaObject::invokeMethod(this, reopen, Qt::QueuedConnection); });
    link.pty.hangUp();
    QTRY_VERIFY(reopened);
    QTRY_COMPARE(other.received(), QByteArray("*nasdfd\r\n"));
    other.write("OK\r\n");
    QTRY_COMPARE(link.layer.receivedLines, QStringList{"OK"});
    QCOMPARE(link.timeouts.count(), 0);
}

void TestSerialPortFailure::secondPulledCableIsReportedLikeTheFirst()
{
    SerialLink link;
    link.open();
    link.pty.hangUp();
    QVERIFY(link.timeouts.wait());
    link.layer.closePort();

    RawPty other;
    link.layer.portName = other.slavePath();
    QVERIFY(link.layer.openPort());
    other.hangUp();
    QVERIFY(link.timeouts.wait(1500));
    QCOMPARE(link.timeouts.count(), 2);
    QCOMPARE(link.log.count(portFailed), 2);
}

void TestSerialPortFailure::layerMayGoRightAfterTheFailure()
{
    RawPty pty;
    auto layer = std::make_unique<SerialPortLayer>();
    layer->portName = pty.slavePath();
    layer->baudRate = QStringLiteral("9600");
    QVERIFY(layer->openPort());
    const WhenLogged queueBeforeTheDrop(portFailed, [&] {
        QMetaObject::invokeMethod(
            this, [&] { layer.reset(); }, Qt::QueuedConnection);
    });
    pty.hangUp();
    QTRY_VERIFY(!layer);
    QCoreApplication::processEvents();
}

QTEST_GUILESS_MAIN(TestSerialPortFailure)
#include "tst_serialportfailure.moc"
