// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "settingsfilename.h"

QString settingsFileName(const QString &entered)
{
    const QString suffix = QStringLiteral(".xml");
    return entered.isEmpty() || entered.contains(suffix) ? entered : entered + suffix;
}
