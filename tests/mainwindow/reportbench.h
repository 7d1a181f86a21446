// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#ifndef REPORTBENCH_H
#define REPORTBENCH_H

#include "rawbench.h"

/// The window on a bare line, for tests of what single lines from the sounder do. Polling is
/// stopped: a request that the test leaves unanswered for two seconds would cost it the connection.
class ReportBench : public RawBench
{
public:
    static constexpr char dualBanner[] = "TalVero New Dual 2.14.7";

    ReportBench() { timer("temperatureTimer")->stop(); }

    /// Presses Connect and waits for the probe, which stays unanswered.
    bool startConnecting(const QString &rate = QStringLiteral("9600"))
    {
        line.clearReceived();
        pressConnectRaw(rate);
        return hears("*n1234567*n1234567");
    }

    /// Connects at this rate with this line as the sounder's answer. Afterwards nothing counts as
    /// received.
    bool connectAs(const QByteArray &banner = dualBanner,
                   const QString &rate = QStringLiteral("9600"))
    {
        const bool isTold = startConnecting(rate) && tell(banner);
        line.clearReceived();
        return isTold && showsConnected();
    }

    /// Says a line and, right behind it, a supply voltage, and waits until the window shows that
    /// voltage: by then it has dealt with the line. False if it never shows (the line closed the
    /// link, or the port is not open). The status label shows the voltage afterwards.
    bool tell(const QByteArray &report)
    {
        const QByteArray volts = QByteArray::number(++timesTold) + ".25";
        say(report + "\r\nVSupply: " + volts);
        return QTest::qWaitFor(
            [this, &volts] { return text("temperatureLabel").contains(" " + volts + "V"); });
    }

    /// Lets the message in the info line run out of its time, as it does after ten seconds.
    bool letInfoExpire()
    {
        QTimer *const shown = timer("infoTimer");
        const int interval = shown->interval();
        shown->start(1);
        const bool isEmpty = QTest::qWaitFor([this] { return info().isEmpty(); });
        shown->setInterval(interval);
        return isEmpty;
    }

private:
    int timesTold = 0;
};

#endif // REPORTBENCH_H
