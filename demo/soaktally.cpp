// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "soaktally.h"

#include <algorithm>

void SoakTally::made(const QString &key, qint64 now)
{
    ++sums.made;
    open.append({key, now, false});
}

void SoakTally::noteWaiting(const QStringList &keys)
{
    for (Change &change : open) {
        change.sent = change.sent || !keys.contains(change.key);
    }
}

void SoakTally::notApplied(const QString &key, const QString &words)
{
    settle(key, words.contains(QLatin1String("Timed Out")) ? &Counts::timedOut : &Counts::refused);
}

/// One command carries all changes of a setting that waited together, so that its answer settles
/// them all, but none that was made since.
void SoakTally::settle(const QString &key, int Counts::*outcome)
{
    const auto end = std::remove_if(open.begin(), open.end(), [&key](const Change &change) {
        return change.sent && change.key == key;
    });
    sums.*outcome += static_cast<int>(std::distance(end, open.end()));
    open.erase(end, open.end());
}

void SoakTally::linkEnded()
{
    sums.linkLost += int(open.size());
    open.clear();
}

QStringList SoakTally::giveUp(qint64 now)
{
    QStringList keys;
    while (!open.isEmpty() && now - open.first().madeAt > patience) {
        keys << open.takeFirst().key;
    }
    sums.lost += int(keys.size());
    return keys;
}
