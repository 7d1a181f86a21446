// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "mainwindow.h"

#include "debuglog.h"
#include "numbertext.h"
#include "ui_mainwindow.h"
#include "units.h"

#include <algorithm>

namespace {

/// What the depth graph is told for a channel that is switched off.
constexpr float switchedOff = 1000.0F;

QString depthText(const char *prefix, float metres, bool imperial)
{
    return prefix + NumberText::fixed(Units::shown(metres, imperial), 2);
}

} // namespace

void MainWindow::parseDepth(const QString &line)
{
    const bool nmeaCarriesLow = !ui->enableHF->isChecked() && ui->enableLF->isChecked();
    const DepthSentence::Depths depths = DepthSentence::read(
        line, {nmeaCarriesLow, ui->formatComboBox->currentText(), lastHfDepth, lastLfDepth});
    if (depths.form == DepthSentence::Form::SingleLow) {
        DEBUG_LOG << "length is " << line.length();
    }
    noteSentence(depths);
    if (depths.high < 0.0F && depths.low < 0.0F) {
        if (!ui->enableLF->isChecked()) {
            ui->lowDepthLabel->clear();
        }
        return;
    }
    emit gotDepths(highDisabled ? switchedOff : depths.high,
                   lowDisabled ? switchedOff : depths.low);
    if (line.contains(QLatin1String("$SDDB"))) {
        showNmeaDepth(line, depths, nmeaCarriesLow);
    } else {
        showDepth(high, "HF Depth: ", depths.high);
        showDepth(low, "LF Depth: ", depths.low);
    }
}

/// What a sentence leaves behind besides the depths that it shows.
void MainWindow::noteSentence(const DepthSentence::Depths &depths)
{
    using namespace DepthSentence;
    if (depths.emptied != Emptied::None) {
        (depths.emptied == Emptied::Low ? low : high).depth->clear();
    }
    if (depths.form == Form::DesoHigh) {
        lastHfDepth = depths.high;
    } else if (depths.form == Form::DesoLow) {
        lastLfDepth = depths.low;
    }
}

void MainWindow::showDepth(Channel &channel, const char *prefix, float metres)
{
    if (*channel.disabled || metres < 0.0F) {
        channel.depth->clear();
    } else {
        channel.depth->setText(depthText(prefix, metres, imperial));
    }
}

/// An NMEA sentence carries one depth, whichever channel it is; the second label tells when it is
/// measured from the transducer and not from the surface. (One that noise has given the marks of
/// another form may hold two: the one that the first label names is shown, if it is there.)
void MainWindow::showNmeaDepth(const QString &line, const DepthSentence::Depths &depths, bool isLow)
{
    const float named = isLow ? depths.low : depths.high;
    const float metres = named < 0.0F ? std::max(depths.high, depths.low) : named;
    ui->highDepthLabel->setText(depthText(isLow ? "LF Depth: " : "HF Depth: ", metres, imperial));
    ui->lowDepthLabel->setText(line.contains(QLatin1String("$SDDBT")) ? "(Depth Below Transducer)"
                                                                      : "");
}
