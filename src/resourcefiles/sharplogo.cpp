// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "sharplogo.h"

#include <QIcon>
#include <QLabel>

void showSharp(QLabel *label, const QString &path)
{
    label->setPixmap(QIcon(path).pixmap(QImage(path).size()));
}
