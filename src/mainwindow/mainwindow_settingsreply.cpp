// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "mainwindow.h"

#include "debuglog.h"
#include "numbertext.h"
#include "pausededits.h"
#include "ui_mainwindow.h"
#include "units.h"

#include <climits>
#include <cmath>

namespace {

constexpr double millimetresPerMetre = 1000.0;

/// Millimetres of the reply as millimetres (or thousandths of a foot) in the shown unit.
double thousandths(const QString &value, bool imperial)
{
    return NumberText::toInt(value) * (imperial ? Units::feetPerMetre : 1.0);
}

QString inShownUnit(const QString &value, bool imperial, int decimals)
{
    return QString::number(thousandths(value, imperial) / millimetresPerMetre, 'f', decimals);
}

/// The device counts gain from 0 to 100, the operator from 30 to 100 percent.
int gainPercent(const QString &value)
{
    constexpr double span = 70.0;
    constexpr double lowest = 30.0;
    constexpr double toNearest = 0.5;
    const double percent = NumberText::toInt(value) * span / 100.0 + lowest;
    return static_cast<int>(std::trunc(percent + toNearest));
}

/// The place in the operator's list (from 0) of the device's format number, by the number's digit.
constexpr int formatPlaces[] = {4, 2, 1, 0, 3, 5, 6, 7, 8};

int formatPlace(QChar digit)
{
    const int number = digit.toLatin1() - '1';
    const bool known = number >= 0 && number < static_cast<int>(std::size(formatPlaces));
    return known ? formatPlaces[number] : -1;
}

QChar firstCharacter(const QString &text) { return text.isEmpty() ? QChar() : text.at(0); }

} // namespace

void MainWindow::parseSetting(const QString &line)
{
    const PausedEdits paused(*this);
    const QStringList pieces = Protocol::replyPieces(line);
    DEBUG_LOG << "Settings" << pieces;
    const Protocol::ReplyKind kind = Protocol::replyKind(line);
    for (const QString &text : pieces) {
        const Protocol::ReplyPiece piece = Protocol::readReplyPiece(text, kind);
        switch (kind) {
        case Protocol::ReplyKind::Common:
            applyCommonPiece(piece);
            break;
        case Protocol::ReplyKind::HighChannel:
            applyChannelPiece(high, piece);
            break;
        case Protocol::ReplyKind::LowChannel:
            applyChannelPiece(low, piece);
            break;
        case Protocol::ReplyKind::None:
            break;
        }
    }
    settingsReceived = true;
}

void MainWindow::applyCommonPiece(const Protocol::ReplyPiece &piece)
{
    using Apply = void (MainWindow::*)(const QString &);
    static constexpr std::pair<char, Apply> letters[] = {
        {'H', &MainWindow::applyHighSwitch}, {'L', &MainWindow::applyLowSwitch},
        {'I', &MainWindow::applyRate},       {'a', &MainWindow::applyFormat},
        {'i', &MainWindow::applyPings},      {'s', &MainWindow::applyMaxDepth},
        {'v', &MainWindow::applyVelocity},
    };
    for (const auto &[letter, apply] : letters) {
        if (piece.letter == QLatin1Char(letter)) {
            (this->*apply)(piece.value);
        }
    }
}

void MainWindow::applyHighSwitch(const QString &value) { applySwitch(high, value); }

void MainWindow::applyLowSwitch(const QString &value) { applySwitch(low, value); }

/// "1" leaves the flag alone: the banner has cleared it where the unit carries the channel.
void MainWindow::applySwitch(Channel &channel, const QString &value)
{
    if (value == QLatin1String("1")) {
        channel.enable->setChecked(true);
    } else if (value == QLatin1String("0")) {
        channel.disable->setChecked(true);
        *channel.disabled = true;
    }
    updateControls();
}

/// The device tells at which rate it speaks. The link runs at that rate already, so the port stays
/// open; every place that remembers a rate takes this one.
void MainWindow::applyRate(const QString &value)
{
    if (!settings.baudList().contains(value)) {
        return; // a spoilt reply must not choose "Auto"
    }
    ui->newBaudComboBox->setCurrentText(value);
    if (ui->baudComboBox->currentText() != value) {
        ui->baudComboBox->setCurrentText(value);
    }
    settings.changeSetting(QStringLiteral("baud"), value);
    serial.baudRate = value;
}

void MainWindow::applyFormat(const QString &value)
{
    const int place = formatPlace(firstCharacter(value));
    if (place >= 0) {
        ui->formatComboBox->setCurrentIndex(place);
    }
    formatLocked = ui->formatComboBox->currentText().contains(QLatin1String("KESTROLA"));
    updateControls();
}

void MainWindow::applyPings(const QString &value) { ui->pingEdit->setText(value); }

void MainWindow::applyMaxDepth(const QString &value)
{
    ui->maxDepthEdit->setText(inShownUnit(value, imperial, 0));
    emit setMaxDepth(static_cast<float>(NumberText::toInt(value) / millimetresPerMetre));
}

void MainWindow::applyVelocity(const QString &value)
{
    ui->soundVelocityEdit->setText(inShownUnit(value, imperial, 0));
}

void MainWindow::applyChannelPiece(Channel &channel, const Protocol::ReplyPiece &piece)
{
    using Apply = void (MainWindow::*)(Channel &, const QString &);
    static constexpr std::pair<char, Apply> letters[] = {
        {'c', &MainWindow::applyMode},      {'g', &MainWindow::applyGain},
        {'l', &MainWindow::applyTvg},       {'m', &MainWindow::applyBlanking},
        {'o', &MainWindow::applyDraft},     {'p', &MainWindow::applyPulse},
        {'q', &MainWindow::applyIndex},     {'t', &MainWindow::applyDetection},
        {'w', &MainWindow::applyFrequency},
    };
    for (const auto &[letter, apply] : letters) {
        if (piece.letter == QLatin1Char(letter)) {
            (this->*apply)(channel, piece.value);
        }
    }
}

void MainWindow::applyMode(Channel &channel, const QString &value)
{
    const QChar mode = firstCharacter(value);
    if (mode == QLatin1Char('a')) {
        channel.automatic->setChecked(true);
        *channel.modeLocked = true;
    } else if (mode == QLatin1Char('m')) {
        channel.manual->setChecked(true);
        *channel.modeLocked = false;
    } else if (mode == QLatin1Char('s') && &channel == &high) {
        channel.shallow->setChecked(true);
        *channel.modeLocked = true;
        lowDisabled = true; // a unit in shallow mode pings on its high channel alone
    }
    updateControls();
}

void MainWindow::applyGain(Channel &channel, const QString &value)
{
    const int percent = gainPercent(value);
    channel.gainValue->setText(QString::number(percent) + "%");
    channel.gainSlider->setValue(percent);
}

void MainWindow::applyTvg(Channel &channel, const QString &value)
{
    const std::pair<char, QRadioButton *> options[] = {
        {'N', channel.tvgOff}, {'T', channel.tvgLog10}, {'W', channel.tvgLog20}};
    for (const auto &[letter, option] : options) {
        if (firstCharacter(value) == QLatin1Char(letter)) {
            option->setChecked(true);
        }
    }
}

void MainWindow::applyBlanking(Channel &channel, const QString &value)
{
    constexpr int thousandthsPerStep = 10;
    const QString text = inShownUnit(value, imperial, 2);
    channel.blankingSlider->setValue(
        static_cast<int>(qBound(0.0, thousandths(value, imperial), double(INT_MAX))) /
        thousandthsPerStep);
    channel.blanking->setText(text);
    channel.blankingValue->setText(text + " " + unitSuffix);
}

void MainWindow::applyDraft(Channel &channel, const QString &value)
{
    channel.draft->setText(inShownUnit(value, imperial, 2));
}

void MainWindow::applyIndex(Channel &channel, const QString &value)
{
    channel.index->setText(inShownUnit(value, imperial, 2));
}

void MainWindow::applyPulse(Channel &channel, const QString &value)
{
    channel.pulseValue->setText(value);
    channel.pulseSlider->setValue(NumberText::toInt(value));
}

void MainWindow::applyDetection(Channel &channel, const QString &value)
{
    const int level = NumberText::toInt(value);
    channel.detectValue->setText(NumberText::fromFloat(static_cast<float>(level)) + "%");
    channel.detectSlider->setValue(level);
}

void MainWindow::applyFrequency(Channel &channel, const QString &value)
{
    channel.frequency->setText(QString::number(NumberText::toInt(value)));
}
