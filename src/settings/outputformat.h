// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#ifndef OUTPUTFORMAT_H
#define OUTPUTFORMAT_H

#include <QString>
#include <QStringList>

#include <vector>

/// One form in which the sounder can output its depths.
struct OutputFormat
{
    QString name;           ///< as the operator chooses it
    int deviceNumber = 0;   ///< by which commands and the settings reply call it, from 1
    int fixedRate = 0;      ///< the only rate that the sounder outputs it at; 0: any of its rates
    int placeInChooser = 0; ///< in the operator's list, from 0

    /// Whether modes and gain variation are the format's own, so that the operator cannot set them.
    bool fixesOptions() const { return fixedRate != 0; }
};

/// The output formats. The operator's list, in which the settings report counts too, has another
/// order than the numbers of the sounder's commands.
namespace OutputFormats {

/// All of them, in the order of the operator's list.
const std::vector<OutputFormat> &all();

/// Their names, in the same order.
QStringList names();

/// The format of this name, in the same letter case; nullptr if there is none.
const OutputFormat *find(const QString &name);

/// The format that the sounder calls by this number; nullptr if there is none.
const OutputFormat *findByNumber(int deviceNumber);

} // namespace OutputFormats

#endif // OUTPUTFORMAT_H
