// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

// The sounder says nothing, or too late.

#include "faultbench.h"

namespace {

constexpr char banner[] = "TalVero New Dual 2.14.7";
constexpr char notConnected[] = "Could Not Connect To Device";
constexpr char lost[] = "Lost Connection To Device";
constexpr int lateMs = 100;

bool changesPings(FaultBench &bench)
{
    if (!bench.connectReady()) {
        return false;
    }
    bench.click("pingUp");
    return bench.hears("*i06....");
}

/// With the patience that a real interval asks for.
bool hearsAtLast(FaultBench &bench, const char *command)
{
    return FaultBench::waits([&] { return bench.line.received().contains(command); });
}

/// Lets the next poll come about.
bool isPolled(FaultBench &bench)
{
    if (!bench.connectReady()) {
        return false;
    }
    bench.line.clearReceived();
    bench.timer("temperatureTimer")->start();
    const bool isHeard = hearsAtLast(bench, "*UA");
    bench.timer("temperatureTimer")->stop();
    return isHeard;
}

bool isAskedWhetherItLives(FaultBench &bench)
{
    if (!bench.connectReady()) {
        return false;
    }
    bench.line.clearReceived();
    return hearsAtLast(bench, "*nasdfdsa");
}

bool answersJustInTime(FaultBench &bench, const char *answer)
{
    const bool isInTime = FaultBench::waitsUntilAlmostLate(bench.answerWatch());
    bench.say(answer);
    return isInTime && FaultBench::waits([&] { return !bench.answerWatch()->isActive(); });
}

bool answersAfter(FaultBench &bench, const char *message, const char *answer)
{
    const bool isTold = bench.reads(message);
    QTest::qWait(lateMs);
    bench.say(answer);
    QTest::qWait(lateMs / 2); // what it must not change
    return isTold;
}

const FaultRow faults[] = {
    {"it never answers", [](FaultBench &bench) { return bench.startConnecting(); }, notConnected,
     false},
    {"it never answers at any rate",
     [](FaultBench &bench) { return bench.startConnecting("Auto"); }, notConnected, false},
    {"it names itself and says no more",
     [](FaultBench &bench) {
         const bool isAsked = bench.startConnecting();
         bench.say(banner);
         return isAsked && bench.hears("*UAb");
     },
     lost, false},
    {"it falls silent between its settings",
     [](FaultBench &bench) { return bench.connectAs() && bench.tell("*i05,v1500000,s30000"); },
     lost, false},
    {"it falls silent within a line",
     [](FaultBench &bench) { return bench.connectReady() && bench.line.write("VSup") > 0; }, lost,
     false},
    {"it falls silent with three changes waiting",
     [](FaultBench &bench) {
         const bool isReady = bench.connectReady();
         for (const char *button : {"pingUp", "soundVelocityUp", "maxDepthUp"}) {
             bench.click(button);
         }
         return isReady && bench.hears("*s0");
     },
     "Command Timed Out", true},
    {"its banner comes 100 ms before the time-out",
     [](FaultBench &bench) {
         const bool isInTime = bench.startConnecting() &&
                               FaultBench::waitsUntilAlmostLate(bench.timer("answerTimer"));
         bench.say(banner);
         return isInTime;
     },
     "Connected to TAL-VERO", true},
    {"its banner comes 100 ms after the time-out",
     [](FaultBench &bench) {
         return bench.startConnecting() && answersAfter(bench, notConnected, banner);
     },
     notConnected, false},
    {"in a search its banner comes 100 ms before the second rate's time-out",
     [](FaultBench &bench) {
         const bool isInTime = bench.startConnecting("Auto") && bench.reads("9600 baud") &&
                               FaultBench::waitsUntilAlmostLate(bench.timer("answerTimer"));
         bench.say(banner);
         return isInTime && bench.reads("Connected to TAL-VERO") &&
                bench.text("baudComboBox") == "9600";
     },
     "Connected to TAL-VERO", true},
    {"its OK comes 100 ms before the time-out",
     [](FaultBench &bench) { return changesPings(bench) && answersJustInTime(bench, "OK"); },
     "Setting Pings Per Second to 6 ... Success", true},
    {"its OK comes 100 ms after the time-out",
     [](FaultBench &bench) {
         return changesPings(bench) && answersAfter(bench, "Command Timed Out", "OK");
     },
     "Command Timed Out ... Success", true},
    {"its refusal comes 100 ms after the time-out",
     [](FaultBench &bench) {
         return changesPings(bench) && answersAfter(bench, "Command Timed Out", "ERR");
     },
     "Command Timed Out ... not applied. Reduce maximum depth", true},
    {"it answers a poll 100 ms before the time-out",
     [](FaultBench &bench) {
         return isPolled(bench) && answersJustInTime(bench, "VSupply: 12.41");
     },
     "", true},
    {"it answers a poll 100 ms after the time-out",
     [](FaultBench &bench) {
         return isPolled(bench) && answersAfter(bench, lost, "VSupply: 12.41");
     },
     lost, false},
    {"it answers the keep-alive 100 ms before the time-out",
     [](FaultBench &bench) {
         return isAskedWhetherItLives(bench) && answersJustInTime(bench, banner);
     },
     "", true},
    {"it answers the keep-alive 100 ms after the time-out",
     [](FaultBench &bench) {
         return isAskedWhetherItLives(bench) && answersAfter(bench, lost, banner);
     },
     lost, false},
};

} // namespace

class TestSilence : public FaultTest
{
    Q_OBJECT

private slots:
    void initTestCase();
    void aSounderThatSaysNothingInTime_data() { addRows(faults); }
    void aSounderThatSaysNothingInTime() { play(); }
};

void TestSilence::initTestCase()
{
    bench = std::make_unique<FaultBench>();
    bench->keepAnswerTime(shortOrLong(250, 2000));
}

QTEST_MAIN(TestSilence)
#include "tst_silence.moc"
