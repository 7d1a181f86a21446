// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "controltips.h"

#include "marks.h"
#include "outputformat.h"

#include <QWidget>

#include <algorithm>

namespace {

using ControlRules::Lock;

struct Reason
{
    Lock lock;
    const char *words;
};

constexpr Reason reasons[] = {
    {Lock::NotConnected, "Connect to the TAL-VERO to use this"},
    {Lock::Connected, "Disconnect to change this"},
    {Lock::NotFitted, "This unit has no %channel frequency"},
    {Lock::Resting, "Rests while the high frequency is in Shallow mode"},
    {Lock::SwitchedOff, "The %channel frequency is switched off"},
    {Lock::FixedFormat, "Fixed by %format"},
    {Lock::Automatic, "Auto and Shallow mode set this: choose Manual to change it"},
};

/// The output format that fixes options.
QString fixingFormat()
{
    const std::vector<OutputFormat> &formats = OutputFormats::all();
    const auto found = std::find_if(formats.begin(), formats.end(), [](const OutputFormat &format) {
        return format.fixesOptions();
    });
    return found != formats.end() ? found->name : QString();
}

QString nameOf(SettingChannel channel)
{
    return channel == SettingChannel::Low ? QStringLiteral("low") : QStringLiteral("high");
}

} // namespace

void ControlTips::setOwn(QWidget *widget, const QString &text)
{
    if (!tips.contains(widget)) {
        tips[widget].reason = reasonAround(widget);
    }
    Tip &tip = tips[widget];
    tip.own = text;
    give(widget, tip);
}

/// The reason of what the widget stands on, if that was locked before.
QString ControlTips::reasonAround(const QWidget *widget) const
{
    for (QWidget *parent = widget->parentWidget(); parent != nullptr;
         parent = parent->parentWidget()) {
        if (tips.contains(parent)) {
            return tips.value(parent).reason;
        }
    }
    return {};
}

void ControlTips::lock(QWidget *widget, const QString &reason)
{
    tips[widget].reason = reason;
    for (auto tip = tips.begin(); tip != tips.end(); ++tip) {
        if (widget == tip.key() || (!tip->own.isEmpty() && widget->isAncestorOf(tip.key()))) {
            tip->reason = reason;
            give(tip.key(), *tip);
        }
    }
}

void ControlTips::give(QWidget *widget, Tip &tip)
{
    const QString &text = tip.reason.isEmpty() ? tip.own : tip.reason;
    if (text != tip.given) {
        Marks::setPlainToolTip(widget, text);
        tip.given = text;
    }
}

QString lockReason(ControlRules::Lock lock, SettingChannel channel)
{
    for (const Reason &reason : reasons) {
        if (reason.lock == lock) {
            return QString(reason.words)
                .replace(QLatin1String("%channel"), nameOf(channel))
                .replace(QLatin1String("%format"), fixingFormat());
        }
    }
    return {};
}
