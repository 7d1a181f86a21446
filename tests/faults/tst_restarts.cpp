// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

// A sounder that loses its supply and starts again, played by the simulated one: for a second and a
// half it is deaf and dumb, then it has what it had stored, its rate included.

#include "faultbench.h"

#include <QLineEdit>

namespace {

constexpr char newRate[] = "38400";

/// Connects, and waits for the last line of the settings: the window shows those of before until
/// then.
bool connects(FaultBench &bench, const QString &rate)
{
    bench.log.clear();
    bench.pressConnect(rate);
    return bench.reads("Connected to TAL-VERO") &&
           FaultBench::waits([&] { return bench.log.contains("Settings (\"L"); });
}

/// Makes the device ping so often, from 5 times a second on.
bool isConfirmed(FaultBench &bench, int pings)
{
    bench.click("pingUp");
    return bench.reads(QStringLiteral("Setting Pings Per Second to %1 ... Success").arg(pings)) &&
           bench.device().settings().pings == pings;
}

/// The noise keeps the silence from being one; the mark at the value tells it.
bool isMarkedUnanswered(FaultBench &bench)
{
    const auto *const pings = bench.find<QLineEdit>("pingEdit");
    return FaultBench::waits([pings] {
        return pings->property("mark") == "notApplied" && pings->toolTip() == "Command Timed Out";
    });
}

bool isSounding(FaultBench &bench)
{
    const QString before = bench.text("highDepthLabel");
    return FaultBench::waits([&] { return bench.text("highDepthLabel") != before; });
}

/// Connected at a rate that the device has not stored.
bool worksAtAnUnstoredRate(FaultBench &bench)
{
    if (!connects(bench, "9600")) {
        return false;
    }
    bench.choose("newBaudComboBox", newRate);
    return FaultBench::waits([&] { return bench.text("baudComboBox") == newRate; }) &&
           FaultBench::waits([&] { return bench.isOffline(); }) && connects(bench, newRate);
}

bool findsIt(FaultBench &bench)
{
    if (!bench.isOffline()) {
        bench.click("connectToDevice");
    }
    return connects(bench, "Auto") && bench.text("baudComboBox") == "9600" && isConfirmed(bench, 6);
}

const FaultRow restarts[] = {
    {"between two changes: connected anew, the window shows what it had stored",
     [](FaultBench &bench) {
         bench.device().setSoundings(true);
         const bool isChanged = connects(bench, "9600") && isConfirmed(bench, 6);
         bench.device().reboot(); // it had not stored that
         const bool isBack =
             isSounding(bench) && bench.showsConnected() && bench.device().settings().pings == 5;
         bench.click("connectToDevice");
         return isChanged && isBack && connects(bench, "9600") && bench.text("pingEdit") == "5";
     },
     "Connected to TAL-VERO", true},
    {"right after a change, and takes the next one",
     [](FaultBench &bench) {
         const bool isReady = connects(bench, "9600");
         bench.device().reboot();
         bench.click("pingUp");
         return isReady && bench.reads("Setting Pings Per Second to 6 ... Command Timed Out") &&
                isConfirmed(bench, 7);
     },
     "Setting Pings Per Second to 7 ... Success", true},
    {"at the rate that it had stored: silence, then the search finds it",
     [](FaultBench &bench) {
         const bool isReady = worksAtAnUnstoredRate(bench);
         bench.device().reboot();
         return isReady && bench.reads("Lost Connection To Device") && findsIt(bench);
     },
     "Setting Pings Per Second to 6 ... Success", true},
    {"at the rate that it had stored, sounding: no change is taken, then the search finds it",
     [](FaultBench &bench) {
         bench.device().setSoundings(true);
         const bool isReady = worksAtAnUnstoredRate(bench) && isSounding(bench);
         bench.device().reboot();
         bench.click("pingUp");
         return isReady && isMarkedUnanswered(bench) && bench.device().settings().pings == 5 &&
                findsIt(bench);
     },
     "Setting Pings Per Second to 6 ... Success", true},
};

} // namespace

class TestRestarts : public FaultTest
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void itRestarts_data() { addRows(restarts); }
    void itRestarts() { play(); }
};

void TestRestarts::init()
{
    FaultTest::init();
    QVERIFY(bench->sounder.plugIn());
    bench->ports << bench->sounder.portPath();
    QMetaObject::invokeMethod(&bench->window, "updateSerialPorts");
}

/// The sounder's clock would count as the window's.
void TestRestarts::cleanup()
{
    if (!bench->isOffline()) {
        bench->click("connectToDevice");
    }
    bench->device().setSoundings(false);
    bench->device().restore({});
    bench->sounder.hangUp();
    FaultTest::cleanup();
}

QTEST_MAIN(TestRestarts)
#include "tst_restarts.moc"
