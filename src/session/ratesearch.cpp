// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "ratesearch.h"

namespace RateSearch {

QStringList choices(const QStringList &rates) { return QStringList{notChosen, searchAll} + rates; }

std::optional<QString> next(const QStringList &choices, const QString &current)
{
    const auto place = choices.indexOf(current) + 1;
    return place < choices.size() ? std::optional<QString>(choices.at(place)) : std::nullopt;
}

} // namespace RateSearch
