// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "busyindicator.h"

#include <QLabel>
#include <QMovie>

BusyIndicator::BusyIndicator(QLabel &itsLabel)
    : label(itsLabel)
{
    QSizePolicy policy = label.sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    label.setSizePolicy(policy);
    label.hide();
}

void BusyIndicator::turn(bool isBusy)
{
    label.setVisible(isBusy);
    if (isBusy) {
        loadMovie();
        label.movie()->start();
    } else if (label.movie() != nullptr) {
        label.movie()->stop();
    }
}

/// Only when it is needed: the program's start does without its frames.
void BusyIndicator::loadMovie()
{
    if (label.movie() != nullptr) {
        return;
    }
    auto *const movie =
        new QMovie(QStringLiteral(":/resourcefiles/images/ajax-spinner.gif"), QByteArray(), &label);
    movie->setScaledSize(label.maximumSize());
    label.setMovie(movie);
}
