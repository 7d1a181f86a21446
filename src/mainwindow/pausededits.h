// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#ifndef PAUSEDEDITS_H
#define PAUSEDEDITS_H

#include "mainwindow.h"

/// Holds back the edit handlers for as long as it lives; afterwards they act again, whatever
/// happened meanwhile.
class MainWindow::PausedEdits
{
public:
    explicit PausedEdits(MainWindow &window)
        : userEdits(window.userEdits)
    {
        userEdits = 0;
    }
    ~PausedEdits() { userEdits = 1; }

    PausedEdits(const PausedEdits &) = delete;
    PausedEdits &operator=(const PausedEdits &) = delete;

private:
    int &userEdits;
};

#endif // PAUSEDEDITS_H
