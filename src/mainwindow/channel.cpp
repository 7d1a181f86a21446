// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "channel.h"

#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QSlider>

namespace {

template <typename Widget>
void find(Widget *&widget, const QWidget &form, const QString &name)
{
    widget = form.findChild<Widget *>(name);
    Q_ASSERT_X(widget != nullptr, "channelOnForm", qPrintable(name));
}

} // namespace

Channel channelOnForm(const QWidget &form, const QString &prefix, const QString &radioSuffix,
                      bool *modeLocked, bool *disabled)
{
    Channel channel;
    channel.prefix = prefix;
    channel.modeLocked = modeLocked;
    channel.disabled = disabled;
    find(channel.enable, form, "enable" + radioSuffix);
    find(channel.disable, form, "disable" + radioSuffix);

    const auto gather = [&form, &prefix](auto *&widget, const char *name) {
        find(widget, form, prefix + QLatin1String(name));
    };
    gather(channel.upperRow, "UpperRow");
    gather(channel.enableColumn, "EnableColumn");
    gather(channel.modeColumn, "ModeColumn");
    gather(channel.tvgColumn, "TvgColumn");
    gather(channel.lowerPart, "LowerPart");
    gather(channel.manualGroup, "ManualGroup");
    gather(channel.shallow, "ShallowRadio");
    gather(channel.automatic, "AutoRadio");
    gather(channel.manual, "ManualRadio");
    gather(channel.tvgOff, "OffTvg");
    gather(channel.tvgLog10, "Log10Tvg");
    gather(channel.tvgLog20, "Log20Tvg");
    gather(channel.pulseSlider, "PulseSlider");
    gather(channel.gainSlider, "GainSlider");
    gather(channel.detectSlider, "DetectSlider");
    gather(channel.blankingSlider, "BlankingSlider");
    gather(channel.pulseValue, "PulseEdit");
    gather(channel.gainValue, "GainEdit");
    gather(channel.detectValue, "DetectEdit");
    gather(channel.blankingValue, "BlankEdit");
    gather(channel.draftCaption, "DraftLabel");
    gather(channel.indexCaption, "IndexLabel");
    gather(channel.blankingCaption, "BlankLabel");
    gather(channel.draft, "Draft");
    gather(channel.index, "Index");
    gather(channel.frequency, "Freq");
    gather(channel.blanking, "Blank");
    gather(channel.depth, "DepthLabel");
    return channel;
}

void Channel::showBlanking(const QString &distance, const QString &unitSuffix) const
{
    blanking->setText(distance);
    blankingValue->setText(distance + " " + unitSuffix);
}
