// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "commandreader.h"
#include "settingtables.h"

using namespace SettingTables;

namespace {

/// Rates by the digit that the rate command gives three times.
constexpr int commandedRates[] = {9600, 38400, 57600, 115200};

/// KESTROLA's readers know no other rate.
constexpr int kestrolaRate = 9600;

std::optional<int> readDigits(const QByteArray &text, const Digits &digits)
{
    int count = 0;
    while (count < digits.most && count < text.size() && text[count] >= '0' && text[count] <= '9') {
        ++count;
    }
    if (count < digits.fewest) {
        return {};
    }
    return text.left(count).toInt();
}

bool setCommonNumber(const CommonNumber &number, const QByteArray &text, SounderSettings &settings)
{
    const std::optional<int> sent = readDigits(text, number.digits);
    if (!sent || !number.holds(*sent + number.offset)) {
        return false;
    }
    SounderSettings changed = settings;
    changed.*number.value = *sent + number.offset;
    if ((number.letter == 'i' || number.letter == 's') && echoesOverlap(changed)) {
        return false;
    }
    if (number.letter == 'a' && changed.format == Kestrola) {
        changed.rate = kestrolaRate;
    }
    settings = changed;
    return true;
}

bool setRate(const QByteArray &text, SounderSettings &settings)
{
    const int code = text[0] - '0';
    const bool isThreeTimes = text[1] == text[0] && text[2] == text[0];
    if (!isThreeTimes || !Range{0, 3}.holds(code)) {
        return false;
    }
    settings.rate = commandedRates[code];
    return true;
}

bool setChannelValue(char letter, const QByteArray &text, SounderChannel channel,
                     SounderSettings &settings)
{
    ChannelSettings &target = settings.channel(channel);
    if (const ChannelLetter *row = find(channelLetters, letter)) {
        const bool isChoice = QByteArray(row->choices).contains(text[0]);
        if (isChoice) {
            target.*row->value = text[0];
        }
        return isChoice;
    }
    const ChannelNumber *row = find(channelNumbers, letter);
    const std::optional<int> number = readDigits(text, row->digits);
    if (!number || !row->range(channel).holds(*number)) {
        return false;
    }
    target.*row->value = *number;
    return true;
}

bool isChannelLetter(char letter)
{
    return find(channelLetters, letter) || find(channelNumbers, letter);
}

bool applyChannelCommand(const QByteArray &command, SounderFit fit, SounderSettings &settings)
{
    constexpr int markPlace = CommandReader::commandLength - 1;
    const std::optional<SounderChannel> channel = channelOf(command[markPlace]);
    if (!channel || !hasChannel(fit, *channel)) {
        return false;
    }
    const char letter = command[1];
    if (letter == 'b' || letter == 'h') {
        onFlag(settings, *channel) = letter == 'b';
        return true;
    }
    return setChannelValue(letter, command.mid(2, markPlace - 2), *channel, settings);
}

SetResult asResult(bool done) { return done ? SetResult::Done : SetResult::Refused; }

} // namespace

SetResult applySetCommand(const QByteArray &command, SounderFit fit, SounderSettings &settings)
{
    if (command.size() != CommandReader::commandLength) {
        return SetResult::Unknown;
    }
    const char letter = command[1];
    const QByteArray text = command.mid(2);
    if (const CommonNumber *number = find(commonNumbers, letter)) {
        return asResult(setCommonNumber(*number, text, settings));
    }
    if (letter == 'I') {
        return asResult(setRate(text, settings));
    }
    if (letter == 'b' || letter == 'h' || isChannelLetter(letter)) {
        return asResult(applyChannelCommand(command, fit, settings));
    }
    return SetResult::Unknown;
}
