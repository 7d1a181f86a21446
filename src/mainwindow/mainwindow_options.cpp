// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "mainwindow.h"

#include "marks.h"
#include "numbertext.h"
#include "outputformat.h"
#include "ui_mainwindow.h"
#include "units.h"

#include <QLineEdit>
#include <QRadioButton>
#include <QSlider>

namespace {

/// The texts that stand in the window right after the unit was chosen. They are starting texts, not
/// conversions: the device's values come with its next settings reply.
struct StartingTexts
{
    const char *velocity;
    const char *maxDepth;
    ChannelPane::StartingTexts channel;
};

constexpr StartingTexts metricTexts = {"1500", "30", {"m", "0.40", "0.00", "0.45", "0.45 m"}};
constexpr StartingTexts imperialTexts = {"4856", "100", {"ft", "1.00", "0.00", "1.00", "1.0 ft"}};

/// Positions of the blanking sliders: hundredths of the shown unit. The low channel begins higher.
struct BlankingRange
{
    int highest;
    int lowestOfHigh;
    int lowestOfLow;
};

constexpr BlankingRange metricRange = {1000, 30, 50};
constexpr BlankingRange imperialRange = {3000, 100, 200};

} // namespace

/// Auto and Shallow take the manual settings out of the operator's hands; Shallow only on a channel
/// that is on.
void MainWindow::chooseMode(bool checked, ChannelPane &pane, const QString &mode)
{
    if (!checked || editor.isPaused()) {
        return;
    }
    editor.changeStringSetting(pane.key("SounderMode"), mode);
    const bool isOn = session.state() == SessionState::Connected && !pane.state.isOff();
    if (mode == QLatin1String("Manual")) {
        pane.state.automatic = false;
    } else if (mode == QLatin1String("Auto") || isOn) {
        pane.state.automatic = true;
    }
    updateControls();
}

/// A dual unit in shallow mode pings on its high channel alone; the low one rests meanwhile. Low
/// shallow has no such effect on the high channel.
void MainWindow::followHighShallow(bool shallow)
{
    if (editor.isPaused() || fit != Protocol::ChannelFit::Dual) {
        return;
    }
    low.state.switchHeld = shallow;
    if (shallow) {
        low.state.resting = true;
    } else if (low.enable->isChecked()) {
        low.state.wake();
    } else if (low.state.resting) {
        low.state.sleep(); // it was off before it rested
    }
    updateControls();
}

/// A channel is switched at once, past the queue: the transducer must stop pinging when asked to.
void MainWindow::switchChannel(bool checked, ChannelPane &pane, bool on,
                               const QString &announcement, const char *command)
{
    if (!checked || editor.isPaused()) {
        return;
    }
    session.sendAtOnce(announcement, command, {}, pane.switchKey());
    if (on) {
        pane.state.wake();
        pane.state.automatic = pane.state.automatic || !pane.manual->isChecked();
    } else {
        pane.state.switchedOn = false;
    }
    updateControls();
}

void MainWindow::chooseFormat(const QString &format)
{
    if (editor.isPaused()) {
        return;
    }
    editor.changeStringSetting("format", format);
    const OutputFormat *chosen = OutputFormats::find(format);
    common.formatFixesOptions = chosen != nullptr && chosen->fixesOptions();
    updateControls();
}

void MainWindow::changeMaxDepth(int direction)
{
    editor.step(common.maxDepth, direction);
    const float shown = NumberText::toFloat(common.maxDepth.edit->text());
    emit setMaxDepth(Units::metric(shown, settings.isImperial()));
}

void MainWindow::setImperialDisplay(bool imperial)
{
    const SettingEditor::Pause paused(editor);
    const StartingTexts &texts = imperial ? imperialTexts : metricTexts;
    const QString unit = texts.channel.unit;
    emit goToImperial(imperial);
    ui->soundVelocityLabel->setText("Sound Velocity (" + unit + "/s)");
    ui->maxDepthLabel->setText("Max Depth (" + unit + ")");
    ui->soundVelocityEdit->setText(texts.velocity);
    ui->maxDepthEdit->setText(texts.maxDepth);
    high.showStartingTexts(texts.channel);
    low.showStartingTexts(texts.channel);
    for (QLineEdit *edit : findChildren<QLineEdit *>()) {
        Marks::settled(edit);
    }

    const BlankingRange &range = imperial ? imperialRange : metricRange;
    high.blanking.slider->setRange(range.lowestOfHigh, range.highest);
    low.blanking.slider->setRange(range.lowestOfLow, range.highest);
    tellRanges(imperial);
}
