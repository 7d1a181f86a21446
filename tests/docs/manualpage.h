// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#ifndef MANUALPAGE_H
#define MANUALPAGE_H

#include <QList>
#include <QString>
#include <QStringList>

/// The operator's manual, docs/manual.md, cut into what can be compared with the program.
namespace ManualPage {

/// A file of the project, by its path within it; empty if it cannot be read.
QString fileText(const QString &path);

/// The path of a file of the project.
QString pathOf(const QString &path);

/// The whole manual.
const QString &text();

/// The same with every stretch of blanks and line ends as one blank, so that no line end stands
/// within a text that is looked for.
const QString &flowing();

/// The headings of this level (2: chapters) within some Markdown, in its order; of all levels if 0.
QStringList headings(const QString &markdown, int level = 0);

/// What stands below the heading of this name, up to the next one of its level or a higher one.
/// Empty if there is no such heading.
QString section(const QString &heading);

/// The cells of the tables in some Markdown, row by row, without their head lines and rules.
QList<QStringList> rows(const QString &markdown);

/// The first block between fences in some Markdown, without its last line end.
QString fenced(const QString &markdown);

} // namespace ManualPage

#endif // MANUALPAGE_H
