// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "mainwindow.h"

#include "pausededits.h"
#include "ui_mainwindow.h"

namespace {

/// The texts that stand in the window right after the unit was chosen. They are starting texts, not
/// conversions: the device's values come with its next settings reply.
struct StartingTexts
{
    const char *suffix;
    const char *velocity;
    const char *maxDepth;
    const char *draft;
    const char *index;
    const char *blanking;
    const char *blankingValue;
};

constexpr StartingTexts metricTexts = {"m", "1500", "30", "0.40", "0.00", "0.45", "0.45 m"};
constexpr StartingTexts imperialTexts = {"ft", "4856", "100", "1.00", "0.00", "1.00", "1.0 ft"};

/// Positions of the blanking sliders: hundredths of the shown unit. The low channel begins higher.
struct BlankingRange
{
    int highest;
    int lowestOfHigh;
    int lowestOfLow;
};

constexpr BlankingRange metricRange = {1000, 30, 50};
constexpr BlankingRange imperialRange = {3000, 100, 200};

void showStartingTexts(const Channel &channel, const StartingTexts &texts)
{
    const QString unit = QLatin1String(texts.suffix);
    channel.draftCaption->setText("Draft (" + unit + ")");
    channel.indexCaption->setText("Index (" + unit + ")");
    channel.blankingCaption->setText("Blanking (" + unit + ")");
    channel.draft->setText(texts.draft);
    channel.index->setText(texts.index);
    channel.blanking->setText(texts.blanking);
    channel.blankingValue->setText(texts.blankingValue);
}

} // namespace

void MainWindow::on_imperialRadio_toggled(bool checked)
{
    const PausedEdits paused(*this);
    setImperialDisplay(checked);
}

void MainWindow::on_metricRadio_toggled(bool checked)
{
    const PausedEdits paused(*this);
    setImperialDisplay(!checked);
}

void MainWindow::setImperialDisplay(bool inImperial)
{
    const StartingTexts &texts = inImperial ? imperialTexts : metricTexts;
    unitSuffix = texts.suffix;
    emit goToImperial(inImperial);
    imperial = inImperial;
    ui->soundVelocityLabel->setText("Sound Velocity (" + unitSuffix + "/s)");
    ui->maxDepthLabel->setText("Max Depth (" + unitSuffix + ")");
    ui->soundVelocityEdit->setText(texts.velocity);
    ui->maxDepthEdit->setText(texts.maxDepth);
    showStartingTexts(high, texts);
    showStartingTexts(low, texts);

    const BlankingRange &range = inImperial ? imperialRange : metricRange;
    high.blankingSlider->setRange(range.lowestOfHigh, range.highest);
    low.blankingSlider->setRange(range.lowestOfLow, range.highest);
}
