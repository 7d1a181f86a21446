// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "mainwindow.h"

#include "foreigntext.h"
#include "ui_mainwindow.h"

#include <QMessageBox>

#include <algorithm>
#include <iterator>

namespace {

/// What a fit means: the name that the graph is told, the title's words and which channels there
/// are.
struct FitMeaning
{
    Protocol::ChannelFit fit;
    const char *frequency;
    const char *titleWords;
    bool hasHigh;
    bool hasLow;
};

constexpr FitMeaning fitMeanings[] = {
    {Protocol::ChannelFit::HighOnly, "HF", " (High Frequency Only)", true, false},
    {Protocol::ChannelFit::LowOnly, "LF", " (Low Frequency Only)", false, true},
    {Protocol::ChannelFit::Dual, "Dual", " (Dual Frequency)", true, true},
};

const FitMeaning *meaningOf(Protocol::ChannelFit fit)
{
    const auto *const found =
        std::find_if(std::begin(fitMeanings), std::end(fitMeanings),
                     [fit](const FitMeaning &meaning) { return meaning.fit == fit; });
    return found == std::end(fitMeanings) ? nullptr : found;
}

/// A unit that has just named itself: which channels are on is what it tells next.
ControlRules::ChannelState identifiedChannel(ControlRules::ChannelState state, bool fitted)
{
    state.fitted = fitted;
    state.switchedOn = fitted;
    state.resting = false;
    state.switchHeld = false;
    return state;
}

void showError(QWidget *parent, const char *text, const QString &reason = QString())
{
    QMessageBox box(QMessageBox::Information, QStringLiteral("Error"), text, QMessageBox::Ok,
                    parent);
    box.setInformativeText(reason);
    for (QLabel *label : box.findChildren<QLabel *>()) {
        label->setTextFormat(Qt::PlainText); // the system's words are no mark-up
    }
    box.exec();
}

} // namespace

void MainWindow::pressConnect()
{
    switch (session.press()) {
    case LinkSession::Press::NotChosen:
        showError(this, "No Port or Rate Selected, Please select a port to connect to");
        break;
    case LinkSession::Press::NotOpened:
        showError(this, "Could Not Open Serial Port. Please unplug device then try again.",
                  session.portTrouble());
        break;
    case LinkSession::Press::Underway:
    case LinkSession::Press::Disconnected:
        break;
    }
}

void MainWindow::followLink(SessionState state)
{
    if (state == SessionState::Offline || state == SessionState::Connected) {
        updateControls();
    }
    if (state == SessionState::Offline) {
        SettingMarks(common, high, low).clear();
        showDepthsAlive(false);
    }
    setConnectButton(state != SessionState::Offline);
}

void MainWindow::setConnectButton(bool connected)
{
    ui->connectToDevice->setText(connected ? "Disconnect" : "Connect   ");
    ui->connectToDevice->setIcon(connected ? linkIcons.connected : linkIcons.notConnected);
    if (connected) {
        ports.timer().stop();
    } else {
        ports.timer().start();
    }
}

void MainWindow::parseBanner(const Protocol::Banner &banner)
{
    QString title = banner.namesTalVero ? QStringLiteral("TAL-VERO") : QString();
    title += " Firmware Version: " + banner.firmwareVersion;
    if (const FitMeaning *meaning = meaningOf(banner.fit)) {
        title += meaning->titleWords;
        fit = banner.fit;
        high.state = identifiedChannel(high.state, meaning->hasHigh);
        low.state = identifiedChannel(low.state, meaning->hasLow);
        allow(ControlRules::locksUponIdentification(controlState()));
        emit setFrequency(meaning->frequency);
        ui->h->setCurrentWidget(meaning->hasHigh ? ui->highFreqTab : ui->lowFreqTab);
    }
    ui->label_34->setText(ForeignText::shown(title));
}
