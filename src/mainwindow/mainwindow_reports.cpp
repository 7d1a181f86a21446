// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "mainwindow.h"

#include "debuglog.h"
#include "numbertext.h"
#include "ui_mainwindow.h"

#include <algorithm>
#include <iterator>

namespace {

/// What a fit means: the stored name, the name that the graph is told, the title's words, which
/// channels there are and the tab that is shown. The stored and the told name of a dual unit differ
/// deliberately.
struct FitMeaning
{
    Protocol::ChannelFit fit;
    const char *deviceType;
    const char *frequency;
    const char *titleWords;
    bool hasHigh;
    bool hasLow;
};

constexpr FitMeaning fitMeanings[] = {
    {Protocol::ChannelFit::HighOnly, "HF", "HF", " (High Frequency Only)", true, false},
    {Protocol::ChannelFit::LowOnly, "LF", "LF", " (Low Frequency Only)", false, true},
    {Protocol::ChannelFit::Dual, "DUAL", "Dual", " (Dual Frequency)", true, true},
};

/// What to try when the device has refused a setting: pings and range compete for the time that
/// sound takes to the bottom and back.
struct Advice
{
    const char *setting;
    const char *words;
};

constexpr Advice advices[] = {
    {"Maximum Depth", " ... not applied. Reduce pings per second"},
    {"Pings Per Second", " ... not applied. Reduce maximum depth"},
};

constexpr char plainRefusal[] = " ... Received Error - Command Not Applied";

const FitMeaning *meaningOf(Protocol::ChannelFit fit)
{
    const auto *const found =
        std::find_if(std::begin(fitMeanings), std::end(fitMeanings),
                     [fit](const FitMeaning &meaning) { return meaning.fit == fit; });
    return found == std::end(fitMeanings) ? nullptr : found;
}

} // namespace

void MainWindow::gotSerialData()
{
    while (!serial.receivedLines.isEmpty()) {
        handleLine(serial.receivedLines.takeFirst());
    }
}

void MainWindow::handleLine(const QString &line)
{
    using Protocol::LineKind;
    using Handler = void (MainWindow::*)(const QString &);
    static constexpr std::pair<LineKind, Handler> handlers[] = {
        {LineKind::IdentityBanner, &MainWindow::acceptBanner},
        {LineKind::Acknowledgement, &MainWindow::acknowledge},
        {LineKind::Refusal, &MainWindow::refuse},
        {LineKind::SettingsReport, &MainWindow::parseSetting},
        {LineKind::Identifier, &MainWindow::showIdentifier},
        {LineKind::BoardTemperature, &MainWindow::showTemperature},
        {LineKind::SupplyVoltage, &MainWindow::showVoltage},
        {LineKind::DepthOutput, &MainWindow::parseDepth},
    };
    const LineKind kind = Protocol::lineKind(line);
    for (const auto &[handledKind, handle] : handlers) {
        if (handledKind == kind) {
            (this->*handle)(line);
        }
    }
}

void MainWindow::acceptBanner(const QString &line)
{
    if (serial.isConnected()) {
        return; // the answer to a keep-alive
    }
    DEBUG_LOG << "we have a TalVero New";
    settings.setDeviceType(QStringLiteral("TalVeroNew"));
    setInfoText(InfoColour::success, QStringLiteral("Connected to TAL-VERO"));
    offline = false;
    updateControls();
    setConnectButton(true);
    parseBanner(line);
    connecting = false;
    autoBaud = false;
    serial.setConnected();
    answerTimer.stop();
    for (const char *request : {Protocol::Command::settingsReport, Protocol::Command::identifier,
                                Protocol::Command::boardTemperature}) {
        serial.sendCommand(request);
    }
}

void MainWindow::parseBanner(const QString &line)
{
    const Protocol::Banner banner = Protocol::readBanner(line);
    QString title = banner.namesTalVero ? QStringLiteral("TAL-VERO") : QString();
    title += " Firmware Version: " + banner.firmwareVersion;
    if (const FitMeaning *meaning = meaningOf(banner.fit)) {
        title += meaning->titleWords;
        showFit(banner.fit);
    }
    ui->label_34->setText(title);
}

void MainWindow::showFit(Protocol::ChannelFit fit)
{
    const FitMeaning *meaning = meaningOf(fit);
    deviceType = meaning->deviceType;
    lowDisabled = !meaning->hasLow;
    highDisabled = !meaning->hasHigh;
    updateControls();
    setFitted(high, meaning->hasHigh);
    setFitted(low, meaning->hasLow);
    emit setFrequency(meaning->frequency);
    ui->h->setCurrentWidget(meaning->hasHigh ? ui->highFreqTab : ui->lowFreqTab);
}

/// A channel that the unit does not carry cannot be switched on either.
void MainWindow::setFitted(Channel &channel, bool fitted)
{
    setChildrenDisabled(channel.upperRow, !fitted);
    setChildrenDisabled(channel.lowerPart, !fitted);
}

void MainWindow::acknowledge(const QString & /*line*/)
{
    setInfoResult(InfoColour::success, " ... Success");
    commandInFlight = false;
    const QString rate = ui->baudComboBox->currentText();
    const QString newRate = ui->newBaudComboBox->currentText();
    if (rate != newRate) {
        ui->baudComboBox->setCurrentText(newRate);
        closeToReconnect();
    } else if (lastInfoText.contains(QLatin1String("Output Format"))) {
        constexpr int kestrolaRate = 9600; // the only rate of that format: the device changes to it
        const bool kestrola = ui->formatComboBox->currentText().contains(QLatin1String("KESTROLA"));
        if (kestrola && rate.toInt() != kestrolaRate) {
            ui->baudComboBox->setCurrentText(QString::number(kestrolaRate));
            closeToReconnect();
        }
    } else if (lastInfoText.contains(QLatin1String("Factory Reset"))) {
        closeToReconnect();
    }
}

/// The device goes on at other settings; the operator connects again, at the rate now selected.
void MainWindow::closeToReconnect()
{
    connecting = false; // a stray acknowledgement may come before the banner
    autoBaud = false;
    goOffline();
    closeLink();
}

void MainWindow::refuse(const QString & /*line*/)
{
    const auto *const advice =
        std::find_if(std::begin(advices), std::end(advices), [this](const Advice &candidate) {
            return lastInfoText.contains(QLatin1String(candidate.setting));
        });
    const char *words = advice == std::end(advices) ? plainRefusal : advice->words;
    setInfoResult(InfoColour::failure, words);
    commandInFlight = false;
}

void MainWindow::showIdentifier(const QString &line)
{
    DEBUG_LOG << line.split(QLatin1Char(' '));
    constexpr int shownCharacters = 8;
    const QString identifier = Protocol::blankSeparatedItem(line, 2);
    ui->label_24->setText("Serial Number: QZ" + identifier.left(shownCharacters));
}

void MainWindow::showTemperature(const QString &line)
{
    const double kelvin = NumberText::toDouble(Protocol::blankSeparatedItem(line, 1));
    float degrees = static_cast<float>(kelvin - 273.15);
    if (imperial) {
        degrees = degrees * 9.0F / 5.0F + 32.0F;
    }
    showStatus("TAL-VERO Temperature : " + NumberText::fixed(degrees, 0) + QChar(0x00B0) +
               (imperial ? "F" : "C"));
}

void MainWindow::showVoltage(const QString &line)
{
    const double volts = NumberText::toDouble(Protocol::blankSeparatedItem(line, 1));
    showStatus("Power Supply Voltage : " + QString::number(volts, 'f', 2) + "V");
}

void MainWindow::showStatus(const QString &text)
{
    ui->temperatureLabel->setText("<font color=Green>" + text + "</font>");
}

void MainWindow::getLatestTemperature()
{
    if (!ui->commonHolder->isEnabled() || !lastInfoText.isEmpty()) {
        return;
    }
    const bool showsTemperature =
        ui->temperatureLabel->text().contains(QLatin1String("Temperature"));
    serial.sendCommand(showsTemperature ? Protocol::Command::supplyVoltage
                                        : Protocol::Command::boardTemperature);
}
