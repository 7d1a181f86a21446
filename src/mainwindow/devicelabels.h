// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#ifndef DEVICELABELS_H
#define DEVICELABELS_H

class QLabel;
class QString;

namespace Ui {
class MainWindow;
}

/// Prepares the labels in which the sounder speaks: they show its texts literally, and no text or
/// number of it, however long, moves what stands beside it.
void prepareDeviceLabels(const Ui::MainWindow &form);

/// Shows the low channel's depth, or the note beside an NMEA depth. Only the note may take two
/// lines: a long number would break into a new place.
void showLowDepth(QLabel &label, const QString &text);

#endif // DEVICELABELS_H
