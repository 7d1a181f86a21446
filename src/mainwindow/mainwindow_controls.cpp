// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "mainwindow.h"

#include "ui_mainwindow.h"

#include <QPointer>

void MainWindow::setChildrenDisabled(QWidget *widget, bool disabled)
{
    const QList<QWidget *> descendants = widget->findChildren<QWidget *>();
    for (QWidget *descendant : descendants) {
        descendant->setDisabled(disabled);
    }
}

void MainWindow::updateControls()
{
    const QPointer<QWidget> focused = focusWidget();
    QWidget *const connectionControls[] = {ui->portComboBox, ui->baudComboBox, ui->imperialRadio,
                                           ui->metricRadio};
    for (QWidget *control : connectionControls) {
        control->setEnabled(offline);
    }
    QWidget *const deviceControls[] = {
        ui->commonHolder,  ui->commonSettingsInfo,   ui->highFreqTab,
        ui->lowFreqTab,    ui->newBaudComboBox,      ui->formatComboBox,
        ui->resetSettings, ui->saveSettingsToDevice, ui->openGraph,
    };
    for (QWidget *control : deviceControls) {
        control->setEnabled(!offline);
    }
    ui->temperatureLabel->clear();
    for (Channel *channel : {&high, &low}) {
        updateChannelControls(*channel);
    }
    if (lowDisabled) {
        ui->lowDepthLabel->clear();
    }
    ui->label_30->setEnabled(false);
    if (!offline) {
        lockForFormat();
    }
    if (focused != nullptr && !focused->isEnabled()) {
        placeLostFocus();
    }
}

/// Qt drops the focus of a control that is switched off with all that is around it: the operator's
/// next keys would go nowhere.
void MainWindow::placeLostFocus()
{
    if (offline) {
        ui->connectToDevice->setFocus(); // what is done next
    } else if (focusWidget() == nullptr) {
        ui->h->setFocus();
    }
}

void MainWindow::updateChannelControls(Channel &channel)
{
    for (QWidget *area : {channel.modeColumn, channel.tvgColumn, channel.lowerPart}) {
        setChildrenDisabled(area, *channel.disabled);
    }
    setChildrenDisabled(channel.manualGroup, *channel.modeLocked || *channel.disabled);
}

/// The KESTROLA format fixes the device's rate, modes and gain law. The format list itself stays
/// usable, or the operator could never leave that format.
void MainWindow::lockForFormat()
{
    setChildrenDisabled(ui->outputRateHolder, formatLocked);
    ui->newBaudComboBox->setDisabled(formatLocked);
    for (Channel *channel : {&high, &low}) {
        if (!*channel->disabled) {
            setChildrenDisabled(channel->modeColumn, formatLocked);
            setChildrenDisabled(channel->tvgColumn, formatLocked);
        }
    }
}
