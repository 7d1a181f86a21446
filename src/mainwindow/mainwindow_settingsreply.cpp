// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "mainwindow.h"

#include "channelreply.h"
#include "debuglog.h"
#include "numbertext.h"
#include "pausededits.h"
#include "replyvalues.h"
#include "ui_mainwindow.h"

void MainWindow::parseSetting(const QString &line)
{
    const PausedEdits paused(*this);
    const QStringList pieces = Protocol::replyPieces(line);
    DEBUG_LOG << "Settings" << pieces;
    const Protocol::ReplyKind kind = Protocol::replyKind(line);
    for (const QString &piece : pieces) {
        applyPiece(Protocol::readReplyPiece(piece, kind), kind);
    }
    settingsReceived = true;
}

void MainWindow::applyPiece(const Protocol::ReplyPiece &piece, Protocol::ReplyKind kind)
{
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
    } else {
        return;
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

/// The lock means the format itself, however it came to be chosen.
void MainWindow::applyFormat(const QString &value)
{
    const int place = ReplyValues::formatPlace(ReplyValues::letter(value));
    if (place >= 0) {
        ui->formatComboBox->setCurrentIndex(place);
        formatLocked = ui->formatComboBox->currentText().contains(QLatin1String("KESTROLA"));
        updateControls();
    }
}

void MainWindow::applyPings(const QString &value) { ui->pingEdit->setText(value); }

void MainWindow::applyMaxDepth(const QString &value)
{
    constexpr double millimetresPerMetre = 1000.0;
    ui->maxDepthEdit->setText(ReplyValues::inShownUnit(value, imperial, 0));
    emit setMaxDepth(static_cast<float>(NumberText::toInt(value) / millimetresPerMetre));
}

void MainWindow::applyVelocity(const QString &value)
{
    ui->soundVelocityEdit->setText(ReplyValues::inShownUnit(value, imperial, 0));
}

void MainWindow::applyChannelPiece(Channel &channel, const Protocol::ReplyPiece &piece)
{
    if (piece.letter == QLatin1Char('c')) {
        applyMode(channel, ReplyValues::letter(piece.value));
    } else {
        showReplyPiece(channel, piece, {imperial, unitSuffix});
    }
}

void MainWindow::applyMode(Channel &channel, QChar mode)
{
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
    } else {
        return;
    }
    updateControls();
}
