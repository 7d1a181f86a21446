// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#ifndef DEPTHBENCH_H
#define DEPTHBENCH_H

#include "reportbench.h"

#include <QSignalSpy>
#include <QTabWidget>

/// The window on a bare line, for depth sentences: what the graph is told and what the two depth
/// labels show.
class DepthBench : public ReportBench
{
public:
    /// Pairs of depths in metres, high channel first.
    using Pairs = QList<QPair<float, float>>;

    static constexpr float none = -1.0F;
    static constexpr float switchedOff = 1000.0F;

    static constexpr char odomPair[] = " et B 00123 00131";
    static constexpr char nmeaBelowTransducer[] = "$SDDBT,4.0,f,1.23,M,0.67,F*2C";
    static constexpr char nmeaBelowSurface[] = "$SDDBS,4.0,f,1.23,M,0.67,F*2B";

    DepthBench()
        : told(&window, SIGNAL(gotDepths(float, float)))
    {}

    /// What the graph has been told since the last call.
    Pairs takeTold()
    {
        Pairs pairs;
        while (!told.isEmpty()) {
            const QVariantList depths = told.takeFirst();
            pairs.append({depths.at(0).toFloat(), depths.at(1).toFloat()});
        }
        return pairs;
    }

    /// The high and the low depth label.
    QStringList labels() { return {text("highDepthLabel"), text("lowDepthLabel")}; }

    /// Presses Disable for each letter ("H", "L", "HL"), and has the device go on talking. False if
    /// a press has no effect.
    bool switchOff(const QByteArray &channels)
    {
        const auto disable = [this](const char *tab, const char *radio) {
            find<QTabWidget>("h")->setCurrentWidget(find<QWidget>(tab));
            click(radio);
            return isChecked(radio);
        };
        return (!channels.contains('H') || disable("highFreqTab", "disableHF")) &&
               (!channels.contains('L') || disable("lowFreqTab", "disableLF")) && tell("*i5");
    }

private:
    QSignalSpy told;
};

#endif // DEPTHBENCH_H
