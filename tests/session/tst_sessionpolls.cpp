// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "sessionbench.h"

#include <QtTest>

#include <memory>

Q_DECLARE_METATYPE(SessionState)

namespace {

const QByteArray forTemperature = QByteArrayLiteral("*UAbxxxxxx");
const QByteArray forVoltage = QByteArrayLiteral("*UAsxxxxxx");

} // namespace

/// How the session asks for the unit's temperature and voltage by turns.
class SessionPollsTest : public QObject
{
    Q_OBJECT

private slots:
    void init() { bench = std::make_unique<SessionBench>(); }
    void cleanup() { bench.reset(); }

    void onlyAConnectedUnitIsPolled_data();
    void onlyAConnectedUnitIsPolled();
    void nothingIsPolledWhileSomethingIsAnnounced();
    void whatIsNotShownIsAskedFor_data();
    void whatIsNotShownIsAskedFor();
    void aForgottenStatusBeginsWithTheTemperature();
    void aPollAnnouncesNothing();

private:
    std::unique_ptr<SessionBench> bench;
};

void SessionPollsTest::onlyAConnectedUnitIsPolled_data()
{
    QTest::addColumn<SessionState>("state");
    QTest::addColumn<QByteArray>("sent");
    QTest::newRow("offline") << SessionState::Offline << QByteArray();
    QTest::newRow("connecting") << SessionState::Connecting << QByteArray();
    QTest::newRow("searching") << SessionState::Searching << QByteArray();
    QTest::newRow("connected") << SessionState::Connected << forTemperature;
}

void SessionPollsTest::onlyAConnectedUnitIsPolled()
{
    QFETCH(SessionState, state);
    bench->bring(state);
    bench->session.info().clear();
    bench->session.getLatestTemperature();
    QTEST(bench->takeSent(), "sent");
}

void SessionPollsTest::nothingIsPolledWhileSomethingIsAnnounced()
{
    bench->bring(SessionState::Connected);
    QCOMPARE(bench->session.info().text(), QString("Connected to TAL-VERO"));
    bench->session.getLatestTemperature();
    QCOMPARE(bench->takeSent(), QByteArray());
}

void SessionPollsTest::whatIsNotShownIsAskedFor_data()
{
    QTest::addColumn<QStringList>("lines");
    QTest::addColumn<QByteArray>("sent");
    const QString temperature = "BoardTemp: 298.15";
    const QString voltage = "VSupply: 12.41";
    QTest::newRow("nothing") << QStringList() << forTemperature;
    QTest::newRow("temperature") << QStringList{temperature} << forVoltage;
    QTest::newRow("voltage") << QStringList{voltage} << forTemperature;
    QTest::newRow("temperature, voltage") << QStringList{temperature, voltage} << forTemperature;
    QTest::newRow("voltage, temperature") << QStringList{voltage, temperature} << forVoltage;
    QTest::newRow("temperature, other lines")
        << QStringList{temperature, "*i5", "UID : 12345678", "e00131"} << forVoltage;
}

void SessionPollsTest::whatIsNotShownIsAskedFor()
{
    QFETCH(QStringList, lines);
    bench->connectAndClear();
    for (const QString &line : lines) {
        bench->say(line);
    }
    bench->session.getLatestTemperature();
    QTEST(bench->takeSent(), "sent");
}

void SessionPollsTest::aForgottenStatusBeginsWithTheTemperature()
{
    bench->connectAndClear();
    bench->say("BoardTemp: 298.15");
    bench->session.forgetStatus();
    bench->session.getLatestTemperature();
    QCOMPARE(bench->takeSent(), forTemperature);
}

void SessionPollsTest::aPollAnnouncesNothing()
{
    bench->connectAndClear();
    bench->session.getLatestTemperature();
    QCOMPARE(bench->takeTold(), QStringList());
    QVERIFY(!bench->session.queue().isAwaitingAnswer());
    QVERIFY2(bench->layerTimer("timeoutTimer")->isActive(), "a silent unit would stay unnoticed");
}

QTEST_MAIN(SessionPollsTest)

#include "tst_sessionpolls.moc"
