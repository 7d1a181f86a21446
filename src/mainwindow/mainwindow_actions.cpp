// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "mainwindow.h"

#include "debuglog.h"
#include "firmwareupdater.h"
#include "ui_mainwindow.h"
#include "windowplace.h"

#include <QMessageBox>
#include <QProcess>

void MainWindow::resetToFactory()
{
    QMessageBox question(
        QMessageBox::Question, "Reset Settings",
        "This will reset the TAL-VERO settings to factory default, discarding your "
        "changes. Are you sure you'd like to proceed?",
        QMessageBox::Yes | QMessageBox::Cancel, this);
    question.setDefaultButton(QMessageBox::Cancel); // a Return pressed in a hurry resets nothing
    question.setEscapeButton(QMessageBox::Cancel);
    const int answer = question.exec();
    if (answer == QMessageBox::Cancel) {
        DEBUG_LOG_AS("on_resetSettings_clicked") << "Cancel was clicked";
    } else if (answer == QMessageBox::Yes) {
        DEBUG_LOG_AS("on_resetSettings_clicked") << "Yes was clicked";
        if (session.state() == SessionState::Offline) {
            return; // lost while the question stood: the info line says so, and goes on to
        }
        session.sendAtOnce("Sending Factory Reset to Device", Protocol::Command::factoryReset,
                           Topic::factoryReset());
    }
}

void MainWindow::updateFirmware()
{
    const char *obstacle = nullptr;
    if (session.state() == SessionState::Offline) {
        obstacle = "Connect to the TAL-VERO before updating the firmware.";
    } else if (!session.choices().rate.contains(QLatin1String("9600"))) {
        obstacle = "Set the TAL-VERO baud rate to 9600 before updating the firmware.";
    }
    if (obstacle != nullptr) {
        QMessageBox::information(this, "Firmware update", obstacle);
        return;
    }
    pressConnect(); // disconnects: the updater needs the port
    const QString port = session.choices().port;
    DEBUG_LOG_AS("on_BootloadButton_clicked")
        << "Starting Process" << firmwareUpdaterPath() << port;
    if (!QProcess::startDetached(firmwareUpdaterPath(), {port})) {
        session.info().show(InfoColour::Failure, "Could Not Start The Firmware Updater");
    }
}

void MainWindow::toggleFooter()
{
    const bool nowShown = ui->widget_40->isHidden();
    ui->widget_40->setVisible(nowShown);
    ui->scrollAreaWidgetContents->setMinimumHeight(nowShown ? 800 : 600);
    if (nowShown) {
        ui->widget_40->setMinimumHeight(ui->BootloadButton->isHidden() ? 80 : 100);
    }
}

void MainWindow::showHelp(const QString &topic)
{
    info.showTopic(topic);
    placeBesideOwner(info, *this);
    info.show();
    info.raise();
    info.activateWindow();
}
