// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "commandqueue.h"

#include "announcement.h"
#include "debuglog.h"
#include "infoline.h"
#include "serialportlayer.h"
#include "settings.h"
#include "settingspec.h"

#include <chrono>

namespace {

using namespace std::chrono_literals;

constexpr auto pause = 500ms;

} // namespace

CommandQueue::CommandQueue(const Settings &itsSettings, SerialPortLayer &itsSerial,
                           InfoLine &itsInfo, QObject *parent)
    : QObject(parent)
    , settings(itsSettings)
    , serial(itsSerial)
    , info(itsInfo)
{
    commandTimer.setObjectName(QStringLiteral("commandTimer"));
    commandTimer.setInterval(pause);
    commandTimer.setSingleShot(true);
    ledgerTimer.setSingleShot(true);
    connect(&ledgerTimer, &QTimer::timeout, this, &CommandQueue::giveUpOverdue);
    clock.start();
}

void CommandQueue::triggerChange(const QString &name, const QString &value)
{
    commandTimer.stop();
    WINDOW_LOG << "trigger change " << name << " to " << value;
    pendingChanges.append(name);
    commandTimer.start();
}

void CommandQueue::sendLatestCommand()
{
    if (!serial.isConnected()) {
        pendingChanges.clear();
    }
    WINDOW_LOG << "Preparing to send latest command";
    if (pendingChanges.isEmpty()) {
        return;
    }
    mergeRepeatsOfFirst();
    const QString name = pendingChanges.first();
    const QString bareCommand = settings.getCommandString(name);
    const SettingSpec *setting = SettingSpecs::find(name);
    if (bareCommand.isEmpty() || setting == nullptr) {
        info.show(InfoColour::Failure, QStringLiteral("Unknown Setting"));
        return; // the name stays in front until the next change restarts the timer
    }
    const QString command = Announcement::paddedCommand(*setting, bareCommand);
    WINDOW_LOG << "going to change " << name << " using string " << command;
    const QString value = Announcement::value(*setting, settings);
    WINDOW_LOG << value;
    info.show(InfoColour::Progress, Announcement::text(*setting, value), Topic::setting(name));
    serial.sendCommand(command);
    noteSent(name);
    commandInFlight = true;
    pendingChanges.removeFirst();
    if (!pendingChanges.isEmpty()) {
        commandTimer.start();
    }
}

/// Only a repeat of the first name makes the list unique; others are merged when they come to the
/// front.
void CommandQueue::mergeRepeatsOfFirst()
{
    if (pendingChanges.count(pendingChanges.first()) < 2) {
        return;
    }
    WINDOW_LOG << "Have duplicates, going to uniquify : " << LoggedTexts{pendingChanges};
    pendingChanges.removeDuplicates();
    WINDOW_LOG << "result is " << LoggedTexts{pendingChanges};
}

void CommandQueue::noteSent(const QString &key)
{
    ledger.sent(key, clock.elapsed());
    watchOldest();
}

QString CommandQueue::takeAnswered()
{
    const QString key = ledger.answered();
    watchOldest();
    return key;
}

void CommandQueue::forgetSent()
{
    commandInFlight = false;
    ledger.clear();
    ledgerTimer.stop();
}

void CommandQueue::watchOldest()
{
    const qint64 left = ledger.untilNext(clock.elapsed());
    if (left < 0) {
        ledgerTimer.stop();
    } else {
        ledgerTimer.start(static_cast<int>(left));
    }
}

void CommandQueue::giveUpOverdue()
{
    const QStringList keys = ledger.giveUp(clock.elapsed());
    watchOldest();
    for (const QString &key : keys) {
        if (!key.isEmpty()) {
            emit unanswered(key);
        }
    }
}
