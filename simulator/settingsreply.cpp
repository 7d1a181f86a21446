// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "settingtables.h"

using namespace SettingTables;

namespace {

/// The letters of a channel line of the settings reply. The device sorts them.
QByteArray channelReplyLetters()
{
    QByteArray letters;
    for (const ChannelLetter &row : channelLetters) {
        letters += row.letter;
    }
    for (const ChannelNumber &row : channelNumbers) {
        letters += row.letter;
    }
    std::sort(letters.begin(), letters.end());
    return letters;
}

QByteArray padded(int number, int width)
{
    return QByteArray::number(number).rightJustified(width, '0');
}

QByteArray commonLine(const SounderSettings &settings)
{
    QByteArrayList pieces;
    for (const CommonNumber &number : commonNumbers) {
        pieces << number.letter + QByteArray::number(settings.*number.value);
    }
    pieces << "I" + QByteArray::number(settings.rate) << (settings.highOn ? "H1" : "H0")
           << (settings.lowOn ? "L1" : "L0");
    return "*" + pieces.join(',');
}

QByteArray channelLine(char mark, const ChannelSettings &channel)
{
    QByteArrayList pieces;
    for (const char letter : channelReplyLetters()) {
        QByteArray piece{mark + QByteArray(1, letter)};
        if (const ChannelLetter *row = find(channelLetters, letter)) {
            piece += channel.*row->value;
        } else if (const ChannelNumber *numberRow = find(channelNumbers, letter)) {
            piece += padded(channel.*numberRow->value, numberRow->replyWidth);
        }
        pieces << piece;
    }
    return "*" + pieces.join(',');
}

/// Takes one piece of the common line, without looking at its range yet.
void readCommonPiece(const QByteArray &piece, SounderSettings &settings)
{
    const char letter = piece.isEmpty() ? '\0' : piece[0];
    const int number = piece.mid(1).toInt();
    if (const CommonNumber *row = find(commonNumbers, letter)) {
        settings.*row->value = number;
    } else if (letter == 'I') {
        settings.rate = number;
    } else if (const std::optional<SounderChannel> channel = channelOf(letter)) {
        onFlag(settings, *channel) = number == 1;
    }
}

void readChannelPiece(const QByteArray &piece, ChannelSettings &channel)
{
    if (piece.size() < 3) {
        return;
    }
    if (const ChannelLetter *row = find(channelLetters, piece[1])) {
        channel.*row->value = piece[2];
    } else if (const ChannelNumber *numberRow = find(channelNumbers, piece[1])) {
        channel.*numberRow->value = piece.mid(2).toInt();
    }
}

bool isWithinRanges(const ChannelSettings &channel, SounderChannel which)
{
    const auto numberIsRight = [&](const ChannelNumber &row) {
        return row.range(which).holds(channel.*row.value);
    };
    const auto letterIsRight = [&](const ChannelLetter &row) {
        return QByteArray(row.choices).contains(channel.*row.value);
    };
    return std::all_of(std::begin(channelNumbers), std::end(channelNumbers), numberIsRight) &&
           std::all_of(std::begin(channelLetters), std::end(channelLetters), letterIsRight);
}

bool isWithinRanges(const SounderSettings &settings, SounderFit fit)
{
    const auto numberIsRight = [&](const CommonNumber &row) {
        return row.holds(settings.*row.value);
    };
    const auto channelIsRight = [&](SounderChannel which) {
        return hasChannel(fit, which) ? isWithinRanges(settings.channel(which), which)
                                      : !settings.isOn(which);
    };
    return std::all_of(std::begin(commonNumbers), std::end(commonNumbers), numberIsRight) &&
           lineRates().contains(settings.rate) && channelIsRight(SounderChannel::High) &&
           channelIsRight(SounderChannel::Low);
}

} // namespace

QByteArrayList settingsReply(const SounderSettings &settings, SounderFit fit)
{
    QByteArrayList lines{commonLine(settings)};
    if (hasChannel(fit, SounderChannel::High)) {
        lines << channelLine('H', settings.high);
    }
    if (hasChannel(fit, SounderChannel::Low)) {
        lines << channelLine('L', settings.low);
    }
    return lines;
}

std::optional<SounderSettings> readSettingsReply(const QByteArrayList &lines, SounderFit fit)
{
    SounderSettings settings = factorySettings(fit);
    for (const QByteArray &line : lines) {
        const std::optional<SounderChannel> channel =
            line.size() > 1 ? channelOf(line[1]) : std::nullopt;
        for (const QByteArray &piece : line.mid(1).split(',')) {
            if (channel) {
                readChannelPiece(piece, settings.channel(*channel));
            } else {
                readCommonPiece(piece, settings);
            }
        }
    }
    // Written anew, a whole and well-spelt reply is the same again.
    if (settingsReply(settings, fit) != lines || !isWithinRanges(settings, fit)) {
        return {};
    }
    return settings;
}
