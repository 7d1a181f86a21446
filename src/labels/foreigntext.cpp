// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "foreigntext.h"

namespace {

constexpr QChar ellipsis(0x2026);

bool breaksTheLine(QChar character)
{
    constexpr ushort nextLine = 0x0085;
    const ushort code = character.unicode();
    return (code >= '\n' && code <= '\r') || code == nextLine || code == QChar::LineSeparator ||
           code == QChar::ParagraphSeparator;
}

} // namespace

namespace ForeignText {

QString shown(const QString &text)
{
    QString line = text.left(longest);
    for (QChar &character : line) {
        if (breaksTheLine(character)) {
            character = QLatin1Char(' ');
        }
    }
    if (text.size() > longest) {
        line[longest - 1] = ellipsis;
    }
    return line;
}

} // namespace ForeignText
