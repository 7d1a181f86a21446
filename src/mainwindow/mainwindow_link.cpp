// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "mainwindow.h"

#include "debuglog.h"
#include "ui_mainwindow.h"

#include <QMessageBox>

namespace {

constexpr char noPortChosen[] = "Select Port";
constexpr char noRateChosen[] = "Select Rate";
constexpr char searchRates[] = "Auto";
constexpr char lastRate[] = "115200";

void showError(QWidget *parent, const char *text)
{
    QMessageBox::information(parent, QStringLiteral("Error"), text, QMessageBox::Ok);
}

} // namespace

QStringList MainWindow::rateChoices() const
{
    return QStringList{noRateChosen, searchRates} + settings.baudList();
}

void MainWindow::updateSerialPorts()
{
    const QString chosen = ui->portComboBox->currentText();
    const QStringList found = listPorts();
    if (found == knownPorts) {
        return; // an open list and the operator's choice stay undisturbed
    }
    knownPorts = found;
    ui->portComboBox->clear();
    ui->portComboBox->addItem(noPortChosen);
    ui->portComboBox->addItems(found);
    if (found.contains(chosen)) {
        ui->portComboBox->setCurrentText(chosen);
    }
}

void MainWindow::setConnectButton(bool connected)
{
    connectButtonState = connected;
    ui->connectToDevice->setText(connected ? "Disconnect" : "Connect   ");
    ui->connectToDevice->setIcon(QIcon(connected ? ":/resourcefiles/images/connected.png"
                                                 : ":/resourcefiles/images/not_connected.png"));
    if (connected) {
        portScanTimer.stop();
    } else {
        portScanTimer.start();
    }
}

void MainWindow::on_connectToDevice_clicked()
{
    if (serial.isConnected() || connecting || autoBaud) {
        disconnectFromDevice();
        return;
    }
    if (ui->portComboBox->currentText() == noPortChosen ||
        ui->baudComboBox->currentText() == noRateChosen) {
        showError(this, "No Port or Rate Selected, Please select a port to connect to");
        return;
    }
    if (ui->baudComboBox->currentText() == searchRates) {
        startSearch();
    } else {
        connectAtRate();
    }
}

void MainWindow::startSearch()
{
    DEBUG_LOG << "GOING AUTO!";
    autoBaud = true;
    doAutoBaud();
    setConnectButton(true);
    serial.sendCommand(Protocol::Command::connectProbe);
    answerTimer.start();
}

void MainWindow::connectAtRate()
{
    if (!openLink(ui->portComboBox->currentText(), ui->baudComboBox->currentText())) {
        showError(this, "Could Not Open Serial Port. Please unplug device then try again.");
        return;
    }
    DEBUG_LOG << "Opened Serial Port";
    serial.sendCommand(Protocol::Command::connectProbe);
    setInfoText(QStringLiteral("Connecting to Device"));
    connecting = true;
    answerTimer.start();
    setConnectButton(true);
}

void MainWindow::disconnectFromDevice()
{
    DEBUG_LOG << "disconnecting from device";
    closeLink();
    connecting = false;
    autoBaud = false;
    setConnectButton(false);
    setInfoText(QString());
    goOffline();
}

bool MainWindow::openLink(const QString &port, const QString &rate)
{
    serial.portName = port;
    serial.baudRate = rate;
    return serial.openPort();
}

/// Closes the port and forgets what was awaited from it: neither this silence nor an old command's
/// answer may speak into the next connection.
void MainWindow::closeLink()
{
    serial.closePort();
    answerTimer.stop();
    commandInFlight = false;
}

/// Tries the next rate of the list. False when there is none left or the port does not open.
bool MainWindow::doAutoBaud()
{
    if (ui->baudComboBox->currentText() == lastRate) {
        return false;
    }
    ui->baudComboBox->setCurrentIndex(ui->baudComboBox->currentIndex() + 1);
    const QString rate = ui->baudComboBox->currentText();
    DEBUG_LOG << "current text is now " << rate;
    closeLink();
    if (!openLink(ui->portComboBox->currentText(), rate)) {
        DEBUG_LOG << "Connection failed";
        return false;
    }
    setInfoText("Trying " + rate + " baud");
    answerTimer.start();
    return true;
}

void MainWindow::goOffline()
{
    offline = true;
    updateControls();
    setConnectButton(false);
}

void MainWindow::failLink(const QString &message)
{
    goOffline();
    setInfoText(InfoColour::failure, message);
    closeLink();
}

void MainWindow::serialTimeout()
{
    DEBUG_LOG << "SERIAL TIMED OUT";
    if (commandInFlight) {
        setInfoResult(InfoColour::failure, " ... Command Timed Out");
        commandInFlight = false;
    } else if (connecting) {
        connecting = false;
        failLink(QStringLiteral("Could Not Connect To Device"));
    } else if (autoBaud) {
        if (!doAutoBaud()) {
            autoBaud = false;
            failLink(QStringLiteral("Could Not Connect To Device"));
        }
    } else if (resizeTimer.isActive()) {
        // A window being resized may have held up the event loop, not the device the answer.
        DEBUG_LOG << "Ignoring serial timeout because timer is active";
    } else {
        failLink(QStringLiteral("Lost Connection To Device"));
    }
}

void MainWindow::connectionFailed() { DEBUG_LOG << "connection failed!"; }

void MainWindow::connectionSucceeded() { DEBUG_LOG << "connection succeeded!"; }
