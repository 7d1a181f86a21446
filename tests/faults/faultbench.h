// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#ifndef FAULTBENCH_H
#define FAULTBENCH_H

#include "logcapture.h"
#include "loopwatch.h"
#include "reportbench.h"

#include <QObject>

#include <functional>
#include <memory>

/// What no fault may cost, whatever it is. Times are this thread's own processor time, so that a
/// busy machine does not count.
namespace FaultLimits {
constexpr double absenceMs = 100;                        ///< between two turns of the event loop
constexpr qint64 heapBytes = 256LL * 1024;               ///< caches come and go by so much
constexpr qint64 heapBytesWithGraph = 3LL * 1024 * 1024; ///< the graph keeps its picture
constexpr int files = 0;
constexpr int objects = 0;
constexpr double idleShare = 0.02; ///< of a core, once the link is closed
} // namespace FaultLimits

/// Whether the long form runs (TALVERO_FAULTS=long): real intervals, longer floods, more acts.
bool isLongForm();

/// The one for the short form, the other for the long one.
template <typename Value>
Value shortOrLong(Value inShort, Value inLong)
{
    return isLongForm() ? inLong : inShort;
}

/// The window on a bare line, and a watch over what it costs. One bench serves all rows of a
/// program, as one window serves an operator all day.
class FaultBench : public ReportBench
{
public:
    /// What the window holds while no device is connected.
    struct Holdings
    {
        qint64 heapBytes = 0;
        int files = 0;
        int objects = 0;
        QStringList timers; ///< those that run
    };

    /// Connected and disconnected twice, so that what is made once is there.
    FaultBench();

    /// A row begins: what is held now is what may be held at its end.
    void begin();

    /// A row ends: disconnects if the fault has not. Empty, or which limit did not hold.
    QString end();

    /// Takes back what was said while the port was closed: the next connection would hear it.
    void forgetWhatWasSaid();

    /// Sends all of it, waiting for the window to read; false if the window does not read on.
    bool pour(const QByteArray &bytes);

    /// Sends this again and again for so many milliseconds, as fast as the window reads.
    void flood(const QByteArray &bytes, int milliseconds);

    /// Tells the three lines of a settings reply, both channels on and in automatic mode.
    bool tellSettings();

    /// Connects with a settings reply, and lets the greeting go. However short an answer's time is,
    /// this one has the real time: a machine that was away for a moment is no fault of the sounder.
    bool connectReady();

    /// Waits for this, 15 s if no other patience is given; false if it does not come.
    static bool waits(const std::function<bool()> &condition, int patienceMs = 15000);

    /// Waits until what the operator reads in the info line ends so; false if it does not.
    bool reads(const QString &end, int patienceMs = 15000);

    /// Waits until this watch has 100 ms left; false if it has ended before.
    static bool waitsUntilAlmostLate(QTimer *watch);

    /// An answer is overdue after this time, to a command as to a connection; the time between
    /// polls and that to the keep-alive follow in proportion.
    void keepAnswerTime(int milliseconds);

    /// The watch over the answer to a command.
    QTimer *answerWatch();

    /// The window's end of the line.
    SerialPortLayer &port();

    /// Whether the button offers to connect.
    bool isOffline() { return text("connectToDevice") == "Connect   "; }

    LogCapture log;
    LoopWatch turns;
    qint64 heapAllowed = FaultLimits::heapBytes;

private:
    struct Figures
    {
        double absenceMs;
        qint64 heapBytes; ///< more than before
        double idleShare;
    };

    void letInfoGo();
    void setAnswerTime(int milliseconds);
    Holdings holdings();
    static double shareWhile(int milliseconds);
    static double idleShare();
    QString excess(const Figures &figures, const Holdings &now) const;
    void note(const Figures &figures) const;

    Holdings before;
    int answerTime;
};

/// A fault as the operator would tell it, and what the operator sees of it in the end.
struct FaultRow
{
    const char *name;
    bool (*happens)(FaultBench &bench); ///< false if it does not come so far
    const char *info;                   ///< the end of the info line
    bool endsConnected;
};

Q_DECLARE_METATYPE(const FaultRow *)

/// The faults of a test program: each begins and ends on the bench.
class FaultTest : public QObject
{
    Q_OBJECT

protected:
    template <std::size_t count>
    static void addRows(const FaultRow (&rows)[count])
    {
        QTest::addColumn<const FaultRow *>("row");
        for (const FaultRow &row : rows) {
            QTest::newRow(row.name) << &row;
        }
    }

    /// Lets the fault of the current row happen and looks at what the operator sees.
    void play();

    std::unique_ptr<FaultBench> bench;
    bool needsNewCable = false; ///< this row spoils the line: the next one gets a bench of its own

protected slots:
    void init();
    void cleanup();

private slots:
    void cleanupTestCase();
};

#endif // FAULTBENCH_H
