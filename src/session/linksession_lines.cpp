// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

// What each line of the sounder means to the link.

#include "debuglog.h"
#include "linksession.h"
#include "outputformat.h"
#include "settings.h"
#include "settingspec.h"
#include "unitstatus.h"

#include <utility>

namespace {

/// What the operator reads after a refusal; pings and range, for instance, compete for the time
/// that sound takes to the bottom and back.
QString refusalWords(const QString &key)
{
    const SettingSpec *setting = SettingSpecs::find(key);
    if (setting == nullptr || setting->refusalAdvice.isEmpty()) {
        return QStringLiteral("Received Error - Command Not Applied");
    }
    return "not applied. " + setting->refusalAdvice;
}

} // namespace

void LinkSession::gotSerialData()
{
    while (!serial.receivedLines.isEmpty()) {
        handleLine(serial.receivedLines.takeFirst().left(Protocol::readCharacters));
    }
}

void LinkSession::handleLine(const QString &line)
{
    using Protocol::LineKind;
    using Handler = void (LinkSession::*)(const QString &);
    static constexpr std::pair<LineKind, Handler> handlers[] = {
        {LineKind::IdentityBanner, &LinkSession::acceptBanner},
        {LineKind::Acknowledgement, &LinkSession::acknowledge},
        {LineKind::Refusal, &LinkSession::refuse},
        {LineKind::SettingsReport, &LinkSession::parseSetting},
        {LineKind::Identifier, &LinkSession::readIdentifier},
        {LineKind::BoardTemperature, &LinkSession::readTemperature},
        {LineKind::SupplyVoltage, &LinkSession::readVoltage},
        {LineKind::DepthOutput, &LinkSession::passDepth},
    };
    const LineKind kind = Protocol::lineKind(line);
    for (const auto &[handledKind, handle] : handlers) {
        if (handledKind == kind) {
            (this->*handle)(line);
        }
    }
}

void LinkSession::acceptBanner(const QString &line)
{
    if (currentState == SessionState::Connected) {
        return; // the answer to a keep-alive
    }
    WINDOW_LOG << "we have a TalVero New";
    settings.setDeviceType(QStringLiteral("TalVeroNew"));
    infoLine.show(InfoColour::Success, QStringLiteral("Connected to TAL-VERO"));
    serial.setConnected();
    answerTimer.stop();
    setState(SessionState::Connected);
    emit identified(Protocol::readBanner(line));
    for (const char *request : {Protocol::Command::settingsReport, Protocol::Command::identifier,
                                Protocol::Command::boardTemperature}) {
        serial.sendCommand(request);
    }
}

void LinkSession::acknowledge(const QString & /*line*/)
{
    infoLine.append(InfoColour::Success, QStringLiteral(" ... Success"));
    commandQueue.endWaiting();
    const QString key = commandQueue.takeAnswered();
    if (!key.isEmpty()) {
        emit settingAccepted(key);
    }
    if (choices().rate != choices().deviceRate) {
        emit rateChosen(choices().deviceRate);
        closeForAcknowledgement();
    } else if (infoLine.topic().settingKey() == QLatin1String("format")) {
        const OutputFormat *format = OutputFormats::find(choices().format);
        // The device changes to the format's own rate by itself.
        if (format != nullptr && format->fixedRate != 0 &&
            choices().rate.toInt() != format->fixedRate) {
            emit rateChosen(QString::number(format->fixedRate));
            closeForAcknowledgement();
        }
    } else if (infoLine.topic().isFactoryReset()) {
        closeForAcknowledgement();
    }
}

void LinkSession::refuse(const QString & /*line*/)
{
    infoLine.append(InfoColour::Failure, " ... " + refusalWords(infoLine.topic().settingKey()));
    commandQueue.endWaiting();
    const QString key = commandQueue.takeAnswered();
    if (!key.isEmpty()) {
        emit settingNotApplied(key, refusalWords(key));
    }
}

void LinkSession::parseSetting(const QString &line)
{
    const QStringList pieces = Protocol::replyPieces(line);
    WINDOW_LOG << "Settings" << LoggedTexts{pieces};
    emit settingsReplied(Protocol::readReply(line, pieces));
}

void LinkSession::readIdentifier(const QString &line)
{
    const QStringList words = line.split(QLatin1Char(' '));
    WINDOW_LOG_AS("showIdentifier") << LoggedTexts{words};
    constexpr int shownCharacters = 8;
    emit identifierRead(Protocol::blankSeparatedItem(line, 2).left(shownCharacters));
}

void LinkSession::readTemperature(const QString &line)
{
    shownStatus = Status::Temperature;
    emit statusRead(UnitStatus::temperatureText(line, settings.isImperial()));
}

void LinkSession::readVoltage(const QString &line)
{
    shownStatus = Status::Voltage;
    emit statusRead(UnitStatus::voltageText(line));
}

void LinkSession::passDepth(const QString &line) { emit sounded(line); }
