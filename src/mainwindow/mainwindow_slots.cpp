// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

// What the window's slots lead to, in their order.

#include "mainwindow.h"

#include "debuglog.h"
#include "settingsfilename.h"

using namespace Protocol::Command;

namespace {

constexpr int down = -1;
constexpr int up = 1;

} // namespace

// clang-format off

void MainWindow::updateSerialPorts() { ports.updateSerialPorts(); }
void MainWindow::connectionFailed() { DEBUG_LOG << "connection failed!"; }
void MainWindow::connectionSucceeded() { DEBUG_LOG << "connection succeeded!"; }
void MainWindow::gotSerialData() { session.gotSerialData(); }
void MainWindow::serialTimeout() { session.serialTimeout(resizeTimer.isActive()); }
void MainWindow::getLatestTemperature() { session.getLatestTemperature(); }
void MainWindow::on_connectToDevice_clicked() { pressConnect(); }

void MainWindow::on_portComboBox_currentTextChanged(const QString &newStr) { settings.changeSetting("port", newStr); }
void MainWindow::on_baudComboBox_currentTextChanged(const QString &newStr) { settings.changeSetting("baud", newStr); }
void MainWindow::clearInfoText() { session.info().clear(); }

void MainWindow::sendLatestCommand() { session.queue().sendLatestCommand(); }

void MainWindow::addFakeData() { parseDepth(soundings.nextMadeUp()); }
void MainWindow::on_hamburgerButton_clicked() { toggleFooter(); }
void MainWindow::on_openGraph_clicked() { graph.show(); graph.raise(); }

void MainWindow::on_saveSettings_clicked() { chooseSettingsFile(this); }
void MainWindow::on_saveSettingsToDevice_clicked() { session.sendAtOnce("Sending Save Command to Device", saveSettings); }
void MainWindow::on_resetSettings_clicked() { resetToFactory(); }
void MainWindow::on_importButton_clicked() { chooseImportFile(this); }
void MainWindow::on_BootloadButton_clicked() { updateFirmware(); }
void MainWindow::on_autoSave_toggled(bool selected) { autoSave = selected; DEBUG_LOG << "Autosave is " << autoSave; }

void MainWindow::on_pingDown_clicked() { editor.step(common.pings, down); }
void MainWindow::on_pingUp_clicked() { editor.step(common.pings, up); }
void MainWindow::on_soundVelocityUp_clicked() { editor.step(common.velocity, up); }
void MainWindow::on_soundVelocityDown_clicked() { editor.step(common.velocity, down); }
void MainWindow::on_maxDepthDown_clicked() { changeMaxDepth(down); }
void MainWindow::on_maxDepthUp_clicked() { changeMaxDepth(up); }
void MainWindow::on_highDraftDown_clicked() { editor.step(high.draft, down); }
void MainWindow::on_highDraftUp_clicked() { editor.step(high.draft, up); }
void MainWindow::on_highIndexDown_clicked() { editor.step(high.index, down); }
void MainWindow::on_highIndexUp_clicked() { editor.step(high.index, up); }
void MainWindow::on_highFreqDown_clicked() { editor.step(high.frequency, down); }
void MainWindow::on_highFreqUp_clicked() { editor.step(high.frequency, up); }
void MainWindow::on_highBlankDown_clicked() { editor.step(high.blanking, down); }
void MainWindow::on_highBlankUp_clicked() { editor.step(high.blanking, up); }
void MainWindow::on_highPulseDown_clicked() { editor.step(high.pulse, down); }
void MainWindow::on_highPulseUp_clicked() { editor.step(high.pulse, up); }
void MainWindow::on_highGainDown_clicked() { editor.step(high.gain, down); }
void MainWindow::on_highGainUp_clicked() { editor.step(high.gain, up); }
void MainWindow::on_highDetectDown_clicked() { editor.step(high.detect, down); }
void MainWindow::on_highDetectUp_clicked() { editor.step(high.detect, up); }
void MainWindow::on_lowDraftDown_clicked() { editor.step(low.draft, down); }
void MainWindow::on_lowDraftUp_clicked() { editor.step(low.draft, up); }
void MainWindow::on_lowIndexDown_clicked() { editor.step(low.index, down); }
void MainWindow::on_lowIndexUp_clicked() { editor.step(low.index, up); }
void MainWindow::on_lowFreqDown_clicked() { editor.step(low.frequency, down); }
void MainWindow::on_lowFreqUp_clicked() { editor.step(low.frequency, up); }
void MainWindow::on_lowBlankDown_clicked() { editor.step(low.blanking, down); }
void MainWindow::on_lowBlankUp_clicked() { editor.step(low.blanking, up); }
void MainWindow::on_lowPulseDown_clicked() { editor.step(low.pulse, down); }
void MainWindow::on_lowPulseUp_clicked() { editor.step(low.pulse, up); }
void MainWindow::on_lowGainDown_clicked() { editor.step(low.gain, down); }
void MainWindow::on_lowGainUp_clicked() { editor.step(low.gain, up); }
void MainWindow::on_lowDetectDown_clicked() { editor.step(low.detect, down); }
void MainWindow::on_lowDetectUp_clicked() { editor.step(low.detect, up); }

void MainWindow::on_pingEdit_returnPressed() { editor.enter(common.pings); }
void MainWindow::on_soundVelocityEdit_returnPressed() { editor.enter(common.velocity); }
void MainWindow::on_maxDepthEdit_returnPressed() { changeMaxDepth(0); }
void MainWindow::on_highDraft_returnPressed() { editor.enter(high.draft); }
void MainWindow::on_highIndex_returnPressed() { editor.enter(high.index); }
void MainWindow::on_highFreq_returnPressed() { editor.enter(high.frequency); }
void MainWindow::on_highBlank_returnPressed() { editor.enter(high.blanking); }
void MainWindow::on_lowDraft_returnPressed() { editor.enter(low.draft); }
void MainWindow::on_lowIndex_returnPressed() { editor.enter(low.index); }
void MainWindow::on_lowFreq_returnPressed() { editor.enter(low.frequency); }
void MainWindow::on_lowBlank_returnPressed() { editor.enter(low.blanking); }

void MainWindow::on_highPulseSlider_valueChanged(int position) { editor.slide(high.pulse, position); }
void MainWindow::on_highGainSlider_valueChanged(int position) { editor.slide(high.gain, position); }
void MainWindow::on_highDetectSlider_valueChanged(int position) { editor.slide(high.detect, position); }
void MainWindow::on_highBlankingSlider_valueChanged(int /*position*/) { editor.slideBlanking(high.blanking); }
void MainWindow::on_lowPulseSlider_valueChanged(int position) { editor.slide(low.pulse, position); }
void MainWindow::on_lowGainSlider_valueChanged(int position) { editor.slide(low.gain, position); }
void MainWindow::on_lowDetectSlider_valueChanged(int position) { editor.slide(low.detect, position); }
void MainWindow::on_lowBlankingSlider_valueChanged(int /*position*/) { editor.slideBlanking(low.blanking); }

void MainWindow::on_lowShallowRadio_toggled(bool checked) { chooseMode(checked, low, "Shallow"); }
void MainWindow::on_lowAutoRadio_toggled(bool checked) { chooseMode(checked, low, "Auto"); }
void MainWindow::on_lowManualRadio_toggled(bool checked) { chooseMode(checked, low, "Manual"); }
void MainWindow::on_lowOffTvg_toggled(bool checked) { editor.chooseWord(checked, low.key("TVG"), "OFF"); }
void MainWindow::on_lowLog10Tvg_toggled(bool checked) { editor.chooseWord(checked, low.key("TVG"), "Log 10"); }
void MainWindow::on_lowLog20Tvg_toggled(bool checked) { editor.chooseWord(checked, low.key("TVG"), "Log 20"); }
void MainWindow::on_highShallowRadio_toggled(bool checked) { chooseMode(checked, high, "Shallow"); followHighShallow(checked); }
void MainWindow::on_highAutoRadio_toggled(bool checked) { chooseMode(checked, high, "Auto"); }
void MainWindow::on_highManualRadio_toggled(bool checked) { chooseMode(checked, high, "Manual"); }
void MainWindow::on_highOffTvg_toggled(bool checked) { editor.chooseWord(checked, high.key("TVG"), "OFF"); }
void MainWindow::on_highLog10Tvg_toggled(bool checked) { editor.chooseWord(checked, high.key("TVG"), "Log 10"); }
void MainWindow::on_highLog20Tvg_toggled(bool checked) { editor.chooseWord(checked, high.key("TVG"), "Log 20"); }

void MainWindow::on_imperialRadio_toggled(bool checked) { setImperialDisplay(checked); }
void MainWindow::on_metricRadio_toggled(bool checked) { setImperialDisplay(!checked); }

void MainWindow::on_enableHF_toggled(bool checked) { switchChannel(checked, high, true, "Enabling High Frequency", enableHighFrequency); }
void MainWindow::on_enableLF_toggled(bool checked) { switchChannel(checked, low, true, "Enabling Low Frequency", enableLowFrequency); }
void MainWindow::on_disableHF_toggled(bool checked) { switchChannel(checked, high, false, "Disabling HF", disableHighFrequency); }
void MainWindow::on_disableLF_toggled(bool checked) { switchChannel(checked, low, false, "Disabling LF", disableLowFrequency); }
void MainWindow::on_formatComboBox_currentTextChanged(const QString &format) { chooseFormat(format); }
void MainWindow::on_newBaudComboBox_currentTextChanged(const QString &rate) { editor.chooseWord(true, "baud", rate); }

void MainWindow::on_selectRateInfo_clicked() { showHelp("Port and Rate"); }
void MainWindow::on_commonSettingsInfo_clicked() { showHelp("Common Settings"); }
void MainWindow::on_highModeInfo_clicked() { showHelp("Echo Sounder Mode"); }
void MainWindow::on_highTVGInfo_clicked() { showHelp("Time Variable Gain"); }
void MainWindow::on_highInputsInfo_clicked() { showHelp("HF Setup"); }
void MainWindow::on_highDetectInfo_clicked() { showHelp("Detect Threshold"); }
void MainWindow::on_highPulseInfo_clicked() { showHelp("HF Pulse Cycles"); }
void MainWindow::on_highGainInfo_clicked() { showHelp("Gain"); }
void MainWindow::on_lowModeInfo_clicked() { showHelp("Echo Sounder Mode"); }
void MainWindow::on_lowTVGInfo_clicked() { showHelp("Time Variable Gain"); }
void MainWindow::on_lowInputsInfo_clicked() { showHelp("LF Setup"); }
void MainWindow::on_lowDetectInfo_clicked() { showHelp("Detect Threshold"); }
void MainWindow::on_lowPulseInfo_clicked() { showHelp("LF Pulse Cycles"); }
void MainWindow::on_lowGainInfo_clicked() { showHelp("Gain"); }
void MainWindow::on_lowEnableInfo_clicked() { showHelp("Enable/Disable"); }
void MainWindow::on_highEnableInfo_clicked() { showHelp("Enable/Disable"); }

// clang-format on
