// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "symlink.h"

#include <QFile>
#include <QFileInfo>

Symlink::Symlink(const QString &linkPath, const QString &targetPath)
    : path(linkPath)
    , target(targetPath)
{
    if (QFileInfo(path).isSymLink()) {
        QFile::remove(path);
    }
    QFile device(target);
    if (!device.link(path)) {
        trouble = QStringLiteral("cannot make the link %1: %2").arg(path, device.errorString());
    }
}

Symlink::~Symlink()
{
    const QFileInfo link(path);
    if (trouble.isEmpty() && link.isSymLink() && link.symLinkTarget() == target) {
        QFile::remove(path);
    }
}
