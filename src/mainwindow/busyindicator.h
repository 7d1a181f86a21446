// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#ifndef BUSYINDICATOR_H
#define BUSYINDICATOR_H

#include "sessionstate.h"

#include <QObject>

class QLabel;
class LinkSession;

/// Turns beside the connect button while the sounder has not answered yet: a search through the
/// rates takes up to 12 s, and the operator must see that it goes on. While it is not seen nothing
/// of it runs.
class BusyIndicator : public QObject
{
    Q_OBJECT

public:
    /// Turns in `label` while `session` connects or searches. Both outlive it; the label keeps its
    /// place while hidden: no message and no state moves another control.
    BusyIndicator(QLabel &label, const LinkSession &session, QObject *parent = nullptr);

private:
    void follow(SessionState state);
    void loadMovie();

    QLabel &label;
};

#endif // BUSYINDICATOR_H
