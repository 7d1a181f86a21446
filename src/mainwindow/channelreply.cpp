// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "channelreply.h"

#include "channel.h"
#include "numbertext.h"
#include "replyvalues.h"

#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QSlider>

#include <utility>

namespace {

void showGain(Channel &channel, const QString &value, const ShownUnit & /*unit*/)
{
    const int percent = ReplyValues::gainPercent(value);
    channel.gainValue->setText(QString::number(percent) + "%");
    channel.gainSlider->setValue(percent);
}

void showTvg(Channel &channel, const QString &value, const ShownUnit & /*unit*/)
{
    const std::pair<char, QRadioButton *> options[] = {
        {'N', channel.tvgOff}, {'T', channel.tvgLog10}, {'W', channel.tvgLog20}};
    for (const auto &[letter, option] : options) {
        if (ReplyValues::letter(value) == QLatin1Char(letter)) {
            option->setChecked(true);
        }
    }
}

void showBlanking(Channel &channel, const QString &value, const ShownUnit &unit)
{
    channel.blankingSlider->setValue(ReplyValues::blankingPosition(value, unit.imperial));
    channel.showBlanking(ReplyValues::inShownUnit(value, unit.imperial, 2), unit.suffix);
}

void showDraft(Channel &channel, const QString &value, const ShownUnit &unit)
{
    channel.draft->setText(ReplyValues::inShownUnit(value, unit.imperial, 2));
}

void showIndex(Channel &channel, const QString &value, const ShownUnit &unit)
{
    channel.index->setText(ReplyValues::inShownUnit(value, unit.imperial, 2));
}

void showPulse(Channel &channel, const QString &value, const ShownUnit & /*unit*/)
{
    channel.pulseValue->setText(value);
    channel.pulseSlider->setValue(NumberText::toInt(value));
}

void showDetection(Channel &channel, const QString &value, const ShownUnit & /*unit*/)
{
    const int level = NumberText::toInt(value);
    channel.detectValue->setText(NumberText::fromFloat(static_cast<float>(level)) + "%");
    channel.detectSlider->setValue(level);
}

void showFrequency(Channel &channel, const QString &value, const ShownUnit & /*unit*/)
{
    channel.frequency->setText(QString::number(NumberText::toInt(value)));
}

} // namespace

void showReplyPiece(Channel &channel, const Protocol::ReplyPiece &piece, const ShownUnit &unit)
{
    using Show = void (*)(Channel &, const QString &, const ShownUnit &);
    static constexpr std::pair<char, Show> letters[] = {
        {'g', showGain},  {'l', showTvg},   {'m', showBlanking},  {'o', showDraft},
        {'p', showPulse}, {'q', showIndex}, {'t', showDetection}, {'w', showFrequency},
    };
    for (const auto &[letter, show] : letters) {
        if (piece.letter == QLatin1Char(letter)) {
            show(channel, piece.value, unit);
        }
    }
}
