// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#ifndef ROWSMISSING_H
#define ROWSMISSING_H

#include "settingspec.h"

#include <QSet>

inline bool isAnySetting(const SettingSpec & /*spec*/) { return true; }
inline bool isNumberSetting(const SettingSpec &spec) { return spec.kind != ValueKind::Word; }

/// The keys of the settings of which a test's rows do not speak, with a blank between them, so that
/// whoever adds a setting is told where its expectations are to be written down.
inline QString keysMissing(const QSet<QString> &spokenOf,
                           bool (*isWanted)(const SettingSpec &spec) = isAnySetting)
{
    QStringList missing;
    for (const SettingSpec &spec : SettingSpecs::all()) {
        if (isWanted(spec) && !spokenOf.contains(spec.key)) {
            missing << spec.key;
        }
    }
    return missing.join(' ');
}

#endif // ROWSMISSING_H
