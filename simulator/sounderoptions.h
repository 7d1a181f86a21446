// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#ifndef SOUNDEROPTIONS_H
#define SOUNDEROPTIONS_H

#include <QString>
#include <QStringList>

/// Which channels a unit carries.
enum class SounderFit { Dual, HighOnly, LowOnly };

/// One of the two channels.
enum class SounderChannel { High, Low };

/// Whether a unit of this fit carries the channel.
bool hasChannel(SounderFit fit, SounderChannel channel);

/// The named ways in which a simulated sounder or its cable misbehaves. A probability is rolled for
/// every line that the fault could hit; 0 switches a fault off.
struct SounderFaults
{
    double silent = 0;       ///< probability that a line (answer or sounding) is never sent
    double lateMs = 0;       ///< milliseconds that every answer comes late
    double refuse = 0;       ///< probability that a change is answered "ERR" and not made
    double garble = 0;       ///< probability that characters of a line are spoilt
    double split = 0;        ///< probability that a line arrives byte by byte
    double burst = 0;        ///< probability that a line waits and arrives with the next ones
    double dropLine = 0;     ///< probability that a line is lost on its way
    double rebootAfterS = 0; ///< the device restarts each time so many seconds have passed
    double hangUpAfterS = 0; ///< the cable is pulled after so many seconds, once

    /// Sets the fault of this name ("silent", "late", "refuse", "garble", "split", "burst",
    /// "drop-line", "reboot", "hang-up"). Returns an empty text, or what is wrong with the name or
    /// the value; then nothing has changed.
    QString set(const QString &name, double value);

    /// The names, in the order above.
    static QStringList names();
};

/// What a simulated sounder is made with.
struct SounderOptions
{
    SounderFit fit = SounderFit::Dual;
    int rate = 0;   ///< the rate set in the device at power-up; 0: as kept in its memory, or 9600
    int format = 0; ///< the output format's number at power-up; 0: as kept, or the factory's
    QString firmware = QStringLiteral("2.14.7");
    quint32 seed = 1;      ///< every random choice and the sea bed follow from it
    bool soundings = true; ///< sends depth sentences of its own accord
    bool pace = true;      ///< takes ten bits a character; false sends a line every 2 ms or so
    QString memoryFile;    ///< where "*F" keeps the settings; empty: only as long as it lives
    SounderFaults faults;
};

#endif // SOUNDEROPTIONS_H
