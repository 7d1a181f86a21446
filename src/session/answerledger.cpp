// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "answerledger.h"

#include <algorithm>

void AnswerLedger::sent(const QString &key, qint64 now) { waiting.append({key, now}); }

QString AnswerLedger::answered()
{
    if (waiting.isEmpty()) {
        return givenUp.isEmpty() ? QString() : givenUp.takeFirst().key;
    }
    return waiting.takeFirst().key;
}

QStringList AnswerLedger::giveUp(qint64 now)
{
    QStringList keys;
    while (!waiting.isEmpty() && now - waiting.first().sentAt >= patience) {
        keys.append(waiting.first().key);
        givenUp.append(waiting.takeFirst());
    }
    // One that was lost on the line must not take the late answer of another.
    constexpr qint64 latest = 5 * patience;
    while (!givenUp.isEmpty() && now - givenUp.first().sentAt > latest) {
        givenUp.removeFirst();
    }
    return keys;
}

qint64 AnswerLedger::untilNext(qint64 now) const
{
    return waiting.isEmpty() ? -1 : std::max<qint64>(0, waiting.first().sentAt + patience - now);
}

void AnswerLedger::clear()
{
    waiting.clear();
    givenUp.clear();
}
