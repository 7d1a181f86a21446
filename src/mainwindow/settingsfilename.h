// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#ifndef SETTINGSFILENAME_H
#define SETTINGSFILENAME_H

#include <QString>

class QWidget;

/// The name of a settings file for what the operator entered: ".xml" is appended unless the name
/// holds it anywhere already. An empty name (nothing chosen) stays empty.
QString settingsFileName(const QString &entered);

/// Asks for the name of a file for the settings, and ends there: settings files are not part of
/// this program.
void chooseSettingsFile(QWidget *window);

/// Asks for a file to import, and reads nothing.
void chooseImportFile(QWidget *window);

#endif // SETTINGSFILENAME_H
