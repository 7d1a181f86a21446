// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "settingsmemory.h"

#include <QFile>
#include <QSaveFile>

std::optional<SounderSettings> SettingsMemory::load(const QString &path, SounderFit fit,
                                                    QString *problem)
{
    constexpr qint64 longestMemory = 4096; // a few hundred bytes are needed
    problem->clear();
    if (!QFile::exists(path)) {
        return {};
    }
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        *problem = QStringLiteral("cannot read %1: %2").arg(path, file.errorString());
        return {};
    }
    const QByteArray text = file.read(longestMemory).replace('\r', "").trimmed();
    const std::optional<SounderSettings> settings = readSettingsReply(text.split('\n'), fit);
    if (!settings) {
        *problem = QStringLiteral("%1 is not the memory of such a unit; it is ignored").arg(path);
    }
    return settings;
}

QString SettingsMemory::save(const QString &path, SounderFit fit, const SounderSettings &settings)
{
    QSaveFile file(path);
    const QByteArray text = settingsReply(settings, fit).join('\n') + "\n";
    if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size() || !file.commit()) {
        return QStringLiteral("cannot write %1: %2").arg(path, file.errorString());
    }
    return {};
}
