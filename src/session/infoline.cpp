// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "infoline.h"

#include <chrono>

namespace {

using namespace std::chrono_literals;

constexpr auto shownFor = 10s;

/// To which an outcome is appended: longer than any text that the operator gets to read.
constexpr int longestText = 4000;

} // namespace

InfoLine::InfoLine(QObject *parent)
    : QObject(parent)
{
    infoTimer.setObjectName(QStringLiteral("infoTimer"));
    infoTimer.setInterval(shownFor);
    infoTimer.setSingleShot(true);
}

void InfoLine::show(InfoColour colour, const QString &text, const Topic &topic)
{
    shownText = text;
    shownTopic = topic;
    emit shown(colour, text);
    emit explained(QString());
    infoTimer.start();
}

void InfoLine::append(InfoColour colour, const QString &outcome)
{
    const Topic same = shownTopic;
    show(colour, shownText.left(longestText) + outcome, same);
}

void InfoLine::explain(const QString &reason) { emit explained(reason); }

void InfoLine::clear() { show(InfoColour::Progress, QString()); }
