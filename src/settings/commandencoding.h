// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#ifndef COMMANDENCODING_H
#define COMMANDENCODING_H

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <functional>

/// Gives the current number of a setting. Each reading of it is noted in the debug log.
using NumberSource = std::function<float()>;

/// How a setting's value becomes the whole number or the letter in its set command. Reals are
/// 32-bit floats and whole numbers 32 bits wide, as the device counts; fractions are dropped toward
/// zero. A number beyond 32 bits is held at the nearest end.
namespace CommandEncoding {

/// The number without its fraction.
qint32 whole(float number);

/// Metres in millimetres.
qint32 thousandths(float number);

/// The velocity in mm/s less 1,000,000, as the device takes it (1500 m/s is 500000).
qint32 velocity(float metresPerSecond);

/// The operator's gain, 30 to 100 percent, on the device's scale of 0 to 100, rounded.
qint32 gain(float percent);

/// The letter that sets a sounder mode: 'm' for "Manual", 's' for "Shallow", 'a' otherwise.
float sounderModeLetter(const QString &mode);

/// The letter that sets the gain's variation with time: 'T' for "Log 10", 'W' for "Log 20", 'N'
/// otherwise.
float tvgLetter(const QString &tvg);

/// The device's own number of an output format, from 1; 1 for a name that it does not know.
float formatNumber(const QString &format);

/// The device's number of a rate: its place in the list less two, but never below 0, so that the
/// three slowest rates share 0 (and so does a rate that is not in the list).
float baudCode(const QString &rate, const QStringList &rates);

/// 1 for "Active", 0 otherwise.
float modeNumber(const QString &mode);

/// The command with the number in the template's one place, as a decimal or, for "%c", as the
/// character of that code. A decimal longer than the template's width is not cut.
QString fill(const QByteArray &commandFormat, qint32 number);

/// The set command that a template gives for a setting's number.
using Text = QString (*)(const QByteArray &commandFormat, const NumberSource &number);

/// The number encoded in the template's one place.
template <qint32 (*encode)(float)>
QString one(const QByteArray &commandFormat, const NumberSource &number)
{
    return fill(commandFormat, encode(number()));
}

/// The whole number in each of the template's three places, read anew for each.
QString threeTimes(const QByteArray &commandFormat, const NumberSource &number);

/// "*b1" for a number above 0, else "*h1"; there is no template for it.
QString onOrOff(const QByteArray &commandFormat, const NumberSource &number);

} // namespace CommandEncoding

#endif // COMMANDENCODING_H
