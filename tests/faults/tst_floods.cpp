// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

// The line brings more than any sounder says: an adapter that ignores its rate, a unit gone mad.

#include "faultbench.h"

namespace {

const std::pair<const char *, QByteArray> floods[] = {
    {"soundings", " et B 00123 00131\r\n"},
    {"NMEA sentences", "$SDDBS,0010.0,f,0003.0,M,0001.7,F*0D\r\n"},
    {"OK", "OK\r\n"},
    {"refusals", "ERR\r\n"},
    {"banners", "TalVero New Dual 2.14.7\r\n"},
    {"settings replies", "*i05,v1500000,s30000,I9600,a4,H1,L1\r\n*Hcm,HlN,Hg050,Hp20,Ht40\r\n"},
    {"modes that change", "*Hca,Lca\r\n*Hcm\r\n*i05,H0,L1\r\n*i05,H1,L0\r\n"},
    {"identifiers", "UID : 4A5B6C7D8E9F0011\r\n"},
    {"temperatures", "BoardTemp: 301.65\r\nVSupply: 12.41\r\n"},
    {"line feeds", QByteArray(1024, '\n')},
    {"bytes without any line end", QByteArray(4096, '\xAA')},
};

} // namespace

class TestFloods : public FaultTest
{
    Q_OBJECT

private slots:
    void aFloodOf_data();
    void aFloodOf();
};

void TestFloods::aFloodOf_data()
{
    QTest::addColumn<QByteArray>("bytes");
    for (const auto &[name, bytes] : floods) {
        QTest::newRow(name) << bytes;
    }
}

void TestFloods::aFloodOf()
{
    QFETCH(QByteArray, bytes);
    QVERIFY(bench->connectReady());
    bench->flood(bytes.repeated(std::max(1, 4096 / static_cast<int>(bytes.size()))),
                 shortOrLong(500, 20000));
    QVERIFY2(bench->showsConnected(), qPrintable(bench->info()));
    bench->click("metricRadio"); // the window still takes a click
    bench->click("connectToDevice");
    QVERIFY(bench->isOffline());
}

QTEST_MAIN(TestFloods)
#include "tst_floods.moc"
