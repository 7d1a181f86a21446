// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#ifndef FOREIGNTEXT_H
#define FOREIGNTEXT_H

#include <QString>

/// Texts that came from outside: from the sounder, or from noise on its line.
namespace ForeignText {

/// Characters of which a text is shown. No sounder sends a value a third as long, and a depth with
/// all its digits has 52.
constexpr int longest = 80;

/// The text for a label or an edit that shows plain text: on one line (what would break it becomes
/// a blank) and cut, with an ellipsis in place of what is left out.
QString shown(const QString &text);

} // namespace ForeignText

#endif // FOREIGNTEXT_H
