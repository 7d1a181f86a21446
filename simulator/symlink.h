// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#ifndef SYMLINK_H
#define SYMLINK_H

#include <QString>

/// A symbolic link that lives as long as this object: a fixed name for a port whose own changes
/// with each start.
class Symlink
{
public:
    /// Makes the link; one that a former run has left is replaced, a file of another kind is not.
    Symlink(const QString &linkPath, const QString &targetPath);

    /// Removes the link if it is still ours.
    ~Symlink();

    Symlink(const Symlink &) = delete;
    Symlink &operator=(const Symlink &) = delete;

    /// Why there is no link; empty if there is one.
    QString problem() const { return trouble; }

private:
    QString path;
    QString target;
    QString trouble;
};

#endif // SYMLINK_H
