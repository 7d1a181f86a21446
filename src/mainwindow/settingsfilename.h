// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#ifndef SETTINGSFILENAME_H
#define SETTINGSFILENAME_H

#include <QString>

/// The name of a settings file for what the operator entered: ".xml" is appended unless the name
/// holds it anywhere already. An empty name (nothing chosen) stays empty.
QString settingsFileName(const QString &entered);

#endif // SETTINGSFILENAME_H
