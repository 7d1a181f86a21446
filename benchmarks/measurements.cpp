// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "measurements.h"

#include <algorithm>

namespace {

constexpr int rowWidth = 32;
constexpr int columnWidth = 26;

double medianOf(QVector<double> numbers)
{
    if (numbers.isEmpty()) {
        return 0.0;
    }
    const auto middle = numbers.begin() + numbers.size() / 2;
    std::nth_element(numbers.begin(), middle, numbers.end());
    return *middle;
}

} // namespace

Measurements::Measurements(const QString &unit, int digits)
    : unitName(unit)
    , decimals(digits)
{}

void Measurements::add(const QString &row, const QString &column, double value)
{
    values[row][column].append(value);
}

double Measurements::median(const QString &row, const QString &column) const
{
    return medianOf(values.value(row).value(column));
}

QString Measurements::cell(const QString &row, const QString &column) const
{
    const QVector<double> numbers = values.value(row).value(column);
    if (numbers.isEmpty()) {
        return QStringLiteral("-");
    }
    const auto [least, most] = std::minmax_element(numbers.begin(), numbers.end());
    QStringList texts;
    for (const double number : {*least, medianOf(numbers), *most}) {
        texts.append(QString::number(number, 'f', decimals));
    }
    return texts.join(QStringLiteral(" / "));
}

QString Measurements::table(const QString &title, const QStringList &rows,
                            const QStringList &columns) const
{
    QString text = '\n' + title + ": min / median / max in " + unitName + '\n';
    text += QString(rowWidth, ' ');
    for (const QString &column : columns) {
        text += column.rightJustified(columnWidth);
    }
    for (const QString &row : rows) {
        if (!values.contains(row)) {
            continue;
        }
        text += '\n' + row.leftJustified(rowWidth);
        for (const QString &column : columns) {
            text += cell(row, column).rightJustified(columnWidth);
        }
    }
    return text + '\n';
}
