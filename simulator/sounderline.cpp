// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "sounderline.h"

#include "settingsmemory.h"

namespace {

/// Short against the 10 ms that ten characters take at 9600 bits a second.
constexpr std::chrono::milliseconds sendingTick{2};
constexpr std::chrono::milliseconds idleTick{10};

void report(const QString &problem)
{
    if (!problem.isEmpty()) {
        qWarning("Sounder: %s", qPrintable(problem));
    }
}

} // namespace

SounderLine::SounderLine(const SounderOptions &options, QObject *parent)
    : QObject(parent)
    , device(options)
    , memoryFile(options.memoryFile)
{
    if (!memoryFile.isEmpty()) {
        QString problem;
        if (const auto settings = SettingsMemory::load(memoryFile, options.fit, &problem)) {
            device.restore(*settings);
        }
        report(problem);
    }
    timer.setTimerType(Qt::PreciseTimer);
    connect(&timer, &QTimer::timeout, this, &SounderLine::tick);
}

void SounderLine::start()
{
    if (!clock.isValid()) { // a device whose line comes back has not stood still
        clock.start();
    }
    timer.start(idleTick);
}

void SounderLine::stop()
{
    timer.stop();
    unsent.clear();
    emit hungUp();
}

void SounderLine::hear(const QByteArray &bytes)
{
    const SounderSettings before = device.settings();
    emit bytesReceived(bytes);
    const QByteArrayList commands = device.receive(bytes, rateOnLine(), now());
    keepMemory();
    for (const QByteArray &command : commands) {
        emit commandReceived(command);
    }
    if (device.settings() != before) {
        emit settingsChanged();
    }
    tick();
}

void SounderLine::tick()
{
    if (!isOpen()) {
        return;
    }
    device.advance(now());
    if (device.hangUpIsDue()) {
        device.setFault(QStringLiteral("hang-up"), 0); // it comes once
        hangUp();
        return;
    }
    const bool isSpeaking = speak();
    if (isOpen()) {
        timer.start(isSpeaking ? sendingTick : idleTick);
    }
}

/// Returns whether more is to be sent soon.
bool SounderLine::speak()
{
    const Listener who = listener();
    if (who == Listener::Behind) {
        return false;
    }
    if (who == Listener::Absent) {
        unsent.clear();
        device.transmit(device.lineRate(), now());
        return device.isSending();
    }
    if (unsent.isEmpty()) {
        unsent = device.transmit(rateOnLine(), now());
    }
    const QByteArray sent = unsent.left(unsent.isEmpty() ? 0 : send(unsent));
    unsent.remove(0, sent.size());
    if (!sent.isEmpty()) {
        emit bytesSent(sent);
    }
    return device.isSending() || !unsent.isEmpty();
}

std::chrono::milliseconds SounderLine::now() const
{
    return std::chrono::milliseconds(clock.elapsed());
}

void SounderLine::keepMemory()
{
    if (device.timesKept() == timesRemembered) {
        return;
    }
    timesRemembered = device.timesKept();
    if (!memoryFile.isEmpty()) {
        report(SettingsMemory::save(memoryFile, device.fit(), device.keptSettings()));
    }
}
