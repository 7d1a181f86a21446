// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "mainwindow.h"

#include "debuglog.h"
#include "numbertext.h"
#include "ui_mainwindow.h"
#include "units.h"

namespace {

/// Steps of the buttons beside the sliders, in slider positions.
constexpr int pulseStep = 1;
constexpr int gainStep = 5;
constexpr int detectStep = 1;
constexpr int blankingStep = 10;

/// The lowest position that a dragged blanking slider keeps. It is the same for both channels,
/// although the low channel's slider begins higher.
constexpr int lowestMetricBlanking = 30;
constexpr int lowestImperialBlanking = 100;

/// The blanking at the right end of the slider, in the shown unit.
constexpr float metricBlankingSpan = 10.0F;
constexpr float imperialBlankingSpan = 30.0F;

constexpr float positionsPerUnit = 100.0F;

bool holds(const QString &name, const char *word) { return name.contains(QLatin1String(word)); }

/// What stands beside a slider for a stored value.
QString sliderText(const QString &name, float value)
{
    const QString number = NumberText::fromFloat(value);
    if (holds(name, "Gain") || holds(name, "Detect")) {
        return number + "%";
    }
    return holds(name, "Pulse") ? number : QString();
}

} // namespace

void MainWindow::changeSliderWithClick(QLabel *label, QSlider *slider, const QString &name,
                                       int delta)
{
    DEBUG_LOG << name;
    const int position = slider->value() + delta;
    if (position > slider->maximum() || position < slider->minimum()) {
        return; // no partial step to the limit
    }
    setSliderField(label, slider, name, position);
}

void MainWindow::setSliderField(QLabel *label, QSlider *slider, const QString &name, int position)
{
    if (userEdits == 0) {
        slider->setValue(position);
    } else if (holds(name, "Blank")) {
        changeField(label, name, static_cast<float>(position) / positionsPerUnit, imperial);
        slider->setValue(position);
    } else {
        const float result = changeField(label, name, static_cast<float>(position));
        slider->setValue(static_cast<int>(result));
    }
}

/// Gain takes every whole percent: it is not snapped to the steps of its buttons.
float MainWindow::changeField(QLabel *label, const QString &name, float value)
{
    const float res = settings.changeSetting(name, NumberText::fromFloat(value));
    DEBUG_LOG << "res is " << res;
    label->setText(sliderText(name, res));
    DEBUG_LOG << "Triggering";
    triggerChange(name, NumberText::fromFloat(res));
    return res;
}

float MainWindow::changeField(QLabel *label, const QString &name, float value, bool inImperial)
{
    const float metric = Units::metric(value, inImperial);
    const float stored = settings.changeSetting(name, NumberText::fromFloat(metric));
    const float res = Units::shown(stored, inImperial);
    if (holds(name, "Blank")) {
        channelOf(name).showBlanking(NumberText::fixed(res, 2), unitSuffix);
    } else {
        label->clear();
    }
    DEBUG_LOG << "Triggering";
    triggerChange(name, NumberText::fromFloat(res));
    return res;
}

void MainWindow::slideTo(QLabel *label, const QString &name, int position)
{
    if (userEdits != 0) {
        changeField(label, name, static_cast<float>(position));
    }
}

void MainWindow::slideBlanking(Channel &channel)
{
    if (userEdits == 0) {
        return;
    }
    const int max = channel.blankingSlider->maximum();
    int cur = channel.blankingSlider->value();
    const int lowest = imperial ? lowestImperialBlanking : lowestMetricBlanking;
    if (cur < lowest) {
        cur = lowest;
        channel.blankingSlider->setValue(cur);
    }
    const float result = static_cast<float>(cur) / static_cast<float>(max) *
                         (imperial ? imperialBlankingSpan : metricBlankingSpan);
    channel.showBlanking(NumberText::fixed(result, 2), unitSuffix);
    DEBUG_LOG << "Max is " << max << "Current is " << cur << "Result is" << result;
    changeField(channel.blanking, channel.key("Blank"), 0.0F);
}

// clang-format off

void MainWindow::on_highPulseDown_clicked() { changeSliderWithClick(high.pulseValue, high.pulseSlider, high.key("Pulse"), -pulseStep); }
void MainWindow::on_highPulseUp_clicked() { changeSliderWithClick(high.pulseValue, high.pulseSlider, high.key("Pulse"), pulseStep); }
void MainWindow::on_highPulseSlider_valueChanged(int position) { slideTo(high.pulseValue, high.key("Pulse"), position); }

void MainWindow::on_highGainDown_clicked() { changeSliderWithClick(high.gainValue, high.gainSlider, high.key("Gain"), -gainStep); }
void MainWindow::on_highGainUp_clicked() { changeSliderWithClick(high.gainValue, high.gainSlider, high.key("Gain"), gainStep); }
void MainWindow::on_highGainSlider_valueChanged(int position) { slideTo(high.gainValue, high.key("Gain"), position); }

void MainWindow::on_highDetectDown_clicked() { changeSliderWithClick(high.detectValue, high.detectSlider, high.key("Detect"), -detectStep); }
void MainWindow::on_highDetectUp_clicked() { changeSliderWithClick(high.detectValue, high.detectSlider, high.key("Detect"), detectStep); }
void MainWindow::on_highDetectSlider_valueChanged(int position) { slideTo(high.detectValue, high.key("Detect"), position); }

void MainWindow::on_highBlankDown_clicked() { changeSliderWithClick(high.blankingValue, high.blankingSlider, high.key("Blank"), -blankingStep); }
void MainWindow::on_highBlankUp_clicked() { changeSliderWithClick(high.blankingValue, high.blankingSlider, high.key("Blank"), blankingStep); }
void MainWindow::on_highBlankingSlider_valueChanged(int /*position*/) { slideBlanking(high); }

void MainWindow::on_lowPulseDown_clicked() { changeSliderWithClick(low.pulseValue, low.pulseSlider, low.key("Pulse"), -pulseStep); }
void MainWindow::on_lowPulseUp_clicked() { changeSliderWithClick(low.pulseValue, low.pulseSlider, low.key("Pulse"), pulseStep); }
void MainWindow::on_lowPulseSlider_valueChanged(int position) { slideTo(low.pulseValue, low.key("Pulse"), position); }

void MainWindow::on_lowGainDown_clicked() { changeSliderWithClick(low.gainValue, low.gainSlider, low.key("Gain"), -gainStep); }
void MainWindow::on_lowGainUp_clicked() { changeSliderWithClick(low.gainValue, low.gainSlider, low.key("Gain"), gainStep); }
void MainWindow::on_lowGainSlider_valueChanged(int position) { slideTo(low.gainValue, low.key("Gain"), position); }

void MainWindow::on_lowDetectDown_clicked() { changeSliderWithClick(low.detectValue, low.detectSlider, low.key("Detect"), -detectStep); }
void MainWindow::on_lowDetectUp_clicked() { changeSliderWithClick(low.detectValue, low.detectSlider, low.key("Detect"), detectStep); }
void MainWindow::on_lowDetectSlider_valueChanged(int position) { slideTo(low.detectValue, low.key("Detect"), position); }

void MainWindow::on_lowBlankDown_clicked() { changeSliderWithClick(low.blankingValue, low.blankingSlider, low.key("Blank"), -blankingStep); }
void MainWindow::on_lowBlankUp_clicked() { changeSliderWithClick(low.blankingValue, low.blankingSlider, low.key("Blank"), blankingStep); }
void MainWindow::on_lowBlankingSlider_valueChanged(int /*position*/) { slideBlanking(low); }

// clang-format on
