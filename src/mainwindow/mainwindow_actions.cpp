// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "mainwindow.h"

#include "debuglog.h"
#include "firmwareupdater.h"
#include "settingsfilename.h"
#include "ui_mainwindow.h"

#include <QFileDialog>
#include <QMessageBox>
#include <QProcess>

void MainWindow::on_resetSettings_clicked()
{
    const auto answer = QMessageBox::question(
        this, "Reset Settings",
        "This will reset the TAL-VERO settings to factory default, discarding your changes. Are "
        "you sure you'd like to proceed?",
        QMessageBox::Yes | QMessageBox::Cancel);
    if (answer == QMessageBox::Cancel) {
        DEBUG_LOG << "Cancel was clicked";
    } else if (answer == QMessageBox::Yes) {
        DEBUG_LOG << "Yes was clicked";
        setInfoText("Sending Factory Reset to Device");
        serial.sendCommand(Protocol::Command::factoryReset);
    }
}

void MainWindow::on_saveSettingsToDevice_clicked()
{
    setInfoText("Sending Save Command to Device");
    serial.sendCommand(Protocol::Command::saveSettings);
}

/// Ends at choosing the name: settings files are not part of this program.
void MainWindow::on_saveSettings_clicked()
{
    QFileDialog neverShown(this);
    neverShown.setWindowTitle("Save Settings");
    neverShown.setDefaultSuffix(".xml");
    neverShown.setAcceptMode(QFileDialog::AcceptOpen);
    [[maybe_unused]] const QString name = settingsFileName(QFileDialog::getSaveFileName(
        this, "Save Settings to File", QString(), "XML files (*.xml)"));
}

void MainWindow::on_importButton_clicked()
{
    if (!QFileDialog::getOpenFileName(this, "Open File").isEmpty()) {
        DEBUG_LOG << "got here";
    }
}

void MainWindow::on_autoSave_toggled(bool selected)
{
    autoSave = selected;
    DEBUG_LOG << "Autosave is " << autoSave;
}

void MainWindow::on_BootloadButton_clicked()
{
    const char *obstacle = nullptr;
    if (!connectButtonState) {
        obstacle = "Connect to the TAL-VERO before updating the firmware.";
    } else if (!ui->baudComboBox->currentText().contains(QLatin1String("9600"))) {
        obstacle = "Set the TAL-VERO baud rate to 9600 before updating the firmware.";
    }
    if (obstacle != nullptr) {
        QMessageBox::information(this, "Firmware update", obstacle);
        return;
    }
    on_connectToDevice_clicked(); // disconnects: the updater needs the port
    const QString port = ui->portComboBox->currentText();
    DEBUG_LOG << "Starting Process" << firmwareUpdaterPath() << port;
    QProcess::startDetached(firmwareUpdaterPath(), {port});
}

void MainWindow::showHelp(const QString &topic)
{
    info.showTopic(topic);
    info.show();
    info.raise();
    info.activateWindow();
}

// clang-format off
void MainWindow::on_selectRateInfo_clicked() { showHelp("Port and Rate"); }
void MainWindow::on_commonSettingsInfo_clicked() { showHelp("Common Settings"); }

void MainWindow::on_highModeInfo_clicked() { showHelp("Echo Sounder Mode"); }
void MainWindow::on_highTVGInfo_clicked() { showHelp("Time Variable Gain"); }
void MainWindow::on_highInputsInfo_clicked() { showHelp("HF Setup"); }
void MainWindow::on_highDetectInfo_clicked() { showHelp("Detect Threshold"); }
void MainWindow::on_highPulseInfo_clicked() { showHelp("HF Pulse Cycles"); }
void MainWindow::on_highGainInfo_clicked() { showHelp("Gain"); }
void MainWindow::on_highEnableInfo_clicked() { showHelp("Enable/Disable"); }
void MainWindow::on_lowModeInfo_clicked() { showHelp("Echo Sounder Mode"); }
void MainWindow::on_lowTVGInfo_clicked() { showHelp("Time Variable Gain"); }
void MainWindow::on_lowInputsInfo_clicked() { showHelp("LF Setup"); }
void MainWindow::on_lowDetectInfo_clicked() { showHelp("Detect Threshold"); }
void MainWindow::on_lowPulseInfo_clicked() { showHelp("LF Pulse Cycles"); }
void MainWindow::on_lowGainInfo_clicked() { showHelp("Gain"); }
void MainWindow::on_lowEnableInfo_clicked() { showHelp("Enable/Disable"); }
// clang-format on
