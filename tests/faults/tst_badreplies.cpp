// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

// The sounder refuses, says the wrong thing, or starts anew.

#include "faultbench.h"

#include "dialoghand.h"

#include <QAbstractButton>
#include <QMessageBox>

namespace {

constexpr char refused[] = "Received Error - Command Not Applied";
constexpr char lost[] = "Lost Connection To Device";

/// Connected, this control is clicked, and what it sends is answered so.
bool isAnswered(FaultBench &bench, const char *button, const char *command, const char *answer)
{
    if (!bench.connectReady()) {
        return false;
    }
    bench.line.clearReceived();
    bench.click(button);
    if (!bench.hears(command)) {
        return false;
    }
    bench.say(answer);
    return true;
}

/// Connected, and this is told.
bool isTold(FaultBench &bench, const QByteArray &reply)
{
    return bench.connectReady() && bench.pour(reply + "\r\nVSupply: 7.75\r\n") &&
           FaultBench::waits([&] { return bench.text("temperatureLabel").contains("7.75V"); });
}

bool changesRate(FaultBench &bench)
{
    if (!bench.connectReady()) {
        return false;
    }
    bench.choose("newBaudComboBox", "19200");
    return bench.hears("*I");
}

const FaultRow refusals[] = {
    {"it refuses the pings",
     [](FaultBench &bench) { return isAnswered(bench, "pingUp", "*i06", "ERR"); },
     "Setting Pings Per Second to 6 ... not applied. Reduce maximum depth", true},
    {"it refuses the maximum depth",
     [](FaultBench &bench) { return isAnswered(bench, "maxDepthUp", "*s", "ERR"); },
     "not applied. Reduce pings per second", true},
    {"it refuses the velocity",
     [](FaultBench &bench) { return isAnswered(bench, "soundVelocityUp", "*v", "ERR"); }, refused,
     true},
    {"it refuses a draft",
     [](FaultBench &bench) { return isAnswered(bench, "highDraftUp", "*o", "ERR"); }, refused,
     true},
    {"it refuses a mode",
     [](FaultBench &bench) { return isAnswered(bench, "highManualRadio", "*c", "ERR"); }, refused,
     true},
    {"it refuses to switch a channel off",
     [](FaultBench &bench) { return isAnswered(bench, "disableHF", "*hHHHHHHH", "ERR"); }, refused,
     true},
    {"it refuses to store",
     [](FaultBench &bench) { return isAnswered(bench, "saveSettingsToDevice", "*F", "ERR"); },
     refused, true},
    {"it refuses the factory's settings",
     [](FaultBench &bench) {
         const DialogHand<QMessageBox> hand(
             [](QMessageBox &box) { box.button(QMessageBox::Yes)->click(); });
         return isAnswered(bench, "resetSettings", "*R", "ERR");
     },
     refused, true},
    {"it follows a new rate",
     [](FaultBench &bench) {
         const bool isAsked = changesRate(bench);
         bench.say("OK");
         return isAsked && FaultBench::waits([&] { return bench.text("baudComboBox") == "19200"; });
     },
     "Success", false},
    {"it refuses a new rate",
     [](FaultBench &bench) {
         const bool isAsked = changesRate(bench);
         bench.say("ERR");
         return isAsked && bench.text("baudComboBox") == "9600";
     },
     refused, true},
    {"it does not answer to a new rate", [](FaultBench &bench) { return changesRate(bench); },
     "Command Timed Out", true},
};

const FaultRow replies[] = {
    {"a reply cut short", [](FaultBench &bench) { return isTold(bench, "*Hca,HlN,Hg0"); }, "",
     true},
    {"a reply cut after each letter",
     [](FaultBench &bench) { return isTold(bench, "*Hc,Hl,Hg,Hm,Ho,Hp,Hq,Ht,Hw,H,"); }, "", true},
    {"a reply twice in one line",
     [](FaultBench &bench) {
         return isTold(bench, "*i05,v1500000,s30000,H1,L1*i07,v1400000,s20000,H0,L1");
     },
     "", true},
    {"a reply twice",
     [](FaultBench &bench) {
         return isTold(bench, "*Hca,Hp44") && bench.tell("*Hca,Hp44") &&
                bench.text("highPulseEdit") == "44";
     },
     "", true},
    {"a reply of 10,000 fields",
     [](FaultBench &bench) {
         return isTold(bench, "*H" + QByteArray("ca,Hcm,Hp21,").repeated(3334));
     },
     "", true},
    {"a reply of 64 KiB of modes",
     [](FaultBench &bench) { return isTold(bench, "*H" + QByteArray("ca,Hcm,H").repeated(8192)); },
     "", true},
    {"a reply of 64 KiB of switches",
     [](FaultBench &bench) { return isTold(bench, "*i5" + QByteArray(",H0,H1").repeated(10922)); },
     "", true},
    {"a reply of 1 MiB",
     [](FaultBench &bench) { return isTold(bench, "*Hp" + QByteArray(1024 * 1024, '7')); }, "",
     true},
    {"a reply of unknown letters",
     [](FaultBench &bench) { return isTold(bench, "*iX1,Y2,Z3,?,!,*Hx1,Hy2,H?"); }, "", true},
    {"a reply out of range",
     [](FaultBench &bench) {
         return isTold(bench, "*i99,v-1,s2147483647,a0,I1,H7,L-") &&
                bench.tell("*Hg999,Hm-99999,Ho2147483648,Hp-3,Hq999999999,Ht101,Hw9999");
     },
     "", true},
    {"it starts anew", [](FaultBench &bench) { return isTold(bench, "TalVero New HF 1.0.0"); }, "",
     true},
    {"it starts anew and is silent",
     [](FaultBench &bench) {
         return isTold(bench, "TalVero New Dual 2.14.7") &&
                bench.waits([&] { return bench.isOffline(); });
     },
     lost, false},
    {"it starts anew at another rate",
     [](FaultBench &bench) {
         return isTold(bench, QByteArray("\x80\xE6\x1C\x98\x00\xFE").repeated(20)) &&
                FaultBench::waits([&] { return bench.isOffline(); });
     },
     lost, false},
};

} // namespace

class TestBadReplies : public FaultTest
{
    Q_OBJECT

private slots:
    void initTestCase();
    void aRefusal_data() { addRows(refusals); }
    void aRefusal() { play(); }
    void aReply_data() { addRows(replies); }
    void aReply() { play(); }
};

void TestBadReplies::initTestCase()
{
    bench = std::make_unique<FaultBench>();
    bench->keepAnswerTime(shortOrLong(1000, 2000));
    bench->timer("commandTimer")->setInterval(shortOrLong(20, 500));
}

QTEST_MAIN(TestBadReplies)
#include "tst_badreplies.moc"
