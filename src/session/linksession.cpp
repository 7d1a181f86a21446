// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "linksession.h"

#include "debuglog.h"
#include "ratesearch.h"
#include "settings.h"

#include <chrono>

namespace {

using namespace std::chrono_literals;

constexpr auto answerAllowance = 2s;
constexpr auto pollInterval = 5s;

} // namespace

LinkSession::LinkSession(Settings &itsSettings, ChoicesSource choices, QObject *parent)
    : QObject(parent)
    , settings(itsSettings)
    , currentChoices(std::move(choices))
    , commandQueue(settings, serial, infoLine, this)
{
    answerTimer.setObjectName(QStringLiteral("answerTimer"));
    answerTimer.setInterval(answerAllowance);
    answerTimer.setSingleShot(true);
    temperatureTimer.setObjectName(QStringLiteral("temperatureTimer"));
    temperatureTimer.setInterval(pollInterval);
    temperatureTimer.start();
    connect(&commandQueue, &CommandQueue::unanswered, this, [this](const QString &key) {
        emit settingNotApplied(key, QStringLiteral("Command Timed Out"));
    });
}

void LinkSession::setState(SessionState state)
{
    currentState = state;
    emit stateChanged(state);
}

LinkSession::Press LinkSession::press()
{
    if (currentState != SessionState::Offline) {
        disconnectFromDevice();
        return Press::Disconnected;
    }
    if (choices().port == LinkChoices::noPort || choices().rate == RateSearch::notChosen) {
        return Press::NotChosen;
    }
    if (choices().rate == RateSearch::searchAll) {
        startSearch();
        return Press::Underway;
    }
    return connectAtRate() ? Press::Underway : Press::NotOpened;
}

void LinkSession::startSearch()
{
    WINDOW_LOG << "GOING AUTO!";
    doAutoBaud();
    setState(SessionState::Searching);
    serial.sendCommand(Protocol::Command::connectProbe);
    answerTimer.start();
}

bool LinkSession::connectAtRate()
{
    if (!openLink(choices().port, choices().rate)) {
        return false;
    }
    WINDOW_LOG << "Opened Serial Port";
    serial.sendCommand(Protocol::Command::connectProbe);
    infoLine.show(InfoColour::Progress, QStringLiteral("Connecting to Device"));
    answerTimer.start();
    setState(SessionState::Connecting);
    return true;
}

void LinkSession::disconnectFromDevice()
{
    WINDOW_LOG << "disconnecting from device";
    closeLink();
    infoLine.clear();
    setState(SessionState::Offline);
}

bool LinkSession::openLink(const QString &port, const QString &rate)
{
    serial.portName = port;
    serial.baudRate = rate;
    const bool isOpen = serial.openPort();
    if (!isOpen) {
        WINDOW_LOG << "The serial port does not open:" << port << portTrouble();
    }
    return isOpen;
}

/// Closes the port and forgets what was awaited from it: neither this silence nor an old command's
/// answer may speak into the next connection.
void LinkSession::closeLink()
{
    serial.closePort();
    answerTimer.stop();
    commandQueue.forgetSent();
}

/// Tries the next rate of the list. False when there is none left or the port does not open.
bool LinkSession::doAutoBaud()
{
    const auto rate = RateSearch::next(RateSearch::choices(settings.baudList()), choices().rate);
    if (!rate) {
        return false;
    }
    emit rateChosen(*rate);
    WINDOW_LOG << "current text is now " << *rate;
    closeLink();
    if (!openLink(choices().port, *rate)) {
        WINDOW_LOG << "Connection failed";
        infoLine.explain(portTrouble());
        return false;
    }
    infoLine.show(InfoColour::Progress, "Trying " + *rate + " baud");
    answerTimer.start();
    return true;
}

void LinkSession::failLink(const QString &message)
{
    setState(SessionState::Offline);
    infoLine.show(InfoColour::Failure, message);
    closeLink();
}

void LinkSession::failAttempt()
{
    failLink(QStringLiteral("Could Not Connect To Device"));
    infoLine.explain(portTrouble());
}

void LinkSession::searchOn()
{
    if (!doAutoBaud()) {
        failAttempt();
    }
}

/// The device goes on at other settings; the operator connects again, at the rate now chosen.
void LinkSession::closeToReconnect()
{
    setState(SessionState::Offline);
    closeLink();
}

/// An acknowledgement demands another rate or a new start. Before the banner there is no link that
/// it could belong to: it is a late answer to somebody else, and must not end an attempt in green.
void LinkSession::closeForAcknowledgement()
{
    switch (currentState) {
    case SessionState::Connecting:
        failAttempt();
        break;
    case SessionState::Searching:
        searchOn();
        break;
    case SessionState::Offline:
    case SessionState::Connected:
        closeToReconnect();
        break;
    }
}

void LinkSession::serialTimeout(bool excused)
{
    WINDOW_LOG << "SERIAL TIMED OUT";
    if (commandQueue.isAwaitingAnswer()) {
        infoLine.append(InfoColour::Failure, QStringLiteral(" ... Command Timed Out"));
        commandQueue.endWaiting();
        return;
    }
    switch (currentState) {
    case SessionState::Connecting:
        failAttempt();
        break;
    case SessionState::Searching:
        searchOn();
        break;
    case SessionState::Offline:
    case SessionState::Connected:
        if (excused) {
            WINDOW_LOG << "Ignoring serial timeout because timer is active";
        } else {
            failLink(QStringLiteral("Lost Connection To Device"));
        }
        break;
    }
}

void LinkSession::sendAtOnce(const QString &announcement, const char *command, const Topic &topic,
                             const QString &key)
{
    infoLine.show(InfoColour::Progress, announcement, topic);
    serial.sendCommand(command);
    commandQueue.noteCommandPastQueue(key);
}

void LinkSession::getLatestTemperature()
{
    if (currentState != SessionState::Connected || !infoLine.text().isEmpty()) {
        return;
    }
    serial.sendCommand(shownStatus == Status::Temperature ? Protocol::Command::supplyVoltage
                                                          : Protocol::Command::boardTemperature);
}
