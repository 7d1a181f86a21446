// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "mainwindow.h"

#include "numbertext.h"
#include "outputformat.h"
#include "replyvalues.h"
#include "ui_mainwindow.h"

#include <QRadioButton>

namespace {

bool isAbout(const Protocol::ReplyPiece &piece, const char *setting)
{
    return piece.letter == QLatin1Char(SettingSpecs::find(setting)->replyLetter);
}

} // namespace

void MainWindow::parseSetting(const Protocol::SettingsReply &reply)
{
    const SettingEditor::Pause paused(editor);
    const SettingMarks marks(common, high, low);
    bool movesLocks = false; // to go through all controls costs more than all pieces
    for (const Protocol::ReplyPiece &piece : reply.pieces) {
        const PieceEffect effect = applyPiece(reply.kind, piece);
        movesLocks = movesLocks || effect == PieceEffect::MovesLocks;
        if (effect != PieceEffect::Ignored) {
            marks.setTold(reply.kind, piece.letter);
        }
    }
    if (movesLocks) {
        updateControls();
    }
}

MainWindow::PieceEffect MainWindow::applyPiece(Protocol::ReplyKind kind,
                                               const Protocol::ReplyPiece &piece)
{
    switch (kind) {
    case Protocol::ReplyKind::Common:
        return applyCommonPiece(piece);
    case Protocol::ReplyKind::HighChannel:
        return applyChannelPiece(high, piece);
    case Protocol::ReplyKind::LowChannel:
        return applyChannelPiece(low, piece);
    case Protocol::ReplyKind::None:
        break;
    }
    return PieceEffect::Ignored;
}

MainWindow::PieceEffect MainWindow::applyCommonPiece(const Protocol::ReplyPiece &piece)
{
    const bool imperial = settings.isImperial();
    bool isShown = common.pings.showReply(piece, imperial);
    isShown = common.velocity.showReply(piece, imperial) || isShown;
    if (common.maxDepth.showReply(piece, imperial)) {
        constexpr double millimetresPerMetre = 1000.0;
        emit setMaxDepth(static_cast<float>(NumberText::toInt(piece.value) / millimetresPerMetre));
        isShown = true;
    }
    if (isAbout(piece, "baud")) {
        isShown = applyRate(piece.value);
    } else if (isAbout(piece, "format")) {
        return applyFormat(piece.value) ? PieceEffect::MovesLocks : PieceEffect::Ignored;
    }
    // The switches are no settings that a command could set a value of.
    for (const auto &[letter, pane] : {std::pair{'H', &high}, std::pair{'L', &low}}) {
        if (piece.letter == QLatin1Char(letter) && pane->showSwitch(piece.value)) {
            SettingMarks::setSwitchTold(*pane);
            return PieceEffect::MovesLocks;
        }
    }
    return isShown ? PieceEffect::Shown : PieceEffect::Ignored;
}

/// The device tells at which rate it speaks. The link runs at that rate already, so the port stays
/// open; every place that remembers a rate takes this one.
bool MainWindow::applyRate(const QString &value)
{
    if (!settings.baudList().contains(value)) {
        return false; // a spoilt reply must not choose "Auto"
    }
    ui->newBaudComboBox->setCurrentText(value);
    ui->baudComboBox->setCurrentText(value);
    settings.changeSetting(QStringLiteral("baud"), value);
    session.followRate(value);
    return true;
}

bool MainWindow::applyFormat(const QString &value)
{
    const OutputFormat *format = ReplyValues::format(value);
    if (format != nullptr) {
        ui->formatComboBox->setCurrentText(format->name);
        common.formatFixesOptions = format->fixesOptions(); // however it came to be chosen
    }
    return format != nullptr;
}

MainWindow::PieceEffect MainWindow::applyChannelPiece(ChannelPane &pane,
                                                      const Protocol::ReplyPiece &piece)
{
    if (isAbout(piece, "highSounderMode")) {
        return applyMode(pane, ReplyValues::letter(piece.value)) ? PieceEffect::MovesLocks
                                                                 : PieceEffect::Ignored;
    }
    return pane.showReply(piece, settings.isImperial()) ? PieceEffect::Shown : PieceEffect::Ignored;
}

bool MainWindow::applyMode(ChannelPane &pane, QChar mode)
{
    if (mode == QLatin1Char('a')) {
        pane.automatic->setChecked(true);
        pane.state.automatic = true;
    } else if (mode == QLatin1Char('m')) {
        pane.manual->setChecked(true);
        pane.state.automatic = false;
    } else if (mode == QLatin1Char('s') && &pane == &high) {
        pane.shallow->setChecked(true);
        pane.state.automatic = true;
        low.state.resting = true; // a unit in shallow mode pings on its high channel alone
    } else {
        return false;
    }
    return true;
}
