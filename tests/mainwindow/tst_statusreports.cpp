// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "logcapture.h"
#include "reportbench.h"

#include <QLabel>
#include <QSignalSpy>
#include <QtTest>

#include <algorithm>
#include <memory>

/// The serial number, the board temperature and the supply voltage, and how the window asks for the
/// last two by turns.
class TestStatusReports : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void identifierIsShownShortened_data();
    void identifierIsShownShortened();
    void identifierIsLoggedInItems();
    void otherLineLeavesTheSerialNumber();
    void temperatureIsShownInCelsius_data();
    void temperatureIsShownInCelsius();
    void temperatureIsShownInFahrenheit_data();
    void temperatureIsShownInFahrenheit();
    void voltageIsShownWithTwoDecimals_data();
    void voltageIsShownWithTwoDecimals();
    void otherLineLeavesTheStatus_data();
    void otherLineLeavesTheStatus();
    void pollingRunsEveryFiveSecondsFromTheStart();
    void nothingIsPolledWhileConnecting();
    void nothingIsPolledWhileAMessageIsShown();
    void nothingIsPolledAfterADisconnect();
    void pollingAsksForTheTemperatureFirst();
    void pollingAsksForWhatIsNotShown_data();
    void pollingAsksForWhatIsNotShown();
    void statusAlternatesBesideASounder();

private:
    QString status() { return bench->text("temperatureLabel"); }
    void compareStatus(const QString &text);
    void poll();

    std::unique_ptr<ReportBench> bench;
};

void TestStatusReports::init() { bench = std::make_unique<ReportBench>(); }

void TestStatusReports::cleanup() { bench.reset(); }

void TestStatusReports::compareStatus(const QString &text)
{
    QTRY_COMPARE(status(), "<font color=Green>" + text + "</font>");
}

/// Lets the polling timer fire once.
void TestStatusReports::poll()
{
    QTimer *const timer = bench->timer("temperatureTimer");
    const QSignalSpy fired(timer, SIGNAL(timeout()));
    const QObject once; // the window stays when the test is over
    connect(timer, &QTimer::timeout, &once, [timer] { timer->stop(); });
    timer->start(1);
    QTRY_VERIFY(!fired.isEmpty());
    QCOMPARE(fired.size(), 1);
}

void TestStatusReports::identifierIsShownShortened_data()
{
    QTest::addColumn<QByteArray>("line");
    QTest::addColumn<QString>("shown");
    const auto row = [](const char *line, const char *shown) {
        QTest::newRow(line) << QByteArray(line) << QString(shown);
    };
    row("UID : 4A5B6C7D8E9F0011", "Serial Number: QZ4A5B6C7D");
    row("UID : 12345678", "Serial Number: QZ12345678");
    row("UID : 123", "Serial Number: QZ123");
    row("UID : 123 45678", "Serial Number: QZ123");
    row("UID : ", "Serial Number: QZ");
    row("UID :  12345678", "Serial Number: QZ");
    row("The UID : 12345678", "Serial Number: QZ:");
}

void TestStatusReports::identifierIsShownShortened()
{
    QFETCH(QByteArray, line);
    QFETCH(QString, shown);
    QVERIFY(bench->connectAs());
    QVERIFY(bench->tell(line));
    QCOMPARE(bench->text("label_24"), shown);
}

void TestStatusReports::identifierIsLoggedInItems()
{
    QVERIFY(bench->connectAs());
    const LogCapture log;
    QVERIFY(bench->tell("UID : 1234  5"));
    QVERIFY(log.contains("(\"UID\", \":\", \"1234\", \"\", \"5\")"));
}

void TestStatusReports::otherLineLeavesTheSerialNumber()
{
    QVERIFY(bench->connectAs());
    QVERIFY(bench->tell("UID : 12345678"));
    for (const char *line : {"UID: 99999999", "UID :99999999", "uid : 99999999"}) {
        QVERIFY(bench->tell(line));
        QCOMPARE(bench->text("label_24"), QString("Serial Number: QZ12345678"));
    }
}

void TestStatusReports::temperatureIsShownInCelsius_data()
{
    QTest::addColumn<QByteArray>("line");
    QTest::addColumn<int>("degrees");
    const auto row = [](const char *line, int degrees) {
        QTest::newRow(line) << QByteArray(line) << degrees;
    };
    row("BoardTemp: 298.15", 25);
    row("BoardTemp: 301.90", 29);
    row("BoardTemp: 301.40", 28);
    row("BoardTemp: 273.15", 0);
    row("BoardTemp: 263.15", -10);
    row("BoardTemp: 298.15 K", 25);
    row("BoardTemp: ", -273);
    row("BoardTemp: warm", -273);
    row("BoardTemp: 298,15", -273);
    row("BoardTemp: nan", -273);
    row("BoardTemp: 1e300", -273);
    row("The BoardTemp: 298.15", -273);
    row("BoardTemp:  298.15", -273);
}

void TestStatusReports::temperatureIsShownInCelsius()
{
    QFETCH(QByteArray, line);
    QFETCH(int, degrees);
    QVERIFY(bench->connectAs());
    bench->say(line);
    compareStatus(QString("TAL-VERO Temperature : %1°C").arg(degrees));
}

void TestStatusReports::temperatureIsShownInFahrenheit_data()
{
    QTest::addColumn<QByteArray>("line");
    QTest::addColumn<int>("degrees");
    QTest::newRow("BoardTemp: 298.15") << QByteArray("BoardTemp: 298.15") << 77;
    QTest::newRow("BoardTemp: 273.15") << QByteArray("BoardTemp: 273.15") << 32;
    QTest::newRow("BoardTemp: warm") << QByteArray("BoardTemp: warm") << -460;
}

void TestStatusReports::temperatureIsShownInFahrenheit()
{
    QFETCH(QByteArray, line);
    QFETCH(int, degrees);
    bench->click("imperialRadio");
    QVERIFY(bench->connectAs());
    bench->say(line);
    compareStatus(QString("TAL-VERO Temperature : %1°F").arg(degrees));
}

void TestStatusReports::voltageIsShownWithTwoDecimals_data()
{
    QTest::addColumn<QByteArray>("line");
    QTest::addColumn<QString>("shown");
    const auto row = [](const char *line, const char *shown) {
        QTest::newRow(line) << QByteArray(line) << QString(shown);
    };
    row("VSupply: 12.41", "Power Supply Voltage : 12.41V");
    row("VSupply: 12", "Power Supply Voltage : 12.00V");
    row("VSupply: 12.408", "Power Supply Voltage : 12.41V");
    row("VSupply: 12.41 V", "Power Supply Voltage : 12.41V");
    row("VSupply: low", "Power Supply Voltage : 0.00V");
    row("VSupply: ", "Power Supply Voltage : 0.00V");
    row("VSupply: inf", "Power Supply Voltage : 0.00V");
    row("At VSupply: 12.41", "Power Supply Voltage : 0.00V");
}

void TestStatusReports::voltageIsShownWithTwoDecimals()
{
    QFETCH(QByteArray, line);
    QFETCH(QString, shown);
    QVERIFY(bench->connectAs());
    bench->say(line);
    compareStatus(shown);
}

void TestStatusReports::otherLineLeavesTheStatus_data()
{
    QTest::addColumn<QByteArray>("line");
    for (const char *line :
         {"BoardTemp:298.15", "boardtemp: 298.15", "VSupply:12.41", "Vsupply: 1", "Temp: 298.15"}) {
        QTest::newRow(line) << QByteArray(line);
    }
}

void TestStatusReports::otherLineLeavesTheStatus()
{
    QFETCH(QByteArray, line);
    QVERIFY(bench->connectAs());
    bench->say("BoardTemp: 298.15");
    compareStatus("TAL-VERO Temperature : 25°C");
    bench->say(line + "\r\nUID : 12345678"); // the number shows that the line has been dealt with
    QTRY_COMPARE(bench->text("label_24"), QString("Serial Number: QZ12345678"));
    compareStatus("TAL-VERO Temperature : 25°C");
}

void TestStatusReports::pollingRunsEveryFiveSecondsFromTheStart()
{
    WindowBench untouched;
    const QTimer *const timer = untouched.timer("temperatureTimer");
    QVERIFY(timer->isActive());
    QCOMPARE(timer->interval(), 5000);
    QVERIFY(!timer->isSingleShot());
}

void TestStatusReports::nothingIsPolledWhileConnecting()
{
    QVERIFY(bench->startConnecting());
    bench->line.clearReceived();
    QVERIFY(bench->letInfoExpire());
    poll();
    QVERIFY(bench->tell("*i5"));
    QCOMPARE(bench->line.received(), QByteArray());
}

void TestStatusReports::nothingIsPolledWhileAMessageIsShown()
{
    QVERIFY(bench->connectAs());
    QCOMPARE(bench->info(), QString("Connected to TAL-VERO"));
    poll();
    QVERIFY(bench->tell("*i5"));
    QCOMPARE(bench->line.received(), QByteArray());
}

void TestStatusReports::nothingIsPolledAfterADisconnect()
{
    QVERIFY(bench->connectAs());
    bench->click("connectToDevice");
    QCOMPARE(bench->info(), QString());
    poll();
    QVERIFY(bench->connectAs()); // forgets only what came before its own probe
    QVERIFY2(!bench->line.received().contains("*UA"), "a poll waited for the next connection");
}

void TestStatusReports::pollingAsksForTheTemperatureFirst()
{
    QVERIFY(bench->startConnecting());
    bench->say(ReportBench::dualBanner);
    QVERIFY(bench->hears("*UAbxxxxxx"));
    bench->line.clearReceived();
    QVERIFY(bench->letInfoExpire());
    QCOMPARE(status(), QString());
    poll();
    QVERIFY(bench->hears("*UA"));
    QCOMPARE(bench->line.received(), QByteArray("*UAbxxxxxx"));
}

void TestStatusReports::pollingAsksForWhatIsNotShown_data()
{
    QTest::addColumn<QByteArray>("shown");
    QTest::addColumn<QByteArray>("request");
    QTest::newRow("temperature") << QByteArray("BoardTemp: 298.15") << QByteArray("*UAsxxxxxx");
    QTest::newRow("voltage") << QByteArray("VSupply: 12.41") << QByteArray("*UAbxxxxxx");
}

void TestStatusReports::pollingAsksForWhatIsNotShown()
{
    QFETCH(QByteArray, shown);
    QFETCH(QByteArray, request);
    QVERIFY(bench->connectAs());
    QVERIFY(bench->letInfoExpire());
    const QString before = status();
    bench->say(shown);
    QTRY_VERIFY(status() != before);
    bench->line.clearReceived();
    poll();
    QVERIFY(bench->hears("*UA"));
    QCOMPARE(bench->line.received(), request);
}

void TestStatusReports::statusAlternatesBesideASounder()
{
    WindowBench beside;
    QVERIFY(beside.connectToSounder());
    QMetaObject::invokeMethod(&beside.window, "clearInfoText"); // its ten seconds pass elsewhere
    beside.device().clearTranscript();
    beside.timer("temperatureTimer")->setInterval(150);
    for (const char *next : {"Voltage", "Temperature", "Voltage", "Temperature"}) {
        QTRY_VERIFY2(beside.text("temperatureLabel").contains(next), next);
    }
    const QByteArrayList asked = beside.device().received();
    QVERIFY2(std::count(asked.begin(), asked.end(), "*UAsxxxx") >= 2, asked.join(' ').constData());
    QVERIFY2(std::count(asked.begin(), asked.end(), "*UAbxxxx") >= 2, asked.join(' ').constData());
    QVERIFY(beside.showsConnected());
}

QTEST_MAIN(TestStatusReports)

#include "tst_statusreports.moc"
