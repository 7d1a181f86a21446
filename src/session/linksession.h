// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#ifndef LINKSESSION_H
#define LINKSESSION_H

#include "commandqueue.h"
#include "infoline.h"
#include "linkchoices.h"
#include "protocol.h"
#include "serialportlayer.h"
#include "sessionstate.h"

#include <QObject>
#include <QTimer>

class Settings;

/// The life of the link to the sounder: connecting, searching for its rate, what each of its lines
/// and each of its silences means, and the end. It knows no widget. The window tells it what the
/// operator does and hears of the rest by signals.
///
/// Three watches meet here. The serial layer's answer timer runs for 2 s from each command on; any
/// byte stops it. This session's answer timer runs for 2 s from the beginning of each attempt to
/// connect on; only the sounder's banner stops it, since noise at a wrong rate is no answer. And
/// every 5 s the unit's temperature or voltage is asked for, unless something is announced: a
/// command like any other, so that the silence of a sounder that is gone is noticed 2 s later. The
/// layer's keep-alive, sent after 10 s without traffic, finds its work done by that poll, and
/// remains while announcements hold it back.
///
/// The timers and the layer are wired by whoever owns the session: in the program that is the
/// window, whose slots others may call by their names.
class LinkSession : public QObject
{
    Q_OBJECT

public:
    /// Offline. Keeps `settings` for the queue and for the rates; they outlive the session, and so
    /// does what `choices` looks at.
    LinkSession(Settings &settings, ChoicesSource choices, QObject *parent = nullptr);

    SessionState state() const { return currentState; }

    /// What stands in the operator's lists now.
    LinkChoices choices() const { return currentChoices(); }

    InfoLine &info() { return infoLine; }
    CommandQueue &queue() { return commandQueue; }
    SerialPortLayer &port() { return serial; }

    /// Runs for 2 s from each attempt to connect on ("answerTimer"); its end is a silence.
    QTimer &answerWatch() { return answerTimer; }

    /// Ends every 5 s ("temperatureTimer"): time for a poll. Runs from the beginning.
    QTimer &pollClock() { return temperatureTimer; }

    /// What came of pressing the connect button.
    enum class Press {
        Underway,     ///< an attempt or a search has begun
        Disconnected, ///< the link, or the attempt, has ended
        NotChosen,    ///< no port or no rate is chosen; nothing has changed
        NotOpened,    ///< the port does not open; nothing has changed
    };

    /// The operator presses the connect button.
    Press press();

    /// Why the port did not open last, in the operator's words; empty if it did.
    const QString &portTrouble() const { return serial.openTrouble(); }

    /// Lines have arrived.
    void gotSerialData();

    /// An answer is overdue. A silence of a connected sounder that is `excused` ends nothing: the
    /// program itself may have been held up.
    void serialTimeout(bool excused);

    /// Asks for the temperature or, when that is what is shown, for the voltage; only while
    /// connected and while nothing is announced.
    void getLatestTemperature();

    /// The status is no longer shown: the next poll begins with the temperature.
    void forgetStatus() { shownStatus = Status::None; }

    /// Announces a command that is not the change of one setting, and sends it at once. What comes
    /// of it is told of `key` (settingAccepted, settingNotApplied) as of a setting; of an empty key
    /// nothing is told.
    void sendAtOnce(const QString &announcement, const char *command, const Topic &topic = {},
                    const QString &key = {});

    /// The unit tells that it speaks at this rate. The link runs at it already: the port stays
    /// open.
    void followRate(const QString &rate) { serial.baudRate = rate; }

signals:
    /// The link is in this state now. Also emitted when an attempt ends where it began.
    void stateChanged(SessionState state);

    /// The rate list is to show this rate.
    void rateChosen(const QString &rate);

    /// The sounder has named itself; the link is connected.
    void identified(const Protocol::Banner &banner);

    /// A line of the settings reply has come.
    void settingsReplied(const Protocol::SettingsReply &reply);

    /// The sounder has accepted the change of this setting.
    void settingAccepted(const QString &key);

    /// The sounder has refused the change of this setting, or has not answered it; `words` say
    /// which.
    void settingNotApplied(const QString &key, const QString &words);

    /// The unit's identifier has come, cut to what is shown of it.
    void identifierRead(const QString &identifier);

    /// A temperature or a voltage has come, in words.
    void statusRead(const QString &text);

    /// A line has come that is nothing else: it may hold depths.
    void sounded(const QString &line);

private:
    enum class Status { None, Temperature, Voltage };

    void setState(SessionState state);
    void startSearch();
    bool connectAtRate();
    void disconnectFromDevice();
    bool doAutoBaud();
    bool openLink(const QString &port, const QString &rate);
    void closeLink();
    void failLink(const QString &message);
    void failAttempt();
    void searchOn();
    void closeToReconnect();
    void closeForAcknowledgement();

    void handleLine(const QString &line);
    void acceptBanner(const QString &line);
    void acknowledge(const QString &line);
    void refuse(const QString &line);
    void parseSetting(const QString &line);
    void readIdentifier(const QString &line);
    void readTemperature(const QString &line);
    void readVoltage(const QString &line);
    void passDepth(const QString &line);

    Settings &settings;
    ChoicesSource currentChoices;
    SerialPortLayer serial;
    InfoLine infoLine{this};
    CommandQueue commandQueue;
    QTimer answerTimer{this};
    QTimer temperatureTimer{this};
    SessionState currentState = SessionState::Offline;
    Status shownStatus = Status::None;
};

#endif // LINKSESSION_H
