// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#ifndef FORMPLACES_H
#define FORMPLACES_H

#include "formbench.h"

#include <QLabel>

/// The size in which the program opens its window.
constexpr QSize startSize(1136, 800);
/// The size for which the form is drawn.
constexpr QSize formSize(1020, 947);

/// The longest texts that the program writes into the form.
inline void fillWithLongTexts(Ui::MainWindow &ui)
{
    ui.connectToDevice->setText(QStringLiteral("Disconnect"));
    ui.infoLabel->setText(
        QStringLiteral("<font color='Red'>Setting Low Frequency Detection Threshold to 50 % ... "
                       "Received Error - Command Not Applied</font>"));
    ui.temperatureLabel->setText(
        QStringLiteral("<font color=Green>Power Supply Voltage : 12.41V</font>"));
    ui.soundVelocityLabel->setText(QStringLiteral("Sound Velocity (ft/s)"));
    ui.maxDepthLabel->setText(QStringLiteral("Max Depth (ft)"));
    for (QLabel *blanking : {ui.highBlankEdit, ui.lowBlankEdit}) {
        blanking->setText(QStringLiteral("30.00 ft"));
    }
    ui.highDepthLabel->setText(QStringLiteral("HF Depth: 328.08"));
    ui.lowDepthLabel->setText(QStringLiteral("(Depth Below Transducer)"));
    ui.label_34->setText(QStringLiteral("TAL-VERO Firmware Version: 2.14.7 (High Frequency Only)"));
    ui.label_33->setText(QStringLiteral("TAL-VERO Connect Version: 1.2.11"));
    ui.label_24->setText(QStringLiteral("Serial Number: QZ4A5B6C7D"));
    QCoreApplication::sendPostedEvents();
}

inline QPoint placeInWindow(const QWidget *widget)
{
    return widget->mapTo(widget->window(), QPoint(0, 0));
}

#endif // FORMPLACES_H
