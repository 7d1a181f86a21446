// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "soundermodel.h"

#include <algorithm>

namespace {

using Milliseconds = SounderModel::Milliseconds;

/// From power-up until the device hears anything.
constexpr Milliseconds bootTime{1500};

/// The velocity of sound in the water above the sea bed.
constexpr double trueVelocityMmS = 1500000;

std::optional<Milliseconds> timeFrom(Milliseconds start, double seconds)
{
    if (seconds <= 0) {
        return {};
    }
    return start + Milliseconds(static_cast<qint64>(seconds * 1000));
}

SounderSettings withOptions(SounderSettings settings, const SounderOptions &options)
{
    if (options.rate > 0) {
        settings.rate = options.rate;
    }
    if (options.format > 0) {
        settings.format = options.format;
    }
    return settings;
}

/// What makes noise of a byte: no character that could be read.
char unprintable(quint32 random)
{
    constexpr quint32 highBit = 0x80;
    const quint32 byte = random & 0xFFU;
    return static_cast<char>(byte >= ' ' && byte < highBit ? byte | highBit : byte);
}

} // namespace

SounderModel::SounderModel(const SounderOptions &options)
    : made(options)
    , misbehaviour(options.faults)
    , current(withOptions(factorySettings(options.fit), options))
    , kept(current)
    , activeRate(current.rate)
    , soundings(options.soundings)
    , dice(options.seed)
    , depthSource([bed = Seabed(options.seed)](double seconds) { return bed.depthsAt(seconds); })
    , sender(options.pace)
    , rebootAt(timeFrom(clock, misbehaviour.rebootAfterS))
    , hangUpAt(timeFrom(clock, misbehaviour.hangUpAfterS))
{}

QByteArrayList SounderModel::receive(const QByteArray &bytes, int rateOnLine, Milliseconds now)
{
    advance(now);
    if (clock < wakesUpAt) {
        return {};
    }
    if (rateOnLine != activeRate) {
        log.count(QStringLiteral("noise"), static_cast<int>(bytes.count('*')));
        reader.clear();
        return {};
    }
    log.addRaw(bytes);
    const QByteArrayList commands = reader.read(bytes);
    for (const QByteArray &command : commands) {
        log.addCommand(command);
        execute(command);
    }
    followRate();
    return commands;
}

void SounderModel::advance(Milliseconds now)
{
    clock = std::max(clock, now);
    if (rebootAt && clock >= *rebootAt) {
        reboot();
    }
    if (clock < wakesUpAt) {
        return;
    }
    sendLateAnswers();
    if (soundings && clock >= nextPing) {
        sound();
    }
    followRate();
}

QByteArray SounderModel::transmit(int rateOnLine, Milliseconds now)
{
    advance(now);
    const QByteArray bytes = sender.take(activeRate, clock);
    const bool isUnderstood = rateOnLine == activeRate;
    followRate();
    return isUnderstood ? bytes : asGarbage(bytes);
}

void SounderModel::restore(const SounderSettings &settings)
{
    kept = current = withOptions(settings, made);
    followRate();
}

QString SounderModel::setFault(const QString &name, double value)
{
    const QString problem = misbehaviour.set(name, value);
    if (problem.isEmpty() && name == QLatin1String("reboot")) {
        rebootAt = timeFrom(clock, value);
    }
    if (problem.isEmpty() && name == QLatin1String("hang-up")) {
        hangUpAt = timeFrom(clock, value);
    }
    return problem;
}

bool SounderModel::hangUpIsDue() const { return hangUpAt && clock >= *hangUpAt; }

void SounderModel::reboot()
{
    sender.clear();
    lateAnswers.clear();
    reader.clear();
    current = kept;
    activeRate = kept.rate;
    wakesUpAt = clock + bootTime;
    nextPing = wakesUpAt;
    rebootAt = timeFrom(clock, misbehaviour.rebootAfterS);
}

void SounderModel::setFit(SounderFit fit)
{
    made.fit = fit;
    kept.highOn = hasChannel(fit, SounderChannel::High);
    kept.lowOn = hasChannel(fit, SounderChannel::Low);
    reboot();
}

/// The rate must stay until the answer to the command that changes it has left.
void SounderModel::followRate()
{
    const auto holds = [](const LateAnswer &late) { return late.line.holdsRate; };
    if (!sender.holdsRate() && std::none_of(lateAnswers.begin(), lateAnswers.end(), holds)) {
        activeRate = current.rate;
    }
}

void SounderModel::sendLateAnswers()
{
    while (!lateAnswers.isEmpty() && lateAnswers.first().due <= clock) {
        sender.add(lateAnswers.takeFirst().line, clock);
    }
}

/// One sounding. A sounder that was not asked for a while does not make up for it.
void SounderModel::sound()
{
    nextPing += Milliseconds(1000 / std::max(1, current.pings));
    if (nextPing <= clock) {
        nextPing = clock + Milliseconds(1000 / std::max(1, current.pings));
    }
    if (!current.highOn && !current.lowOn) {
        return;
    }
    sounded = measure();
    if (happens(misbehaviour.silent)) {
        return;
    }
    const SounderChannel single = current.highOn ? SounderChannel::High : SounderChannel::Low;
    for (const QByteArray &text : DepthFormats::lines(current.format, sounded, single)) {
        LineSender::Line line;
        line.bytes = text;
        line.isSounding = true;
        say(line);
    }
}

/// A sounder measures times: a wrong velocity gives wrong depths. It sees nothing within its
/// blanking and beyond its maximum depth.
DepthPair SounderModel::measure() const
{
    const DepthPair bed = depthSource(static_cast<double>(clock.count()) / 1000);
    const bool isBelowTransducer = current.format == NmeaDbt;
    const auto seen = [&](const std::optional<double> &depth, SounderChannel channel) {
        const ChannelSettings &set = current.channel(channel);
        const double echoMm = depth.value_or(0) * 1000 * current.velocityMmS / trueVelocityMmS;
        if (!depth || !current.isOn(channel) || echoMm < set.blankingMm ||
            echoMm > current.maxDepthMm) {
            return std::optional<double>();
        }
        const int draftMm = isBelowTransducer ? 0 : set.draftMm;
        return std::optional<double>((echoMm + draftMm + set.indexMm) / 1000);
    };
    return {seen(bed.high, SounderChannel::High), seen(bed.low, SounderChannel::Low)};
}

quint32 SounderModel::random() { return static_cast<quint32>(dice()); }

double SounderModel::roll()
{
    constexpr double span = 4294967296.0;
    return random() / span;
}

bool SounderModel::happens(double probability) { return probability > 0 && roll() < probability; }

/// Sends a text as a line, as well as the faults let it.
void SounderModel::say(LineSender::Line line)
{
    if (happens(misbehaviour.dropLine)) {
        line.bytes.clear();
    }
    if (!line.bytes.isEmpty()) {
        line.bytes = (happens(misbehaviour.garble) ? spoilt(line.bytes) : line.bytes) + "\r\n";
    }
    line.byteByByte = happens(misbehaviour.split);
    line.waitsForOthers = happens(misbehaviour.burst);
    const bool isLate = !line.isSounding && (misbehaviour.lateMs > 0 || !lateAnswers.isEmpty());
    if (isLate) {
        const Milliseconds delay(static_cast<qint64>(misbehaviour.lateMs));
        lateAnswers << LateAnswer{clock + delay, line};
    } else {
        sender.add(line, clock);
    }
}

/// Some of its characters, at least one, are no longer what they were.
QByteArray SounderModel::spoilt(QByteArray text)
{
    constexpr double share = 0.25;
    const int certain = static_cast<int>(roll() * static_cast<double>(text.size()));
    for (int i = 0; i < text.size(); ++i) {
        if (i == certain || roll() < share) {
            text[i] = static_cast<char>(unprintable(random()) | '\x80');
        }
    }
    return text;
}

QByteArray SounderModel::asGarbage(QByteArray bytes)
{
    for (char &byte : bytes) {
        byte = unprintable(random());
    }
    return bytes;
}
