// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "soaksounder.h"

#include <QCoreApplication>
#include <QTimer>

#include <algorithm>
#include <chrono>

namespace {

using namespace std::chrono_literals;

constexpr auto unplugged = 2s;

/// Seconds between such events: a third or half of a short soak, minutes in a long one.
QString every(int soakSeconds, int share, int most)
{
    return QString::number(std::clamp(soakSeconds / share, 1, most));
}

} // namespace

SoakSounder::SoakSounder(const QString &port, int soakSeconds, QObject *parent)
    : QObject(parent)
    , words({"--link", port, "--rate", "9600", "--format", "ODOM"})
{
    constexpr int mostUntilReboot = 420;
    constexpr int mostUntilHangUp = 900;
    const QStringList faults = {"silent=0.01",
                                "late=40",
                                "refuse=0.02",
                                "garble=0.01",
                                "split=0.02",
                                "burst=0.01",
                                "drop-line=0.01",
                                "reboot=" + every(soakSeconds, 3, mostUntilReboot),
                                "hang-up=" + every(soakSeconds, 2, mostUntilHangUp)};
    for (const QString &fault : faults) {
        words << "--fault" << fault;
    }
    connect(&sounder, QOverload<int, QProcess::ExitStatus>::of(&QProcess::finished), this,
            [this] { QTimer::singleShot(unplugged, this, &SoakSounder::plugIn); });
    sounder.setStandardOutputFile(QProcess::nullDevice());
    sounder.setStandardErrorFile(QProcess::nullDevice());
    plugIn();
}

SoakSounder::~SoakSounder()
{
    sounder.disconnect(this);
    sounder.terminate();
    sounder.waitForFinished();
}

/// Each time its chances fall otherwise. It ends with this program, however that ends.
void SoakSounder::plugIn()
{
    ++timesPluggedIn;
    const QStringList boundToUs{"--pdeathsig", "TERM",
                                QCoreApplication::applicationDirPath() + "/tal-vero-sounder"};
    sounder.start("setpriv",
                  boundToUs + words + QStringList{"--seed", QString::number(timesPluggedIn)});
}
