// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#ifndef UNITSTATUS_H
#define UNITSTATUS_H

#include <QString>

/// What the unit says of its health: board temperature and supply voltage, asked for in turn. Pure
/// functions; a value that is no number counts as 0.
namespace UnitStatus {

/// "TAL-VERO Temperature : 25°C" for a line such as "BoardTemp: 298.15" (kelvin); in Fahrenheit
/// ("77°F") when `imperial`.
QString temperatureText(const QString &line, bool imperial);

/// "Power Supply Voltage : 12.41V" for a line such as "VSupply: 12.41" (volts).
QString voltageText(const QString &line);

} // namespace UnitStatus

#endif // UNITSTATUS_H
