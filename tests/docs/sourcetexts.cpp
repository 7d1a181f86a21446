// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "sourcetexts.h"

#include "manualpage.h"

#include <QDir>
#include <QRegularExpression>
#include <QStack>
#include <QXmlStreamReader>

namespace {

/// Folders, and single files of others, whose texts the operator reads.
constexpr const char *speakers[] = {"src/session", "src/mainwindow", "src/device/porttrouble.cpp",
                                    "src/app/logfile.cpp"};

QStringList sourcesOf(const QString &place)
{
    if (place.endsWith(QLatin1String(".cpp"))) {
        return {place};
    }
    QStringList sources;
    const QStringList files = QDir(ManualPage::pathOf(place)).entryList({QStringLiteral("*.cpp")});
    for (const QString &file : files) {
        sources << place + QLatin1Char('/') + file;
    }
    return sources;
}

/// The texts of one statement, and whether they go to the log.
struct Statement
{
    QStringList texts;
    bool endsWithText = false;
    bool isLogged = false;
};

void takeText(Statement &statement, const QString &text)
{
    if (statement.endsWithText) {
        statement.texts.last() += text;
    } else {
        statement.texts << text;
    }
    statement.endsWithText = true;
}

QString unescaped(QString text) { return text.replace(QLatin1String("\\\""), QLatin1String("\"")); }

/// By the tokens that matter: comments, texts, single characters, ends of statements, names.
QStringList textsIn(const QString &source)
{
    static const QRegularExpression token(QStringLiteral(
        R"re(//[^\n]*|"((?:[^"\\]|\\.)*)"|'(?:[^'\\]|\\.)'|([;{}])|(\w+)|[^\s\w])re"));
    QStringList texts;
    Statement statement;
    auto found = token.globalMatch(source);
    while (found.hasNext()) {
        const QRegularExpressionMatch match = found.next();
        if (match.captured(0).startsWith(QLatin1Char('"'))) {
            takeText(statement, unescaped(match.captured(1)));
            continue;
        }
        statement.endsWithText = false;
        statement.isLogged = statement.isLogged || match.captured(3).contains("_LOG");
        if (!match.captured(2).isEmpty()) {
            texts << (statement.isLogged ? QStringList() : statement.texts);
            statement = {};
        }
    }
    return texts;
}

using Widgets = QList<SourceTexts::FormWidget>;

/// A property's text, put into the widget that it belongs to.
void takeProperty(QXmlStreamReader &xml, SourceTexts::FormWidget &widget)
{
    const QString name = xml.attributes().value("name").toString();
    widget.properties.insert(name,
                             xml.readElementText(QXmlStreamReader::IncludeChildElements).trimmed());
}

} // namespace

namespace SourceTexts {

QList<Literal> spoken()
{
    QList<Literal> literals;
    for (const char *place : speakers) {
        const QStringList sources = sourcesOf(place);
        for (const QString &source : sources) {
            const QStringList texts = textsIn(ManualPage::fileText(source));
            for (const QString &text : texts) {
                if (text.contains(QLatin1Char(' '))) {
                    literals.append({source.section(QLatin1Char('/'), -1), text});
                }
            }
        }
    }
    return literals;
}

QList<FormWidget> widgetsOf(const QString &form)
{
    QXmlStreamReader xml(ManualPage::fileText("src/forms/" + form));
    Widgets widgets;
    QStack<int> open;
    while (!xml.atEnd()) {
        xml.readNext();
        const bool isWidget = xml.name() == QLatin1String("widget");
        if (xml.isStartElement() && isWidget) {
            open.push(int(widgets.size()));
            const QXmlStreamAttributes attributes = xml.attributes();
            widgets.append(
                {attributes.value("class").toString(), attributes.value("name").toString(), {}});
        } else if (xml.isEndElement() && isWidget) {
            open.pop();
        } else if (xml.isStartElement() && !open.isEmpty() &&
                   (xml.name() == QLatin1String("property") ||
                    xml.name() == QLatin1String("attribute"))) {
            takeProperty(xml, widgets[open.top()]);
        }
    }
    return widgets;
}

QHash<QString, QString> topicsByButton()
{
    static const QRegularExpression slot(
        QStringLiteral(R"re(on_(\w+)_clicked\(\) \{ showHelp\("([^"]+)"\))re"));
    QHash<QString, QString> topics;
    auto found = slot.globalMatch(ManualPage::fileText("src/mainwindow/mainwindow_slots.cpp"));
    while (found.hasNext()) {
        const QRegularExpressionMatch match = found.next();
        topics.insert(match.captured(1), match.captured(2));
    }
    return topics;
}

QStringList manualPictures()
{
    static const QRegularExpression file(QStringLiteral(R"re("([\w-]+\.png)")re"));
    QStringList files;
    auto found = file.globalMatch(ManualPage::fileText("demo/picturebook.cpp"));
    while (found.hasNext()) {
        files << found.next().captured(1);
    }
    files.sort();
    return files;
}

} // namespace SourceTexts
