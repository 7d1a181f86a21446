// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#ifndef SETTINGMARKS_H
#define SETTINGMARKS_H

#include "protocol.h"

#include <QList>
#include <QString>

struct CommonFields;
struct SettingSpec;
class ChannelPane;
class QWidget;

/// Which settings' values must not be believed, each marked at its control (see marks.h).
class SettingMarks
{
public:
    /// The controls outlive the marks.
    SettingMarks(const CommonFields &common, const ChannelPane &high, const ChannelPane &low);

    /// The sounder has accepted the value of this setting.
    void setApplied(const QString &key) const;

    /// It has not applied it; `words` say what it answered. The value stays as the operator set it.
    void setNotApplied(const QString &key, const QString &words) const;

    /// The sounder has told whether it pings on this channel.
    static void setSwitchTold(const ChannelPane &pane);

    /// A piece of the settings reply has been shown: that is what the sounder has.
    void setTold(Protocol::ReplyKind line, QChar letter) const;

    /// Nothing is marked as not applied any longer.
    void clear() const;

private:
    QList<QWidget *> controlsOf(const QString &key) const;
    QList<QWidget *> controlsOf(const SettingSpec &setting) const;

    const CommonFields &common;
    const ChannelPane &high;
    const ChannelPane &low;
};

#endif // SETTINGMARKS_H
