// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#ifndef SOAKOPERATOR_H
#define SOAKOPERATOR_H

#include "linksession.h"
#include "soaktally.h"
#include "windowhand.h"

#include <QElapsedTimer>
#include <QObject>

#include <random>

class MainWindow;

/// An operator who never tires: connects whenever there is no link, and changes something every few
/// seconds, at random, with real clicks and keys. What became of each change is noted.
class SoakOperator : public QObject
{
    Q_OBJECT

public:
    /// The window outlives the operator; `port` stands in its list. The same seed gives the same
    /// intentions.
    SoakOperator(MainWindow &itsWindow, QString itsPort, quint32 seed, QObject *parent = nullptr);

    void start();

    /// To be called every few milliseconds: sees which changes have gone out, and which are lost.
    void watch();

    const SoakTally &tally() const { return changes; }

    /// How often the link has come about.
    int connections() const { return timesConnected; }

signals:
    /// A change had no outcome.
    void changeLost(const QString &key);

private:
    using Habit = void (SoakOperator::*)();

    void step();
    void act();
    void change();
    Habit habit();
    void connectToSounder();
    void closeBoxes();
    void followLink(SessionState state);
    int roll(int sides);
    QString oneOf(const QStringList &names);
    void showTabOf(const QString &control);

    void stepButton();
    void option();
    void slider();
    void typeNumber();
    void output();
    void deviceAction();
    void look();

    WindowHand hand;
    LinkSession &session;
    QString port;
    std::mt19937 dice;
    SoakTally changes;
    QElapsedTimer clock;
    QElapsedTimer attempt;
    int timesConnected = 0;
};

#endif // SOAKOPERATOR_H
