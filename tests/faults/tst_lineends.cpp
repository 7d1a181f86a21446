// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

// The bytes come in other pieces than the sounder sent them, or with other line ends.

#include "faultbench.h"

namespace {

constexpr char pulse[] = "*Hp33";

/// Whether the window shows the pulse cycles. At most three lines are taken with each arrival, on
/// purpose, so that the line goes on with lines that say nothing.
bool showsPulse(FaultBench &bench, const QByteArray &lineEnd = "\r\n")
{
    return FaultBench::waits([&] {
        bench.line.write("." + lineEnd);
        return bench.text("highPulseEdit") == "33";
    });
}

/// Three lines with this end, and whether the middle one is read.
bool arrivesWith(FaultBench &bench, const QByteArray &lineEnd)
{
    return bench.connectReady() && bench.pour("x" + lineEnd + pulse + lineEnd + "y" + lineEnd) &&
           showsPulse(bench, lineEnd);
}

/// A line of so many bytes, then one that the window must read.
bool arrivesBehind(FaultBench &bench, qint64 size, const QByteArray &lineEnd)
{
    bool isRead = bench.connectReady();
    const QByteArray piece(1024 * 1024, 'x');
    for (qint64 said = 0; said < size && isRead; said += piece.size()) {
        isRead = bench.pour(piece);
    }
    return isRead && bench.pour(lineEnd) && bench.pour(QByteArray(pulse) + "\r\n") &&
           showsPulse(bench);
}

constexpr qint64 mebibyte = 1024LL * 1024;

const FaultRow faults[] = {
    {"every byte comes alone",
     [](FaultBench &bench) {
         bool isRead = bench.connectReady();
         for (const char byte : QByteArray(pulse) + "\r\n") {
             isRead = isRead && bench.pour(QByteArray(1, byte));
             QCoreApplication::processEvents();
         }
         return isRead && showsPulse(bench);
     },
     "", true},
    {"a pause between carriage return and line feed",
     [](FaultBench &bench) {
         const bool isRead = bench.connectReady() && bench.pour(QByteArray(pulse) + "\r") &&
                             FaultBench::waits([&] { return bench.text("highPulseEdit") == "33"; });
         return isRead && bench.pour("\n") && showsPulse(bench);
     },
     "", true},
    {"lines end in a carriage return", [](FaultBench &bench) { return arrivesWith(bench, "\r"); },
     "", true},
    {"lines end in a line feed",
     [](FaultBench &bench) {
         return bench.startConnecting() && bench.pour("TalVero New Dual 2.14.7\n") &&
                bench.reads("Connected to TAL-VERO") &&
                bench.pour(QByteArray("x\n") + pulse + "\ny\n") && showsPulse(bench, "\n");
     },
     "Connected to TAL-VERO", true},
    {"lines end in a line feed and a carriage return",
     [](FaultBench &bench) { return arrivesWith(bench, "\n\r"); }, "", true},
    {"every line ends in another way",
     [](FaultBench &bench) {
         return bench.connectReady() && bench.pour("x\ry\nz\r\n\r\r\n\nu\n\r\r\nv\rw\n") &&
                bench.pour(QByteArray("\r\n") + pulse + "\r\n") && showsPulse(bench);
     },
     "", true},
    {"nothing but line ends",
     [](FaultBench &bench) {
         return bench.connectReady() &&
                bench.pour(QByteArray("\r\n\n\r\r").repeated(200) + pulse + "\r\n") &&
                showsPulse(bench);
     },
     "", true},
    {"nothing but line feeds",
     [](FaultBench &bench) {
         return bench.connectReady() && bench.pour(QByteArray(20000, '\n') + pulse + "\r\n") &&
                showsPulse(bench);
     },
     "", true},
    {"two hundred lines in one write",
     [](FaultBench &bench) {
         const bool isReady = bench.connectReady();
         QByteArray lines;
         for (int number = 1; number <= 200; ++number) {
             lines += "VSupply: " + QByteArray::number(number) + "\r\n";
         }
         const bool isSaid = bench.line.write(lines) == lines.size();
         return isReady && isSaid && FaultBench::waits([&] {
                    bench.line.write(".\r\n");
                    return bench.text("temperatureLabel").contains("200.00V");
                });
     },
     "", true},
    {"a line of 1 MiB", [](FaultBench &bench) { return arrivesBehind(bench, mebibyte, "\r\n"); },
     "", true},
    {"a line of 15 MiB",
     [](FaultBench &bench) { return arrivesBehind(bench, shortOrLong(2, 15) * mebibyte, "\r\n"); },
     "", true},
    {"a line of 64 MiB",
     [](FaultBench &bench) { return arrivesBehind(bench, shortOrLong(18, 64) * mebibyte, "\r\n"); },
     "", true},
    {"a line that never ends",
     [](FaultBench &bench) {
         return bench.connectReady() &&
                bench.pour(QByteArray(shortOrLong(256 * 1024, 20 * 1024 * 1024), 'x'));
     },
     "", true},
};

} // namespace

class TestLineEnds : public FaultTest
{
    Q_OBJECT

private slots:
    void bytesInOtherPieces_data() { addRows(faults); }
    void bytesInOtherPieces() { play(); }
};

QTEST_MAIN(TestLineEnds)
#include "tst_lineends.moc"
