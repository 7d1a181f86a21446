// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "settingsfilename.h"

#include "debuglog.h"

#include <QFileDialog>

QString settingsFileName(const QString &entered)
{
    const QString suffix = QStringLiteral(".xml");
    return entered.isEmpty() || entered.contains(suffix) ? entered : entered + suffix;
}

void chooseSettingsFile(QWidget *window)
{
    QFileDialog neverShown(window);
    neverShown.setWindowTitle("Save Settings");
    neverShown.setDefaultSuffix(".xml");
    neverShown.setAcceptMode(QFileDialog::AcceptOpen);
    settingsFileName(QFileDialog::getSaveFileName(window, "Save Settings to File", QString(),
                                                  "XML files (*.xml)"));
}

void chooseImportFile(QWidget *window)
{
    if (!QFileDialog::getOpenFileName(window, "Open File").isEmpty()) {
        WINDOW_LOG_AS("on_importButton_clicked") << "got here";
    }
}
