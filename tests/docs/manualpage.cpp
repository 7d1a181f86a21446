// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "manualpage.h"

#include <QFile>
#include <QRegularExpression>

namespace {

QStringList cellsOf(const QString &line)
{
    QStringList cells = line.split(QLatin1Char('|'));
    cells.removeFirst();
    cells.removeLast();
    for (QString &cell : cells) {
        cell = cell.trimmed();
    }
    return cells;
}

bool isRule(const QString &line) { return line.startsWith(QLatin1String("|--")); }

/// 0 for a line that is no heading.
int levelOf(const QString &line)
{
    static const QRegularExpression mark(QStringLiteral("^(#+) "));
    return int(mark.match(line).captured(1).size());
}

} // namespace

namespace ManualPage {

QString pathOf(const QString &path) { return QStringLiteral(PROJECT_FOLDER "/") + path; }

QString fileText(const QString &path)
{
    QFile file(pathOf(path));
    return file.open(QIODevice::ReadOnly | QIODevice::Text) ? QString::fromUtf8(file.readAll())
                                                            : QString();
}

const QString &text()
{
    static const QString whole = fileText(QStringLiteral("docs/manual.md"));
    return whole;
}

const QString &flowing()
{
    static const QString words = text().simplified();
    return words;
}

QStringList headings(const QString &markdown, int level)
{
    QStringList found;
    const QStringList lines = markdown.split(QLatin1Char('\n'));
    for (const QString &line : lines) {
        const int ownLevel = levelOf(line);
        if (ownLevel > 0 && (level == 0 || ownLevel == level)) {
            found << line.mid(ownLevel + 1);
        }
    }
    return found;
}

QString section(const QString &heading)
{
    QStringList below;
    int level = 0;
    const QStringList lines = text().split(QLatin1Char('\n'));
    for (const QString &line : lines) {
        const int ownLevel = levelOf(line);
        if (level > 0 && ownLevel > 0 && ownLevel <= level) {
            break;
        }
        if (level > 0) {
            below << line;
        } else if (ownLevel > 0 && line.mid(ownLevel + 1) == heading) {
            level = ownLevel;
        }
    }
    return below.join(QLatin1Char('\n'));
}

QList<QStringList> rows(const QString &markdown)
{
    QList<QStringList> found;
    bool isHead = true;
    const QStringList lines = markdown.split(QLatin1Char('\n'));
    for (const QString &line : lines) {
        if (!line.startsWith(QLatin1Char('|'))) {
            isHead = true;
        } else if (isRule(line)) {
            isHead = false;
        } else if (!isHead) {
            found << cellsOf(line);
        }
    }
    return found;
}

QString fenced(const QString &markdown)
{
    static const QRegularExpression block(QStringLiteral("```\\w*\n(.*?)\n```"),
                                          QRegularExpression::DotMatchesEverythingOption);
    return block.match(markdown).captured(1);
}

} // namespace ManualPage
