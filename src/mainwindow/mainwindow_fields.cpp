// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "mainwindow.h"

#include "debuglog.h"
#include "numbertext.h"
#include "pausededits.h"
#include "ui_mainwindow.h"
#include "units.h"

#include <algorithm>

namespace {

/// Steps of the up and down buttons, in the unit that is shown.
constexpr float countStep = 1.0F;
constexpr float velocityStep = 1.0F;
constexpr float depthStep = 5.0F;
constexpr float lengthStep = 0.1F;
constexpr float frequencyStep = 1.0F;

bool isBlanking(const QString &name) { return name.contains(QLatin1String("Blank")); }

int decimalsOf(const QString &name)
{
    for (const char *word : {"Draft", "Index", "Blank"}) {
        if (name.contains(QLatin1String(word))) {
            return 2;
        }
    }
    return 0;
}

/// The fields without a unit step plain numbers in either display. (The blanking sliders come here
/// with a length, which is converted.)
bool hasUnit(const QString &name)
{
    return !name.contains(QLatin1String("Ping")) && !name.contains(QLatin1String("Freq"));
}

/// The part of a displayed value before the point, kept well within a whole number's bounds.
int truncated(float value)
{
    constexpr float bound = 1e9F;
    return static_cast<int>(std::clamp(value, -bound, bound));
}

} // namespace

int MainWindow::changeField(QLineEdit *edit, const QString &name, float step)
{
    if (userEdits == 0) {
        return truncated(NumberText::toFloat(edit->text()));
    }
    const QString before = edit->text();
    const bool convert = imperial && hasUnit(name);
    const float next = Units::metric(NumberText::toFloat(before) + step, convert);
    DEBUG_LOG << "tmp = " << next;
    const float stored = settings.changeSetting(name, NumberText::fromFloat(next));
    const float res = Units::shown(stored, convert);
    DEBUG_LOG << "current value is " << before << " next is " << next << " res is " << res;
    DEBUG_LOG << "Triggering";
    edit->setText(NumberText::fixed(res, decimalsOf(name)));
    triggerChange(name, NumberText::fromFloat(res));
    return truncated(res);
}

int MainWindow::changeField(QLineEdit *edit, const QString &name, float step, bool /*inImperial*/)
{
    if (userEdits == 0) {
        return truncated(NumberText::toFloat(edit->text()));
    }
    const QString before = edit->text();
    const float shown = NumberText::toFloat(before) + step;
    DEBUG_LOG << "Attempted Displayed Value is  " << shown;
    const float metric = Units::metric(shown, imperial);
    DEBUG_LOG << " After Conversion to Metric this becomes " << metric;
    float res = settings.changeSetting(name, NumberText::fromFloat(metric));
    DEBUG_LOG << " After trying to change the setting in metric, we now have " << res;
    if (imperial) {
        res = Units::shown(res, imperial);
        DEBUG_LOG << " Result in Imperial is now " << res;
    }
    DEBUG_LOG << "current value is " << before << " metric is " << metric << " res is " << res;
    if (isBlanking(name)) {
        channelOf(name).showBlanking(NumberText::fixed(res, 2), unitSuffix);
    } else {
        edit->setText(NumberText::fixed(res, decimalsOf(name)));
    }
    DEBUG_LOG << "Triggering";
    triggerChange(name, NumberText::fromFloat(metric));
    return truncated(res);
}

Channel &MainWindow::channelOf(const QString &name)
{
    return name.contains(QLatin1String("high")) ? high : low;
}

void MainWindow::changeMaxDepth(float step)
{
    changeField(ui->maxDepthEdit, "Depth", step, imperial);
    emit setMaxDepth(Units::metric(NumberText::toFloat(ui->maxDepthEdit->text()), imperial));
}

/// The slider follows the typed text, not the clamped result.
void MainWindow::enterBlanking(Channel &channel)
{
    constexpr float positionsPerUnit = 100.0F;
    const float typed = NumberText::toFloat(channel.blanking->text());
    const QString name = channel.key("Blank");
    changeField(channel.blanking, name, 0.0F, imperial);
    const PausedEdits paused(*this);
    setSliderField(channel.blankingValue, channel.blankingSlider, name,
                   truncated(typed * positionsPerUnit));
}

// clang-format off
void MainWindow::on_pingDown_clicked() { changeField(ui->pingEdit, "Ping", -countStep); }
void MainWindow::on_pingUp_clicked() { changeField(ui->pingEdit, "Ping", countStep); }
void MainWindow::on_pingEdit_returnPressed() { changeField(ui->pingEdit, "Ping", 0); }

void MainWindow::on_soundVelocityDown_clicked() { changeField(ui->soundVelocityEdit, "Velocity", -velocityStep, imperial); }
void MainWindow::on_soundVelocityUp_clicked() { changeField(ui->soundVelocityEdit, "Velocity", velocityStep, imperial); }
void MainWindow::on_soundVelocityEdit_returnPressed() { changeField(ui->soundVelocityEdit, "Velocity", 0, imperial); }

void MainWindow::on_maxDepthDown_clicked() { changeMaxDepth(-depthStep); }
void MainWindow::on_maxDepthUp_clicked() { changeMaxDepth(depthStep); }
void MainWindow::on_maxDepthEdit_returnPressed() { changeMaxDepth(0); }

void MainWindow::on_highDraftDown_clicked() { changeField(high.draft, high.key("Draft"), -lengthStep, imperial); }
void MainWindow::on_highDraftUp_clicked() { changeField(high.draft, high.key("Draft"), lengthStep, imperial); }
void MainWindow::on_highDraft_returnPressed() { changeField(high.draft, high.key("Draft"), 0, imperial); }

void MainWindow::on_highIndexDown_clicked() { changeField(high.index, high.key("Index"), -lengthStep, imperial); }
void MainWindow::on_highIndexUp_clicked() { changeField(high.index, high.key("Index"), lengthStep, imperial); }
void MainWindow::on_highIndex_returnPressed() { changeField(high.index, high.key("Index"), 0, imperial); }

void MainWindow::on_highFreqDown_clicked() { changeField(high.frequency, high.key("Freq"), -frequencyStep); }
void MainWindow::on_highFreqUp_clicked() { changeField(high.frequency, high.key("Freq"), frequencyStep); }
void MainWindow::on_highFreq_returnPressed() { changeField(high.frequency, high.key("Freq"), 0); }

void MainWindow::on_highBlank_returnPressed() { enterBlanking(high); }

void MainWindow::on_lowDraftDown_clicked() { changeField(low.draft, low.key("Draft"), -lengthStep, imperial); }
void MainWindow::on_lowDraftUp_clicked() { changeField(low.draft, low.key("Draft"), lengthStep, imperial); }
void MainWindow::on_lowDraft_returnPressed() { changeField(low.draft, low.key("Draft"), 0, imperial); }

void MainWindow::on_lowIndexDown_clicked() { changeField(low.index, low.key("Index"), -lengthStep, imperial); }
void MainWindow::on_lowIndexUp_clicked() { changeField(low.index, low.key("Index"), lengthStep, imperial); }
void MainWindow::on_lowIndex_returnPressed() { changeField(low.index, low.key("Index"), 0, imperial); }

void MainWindow::on_lowFreqDown_clicked() { changeField(low.frequency, low.key("Freq"), -frequencyStep); }
void MainWindow::on_lowFreqUp_clicked() { changeField(low.frequency, low.key("Freq"), frequencyStep); }
void MainWindow::on_lowFreq_returnPressed() { changeField(low.frequency, low.key("Freq"), 0); }

void MainWindow::on_lowBlank_returnPressed() { enterBlanking(low); }

// clang-format on
