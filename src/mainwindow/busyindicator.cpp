// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "busyindicator.h"

#include "linksession.h"

#include <QLabel>
#include <QMovie>

BusyIndicator::BusyIndicator(QLabel &itsLabel, const LinkSession &session, QObject *parent)
    : QObject(parent)
    , label(itsLabel)
{
    QSizePolicy policy = label.sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    label.setSizePolicy(policy);
    label.hide();
    connect(&session, &LinkSession::stateChanged, this, &BusyIndicator::follow);
}

void BusyIndicator::follow(SessionState state)
{
    const bool isBusy = state == SessionState::Connecting || state == SessionState::Searching;
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
