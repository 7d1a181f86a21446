// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "mainwindow.h"

#include "debuglog.h"
#include "ui_mainwindow.h"

void MainWindow::changeStringSetting(const QString &name, const QString &value)
{
    DEBUG_LOG << "Triggering";
    if (settings.changeSetting(name, value) >= 0.0F) {
        triggerChange(name, value);
    } else {
        DEBUG_LOG << "Should never get here! - internal setting string is incorrect";
    }
}

void MainWindow::chooseWord(bool checked, const QString &name, const QString &word)
{
    if (checked && userEdits != 0) {
        changeStringSetting(name, word);
    }
}

/// Auto and Shallow take the manual settings out of the operator's hands.
void MainWindow::chooseMode(bool checked, Channel &channel, const QString &mode)
{
    if (!checked || userEdits == 0) {
        return;
    }
    changeStringSetting(channel.key("SounderMode"), mode);
    if (mode == QLatin1String("Manual")) {
        *channel.modeLocked = false;
    } else if (mode == QLatin1String("Auto") || channel.detectValue->isEnabled()) {
        *channel.modeLocked = true;
    }
    updateControls();
}

/// A dual unit in shallow mode pings on its high channel alone; the low one rests meanwhile. Low
/// shallow has no such effect on the high channel.
void MainWindow::followHighShallow(bool shallow)
{
    if (userEdits == 0 || deviceType != QLatin1String("DUAL")) {
        return;
    }
    setChildrenDisabled(low.enableColumn, shallow);
    if (shallow) {
        lowDisabled = true;
    } else if (low.enable->isChecked()) {
        lowDisabled = false;
    }
    updateControls();
}

/// A channel is switched at once, past the queue: the transducer must stop pinging when asked to.
void MainWindow::switchChannel(bool checked, Channel &channel, bool on, const QString &announcement,
                               const char *command)
{
    if (!checked || userEdits == 0) {
        return;
    }
    setInfoText(announcement);
    serial.sendCommand(command);
    *channel.disabled = !on;
    if (on && !channel.manual->isChecked()) {
        *channel.modeLocked = true;
    }
    updateControls();
}

void MainWindow::on_formatComboBox_currentTextChanged(const QString &format)
{
    if (userEdits != 0) {
        changeStringSetting("format", format);
        formatLocked = format.contains(QLatin1String("KESTROLA"));
        updateControls();
    }
}

void MainWindow::on_newBaudComboBox_currentTextChanged(const QString &rate)
{
    chooseWord(true, "baud", rate);
}

void MainWindow::on_highShallowRadio_toggled(bool checked)
{
    chooseMode(checked, high, "Shallow");
    followHighShallow(checked);
}

// clang-format off
void MainWindow::on_enableHF_toggled(bool checked) { switchChannel(checked, high, true, "Enabling High Frequency", Protocol::Command::enableHighFrequency); }
void MainWindow::on_disableHF_toggled(bool checked) { switchChannel(checked, high, false, "Disabling HF", Protocol::Command::disableHighFrequency); }
void MainWindow::on_enableLF_toggled(bool checked) { switchChannel(checked, low, true, "Enabling Low Frequency", Protocol::Command::enableLowFrequency); }
void MainWindow::on_disableLF_toggled(bool checked) { switchChannel(checked, low, false, "Disabling LF", Protocol::Command::disableLowFrequency); }

void MainWindow::on_highAutoRadio_toggled(bool checked) { chooseMode(checked, high, "Auto"); }
void MainWindow::on_highManualRadio_toggled(bool checked) { chooseMode(checked, high, "Manual"); }
void MainWindow::on_lowShallowRadio_toggled(bool checked) { chooseMode(checked, low, "Shallow"); }
void MainWindow::on_lowAutoRadio_toggled(bool checked) { chooseMode(checked, low, "Auto"); }
void MainWindow::on_lowManualRadio_toggled(bool checked) { chooseMode(checked, low, "Manual"); }

void MainWindow::on_highOffTvg_toggled(bool checked) { chooseWord(checked, high.key("TVG"), "OFF"); }
void MainWindow::on_highLog10Tvg_toggled(bool checked) { chooseWord(checked, high.key("TVG"), "Log 10"); }
void MainWindow::on_highLog20Tvg_toggled(bool checked) { chooseWord(checked, high.key("TVG"), "Log 20"); }

void MainWindow::on_lowOffTvg_toggled(bool checked) { chooseWord(checked, low.key("TVG"), "OFF"); }
void MainWindow::on_lowLog10Tvg_toggled(bool checked) { chooseWord(checked, low.key("TVG"), "Log 10"); }
void MainWindow::on_lowLog20Tvg_toggled(bool checked) { chooseWord(checked, low.key("TVG"), "Log 20"); }
// clang-format on
