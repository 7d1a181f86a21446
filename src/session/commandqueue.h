// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#ifndef COMMANDQUEUE_H
#define COMMANDQUEUE_H

#include "answerledger.h"

#include <QElapsedTimer>
#include <QObject>
#include <QStringList>
#include <QTimer>

class InfoLine;
class SerialPortLayer;
class Settings;

/// The changes that wait to be sent. Keys are queued, never values: what goes out is whatever the
/// settings hold when its turn comes, so one command is enough for a burst of edits of one setting.
///
/// Several keys may wait at once. The queue waits for the operator to pause, then sends one command
/// each half second, the first key first, without waiting for answers.
class CommandQueue : public QObject
{
    Q_OBJECT

public:
    /// Announces in `info` what it sends through `serial`. All three outlive the queue.
    CommandQueue(const Settings &settings, SerialPortLayer &serial, InfoLine &info,
                 QObject *parent = nullptr);

    /// The operator has changed this setting. `value` is only logged.
    void triggerChange(const QString &name, const QString &value);

    /// Sends the first change that waits; the next ones follow, each after another pause. Without a
    /// connection everything that waits is forgotten. A key without a command is announced as
    /// "Unknown Setting" and stays in front until the next change.
    void sendLatestCommand();

    /// Whether a change has been sent and neither answered nor given up.
    bool isAwaitingAnswer() const { return commandInFlight; }

    /// The answer has come, or is no longer waited for.
    void endWaiting() { commandInFlight = false; }

    /// A command has gone out past the queue: its answer comes in its turn. `key` is what is told
    /// of it; empty: nothing.
    void noteCommandPastQueue(const QString &key) { noteSent(key); }

    /// An answer has come. The key of the setting whose change it answers; empty if it is none.
    QString takeAnswered();

    /// The link is gone, and with it every answer.
    void forgetSent();

    /// The keys that wait, oldest first.
    const QStringList &waiting() const { return pendingChanges; }

    /// Runs for half a second from each change on ("commandTimer"). Whoever owns the queue lets its
    /// end send.
    QTimer &timer() { return commandTimer; }

signals:
    /// The change of this setting has not been answered for 2 s. (Silence is not needed for that: a
    /// sounder may send depths all the while.)
    void unanswered(const QString &key);

private:
    void mergeRepeatsOfFirst();
    void noteSent(const QString &key);
    void watchOldest();
    void giveUpOverdue();

    const Settings &settings;
    SerialPortLayer &serial;
    InfoLine &info;
    QStringList pendingChanges;
    QTimer commandTimer{this};
    QTimer ledgerTimer{this};
    QElapsedTimer clock;
    AnswerLedger ledger;
    bool commandInFlight = false;
};

#endif // COMMANDQUEUE_H
