// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#ifndef READYBENCH_H
#define READYBENCH_H

#include "windowbench.h"

#include <QDir>
#include <QTabBar>
#include <QTabWidget>
#include <QtTest>

#include <algorithm>
#include <functional>

/// The window connected to a sounder whose channels are both in manual mode, so that every control
/// can be used. The pause before a change is sent is short, unless a test asks for another.
class ReadyBench : public WindowBench
{
public:
    /// A quick sounder that sends nothing of its own accord.
    static SounderOptions quickSounder(SounderFit fit = SounderFit::Dual)
    {
        SounderOptions options = quietSounder();
        options.fit = fit;
        options.pace = false;
        return options;
    }

    using Preparation = std::function<void(SounderSettings &)>;

    /// Connects, in feet if `imperial`. `prepare` may change what the sounder holds before.
    explicit ReadyBench(bool imperial = false, const Preparation &prepare = {},
                        const SounderOptions &options = quickSounder())
        : WindowBench(options)
    {
        device().settings().high.mode = 'm';
        device().settings().low.mode = 'm';
        if (prepare) {
            prepare(device().settings());
        }
        timer("commandTimer")->setInterval(shortPauseMs);
        if (imperial) {
            click("imperialRadio");
        }
        reconnect();
    }

    /// Connects at the rate at which the device listens; the test program ends if that fails.
    void reconnect()
    {
        if (!connectToSounder(QString::number(device().lineRate()))) {
            qFatal("the window does not connect to its sounder");
        }
        device().clearTranscript();
    }

    /// Brings the tab of the channel ("high" or "low") to the front by a click.
    void openTab(const QString &channel)
    {
        auto *const bar = find<QTabWidget>("h")->tabBar();
        QTest::mouseClick(bar, Qt::LeftButton, {},
                          bar->tabRect(channel == "high" ? 0 : 1).center());
        if (!find<QWidget>(channel + "FreqTab")->isVisible()) {
            qFatal("the tab of the %s channel did not open", qPrintable(channel));
        }
    }

    /// Whether the program has the port open, asked of the system: besides the sounder's own, one
    /// more descriptor of this process is its terminal.
    bool holdsPort()
    {
        int count = 0;
        const QFileInfoList descriptors = QDir("/proc/self/fd").entryInfoList(QDir::System);
        for (const QFileInfo &descriptor : descriptors) {
            count += descriptor.symLinkTarget() == sounder.portPath() ? 1 : 0;
        }
        return count > 1;
    }

    /// Whether everything below this holder can be used; false too if only a part can. A holder
    /// that is empty ends the test program.
    bool isUsable(const QString &holder) { return partsEnabled(holder, true); }

    /// Whether nothing below this holder can be used.
    bool isGreyed(const QString &holder) { return partsEnabled(holder, false); }

    /// Whether a change waits for the pause before it is sent.
    bool hasPendingChange() { return timer("commandTimer")->isActive(); }

    /// Waits until all changes are sent and the last one is answered; false if that does not come.
    bool settles()
    {
        return QTest::qWaitFor([this] {
            const bool isAnswered =
                info().endsWith("Success") || info().contains("not applied", Qt::CaseInsensitive);
            return !hasPendingChange() && isAnswered;
        });
    }

    /// Settles and returns what the sounder got since the last call, none if it does not settle.
    QByteArrayList takeCommands()
    {
        const QByteArrayList commands = settles() ? settingCommands() : QByteArrayList();
        device().clearTranscript();
        return commands;
    }

private:
    bool partsEnabled(const QString &holder, bool enabled)
    {
        const QList<QWidget *> parts = find<QWidget>(holder)->findChildren<QWidget *>();
        if (parts.isEmpty()) {
            qFatal("%s holds nothing", qPrintable(holder));
        }
        return std::all_of(parts.begin(), parts.end(),
                           [enabled](const QWidget *part) { return part->isEnabled() == enabled; });
    }

    static constexpr int shortPauseMs = 1;
};

#endif // READYBENCH_H
