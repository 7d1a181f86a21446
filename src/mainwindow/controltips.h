// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#ifndef CONTROLTIPS_H
#define CONTROLTIPS_H

#include "controlrules.h"
#include "settingspec.h"

#include <QHash>
#include <QString>

class QWidget;

/// What controls tell under the pointer: while locked why, otherwise what is their own. What a mark
/// says of a value (see marks.h) goes before both.
class ControlTips
{
public:
    /// What the widget, which outlives the tips, tells while it is not locked.
    void setOwn(QWidget *widget, const QString &text);

    /// Locks the widget, and all on it that has a tooltip of its own, with this reason; an empty
    /// one unlocks. What has no tooltip of its own shows that of the widget it stands on.
    void lock(QWidget *widget, const QString &reason);

private:
    struct Tip
    {
        QString own;
        QString reason;
        QString given; ///< what the widget got last
    };

    QString reasonAround(const QWidget *widget) const;
    static void give(QWidget *widget, Tip &tip);

    QHash<QWidget *, Tip> tips;
};

/// Why a control cannot be used, in the operator's words; empty if it can. `channel` is whose
/// control it is.
QString lockReason(ControlRules::Lock lock, SettingChannel channel = SettingChannel::Common);

#endif // CONTROLTIPS_H
