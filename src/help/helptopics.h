// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#ifndef HELPTOPICS_H
#define HELPTOPICS_H

#include <QString>
#include <QVector>

/// One topic of the built-in help.
struct HelpTopic
{
    QString title;

    /// HTML that follows the icon of the heading: the end of the heading, then the explanation.
    QString text;

    /// Whether the reminder to save the settings to the device follows.
    bool endsWithSavePrompt;
};

/// The eleven topics. Their wording, with its blanks and slips, is the product's and stays.
QVector<HelpTopic> helpTopics();

#endif // HELPTOPICS_H
