// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#ifndef ANSWERLEDGER_H
#define ANSWERLEDGER_H

#include <QList>
#include <QString>
#include <QStringList>

/// Whose answer an answer is. The sounder answers commands in the order in which they were sent,
/// and several may be under way: the first answer is that to the oldest command. (The info line
/// cannot know: it speaks of the command announced last.) Times are milliseconds from any
/// beginning.
class AnswerLedger
{
public:
    /// How long an answer is waited for, in milliseconds.
    static constexpr qint64 patience = 2000;

    /// A command has been sent that changes this setting; an empty key: one that changes none.
    void sent(const QString &key, qint64 now);

    /// An answer has come: takes the command that it answers and returns its key. An answer that
    /// nobody waits for any longer belongs to the oldest command given up of late; after those
    /// it belongs to none.
    QString answered();

    /// Takes the commands that have waited too long, oldest first, and returns their keys.
    QStringList giveUp(qint64 now);

    /// Milliseconds until the oldest command has waited too long; negative if none waits.
    qint64 untilNext(qint64 now) const;

    /// Forgets everything: the link is gone.
    void clear();

private:
    struct Entry
    {
        QString key;
        qint64 sentAt;
    };

    QList<Entry> waiting;
    QList<Entry> givenUp; // oldest first
};

#endif // ANSWERLEDGER_H
