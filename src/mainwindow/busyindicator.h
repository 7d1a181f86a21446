// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#ifndef BUSYINDICATOR_H
#define BUSYINDICATOR_H

class QLabel;

/// Turns beside the connect button while the sounder has not answered yet: a search through the
/// rates takes up to 12 s, and the operator must see that it goes on. While it is not seen nothing
/// of it runs.
class BusyIndicator
{
public:
    /// Turns in `label`, which outlives it and keeps its place while hidden: no message and no
    /// state moves another control.
    explicit BusyIndicator(QLabel &label);

    /// Shows it turning, or hides it and stops it.
    void turn(bool isBusy);

private:
    void loadMovie();

    QLabel &label;
};

#endif // BUSYINDICATOR_H
