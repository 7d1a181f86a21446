// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#ifndef SOUNDERMODEL_H
#define SOUNDERMODEL_H

#include "commandlog.h"
#include "commandreader.h"
#include "depthformats.h"
#include "linesender.h"
#include "seabed.h"
#include "soundersettings.h"

#include <chrono>
#include <functional>
#include <random>

/// A TAL-VERO as its serial line shows it, free of any input and output: bytes go in with the rate
/// of the line and the time, bytes come out. The same calls give the same bytes for the same seed.
/// Times count from any start and never run back.
class SounderModel
{
public:
    using Milliseconds = std::chrono::milliseconds;

    /// What both channels measure below the transducer after so many seconds.
    using DepthSource = std::function<DepthPair(double seconds)>;

    explicit SounderModel(const SounderOptions &options = {});

    /// Bytes arrive on a line that runs at `rateOnLine` bits a second (0: unknown). At any other
    /// rate than lineRate() they are noise. Returns the commands taken from them, in order.
    QByteArrayList receive(const QByteArray &bytes, int rateOnLine, Milliseconds now);

    /// Lets time pass: soundings, late answers and restarts come about.
    void advance(Milliseconds now);

    /// Takes the bytes that have left by `now`, as somebody hears them who listens at
    /// `rateOnLine`: garbage unless that is lineRate(). Call it every few milliseconds; it
    /// advances the time too.
    QByteArray transmit(int rateOnLine, Milliseconds now);

    /// Whether bytes wait to leave.
    bool isSending() const { return !sender.isEmpty() || !lateAnswers.isEmpty(); }

    /// The rate at which the device hears and speaks now. It follows settings().rate as soon as the
    /// answer to the command that changed it has left.
    int lineRate() const { return activeRate; }

    SounderFit fit() const { return made.fit; }

    /// Another unit takes this one's place and starts: it carries these channels, all switched on,
    /// and has kept the same settings.
    void setFit(SounderFit fit);

    /// What the device holds; a test may change it directly.
    SounderSettings &settings() { return current; }
    const SounderSettings &settings() const { return current; }

    /// What the device would wake up with.
    const SounderSettings &keptSettings() const { return kept; }

    /// How often a command has written that memory: "*F", and "*R", which makes it the factory's.
    int timesKept() const { return keepings; }

    /// Wakes up with these settings, as from its memory. The rate and format that the options gave
    /// go before the kept ones.
    void restore(const SounderSettings &settings);

    /// Switches on the soundings that it sends of its own accord, or off.
    void setSoundings(bool on) { soundings = on; }

    /// Replaces the sea bed.
    void setDepthSource(DepthSource source) { depthSource = std::move(source); }

    /// What the last sounding said in metres, draft and index included where the format has them.
    const DepthPair &lastSounding() const { return sounded; }

    const SounderFaults &faults() const { return misbehaviour; }

    /// Sets a fault by name, see SounderFaults::set(); a time counts from now. Returns what is
    /// wrong, empty if nothing is.
    QString setFault(const QString &name, double value);

    /// True once the "hang-up" fault's time has come: whoever holds the line must pull it.
    bool hangUpIsDue() const;

    /// Restarts: forgets what was not kept, hears and says nothing for a moment.
    void reboot();

    /// Every command as the device took it, from "*" on eight characters; the last 10,000.
    QByteArrayList received() const { return log.commands(); }

    /// All bytes heard at the right rate; the last million.
    QByteArray rawReceived() const { return log.raw(); }

    /// How often each kind was received: "identity", "settings", "uid", "temperature", "voltage",
    /// "set", "enable", "disable", "save", "reset", "unknown" and "noise" (a command at another
    /// rate); "refused" counts the answers "ERR" to changes besides their own kind.
    QMap<QString, int> counts() const { return log.counts(); }

    void clearTranscript() { log.clear(); }

private:
    struct LateAnswer
    {
        Milliseconds due;
        LineSender::Line line;
    };

    void execute(const QByteArray &command);
    void change(const QByteArray &command);
    SetResult tryChange(const QByteArray &command);
    void answer(const QByteArray &text);
    QByteArray banner() const;
    QByteArray temperature() const;
    QByteArray voltage() const;
    QByteArray drifting(double middle, double swing, double periodS) const;
    void say(LineSender::Line line);
    void sendLateAnswers();
    void sound();
    DepthPair measure() const;
    void followRate();
    bool happens(double probability);
    quint32 random();
    double roll();
    QByteArray spoilt(QByteArray text);
    QByteArray asGarbage(QByteArray bytes);

    SounderOptions made;
    SounderFaults misbehaviour;
    SounderSettings current;
    SounderSettings kept;
    int keepings = 0;
    int activeRate;
    bool soundings;
    std::mt19937 dice;
    DepthSource depthSource;
    DepthPair sounded;
    CommandReader reader;
    CommandLog log;
    LineSender sender;
    bool isMuted = false; // the command at hand gets no answer
    QList<LateAnswer> lateAnswers;
    Milliseconds clock{0};
    Milliseconds nextPing{0};
    Milliseconds wakesUpAt{0};
    std::optional<Milliseconds> rebootAt;
    std::optional<Milliseconds> hangUpAt;
};

#endif // SOUNDERMODEL_H
