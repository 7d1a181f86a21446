// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

// A port that does not open. Why, as the operator reads it, tests/mainwindow/tst_portreason.cpp
// tells for each reason, that of a missing permission included.

#include "faultbench.h"

#include "dialoghand.h"

#include <QAbstractButton>
#include <QMessageBox>
#include <QSerialPort>
#include <QTemporaryFile>

namespace {

constexpr char notConnected[] = "Could Not Connect To Device";

/// Presses Connect for this port and reads the box that says that it does not open.
bool isRefused(FaultBench &bench, const QString &port, const QString &rate)
{
    const QStringList ports = bench.ports;
    bench.ports << port;
    QMetaObject::invokeMethod(&bench.window, "updateSerialPorts");
    bench.choose("portComboBox", port);
    bench.choose("baudComboBox", rate);
    const DialogHand<QMessageBox> hand(
        [](QMessageBox &box) { box.button(QMessageBox::Ok)->click(); });
    bench.click("connectToDevice");
    const bool isOver = FaultBench::waits([&] { return bench.isOffline(); });
    bench.ports = ports;
    QMetaObject::invokeMethod(&bench.window, "updateSerialPorts");
    return isOver && hand.count() == (rate == "Auto" ? 0 : 1);
}

bool isHeld(FaultBench &bench, const QString &rate)
{
    RawPty cable;
    QSerialPort otherProgram(cable.slavePath());
    return otherProgram.open(QIODevice::ReadWrite) && isRefused(bench, cable.slavePath(), rate);
}

bool isAFile(FaultBench &bench, const QString &rate)
{
    QTemporaryFile file;
    return file.open() && isRefused(bench, file.fileName(), rate);
}

const FaultRow faults[] = {
    {"another program holds it", [](FaultBench &bench) { return isHeld(bench, "9600"); }, "",
     false},
    {"another program holds it, in a search",
     [](FaultBench &bench) { return isHeld(bench, "Auto"); }, notConnected, false},
    {"it has vanished",
     [](FaultBench &bench) { return isRefused(bench, "/dev/ttyVANISHED7", "9600"); }, "", false},
    {"it has vanished, in a search",
     [](FaultBench &bench) { return isRefused(bench, "/dev/ttyVANISHED7", "Auto"); }, notConnected,
     false},
    {"it is a file", [](FaultBench &bench) { return isAFile(bench, "9600"); }, "", false},
    {"it is a file, in a search", [](FaultBench &bench) { return isAFile(bench, "Auto"); },
     notConnected, false},
    {"it is a folder", [](FaultBench &bench) { return isRefused(bench, "/tmp", "9600"); }, "",
     false},
    {"it is a device of another kind",
     [](FaultBench &bench) { return isRefused(bench, "/dev/null", "9600"); }, "", false},
    {"held twenty times",
     [](FaultBench &bench) {
         int refusals = 0;
         for (int time = 0; time < 20; ++time) {
             refusals += isHeld(bench, "9600") ? 1 : 0;
         }
         return refusals == 20;
     },
     "", false},
};

} // namespace

class TestPorts : public FaultTest
{
    Q_OBJECT

private slots:
    void initTestCase();
    void aPortThatDoesNotOpen_data() { addRows(faults); }
    void aPortThatDoesNotOpen() { play(); }
};

void TestPorts::initTestCase()
{
    bench = std::make_unique<FaultBench>();
    bench->keepAnswerTime(shortOrLong(250, 2000));
    isHeld(*bench, "9600"); // the first box brings its icon
}

QTEST_MAIN(TestPorts)
#include "tst_ports.moc"
