// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "mainwindow.h"

#include "ui_mainwindow.h"

#include <QPointer>

namespace {

/// Qt drops the focus of a control that is switched off with all that is around it: the operator's
/// next keys would go nowhere.
void placeLostFocus(const QWidget &window, const Ui::MainWindow &form, bool isConnected)
{
    if (!isConnected) {
        form.connectToDevice->setFocus(); // what is done next
    } else if (window.focusWidget() == nullptr) {
        form.h->setFocus();
    }
}

} // namespace

ControlRules::State MainWindow::controlState() const
{
    return {session.state(), high.state, low.state, common.formatFixesOptions};
}

void MainWindow::updateControls() { allow(ControlRules::locks(controlState())); }

void MainWindow::allow(const ControlRules::Locks &locks)
{
    using ControlRules::CommonGroup;
    const ControlRules::Usable usable = ControlRules::usable(locks);
    const QPointer<QWidget> focused = focusWidget();
    const bool isConnected = usable.common.testFlag(CommonGroup::Device);
    QWidget *const connectionControls[] = {ui->portComboBox, ui->baudComboBox, ui->imperialRadio,
                                           ui->metricRadio};
    for (QWidget *control : connectionControls) {
        control->setEnabled(usable.common.testFlag(CommonGroup::Connection));
    }
    QWidget *const deviceControls[] = {
        ui->commonHolder,   ui->commonSettingsInfo, ui->highFreqTab,          ui->lowFreqTab,
        ui->formatComboBox, ui->resetSettings,      ui->saveSettingsToDevice, ui->openGraph,
    };
    for (QWidget *control : deviceControls) {
        control->setEnabled(isConnected);
    }
    ui->newBaudComboBox->setEnabled(usable.common.testFlag(CommonGroup::OutputRate));
    if (isConnected) {
        ui->newBaudLabel->setDisabled(common.formatFixesOptions);
    }
    ui->temperatureLabel->clear();
    session.forgetStatus();
    high.allow(usable.high);
    low.allow(usable.low);
    if (low.state.isOff()) {
        low.depth->clear();
    }
    ui->label_30->setEnabled(false);
    explainLocks(locks);
    if (focused != nullptr && !focused->isEnabled()) {
        placeLostFocus(*this, *ui, isConnected);
    }
}
