// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#ifndef SESSIONBENCH_H
#define SESSIONBENCH_H

#include "linksession.h"
#include "logcapture.h"
#include "rawpty.h"
#include "sentbytes.h"
#include "settings.h"

#include <QSerialPort>
#include <QtTest>

#include <utility>

/// The session on a bare line, wired as the window wires it. All that it tells is noted in its
/// order, in words. Its timers are made so slow that nothing happens by itself: the test says what
/// happens when.
class SessionBench
{
public:
    static constexpr char banner[] = "TalVero New Dual 2.14.7";
    static constexpr char wakeUp[] = "*nasdfd\r\n";
    static constexpr char probe[] = "*n1234567*n1234567";

    SessionBench()
    {
        if (!line.isOpen()) {
            qFatal("the system gave no pseudo-terminal");
        }
        choices = {line.slavePath(), "9600", "9600", "NMEA DBS"};
        slowDown();
        wire();
        noteWhatItTells();
    }

    /// Leads a fresh session to this state. What it has told, logged and sent until then is
    /// forgotten. A search stands at 4800, everything else at 9600.
    void bring(SessionState state)
    {
        if (state != SessionState::Offline) {
            choices.rate = state == SessionState::Searching ? "Auto" : "9600";
            session.press();
        }
        if (state == SessionState::Connected) {
            say(banner);
        }
        if (session.state() != state) {
            qFatal("the session did not get there");
        }
        takeSent();
        told.clear();
        log.clear();
    }

    /// Connects and lets the greeting in the info line run out of its time.
    void connectAndClear()
    {
        bring(SessionState::Connected);
        session.info().clear();
        told.clear();
    }

    /// A line arrives.
    void say(const QString &text)
    {
        session.port().receivedLines.append(text);
        session.gotSerialData();
    }

    /// Has the session announce and send a change of this setting, and forgets what it told of it.
    void sendChange(const QString &key)
    {
        session.queue().triggerChange(key, settings.getSettingString(key));
        session.queue().timer().stop();
        session.queue().sendLatestCommand();
        takeSent();
        told.clear();
        log.clear();
    }

    /// What it has told since the last call: "state …", "info <colour>: …", "rate …",
    /// "identified …", "settings …", "identifier …", "status …", "sounded …".
    QStringList takeTold() { return std::exchange(told, {}); }

    /// What the session has logged since the last call, without the lines of port and settings.
    QStringList takeLog()
    {
        QStringList own;
        const QStringList lines = log.lines();
        const QStringList texts = log.texts();
        for (int i = 0; i < lines.size(); ++i) {
            if (lines.at(i).startsWith("mainwindow_")) {
                own << texts.at(i);
            }
        }
        log.clear();
        return own;
    }

    /// What has gone out since the last call.
    QByteArray takeSent()
    {
        if (!isPortFree()) {
            return takeSentBytes(session.port(), line);
        }
        const QByteArray sent = line.received();
        line.clearReceived();
        return sent;
    }

    /// Whether another program could open the line now: it cannot while the session has it open.
    bool isPortFree() const
    {
        QSerialPort other(line.slavePath());
        return other.open(QIODevice::ReadWrite);
    }

    QString state() const { return nameOf(session.state()); }

    static QString nameOf(SessionState state)
    {
        constexpr const char *names[] = {"Offline", "Connecting", "Searching", "Connected"};
        return names[static_cast<std::size_t>(state)];
    }

    /// One of the serial layer's own timers.
    QTimer *layerTimer(const QString &name) { return session.port().findChild<QTimer *>(name); }

    LogCapture log;
    RawPty line;
    Settings settings{QStringList()};
    LinkChoices choices; ///< what stands in the lists: the session moves the rate, nothing else
    LinkSession session{settings, [this] { return choices; }};
    bool excused = false; ///< whether a silence is excused that a timer finds

private:
    void slowDown()
    {
        constexpr int hourMs = 3600 * 1000;
        for (QTimer *timer :
             {&session.answerWatch(), &session.pollClock(), &session.info().timer(),
              &session.queue().timer(), layerTimer("timeoutTimer"), layerTimer("checkTimer")}) {
            timer->setInterval(hourMs);
        }
    }

    void wire()
    {
        const auto silence = [this] { session.serialTimeout(excused); };
        for (int twice = 0; twice < 2; ++twice) {
            QObject::connect(&session.port(), &SerialPortLayer::gotData, &session,
                             &LinkSession::gotSerialData);
        }
        QObject::connect(&session, &LinkSession::rateChosen, &session,
                         [this](const QString &rate) { choices.rate = rate; });
        QObject::connect(&session.port(), &SerialPortLayer::gotTimeout, &session, silence);
        QObject::connect(&session.answerWatch(), &QTimer::timeout, &session, silence);
        QObject::connect(&session.info().timer(), &QTimer::timeout, &session.info(),
                         &InfoLine::clear);
        QObject::connect(&session.queue().timer(), &QTimer::timeout, &session.queue(),
                         &CommandQueue::sendLatestCommand);
        QObject::connect(&session.pollClock(), &QTimer::timeout, &session,
                         &LinkSession::getLatestTemperature);
    }

    void noteWhatItTells()
    {
        QObject::connect(&session, &LinkSession::stateChanged, &session,
                         [this](SessionState state) { told << "state " + nameOf(state); });
        QObject::connect(&session.info(), &InfoLine::shown, &session,
                         [this](InfoColour colour, const QString &text) {
                             constexpr const char *names[] = {"black", "green", "red"};
                             told << QString("info %1: %2").arg(names[int(colour)], text);
                         });
        noteTexts("rate ", &LinkSession::rateChosen);
        noteTexts("identifier ", &LinkSession::identifierRead);
        noteTexts("status ", &LinkSession::statusRead);
        noteTexts("sounded ", &LinkSession::sounded);
        QObject::connect(
            &session, &LinkSession::identified, &session,
            [this](const Protocol::Banner &read) { told << "identified " + read.firmwareVersion; });
        QObject::connect(&session, &LinkSession::settingsReplied, &session,
                         [this](const Protocol::SettingsReply &reply) { noteReply(reply); });
    }

    template <typename Signal>
    void noteTexts(const QString &word, Signal signal)
    {
        QObject::connect(&session, signal, &session,
                         [this, word](const QString &text) { told << word + text; });
    }

    void noteReply(const Protocol::SettingsReply &reply)
    {
        constexpr const char *kinds[] = {"none", "common", "high", "low"};
        QStringList words{"settings", kinds[int(reply.kind)]};
        for (const Protocol::ReplyPiece &piece : reply.pieces) {
            words << QString(piece.letter) + "=" + piece.value;
        }
        told << words.join(' ');
    }

    QStringList told;
};

#endif // SESSIONBENCH_H
