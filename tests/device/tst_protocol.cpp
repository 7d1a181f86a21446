// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "protocol.h"

#include <QtTest>

using Protocol::ChannelFit;
using Protocol::LineKind;
using Protocol::ReplyKind;

Q_DECLARE_METATYPE(LineKind)
Q_DECLARE_METATYPE(ChannelFit)
Q_DECLARE_METATYPE(ReplyKind)

class TestProtocol : public QObject
{
    Q_OBJECT

private slots:
    void fixedCommandsGoOutExactlyAsTheDeviceKnowsThem_data();
    void fixedCommandsGoOutExactlyAsTheDeviceKnowsThem();
    void lineIsOfTheFirstKindWhoseWordItHolds_data();
    void lineIsOfTheFirstKindWhoseWordItHolds();
    void bannerTellsVersionAndFit_data();
    void bannerTellsVersionAndFit();
    void replyLineIsOfTheFirstKindItMarks_data();
    void replyLineIsOfTheFirstKindItMarks();
    void replyPieceIsLetterAndValue_data();
    void replyPieceIsLetterAndValue();
    void replyIsSplitAtCommasWithoutItsFirstCharacter();
    void blankSeparatedItemsKeepEmptyOnes();
};

void TestProtocol::fixedCommandsGoOutExactlyAsTheDeviceKnowsThem_data()
{
    using namespace Protocol::Command;
    QTest::addColumn<QByteArray>("command");
    QTest::addColumn<QByteArray>("wire");
    const auto row = [](const char *name, const char *command, const char *wire) {
        QTest::newRow(name) << QByteArray(command) << QByteArray(wire);
    };
    row("wake-up", wakeUp, "*nasdfd\r\n");
    row("connect probe", connectProbe, "*n1234567*n1234567");
    row("keep-alive", keepAlive, "*nasdfdsa");
    row("settings report", settingsReport, "*Gasdfdsasdf");
    row("identifier", identifier, "*UUasdfdsa");
    row("board temperature", boardTemperature, "*UAbxxxxxx");
    row("supply voltage", supplyVoltage, "*UAsxxxxxx");
    row("high channel off", disableHighFrequency, "*hHHHHHHH");
    row("low channel off", disableLowFrequency, "*hLLLLLLL");
    row("high channel on", enableHighFrequency, "*bHHHHHHH");
    row("low channel on", enableLowFrequency, "*bLLLLLLL");
    row("save", saveSettings, "*F345678");
    row("factory reset", factoryReset, "*R345678");
}

void TestProtocol::fixedCommandsGoOutExactlyAsTheDeviceKnowsThem()
{
    QFETCH(QByteArray, command);
    QFETCH(QByteArray, wire);
    QCOMPARE(command, wire);
    QVERIFY2(command.size() >= 8, "the device reads eight characters");
}

void TestProtocol::lineIsOfTheFirstKindWhoseWordItHolds_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<LineKind>("kind");
    const auto row = [](const char *line, LineKind kind) {
        QTest::newRow(line) << QString(line) << kind;
    };
    row("TalVero New Dual 2.14.7", LineKind::IdentityBanner);
    row("Talvero HF", LineKind::IdentityBanner);
    row("TalVero OK", LineKind::IdentityBanner);
    row("something New", LineKind::IdentityBanner);
    row("*HaNew,Hg064", LineKind::IdentityBanner);
    row("talvero", LineKind::DepthOutput);
    row("new", LineKind::DepthOutput);
    row("OK", LineKind::Acknowledgement);
    row("OK *H", LineKind::Acknowledgement);
    row("OK ERR", LineKind::Acknowledgement);
    row("ERR", LineKind::Refusal);
    row("*Hca,ERR", LineKind::Refusal);
    row("*Hca,Hg064", LineKind::SettingsReport);
    row("*Lca", LineKind::SettingsReport);
    row("*i5,v1500000", LineKind::SettingsReport);
    row("noise *i5", LineKind::SettingsReport);
    row("UID : 4A5B6C7D8E9F0011", LineKind::Identifier);
    row("UID: 4A5B", LineKind::DepthOutput);
    row("BoardTemp: 301.65", LineKind::BoardTemperature);
    row("VSupply: 12.41", LineKind::SupplyVoltage);
    row("$SDDBT,7.7,f,2.3,M,1.3,F*05", LineKind::DepthOutput);
    row(" ", LineKind::DepthOutput);
    row("", LineKind::Empty);
}

void TestProtocol::lineIsOfTheFirstKindWhoseWordItHolds()
{
    QFETCH(QString, line);
    QFETCH(LineKind, kind);
    QCOMPARE(Protocol::lineKind(line), kind);
}

void TestProtocol::bannerTellsVersionAndFit_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<bool>("namesTalVero");
    QTest::addColumn<QString>("version");
    QTest::addColumn<ChannelFit>("fit");
    const auto row = [](const char *line, bool named, const char *version, ChannelFit fit) {
        QTest::newRow(line) << QString(line) << named << QString(version) << fit;
    };
    row("TalVero New Dual 2.14.7", true, "2.14.7", ChannelFit::Dual);
    row("Talvero New HF 1.2.3", true, "1.2.3", ChannelFit::HighOnly);
    row("TalVero New LF 10.20.30", true, "10.20.30", ChannelFit::LowOnly);
    row("New HF and LF 1.2.3", false, "1.2.3", ChannelFit::HighOnly);
    row("New LF Dual 1.2.3", false, "1.2.3", ChannelFit::LowOnly);
    row("New dual 1.2.3", false, "1.2.3", ChannelFit::Unknown);
    row("TalVero New Dual", true, "", ChannelFit::Dual);
    row("TalVero New 1a2b3", true, "1a2b3", ChannelFit::Unknown);
    row("TalVero New 1.2 Dual", true, "", ChannelFit::Dual);
    row("TalVero New 2.14.7 then 3.0.0", true, "2.14.7", ChannelFit::Unknown);
    row("TalVero New 123.4.5", true, "123.4", ChannelFit::Unknown);
}

void TestProtocol::bannerTellsVersionAndFit()
{
    QFETCH(QString, line);
    const Protocol::Banner banner = Protocol::readBanner(line);
    QTEST(banner.namesTalVero, "namesTalVero");
    QTEST(banner.firmwareVersion, "version");
    QTEST(banner.fit, "fit");
}

void TestProtocol::replyLineIsOfTheFirstKindItMarks_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<ReplyKind>("kind");
    QTest::newRow("*i5,H1") << "*i5,H1" << ReplyKind::Common;
    QTest::newRow("*Hca") << "*Hca" << ReplyKind::HighChannel;
    QTest::newRow("*Lca") << "*Lca" << ReplyKind::LowChannel;
    QTest::newRow("*Hca *i5") << "*Hca *i5" << ReplyKind::Common;
    QTest::newRow("*Lca *Hca") << "*Lca *Hca" << ReplyKind::HighChannel;
    QTest::newRow("i5") << "i5" << ReplyKind::None;
    QTest::newRow("empty") << "" << ReplyKind::None;
}

void TestProtocol::replyLineIsOfTheFirstKindItMarks()
{
    QFETCH(QString, line);
    QTEST(Protocol::replyKind(line), "kind");
}

void TestProtocol::replyPieceIsLetterAndValue_data()
{
    QTest::addColumn<QString>("piece");
    QTest::addColumn<ReplyKind>("kind");
    QTest::addColumn<QString>("letter");
    QTest::addColumn<QString>("value");
    QTest::newRow("common v1500000") << "v1500000" << ReplyKind::Common << "v"
                                     << "1500000";
    QTest::newRow("common i") << "i" << ReplyKind::Common << "i"
                              << "";
    QTest::newRow("high Hg064") << "Hg064" << ReplyKind::HighChannel << "g"
                                << "064";
    QTest::newRow("low LlW") << "LlW" << ReplyKind::LowChannel << "l"
                             << "W";
    QTest::newRow("the other channel's letter changes nothing: high Lg064")
        << "Lg064" << ReplyKind::HighChannel << "g"
        << "064";
    QTest::newRow("high Hg") << "Hg" << ReplyKind::HighChannel << "g"
                             << "";
    QTest::newRow("too short: high H") << "H" << ReplyKind::HighChannel << QString(QChar()) << "";
    QTest::newRow("too short: common empty") << "" << ReplyKind::Common << QString(QChar()) << "";
}

void TestProtocol::replyPieceIsLetterAndValue()
{
    QFETCH(QString, piece);
    QFETCH(ReplyKind, kind);
    const Protocol::ReplyPiece read = Protocol::readReplyPiece(piece, kind);
    QTEST(QString(read.letter), "letter");
    QTEST(read.value, "value");
}

void TestProtocol::replyIsSplitAtCommasWithoutItsFirstCharacter()
{
    QCOMPARE(Protocol::replyPieces("*i5,,v1,"), (QStringList{"i5", "", "v1", ""}));
    QCOMPARE(Protocol::replyPieces("*"), QStringList{""});
    QCOMPARE(Protocol::replyPieces(""), QStringList{""});
    QCOMPARE(Protocol::replyPieces("*" + QString("p,").repeated(999) + "last").size(), 1000);
    QCOMPARE(Protocol::replyPieces("*" + QString("p,").repeated(999) + "last").last(), "last");
    QCOMPARE(Protocol::replyPieces("*" + QString("p,").repeated(1000) + "one more").last(), "p");
}

void TestProtocol::blankSeparatedItemsKeepEmptyOnes()
{
    QCOMPARE(Protocol::blankSeparatedItem("UID : 4A5B", 2), QString("4A5B"));
    QCOMPARE(Protocol::blankSeparatedItem("BoardTemp:  301", 1), QString());
    QCOMPARE(Protocol::blankSeparatedItem("BoardTemp:  301", 2), QString("301"));
    QCOMPARE(Protocol::blankSeparatedItem("one", 1), QString());
}

QTEST_APPLESS_MAIN(TestProtocol)

#include "tst_protocol.moc"
