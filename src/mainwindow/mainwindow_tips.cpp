// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "mainwindow.h"

#include "fieldtips.h"
#include "stepbuttons.h"
#include "ui_mainwindow.h"

namespace {

void tellRangesOf(const NumberField &field, const StepButtons &buttons, bool imperial,
                  ControlTips &tips)
{
    tips.setOwn(buttons.down, stepToolTip(field, imperial));
    tips.setOwn(buttons.up, stepToolTip(field, imperial));
    if (field.edit != nullptr) {
        tips.setOwn(field.edit, rangeToolTip(field, imperial));
    }
}

} // namespace

void MainWindow::explainLocks(const ControlRules::Locks &locks)
{
    for (QWidget *control :
         {static_cast<QWidget *>(ui->portComboBox), static_cast<QWidget *>(ui->baudComboBox),
          static_cast<QWidget *>(ui->imperialRadio), static_cast<QWidget *>(ui->metricRadio)}) {
        tips.lock(control, lockReason(locks.connection));
    }
    QWidget *const deviceControls[] = {
        ui->commonHolder,  ui->commonSettingsInfo,   ui->formatComboBox,
        ui->resetSettings, ui->saveSettingsToDevice, ui->openGraph,
    };
    for (QWidget *control : deviceControls) {
        tips.lock(control, lockReason(locks.device));
    }
    tips.lock(ui->newBaudComboBox, lockReason(locks.outputRate));
    high.explain(locks.high, tips);
    low.explain(locks.low, tips);
}

void MainWindow::tellRanges(bool imperial)
{
    for (const NumberField *field : {&common.pings, &common.velocity, &common.maxDepth}) {
        tellRangesOf(*field, stepButtonsOf(*this, *field), imperial, tips);
    }
    for (const ChannelPane *pane : {&high, &low}) {
        for (const NumberField *field : pane->fields()) {
            tellRangesOf(*field, stepButtonsOf(*this, *field), imperial, tips);
        }
    }
}
