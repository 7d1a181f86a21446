// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#ifndef PTYOPENERS_H
#define PTYOPENERS_H

#include <QString>

/// Knows whether anybody but ourselves has a terminal open, where the system tells (Linux);
/// elsewhere it assumes so as soon as something has been heard.
class PtyOpeners
{
public:
    PtyOpeners() = default;
    ~PtyOpeners(); // NOLINT(performance-trivially-destructible): not trivial on Linux
    PtyOpeners(const PtyOpeners &) = delete;
    PtyOpeners &operator=(const PtyOpeners &) = delete;

    /// Counts the openers of this terminal from now on, and those of no other.
    void watch(const QString &path);

    /// Brings the count up to date. Returns true if somebody has closed the terminal since the last
    /// call: what he left unread is nobody's.
    bool update();

    /// Something was heard: where the system does not tell, that is the sign of somebody.
    void noteSign();

    bool any() const { return count > 0; }

private:
    void forget();

    int watcher = -1;
    int count = 0;
};

#endif // PTYOPENERS_H
