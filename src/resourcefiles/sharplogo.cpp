// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "sharplogo.h"

#include <QGuiApplication>
#include <QIcon>
#include <QLabel>

namespace {

/// The image with twice as many pixels each way.
QString denseImage(const QString &path)
{
    const auto dot = path.lastIndexOf(QLatin1Char('.'));
    return path.left(dot) + QStringLiteral("@2x") + path.mid(dot);
}

} // namespace

void showSharp(QLabel *label, const QString &path)
{
    // Qt 6 would take the ordinary image for a screen that is not twice as dense.
    const bool isDense = qGuiApp->devicePixelRatio() > 1.0;
    label->setPixmap(QIcon(isDense ? denseImage(path) : path).pixmap(QImage(path).size()));
}
