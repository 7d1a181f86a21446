// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "operatortour.h"

#include "sounderline.h"

#include <QComboBox>
#include <QLabel>
#include <QTabWidget>

namespace {

constexpr int highTab = 0;
constexpr int lowTab = 1;

} // namespace

void OperatorTour::plan()
{
    planConnecting();
    planCommonSettings();
    planChannel();
    planLooking();
    planOutput();
    planFeet();
    planLeaving();
    planSingleChannel();
}

void OperatorTour::planConnecting()
{
    add(
        "Start", [] {}, [this] { return find<QComboBox>("portComboBox")->count() > 1; });
    add(
        "Connect without a choice", [this] { click("connectToDevice"); },
        [this] { return popup("Error") != nullptr; }, [this] { return popup("Error"); });
    add(
        "Choose the port and Auto",
        [this] {
            answer("Error", QMessageBox::Ok);
            choose("portComboBox", sounder.portPath());
            choose("baudComboBox", "Auto");
        },
        [this] { return find<QComboBox>("baudComboBox")->currentText() == "Auto"; });
    addChange(
        "Search the rate", [this] { click("connectToDevice"); }, "Trying");
    add(
        "Connected", [] {}, [this] { return isConnected(); });
}

void OperatorTour::planCommonSettings()
{
    addChange(
        "Change the draft", [this] { click("highDraftUp"); },
        "High Frequency Draft to 0.50 m ... Success");
    addChange(
        "Ten pings per second", [this] { type("pingEdit", "10"); },
        "Pings Per Second to 10 ... Success");
    addChange(
        "Maximum depth refused", [this] { type("maxDepthEdit", "80"); }, "Reduce pings per second");
    addChange(
        "Maximum depth accepted", [this] { type("maxDepthEdit", "60"); },
        "Maximum Depth to 60 m ... Success");
}

void OperatorTour::planChannel()
{
    addChange(
        "High channel in manual mode", [this] { click("highManualRadio"); },
        "Sounder Mode to Manual ... Success");
    addChange(
        "More gain", [this] { click("highGainUp"); }, "High Frequency Gain to 80% ... Success");
    addChange(
        "Another time variable gain", [this] { click("highLog20Tvg"); },
        "High Time Variable Gain to Log 20 ... Success");
    addChange(
        "Blanking a step further", [this] { click("highBlankUp"); },
        "High Frequency Blanking to 0.55 m ... Success");
    addChange(
        "Low channel switched off",
        [this] {
            clickTab("h", lowTab);
            click("disableLF");
        },
        "Disabling LF ... Success");
    addChange(
        "Low channel switched on again", [this] { click("enableLF"); },
        "Enabling Low Frequency ... Success");
}

void OperatorTour::planLooking()
{
    const auto shown = [this](const char *title) {
        return [this, title] { return popup(title) != nullptr; };
    };
    const auto pictureOf = [this](const char *title) {
        return [this, title] { return popup(title); };
    };
    add(
        "High frequency tab", [this] { clickTab("h", highTab); },
        [this] { return find<QTabWidget>("h")->currentIndex() == highTab; });
    add(
        "Help", [this] { click("commonSettingsInfo"); }, shown("Information"),
        pictureOf("Information"));
    addChange(
        "A format with both depths", [this] { choose("formatComboBox", "ODOM"); },
        "Output Format to ODOM ... Success");
    addGraph("Depth graph");
}

void OperatorTour::planOutput()
{
    addChange(
        "Another output format", [this] { choose("formatComboBox", "SONARMITE DUAL"); },
        "Output Format to SONARMITE DUAL ... Success");
    addChange(
        "Store in the sounder", [this] { click("saveSettingsToDevice"); },
        "Sending Save Command to Device ... Success");
    add(
        "Another device rate", [this] { choose("newBaudComboBox", "57600"); },
        [this] { return !isConnected() && infoHolds("Baud Rate to 57600 ... Success"); });
    add(
        "Connect at the new rate", [this] { click("connectToDevice"); },
        [this] { return isConnected(); });
    add(
        "Factory reset asks", [this] { click("resetSettings"); },
        [this] { return popup("Reset Settings") != nullptr; },
        [this] { return popup("Reset Settings"); });
    add(
        "Factory reset", [this] { answer("Reset Settings", QMessageBox::Yes); },
        [this] { return !isConnected() && infoHolds("Factory Reset to Device ... Success"); });
}

void OperatorTour::planFeet()
{
    add(
        "Show feet",
        [this] {
            click("imperialRadio");
            choose("baudComboBox", "9600"); // the factory's rate
        },
        [this] { return find<QLabel>("maxDepthLabel")->text() == "Max Depth (ft)"; });
    add(
        "Connected in feet", [this] { click("connectToDevice"); },
        [this] { return isConnected(); });
    addChange(
        "Change the draft in feet", [this] { click("highDraftUp"); },
        "High Frequency Draft to 1.41 ft ... Success");
    addChange(
        "Both depths in feet", [this] { choose("formatComboBox", "DESO 25"); },
        "Output Format to DESO 25 ... Success");
    addGraph("Depth graph in feet");
}

void OperatorTour::planLeaving()
{
    add(
        "Disconnect", [this] { click("connectToDevice"); }, [this] { return !isConnected(); });
    add(
        "Connect again", [this] { click("connectToDevice"); }, [this] { return isConnected(); });
    addChange(
        "The sounder is pulled away", [this] { sounder.hangUp(); }, "Lost Connection To Device");
}

void OperatorTour::planSingleChannel()
{
    add(
        "A unit with the high channel alone",
        [this] {
            click("metricRadio");
            choose("portComboBox", singleChannel.portPath());
            click("connectToDevice");
        },
        [this] {
            return isConnected() &&
                   find<QLabel>("label_34")->text().contains("High Frequency Only");
        });
    addGraph("Depth graph of the high channel");
    add(
        "Disconnect from it", [this] { click("connectToDevice"); },
        [this] { return !isConnected(); });
    add(
        "Connected to it in feet",
        [this] {
            click("imperialRadio");
            click("connectToDevice");
        },
        [this] { return isConnected(); });
    addGraph("Depth graph of the high channel in feet");
}
