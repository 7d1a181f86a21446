// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#ifndef SOURCETEXTS_H
#define SOURCETEXTS_H

#include <QHash>
#include <QList>
#include <QString>
#include <QStringList>

/// The texts of the program, read from its sources: so a new one is found wherever it is added.
namespace SourceTexts {

/// A text between quotes and the file that it stands in ("linksession.cpp").
struct Literal
{
    QString file;
    QString text;
};

/// Every text with a blank in it, adjacent ones joined, in the sources that speak to the operator.
/// What goes to the log alone is not among them.
QList<Literal> spoken();

/// A widget of a form: its kind ("QLabel"), name, and the texts of its properties ("text",
/// "accessibleName", "minimum") and of its title as a tab ("title").
struct FormWidget
{
    QString kind;
    QString name;
    QHash<QString, QString> properties;
};

/// The widgets of src/forms/`form`.
QList<FormWidget> widgetsOf(const QString &form);

/// The topics of the help by the names of the buttons that open them.
QHash<QString, QString> topicsByButton();

/// The names of the pictures that scripts/pictures --manual takes.
QStringList manualPictures();

} // namespace SourceTexts

#endif // SOURCETEXTS_H
