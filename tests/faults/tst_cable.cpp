// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

// The cable is pulled. What is shown and logged then, tests/mainwindow/tst_pulledcable.cpp tells
// for each state; here is what it must not cost, and what else may go on meanwhile.

#include "faultbench.h"

#include "dialoghand.h"

#include <QAbstractButton>
#include <QMessageBox>

#include <vector>

namespace {

constexpr char notConnected[] = "Could Not Connect To Device";
constexpr char lost[] = "Lost Connection To Device";
constexpr char banner[] = "TalVero New Dual 2.14.7\r\n";

bool losesTheLink(FaultBench &bench)
{
    bench.line.hangUp();
    return FaultBench::waits([&] { return bench.isOffline(); });
}

/// Connects through a cable of its own.
bool connectsThrough(FaultBench &bench, RawPty &cable)
{
    bench.ports = QStringList{cable.slavePath()};
    QMetaObject::invokeMethod(&bench.window, "updateSerialPorts");
    bench.choose("portComboBox", cable.slavePath());
    bench.choose("baudComboBox", "9600");
    bench.click("connectToDevice");
    return FaultBench::waits([&] {
        if (cable.received().contains("*n")) {
            cable.clearReceived();
            cable.write(banner);
        }
        return bench.showsConnected();
    });
}

const FaultRow pulls[] = {
    {"pulled while not connected",
     [](FaultBench &bench) {
         bench.line.hangUp();
         QTest::qWait(50);
         return true;
     },
     "", false},
    {"pulled while connecting",
     [](FaultBench &bench) { return bench.startConnecting() && losesTheLink(bench); }, notConnected,
     false},
    {"pulled while searching",
     [](FaultBench &bench) { return bench.startConnecting("Auto") && losesTheLink(bench); },
     notConnected, false},
    {"pulled while connected",
     [](FaultBench &bench) { return bench.connectReady() && losesTheLink(bench); }, lost, false},
    {"pulled while an answer is awaited",
     [](FaultBench &bench) {
         const bool isReady = bench.connectReady();
         bench.click("pingUp");
         return isReady && bench.hears("*i06....") && losesTheLink(bench);
     },
     lost, false},
    {"pulled while three changes wait",
     [](FaultBench &bench) {
         const bool isReady = bench.connectReady();
         for (const char *button : {"pingUp", "soundVelocityUp", "maxDepthUp"}) {
             bench.click(button);
         }
         return isReady && losesTheLink(bench);
     },
     lost, false},
    {"pulled in a flood",
     [](FaultBench &bench) {
         const bool isReady = bench.connectReady();
         bench.flood(" et B 00123 00131\r\n", 200);
         return isReady && losesTheLink(bench);
     },
     lost, false},
    {"pulled while the window is resized",
     [](FaultBench &bench) {
         const bool isReady = bench.connectReady();
         const QSize size = bench.window.size();
         bench.line.hangUp();
         for (int step = 0; step < 20; ++step) {
             bench.window.resize(size - QSize(step % 2 * 10, 0));
             QTest::qWait(10);
         }
         bench.window.resize(size);
         const bool isLost = FaultBench::waits([&] { return bench.isOffline(); });
         bench.timer("resizeTimer")->stop();
         return isReady && isLost;
     },
     lost, false},
    {"pulled while a question is open",
     [](FaultBench &bench) {
         const bool isReady = bench.connectReady();
         const DialogHand<QMessageBox> hand([&](QMessageBox &box) {
             if (!bench.isOffline()) {
                 bench.line.hangUp();
             } else {
                 box.button(QMessageBox::Yes)->click(); // there is nothing to reset any more
             }
         });
         bench.click("resetSettings");
         return isReady && bench.isOffline();
     },
     lost, false},
    {"pulled and plugged in sixty times",
     [](FaultBench &bench) {
         const int times = shortOrLong(20, 60);
         for (int time = 0; time < times; ++time) {
             RawPty cable;
             if (!connectsThrough(bench, cable)) {
                 return false;
             }
             cable.hangUp();
             if (!FaultBench::waits([&] { return bench.isOffline(); })) {
                 return false;
             }
         }
         return true;
     },
     lost, false},
};

const FaultRow connections[] = {
    {"two hundred connections",
     [](FaultBench &bench) {
         for (int time = 0; time < shortOrLong(40, 200); ++time) {
             if (!bench.connectReady()) {
                 return false;
             }
             bench.click("connectToDevice");
         }
         return bench.isOffline();
     },
     "", false},
    {"two hundred attempts that the operator ends",
     [](FaultBench &bench) {
         for (int time = 0; time < shortOrLong(40, 200); ++time) {
             if (!bench.startConnecting(time % 2 == 0 ? "9600" : "Auto")) {
                 return false;
             }
             bench.click("connectToDevice");
         }
         return bench.isOffline();
     },
     "", false},
};

} // namespace

class TestCable : public FaultTest
{
    Q_OBJECT

private slots:
    void theCableIsPulled_data() { addRows(pulls); }
    void theCableIsPulled();
    void manyConnections_data() { addRows(connections); }
    void manyConnections() { play(); }
};

void TestCable::theCableIsPulled()
{
    needsNewCable = true;
    play();
}

QTEST_MAIN(TestCable)
#include "tst_cable.moc"
