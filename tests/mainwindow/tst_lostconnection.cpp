// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

// A connected device that falls silent.

#include "linkwatch.h"
#include "logcapture.h"
#include "rawbench.h"

#include <QtTest>

#include <memory>

using namespace LinkWatch;

namespace {

const QString forgiven = QStringLiteral("Ignoring serial timeout because timer is active");
const QString saving = QStringLiteral("Sending Save Command to Device");

/// An operator who drags the window's edge for as long as this lives.
class Dragging
{
public:
    explicit Dragging(QWidget &window)
    {
        const int height = window.height();
        const int width = window.width();
        QObject::connect(&timer, &QTimer::timeout, &timer, [&window, width, height] {
            window.resize(window.width() == width ? width - 10 : width, height);
        });
        constexpr int stepMs = 100;
        timer.start(stepMs);
    }

private:
    QTimer timer;
};

/// A command whose missing answer is a silence of the link, not of one setting.
void sendWithoutAnswer(RawBench &bench)
{
    bench.line.clearReceived();
    bench.click("saveSettingsToDevice");
    QTRY_COMPARE(bench.line.received(), QByteArray("*F345678"));
}

/// Whether the window still takes what the device says.
bool listens(RawBench &bench)
{
    bench.say("VSupply: 12.41");
    return QTest::qWaitFor([&] { return bench.text("temperatureLabel").contains("12.41V"); });
}

} // namespace

class TestLostConnection : public QObject
{
    Q_OBJECT

private slots:
    void unansweredCommandOfTheLinkLosesTheDevice();
    void unansweredPollLosesTheDevice();
    void silenceDuringAResizeIsForgivenOnce();
    void unansweredSettingKeepsTheLink_data();
    void unansweredSettingKeepsTheLink();
    void resizeForgivesOnlyAConnectedDevice_data();
    void resizeForgivesOnlyAConnectedDevice();
    void connectsAgainAfterTheLoss();
};

void TestLostConnection::unansweredCommandOfTheLinkLosesTheDevice()
{
    RawBench bench;
    QVERIFY(bench.connectByBanner());
    QTRY_VERIFY(!bench.timer("resizeTimer")->isActive());
    const LogCapture log;
    QElapsedTimer time;
    time.start();
    sendWithoutAnswer(bench);
    QTRY_COMPARE_WITH_TIMEOUT(bench.info(), QString(lostInfo), 10000);
    QVERIFY2(time.elapsed() >= 1700, qPrintable(QString::number(time.elapsed())));
    QCOMPARE(bench.infoColour(), QString("Red"));
    QVERIFY(isIdle(bench, bench.line.slavePath()));
    QCOMPARE(log.count("SERIAL TIMED OUT"), 1);
    QVERIFY2(!QTest::qWaitFor([&] { return bench.info() != lostInfo; }, 500),
             qPrintable("the operator sees: " + bench.info()));
}

void TestLostConnection::unansweredPollLosesTheDevice()
{
    RawBench bench;
    QVERIFY(bench.connectByBanner());
    bench.timer("infoTimer")->start(1); // there is no poll while a message is shown
    QTRY_COMPARE(bench.info(), QString());
    bench.timer("infoTimer")->setInterval(10000);
    bench.timer("temperatureTimer")->start(1);
    QVERIFY(bench.hears("*UAsxxxxxx"));
    bench.timer("temperatureTimer")->stop(); // the next one would put off the answer timer
    QTRY_COMPARE_WITH_TIMEOUT(bench.info(), QString(lostInfo), 10000);
    QVERIFY(isIdle(bench, bench.line.slavePath()));
}

void TestLostConnection::silenceDuringAResizeIsForgivenOnce()
{
    RawBench bench;
    QVERIFY(bench.connectByBanner());
    const LogCapture log;
    {
        const Dragging dragging(bench.window);
        sendWithoutAnswer(bench);
        QTRY_VERIFY_WITH_TIMEOUT(log.contains(forgiven), 10000);
    }
    QVERIFY2(bench.showsConnected(), qPrintable("the operator sees: " + bench.info()));
    QCOMPARE(bench.info(), saving);
    QVERIFY(listens(bench));

    QTRY_VERIFY(!bench.timer("resizeTimer")->isActive());
    sendWithoutAnswer(bench);
    QTRY_COMPARE_WITH_TIMEOUT(bench.info(), QString(lostInfo), 10000);
    QCOMPARE(log.count(forgiven), 1);
}

void TestLostConnection::unansweredSettingKeepsTheLink_data()
{
    QTest::addColumn<bool>("isDragged");
    QTest::newRow("window left alone") << false;
    QTest::newRow("window being resized") << true;
}

void TestLostConnection::unansweredSettingKeepsTheLink()
{
    QFETCH(bool, isDragged);
    RawBench bench;
    QVERIFY(bench.connectByBanner());
    const auto dragging = isDragged ? std::make_unique<Dragging>(bench.window) : nullptr;
    const LogCapture log;
    bench.click("pingUp");
    QTRY_COMPARE_WITH_TIMEOUT(
        bench.info(), QString("Setting Pings Per Second to 6 ... Command Timed Out"), 10000);
    QCOMPARE(bench.infoColour(), QString("Red"));
    QCOMPARE(bench.line.received(), QByteArray("*i06...."));
    QVERIFY(bench.showsConnected());
    QVERIFY2(!isFree(bench.line.slavePath()), "the port was closed");
    QVERIFY(listens(bench));
    QCOMPARE(log.count("SERIAL TIMED OUT"), 1);

    if (!isDragged) { // the next silence is the link's own
        sendWithoutAnswer(bench);
        QTRY_COMPARE_WITH_TIMEOUT(bench.info(), QString(lostInfo), 10000);
    }
}

void TestLostConnection::resizeForgivesOnlyAConnectedDevice_data()
{
    QTest::addColumn<QString>("rate");
    QTest::newRow("connecting") << "9600";
    QTest::newRow("searching") << "Auto";
}

void TestLostConnection::resizeForgivesOnlyAConnectedDevice()
{
    QFETCH(QString, rate);
    RawBench bench;
    bench.timer("answerTimer")->setInterval(100);
    const Dragging dragging(bench.window);
    const LogCapture log;
    bench.pressConnectRaw(rate);
    QTRY_COMPARE(bench.info(), QString(notConnectedInfo));
    QVERIFY(bench.timer("resizeTimer")->isActive());
    QVERIFY(!log.contains(forgiven));
}

void TestLostConnection::connectsAgainAfterTheLoss()
{
    RawBench bench;
    QVERIFY(bench.connectByBanner());
    QTRY_VERIFY(!bench.timer("resizeTimer")->isActive());
    sendWithoutAnswer(bench);
    QTRY_COMPARE_WITH_TIMEOUT(bench.info(), QString(lostInfo), 10000);
    bench.line.clearReceived();
    QVERIFY(bench.connectByBanner());
    QCOMPARE(bench.info(), QString(connectedInfo));
    QVERIFY(listens(bench));
}

QTEST_MAIN(TestLostConnection)

#include "tst_lostconnection.moc"
