// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#ifndef LINKWATCH_H
#define LINKWATCH_H

#include "windowbench.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QElapsedTimer>
#include <QIcon>
#include <QImage>
#include <QSerialPort>
#include <QTimer>
#include <QVector>

/// What the tests of the link look at, besides what WindowBench shows.
namespace LinkWatch {

/// The texts that a connection can show.
constexpr char connectText[] = "Connect   ";
constexpr char disconnectText[] = "Disconnect";
constexpr char connectingInfo[] = "Connecting to Device";
constexpr char connectedInfo[] = "Connected to TAL-VERO";
constexpr char notConnectedInfo[] = "Could Not Connect To Device";
constexpr char lostInfo[] = "Lost Connection To Device";

/// What a list offers, from top to bottom.
inline QStringList entries(const QComboBox *list)
{
    QStringList result;
    for (int index = 0; index < list->count(); ++index) {
        result.append(list->itemText(index));
    }
    return result;
}

/// Whether another program could open this port now: it cannot while the window has it open.
inline bool isFree(const QString &path)
{
    QSerialPort port(path);
    return port.open(QIODevice::ReadWrite);
}

/// Whether the connect button carries this picture of the resources' image folder.
inline bool connectButtonShows(WindowBench &bench, const QString &picture)
{
    auto *const button = bench.find<QAbstractButton>("connectToDevice");
    const QSize size = button->iconSize();
    const QImage expected = QIcon(":/resourcefiles/images/" + picture).pixmap(size).toImage();
    return !expected.isNull() && button->icon().pixmap(size).toImage() == expected;
}

/// Whether the window stands as it does before any connection: the button offers one, the port can
/// be chosen, nothing of the device can be set, and the port belongs to nobody.
inline bool isIdle(WindowBench &bench, const QString &path)
{
    return bench.text("connectToDevice") == connectText &&
           connectButtonShows(bench, "not_connected.png") && bench.isEnabled("portComboBox") &&
           bench.isEnabled("baudComboBox") && !bench.isEnabled("commonHolder") &&
           bench.timer("portScanTimer")->isActive() && !bench.timer("answerTimer")->isActive() &&
           isFree(path);
}

/// Notes every text that the info line shows from now on, with the time at which it appeared.
class InfoRecorder
{
public:
    explicit InfoRecorder(WindowBench &watched)
        : bench(watched)
        , last(watched.info())
    {
        constexpr int glanceMs = 5;
        QObject::connect(&timer, &QTimer::timeout, &timer, [this] { look(); });
        timer.start(glanceMs);
        clock.start();
    }

    /// The texts in the order in which they were shown; the same text twice running counts once.
    QStringList texts() const { return shown; }

    /// Milliseconds from the recorder's beginning to each of the texts.
    QVector<qint64> times() const { return when; }

private:
    void look()
    {
        const QString now = bench.info();
        if (now != last) {
            last = now;
            shown.append(now);
            when.append(clock.elapsed());
        }
    }

    WindowBench &bench;
    QString last;
    QStringList shown;
    QVector<qint64> when;
    QTimer timer;
    QElapsedTimer clock;
};

} // namespace LinkWatch

#endif // LINKWATCH_H
