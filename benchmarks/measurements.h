// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#ifndef MEASUREMENTS_H
#define MEASUREMENTS_H

#include <QMap>
#include <QString>
#include <QStringList>
#include <QVector>

/// Every single time that was measured, by row and column, for one table at the end.
class Measurements
{
public:
    /// `unit` is what the numbers are in, `digits` how many stand behind the point.
    Measurements(const QString &unit, int digits);

    void add(const QString &row, const QString &column, double value);

    double median(const QString &row, const QString &column) const;

    /// The table: rows and columns in the order in which `rows` and `columns` name them, those that
    /// have no number left out; a cell is "min / median / max".
    QString table(const QString &title, const QStringList &rows, const QStringList &columns) const;

private:
    QString cell(const QString &row, const QString &column) const;

    QString unitName;
    int decimals;
    QMap<QString, QMap<QString, QVector<double>>> values;
};

#endif // MEASUREMENTS_H
