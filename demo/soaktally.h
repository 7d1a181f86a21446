// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#ifndef SOAKTALLY_H
#define SOAKTALLY_H

#include <QString>
#include <QStringList>
#include <QVector>

/// What became of the operator's changes. Each must have one of the outcomes that the operator can
/// be told of; a change that has none after `patience` is lost. Times are milliseconds from any
/// beginning.
class SoakTally
{
public:
    /// Far longer than a change waits for its turn and its answer together.
    static constexpr qint64 patience = 15000;

    struct Counts
    {
        int made = 0;
        int confirmed = 0;
        int refused = 0;
        int timedOut = 0;
        int linkLost = 0; ///< the link ended before the answer
        int lost = 0;     ///< nothing was ever told of it
    };

    /// The operator has changed this setting.
    void made(const QString &key, qint64 now);

    /// These keys wait to be sent; what waits no longer has been sent.
    void noteWaiting(const QStringList &keys);

    void accepted(const QString &key) { settle(key, &Counts::confirmed); }

    /// `words` say why, as the operator reads them.
    void notApplied(const QString &key, const QString &words);

    /// The link has ended: no answer is waited for.
    void linkEnded();

    /// Counts those as lost that have waited too long; returns their keys.
    QStringList giveUp(qint64 now);

    const Counts &counts() const { return sums; }

private:
    struct Change
    {
        QString key;
        qint64 madeAt;
        bool sent;
    };

    void settle(const QString &key, int Counts::*outcome);

    QVector<Change> open;
    Counts sums;
};

#endif // SOAKTALLY_H
