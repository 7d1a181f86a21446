// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#ifndef SOAKSOUNDER_H
#define SOAKSOUNDER_H

#include <QObject>
#include <QProcess>

/// A simulated sounder with every fault, seldom each, as a process of its own, so that what it uses
/// up is not the program's. When its cable has been pulled, it is plugged in again.
class SoakSounder : public QObject
{
    Q_OBJECT

public:
    /// It is reached by `port`. Restarts and pulled cables come several times in a soak of so many
    /// seconds, but no oftener than every few minutes in a long one.
    SoakSounder(const QString &port, int soakSeconds, QObject *parent = nullptr);
    ~SoakSounder() override;

private:
    void plugIn();

    QProcess sounder;
    QStringList words;
    int timesPluggedIn = 0;
};

#endif // SOAKSOUNDER_H
