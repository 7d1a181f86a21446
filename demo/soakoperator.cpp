// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "soakoperator.h"

#include "mainwindow.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QMessageBox>
#include <QSlider>
#include <QtTest>

#include <chrono>

namespace {

using namespace std::chrono_literals;

constexpr int shortestPauseMs = 1000;
constexpr int pauseSpreadMs = 3000;

/// A search through all rates takes 12 s; after this an operator gives up.
constexpr std::chrono::milliseconds attemptPatience = 30s;

const QStringList channels = {"high", "low"};
const QStringList channelNumbers = {"Draft", "Index", "Freq", "Blank", "Pulse", "Gain", "Detect"};
const QStringList commonNumbers = {"ping", "soundVelocity", "maxDepth"};
const QStringList channelOptions = {"ShallowRadio", "AutoRadio", "ManualRadio", "ManualRadio",
                                    "OffTvg",       "Log10Tvg",  "Log20Tvg"};
const QStringList channelSliders = {"PulseSlider", "GainSlider", "DetectSlider", "BlankingSlider"};
const QStringList channelEdits = {"Draft", "Index", "Freq", "Blank"};
const QStringList commonEdits = {"pingEdit", "soundVelocityEdit", "maxDepthEdit"};
const QStringList switches = {"enableHF", "enableHF", "disableHF",
                              "enableLF", "enableLF", "disableLF"};
const QStringList typedNumbers = {"0",  "1",  "2.5", "5",    "9.99", "10",  "12", "33",
                                  "60", "80", "200", "1450", "-3",   "1e9", ".",  "nan"};

} // namespace

SoakOperator::SoakOperator(MainWindow &itsWindow, QString itsPort, quint32 seed, QObject *parent)
    : QObject(parent)
    , hand(itsWindow)
    , session(*itsWindow.findChild<LinkSession *>())
    , port(std::move(itsPort))
    , dice(seed)
{
    connect(&session, &LinkSession::settingAccepted, this, [this](const QString &key) {
        changes.noteWaiting(session.queue().waiting());
        changes.accepted(key);
    });
    connect(&session, &LinkSession::settingNotApplied, this,
            [this](const QString &key, const QString &words) {
                changes.noteWaiting(session.queue().waiting());
                changes.notApplied(key, words);
            });
    connect(&session, &LinkSession::stateChanged, this, &SoakOperator::followLink);
}

void SoakOperator::start()
{
    clock.start();
    attempt.start();
    step();
}

void SoakOperator::watch()
{
    changes.noteWaiting(session.queue().waiting());
    for (const QString &key : changes.giveUp(clock.elapsed())) {
        emit changeLost(key);
    }
}

int SoakOperator::roll(int sides)
{
    return static_cast<int>(dice() % static_cast<std::mt19937::result_type>(sides));
}

QString SoakOperator::oneOf(const QStringList &names) { return names.at(roll(int(names.size()))); }

/// The next step is arranged first, since an act may stay in a message box.
void SoakOperator::step()
{
    QTimer::singleShot(shortestPauseMs + roll(pauseSpreadMs), this, &SoakOperator::step);
    closeBoxes();
    act();
}

void SoakOperator::act()
{
    switch (session.state()) {
    case SessionState::Offline:
        connectToSounder();
        break;
    case SessionState::Connecting:
    case SessionState::Searching:
        if (attempt.elapsed() > attemptPatience.count()) {
            hand.click("connectToDevice");
        }
        break;
    case SessionState::Connected:
        change();
        break;
    }
}

void SoakOperator::followLink(SessionState state)
{
    if (state == SessionState::Connected) {
        ++timesConnected;
    } else if (state == SessionState::Offline) {
        changes.linkEnded();
    }
}

void SoakOperator::connectToSounder()
{
    hand.choose("portComboBox", port);
    hand.choose("baudComboBox", "Auto");
    attempt.start();
    hand.click("connectToDevice");
}

/// An error is read and closed; a question is answered with yes.
void SoakOperator::closeBoxes()
{
    auto *const box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
    if (box == nullptr) {
        return;
    }
    QAbstractButton *const yes = box->button(QMessageBox::Yes);
    box->done(yes != nullptr ? QMessageBox::Yes : QMessageBox::Ok);
}

/// Tries one habit after the other until one has queued something: many a control is locked, many a
/// habit changes nothing.
void SoakOperator::change()
{
    constexpr int tries = 4;
    const auto before = session.queue().waiting().size();
    for (int i = 0; i < tries && session.queue().waiting().size() == before; ++i) {
        (this->*habit())();
    }
    // What has been queued is a change, whichever control it came from.
    for (const QString &key : session.queue().waiting().mid(before)) {
        changes.made(key, clock.elapsed());
    }
}

SoakOperator::Habit SoakOperator::habit()
{
    struct Weighed
    {
        Habit habit;
        int weight;
    };
    static constexpr Weighed habits[] = {
        {&SoakOperator::stepButton, 40}, {&SoakOperator::option, 20},
        {&SoakOperator::slider, 15},     {&SoakOperator::typeNumber, 15},
        {&SoakOperator::output, 5},      {&SoakOperator::deviceAction, 6},
        {&SoakOperator::look, 8},
    };
    constexpr int sum = 109;
    int left = roll(sum);
    for (const Weighed &candidate : habits) {
        left -= candidate.weight;
        if (left < 0) {
            return candidate.habit;
        }
    }
    return &SoakOperator::look;
}

void SoakOperator::showTabOf(const QString &control)
{
    constexpr int highTab = 0;
    constexpr int lowTab = 1;
    hand.clickTab("h", control.startsWith("low") || control.endsWith("LF") ? lowTab : highTab);
}

void SoakOperator::stepButton()
{
    const QString field =
        roll(4) == 0 ? oneOf(commonNumbers) : oneOf(channels) + oneOf(channelNumbers);
    showTabOf(field);
    const QString button = field + (roll(2) == 0 ? "Up" : "Down");
    const int presses = 1 + roll(4);
    for (int i = 0; i < presses; ++i) {
        hand.click(button);
    }
}

void SoakOperator::option()
{
    const QString name = oneOf(channels) + oneOf(channelOptions);
    showTabOf(name);
    hand.click(name);
}

void SoakOperator::slider()
{
    const QString name = oneOf(channels) + oneOf(channelSliders);
    showTabOf(name);
    auto *const found = hand.find<QSlider>(name);
    if (found->isEnabled()) {
        QTest::keyClick(found, roll(2) == 0 ? Qt::Key_PageUp : Qt::Key_PageDown);
    }
}

void SoakOperator::typeNumber()
{
    const QString name = roll(3) == 0 ? oneOf(commonEdits) : oneOf(channels) + oneOf(channelEdits);
    showTabOf(name);
    if (hand.find<QWidget>(name)->isEnabled()) {
        hand.type(name, oneOf(typedNumbers));
    }
}

/// Another format or, seldom, another rate, which ends the link.
void SoakOperator::output()
{
    const QString name = roll(4) == 0 ? "newBaudComboBox" : "formatComboBox";
    auto *const list = hand.find<QComboBox>(name);
    if (list->isEnabled()) {
        list->setCurrentIndex(roll(list->count()));
    }
}

void SoakOperator::deviceAction()
{
    const int what = roll(20);
    if (what == 0) {
        hand.click("resetSettings"); // the next step answers the question
    } else if (what == 1) {
        hand.click("connectToDevice");
    } else if (what < 6) {
        hand.click("saveSettingsToDevice");
    } else {
        const QString name = oneOf(switches);
        showTabOf(name);
        hand.click(name);
    }
}

void SoakOperator::look()
{
    if (QWidget *help = WindowHand::popup("Information")) {
        help->close();
    }
    const QStringList looks = {"openGraph", "commonSettingsInfo", "highModeInfo", "imperialRadio",
                               "metricRadio"};
    hand.click(oneOf(looks));
}
