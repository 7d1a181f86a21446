// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#ifndef RATESEARCH_H
#define RATESEARCH_H

#include <QStringList>

#include <optional>

/// The search for the rate at which the sounder speaks: one rate of the list after the other.
namespace RateSearch {

/// The entries of the rate list that are no rates.
constexpr char notChosen[] = "Select Rate";
constexpr char searchAll[] = "Auto";

/// The list from which the operator chooses: the two entries above, then the rates.
QStringList choices(const QStringList &rates);

/// The rate to try after `current`, an entry of the list: the one below it. Nothing after the last.
std::optional<QString> next(const QStringList &choices, const QString &current);

} // namespace RateSearch

#endif // RATESEARCH_H
