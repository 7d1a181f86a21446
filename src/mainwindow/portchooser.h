// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#ifndef PORTCHOOSER_H
#define PORTCHOOSER_H

#include "portlister.h"

#include <QObject>
#include <QTimer>

class QComboBox;

/// The list of serial ports from which the operator chooses. It follows the computer's ports once a
/// second while no device is connected.
class PortChooser : public QObject
{
    Q_OBJECT

public:
    /// Fills `list`, which outlives it, with what `ports` names.
    /// Each entry tells under the pointer what `details` knows of its port.
    PortChooser(QComboBox &list, PortLister ports, PortDetails details, QObject *parent = nullptr);

    /// Gives the entries that stand in the list now their details.
    void describeEntries();

    /// What the list as a whole should tell: without a port what to check, otherwise nothing.
    QString advice() const;

    /// Looks for ports. As long as they are the same, an open list and the operator's choice stay
    /// undisturbed; a chosen port that is still there stays chosen.
    void updateSerialPorts();

    /// Ends every second ("portScanTimer"). Whoever owns the chooser lets its end look for ports,
    /// and stops it while a device is connected.
    QTimer &timer() { return portScanTimer; }

signals:
    /// The list holds other ports than before.
    void listed();

private:
    QComboBox &list;
    PortLister listPorts;
    PortDetails detailsOf;
    QStringList knownPorts;
    QTimer portScanTimer{this};
};

#endif // PORTCHOOSER_H
