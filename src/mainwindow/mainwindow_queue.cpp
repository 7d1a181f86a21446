// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "mainwindow.h"

#include "debuglog.h"
#include "numbertext.h"
#include "units.h"

namespace {

constexpr int commandLength = 8;

/// How a setting's value stands in its announcement: by the first row whose word the key contains.
struct ValueForm
{
    const char *word;
    bool convertible; ///< a length or speed, shown in the operator's unit
    int decimals;
    const char *metricSuffix;
    const char *imperialSuffix;
};

constexpr ValueForm valueForms[] = {
    {"Freq", false, 0, " kHz", " kHz"}, {"Gain", false, 0, "%", "%"},
    {"Detect", false, 0, "%", "%"},     {"Vel", true, 0, " m/s", " ft/s"},
    {"Draft", true, 2, " m", " ft"},    {"Index", true, 2, " m", " ft"},
    {"Blank", true, 2, " m", " ft"},    {"Depth", true, 0, " m", " ft"},
};

/// A command as long as the device reads it, with the channel in its eighth place. One that fills
/// that place itself goes out as it is.
QString paddedForChannel(QString command, const QString &name)
{
    if (command.size() >= commandLength) {
        return command;
    }
    command = command.leftJustified(commandLength, QLatin1Char('.'));
    const int channelAt = commandLength - 1;
    if (name.contains(QLatin1String("high"))) {
        command[channelAt] = QLatin1Char('H');
    }
    if (name.contains(QLatin1String("low"))) {
        command[channelAt] = QLatin1Char('L');
    }
    return command;
}

} // namespace

void MainWindow::triggerChange(const QString &name, const QString &value)
{
    commandTimer.stop();
    DEBUG_LOG << "trigger change " << name << " to " << value;
    pendingChanges.append(name);
    commandTimer.start();
}

void MainWindow::sendLatestCommand()
{
    if (!serial.isConnected()) {
        pendingChanges.clear();
    }
    DEBUG_LOG << "Preparing to send latest command";
    if (pendingChanges.isEmpty()) {
        return;
    }
    mergeRepeatsOfFirst();
    const QString name = pendingChanges.first();
    const QString bareCommand = settings.getCommandString(name);
    if (bareCommand.isEmpty()) {
        setInfoText(InfoColour::failure, QStringLiteral("Unknown Setting"));
        return; // the name stays in front until the next change restarts the timer
    }
    const QString command = paddedForChannel(bareCommand, name);
    DEBUG_LOG << "going to change " << name << " using string " << command;
    const QString value = announcedValue(name);
    DEBUG_LOG << value;
    setInfoText("Setting " + settings.getPrettyString(name) + " to " + value);
    serial.sendCommand(command);
    commandInFlight = true;
    pendingChanges.removeFirst();
    if (!pendingChanges.isEmpty()) {
        commandTimer.start();
    }
}

/// Only a repeat of the first name makes the list unique; others are merged when they come to the
/// front. The value sent is whatever the settings hold then, so one command for all repeats is
/// enough.
void MainWindow::mergeRepeatsOfFirst()
{
    if (pendingChanges.count(pendingChanges.first()) < 2) {
        return;
    }
    DEBUG_LOG << "Have duplicates, going to uniquify : " << pendingChanges;
    pendingChanges.removeDuplicates();
    DEBUG_LOG << "result is " << pendingChanges;
}

QString MainWindow::announcedValue(const QString &name) const
{
    for (const ValueForm &form : valueForms) {
        if (!name.contains(QLatin1String(form.word))) {
            continue;
        }
        const QString suffix = imperial ? form.imperialSuffix : form.metricSuffix;
        const QString number =
            form.convertible ? NumberText::fixed(Units::shown(settings.getSetting(name), imperial),
                                                 form.decimals)
                             : settings.getSettingString(name);
        return number + suffix;
    }
    return settings.getSettingString(name);
}
