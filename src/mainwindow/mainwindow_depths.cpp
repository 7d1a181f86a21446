// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "mainwindow.h"

#include "devicelabels.h"
#include "marks.h"

#include <QLabel>
#include <QRadioButton>

void MainWindow::parseDepth(const QString &line)
{
    SoundingContext context;
    context.highEnabled = high.enable->isChecked();
    context.lowEnabled = low.enable->isChecked();
    context.highIsOff = high.state.isOff();
    context.lowIsOff = low.state.isOff();
    context.outputFormat = session.choices().format;
    context.imperial = settings.isImperial();
    const SoundingView view = soundings.parseDepth(line, context);
    if (view.depths) {
        showDepthsAlive(true);
        emit gotDepths(view.depths->high, view.depths->low);
    }
    if (view.highText) {
        high.depth->setText(*view.highText);
    }
    if (view.lowText) {
        showLowDepth(*low.depth, *view.lowText);
    }
}

/// The depths of a link that is gone keep their text, but must not look alive.
void MainWindow::showDepthsAlive(bool alive)
{
    Marks::setAlive(high.depth, alive);
    Marks::setAlive(low.depth, alive);
    graph.showAlive(alive);
}
