// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "firmwareupdater.h"

#include <QCoreApplication>

QString firmwareUpdaterPath()
{
    return QCoreApplication::applicationDirPath() + "/TAL-VERO Bootloader.exe";
}
