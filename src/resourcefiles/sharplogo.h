// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#ifndef SHARPLOGO_H
#define SHARPLOGO_H

#include <QString>

class QLabel;

/// Shows the image of this path (":/resourcefiles/images/…") in the label with the pixels that the
/// densest screen asks for, in the size that it has on an ordinary one. A form alone gives a label
/// the image for ordinary screens, which looks coarse on dense ones.
void showSharp(QLabel *label, const QString &path);

#endif // SHARPLOGO_H
