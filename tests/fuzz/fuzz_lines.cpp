// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "fuzztargets.h"
#include "linksession.h"
#include "ratesearch.h"
#include "settings.h"
#include "unitstatus.h"

namespace {

void requireReadBanner(const QString &line)
{
    const Protocol::Banner banner = Protocol::readBanner(line);
    FUZZ_REQUIRE(line.contains(banner.firmwareVersion));
    FUZZ_REQUIRE(banner.firmwareVersion.size() <= 8);
    if (banner.namesTalVero) {
        FUZZ_REQUIRE(Protocol::lineKind(line) == Protocol::LineKind::IdentityBanner);
    }
}

/// Nothing of a reply line is lost, whatever it holds.
void requireReadReply(const QString &line)
{
    const QStringList pieces = Protocol::replyPieces(line);
    FUZZ_REQUIRE(pieces.join(',') == line.mid(1));
    const Protocol::SettingsReply reply = Protocol::readReply(line, pieces);
    FUZZ_REQUIRE(reply.pieces.size() == pieces.size());
    for (int i = 0; i < pieces.size(); ++i) {
        const Protocol::ReplyPiece &piece = reply.pieces.at(i);
        if (!piece.letter.isNull()) {
            FUZZ_REQUIRE(pieces.at(i).endsWith(piece.letter + piece.value));
        }
    }
}

void requireReadStatus(const QString &line)
{
    for (const bool imperial : {false, true}) {
        const QString temperature = UnitStatus::temperatureText(line, imperial);
        FUZZ_REQUIRE(!temperature.contains("nan") && !temperature.contains("inf"));
    }
    const QString voltage = UnitStatus::voltageText(line);
    FUZZ_REQUIRE(!voltage.contains("nan") && !voltage.contains("inf"));
}

/// All that a session may never tell of a line.
class WatchedSession
{
public:
    explicit WatchedSession(int choice)
    {
        const QStringList rates = settings.baudList();
        choices = {"no port", rates.at(choice % rates.size()), rates.at(choice / 16 % rates.size()),
                   settings.formatList().at(choice % settings.formatList().size())};
        QObject::connect(&session, &LinkSession::identifierRead, &session,
                         [](const QString &text) { FUZZ_REQUIRE(text.size() <= 8); });
        QObject::connect(&session, &LinkSession::sounded, &session,
                         [](const QString &line) { FUZZ_REQUIRE(!line.isEmpty()); });
        QObject::connect(&session, &LinkSession::rateChosen, &session, [this](const QString &rate) {
            FUZZ_REQUIRE(RateSearch::choices(settings.baudList()).contains(rate));
            choices.rate = rate;
        });
    }

    /// Only a banner makes a link, and the info line does not grow with what comes.
    void hear(const QString &line)
    {
        constexpr int longestInfo = 4100;
        const bool wasConnected = session.state() == SessionState::Connected;
        session.port().receivedLines.append(line);
        session.gotSerialData();
        if (!wasConnected && Protocol::lineKind(line) != Protocol::LineKind::IdentityBanner) {
            FUZZ_REQUIRE(session.state() != SessionState::Connected);
        }
        FUZZ_REQUIRE(session.info().text().size() <= longestInfo);
        FUZZ_REQUIRE(session.port().receivedLines.isEmpty());
    }

private:
    Settings settings{QStringList()};
    LinkChoices choices;
    LinkSession session{settings, [this] { return choices; }};
};

} // namespace

/// The first byte says what the operator has chosen, what follows are lines.
void fuzzLines(const QByteArray &input)
{
    FuzzInput from(input);
    WatchedSession session(from.byte());
    const QStringList lines = latin1(from.rest()).split('\n');
    for (const QString &line : lines) {
        FUZZ_REQUIRE((Protocol::lineKind(line) == Protocol::LineKind::Empty) == line.isEmpty());
        requireReadBanner(line);
        requireReadReply(line);
        requireReadStatus(line);
        session.hear(line);
    }
}
