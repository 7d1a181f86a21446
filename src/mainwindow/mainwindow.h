// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#ifndef MAINWINDOW_H
#define MAINWINDOW_H

#include "channel.h"
#include "depthgraph.h"
#include "depthsentence.h"
#include "infoform.h"
#include "portlister.h"
#include "protocol.h"
#include "serialportlayer.h"
#include "settings.h"

#include <QListView>
#include <QMainWindow>
#include <QStringList>
#include <QTimer>

#include <memory>

namespace Ui {
class MainWindow;
}

/// The colours in which the info line speaks, as its rich text names them.
namespace InfoColour {
constexpr char progress[] = "black";
constexpr char success[] = "Green";
constexpr char failure[] = "Red";
} // namespace InfoColour

/// The operator's window and the controller behind it: turns clicks into settings and commands, and
/// what the sounder sends into what the window shows. It owns the settings, the serial link, the
/// depth graph and the help window. Each banner below names the file that implements what follows.
class MainWindow : public QMainWindow
{
    Q_OBJECT

public:
    /// `ports` names the serial ports to choose from. It is asked once at construction and then
    /// once a second while no device is connected.
    explicit MainWindow(PortLister ports = systemSerialPorts, QWidget *parent = nullptr);
    ~MainWindow() override;

    MainWindow(const MainWindow &) = delete;
    MainWindow &operator=(const MainWindow &) = delete;

signals:
    /// One pair of depths in metres; negative: no depth; 1000: the channel is switched off.
    void gotDepths(float hf, float lf);
    /// The device's maximum depth in metres.
    void setMaxDepth(float depth);
    /// Whether lengths are to be shown in feet.
    void goToImperial(bool imperial);
    /// "HF", "LF" or "Dual": the channels that the connected unit carries.
    void setFrequency(QString freq);

private slots:
    // The order of the slots is fixed: others may refer to them by index.

    // ---- mainwindow_link.cpp and mainwindow_reports.cpp: the link
    void updateSerialPorts();
    void connectionFailed();
    void connectionSucceeded();
    void gotSerialData();
    void serialTimeout();
    void getLatestTemperature();
    void on_connectToDevice_clicked();

    // ---- mainwindow.cpp: lists, info line, test data, window actions
    void on_portComboBox_currentTextChanged(const QString &newStr);
    void on_baudComboBox_currentTextChanged(const QString &newStr);
    void clearInfoText();

    // ---- mainwindow_queue.cpp
    void sendLatestCommand();

    // ---- mainwindow.cpp, continued
    void addFakeData();
    void on_hamburgerButton_clicked();
    void on_openGraph_clicked();

    // ---- mainwindow_actions.cpp: what is not the edit of one setting
    void on_saveSettings_clicked();
    void on_saveSettingsToDevice_clicked();
    void on_resetSettings_clicked();
    void on_importButton_clicked();
    void on_BootloadButton_clicked();
    void on_autoSave_toggled(bool selected);

    // ---- mainwindow_fields.cpp: up and down buttons, Return in an edit
    void on_pingDown_clicked();
    void on_pingUp_clicked();
    void on_soundVelocityUp_clicked();
    void on_soundVelocityDown_clicked();
    void on_maxDepthDown_clicked();
    void on_maxDepthUp_clicked();
    void on_highDraftDown_clicked();
    void on_highDraftUp_clicked();
    void on_highIndexDown_clicked();
    void on_highIndexUp_clicked();
    void on_highFreqDown_clicked();
    void on_highFreqUp_clicked();
    void on_highBlankDown_clicked();
    void on_highBlankUp_clicked();
    void on_highPulseDown_clicked();
    void on_highPulseUp_clicked();
    void on_highGainDown_clicked();
    void on_highGainUp_clicked();
    void on_highDetectDown_clicked();
    void on_highDetectUp_clicked();
    void on_lowDraftDown_clicked();
    void on_lowDraftUp_clicked();
    void on_lowIndexDown_clicked();
    void on_lowIndexUp_clicked();
    void on_lowFreqDown_clicked();
    void on_lowFreqUp_clicked();
    void on_lowBlankDown_clicked();
    void on_lowBlankUp_clicked();
    void on_lowPulseDown_clicked();
    void on_lowPulseUp_clicked();
    void on_lowGainDown_clicked();
    void on_lowGainUp_clicked();
    void on_lowDetectDown_clicked();
    void on_lowDetectUp_clicked();

    void on_pingEdit_returnPressed();
    void on_soundVelocityEdit_returnPressed();
    void on_maxDepthEdit_returnPressed();
    void on_highDraft_returnPressed();
    void on_highIndex_returnPressed();
    void on_highFreq_returnPressed();
    void on_highBlank_returnPressed();
    void on_lowDraft_returnPressed();
    void on_lowIndex_returnPressed();
    void on_lowFreq_returnPressed();
    void on_lowBlank_returnPressed();

    // ---- mainwindow_sliders.cpp
    void on_highPulseSlider_valueChanged(int position);
    void on_highGainSlider_valueChanged(int position);
    void on_highDetectSlider_valueChanged(int position);
    void on_highBlankingSlider_valueChanged(int position);
    void on_lowPulseSlider_valueChanged(int position);
    void on_lowGainSlider_valueChanged(int position);
    void on_lowDetectSlider_valueChanged(int position);
    void on_lowBlankingSlider_valueChanged(int position);

    // ---- mainwindow_options.cpp: modes, TVG
    void on_lowShallowRadio_toggled(bool checked);
    void on_lowAutoRadio_toggled(bool checked);
    void on_lowManualRadio_toggled(bool checked);
    void on_lowOffTvg_toggled(bool checked);
    void on_lowLog10Tvg_toggled(bool checked);
    void on_lowLog20Tvg_toggled(bool checked);
    void on_highShallowRadio_toggled(bool checked);
    void on_highAutoRadio_toggled(bool checked);
    void on_highManualRadio_toggled(bool checked);
    void on_highOffTvg_toggled(bool checked);
    void on_highLog10Tvg_toggled(bool checked);
    void on_highLog20Tvg_toggled(bool checked);

    // ---- mainwindow_units.cpp
    void on_imperialRadio_toggled(bool checked);
    void on_metricRadio_toggled(bool checked);

    // ---- mainwindow_options.cpp: channels and output
    void on_enableHF_toggled(bool checked);
    void on_enableLF_toggled(bool checked);
    void on_disableHF_toggled(bool checked);
    void on_disableLF_toggled(bool checked);
    void on_formatComboBox_currentTextChanged(const QString &format);
    void on_newBaudComboBox_currentTextChanged(const QString &rate);

    // ---- mainwindow_actions.cpp: help
    void on_selectRateInfo_clicked();
    void on_commonSettingsInfo_clicked();
    void on_highModeInfo_clicked();
    void on_highTVGInfo_clicked();
    void on_highInputsInfo_clicked();
    void on_highDetectInfo_clicked();
    void on_highPulseInfo_clicked();
    void on_highGainInfo_clicked();
    void on_lowModeInfo_clicked();
    void on_lowTVGInfo_clicked();
    void on_lowInputsInfo_clicked();
    void on_lowDetectInfo_clicked();
    void on_lowPulseInfo_clicked();
    void on_lowGainInfo_clicked();
    void on_lowEnableInfo_clicked();
    void on_highEnableInfo_clicked();

protected:
    void changeEvent(QEvent *event) override;
    void closeEvent(QCloseEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    /// While one of these exists, the window fills itself: no edit handler acts, nothing is sent.
    class PausedEdits;

    // ---- mainwindow.cpp: construction and the info line
    void styleLists();
    void configureTimers();
    void makeConnections();
    void hideWhatIsNotOffered();
    void initialize();
    void fillLists();
    void setInfoText(const QString &text);
    void setInfoText(const QString &colour, const QString &text);
    void setInfoResult(const QString &colour, const QString &result);

    // ---- mainwindow_link.cpp
    bool openLink(const QString &port, const QString &rate);
    void closeLink();
    void connectAtRate();
    void startSearch();
    void disconnectFromDevice();
    bool doAutoBaud();
    void goOffline();
    void failLink(const QString &message);
    void setConnectButton(bool connected);
    QStringList rateChoices() const;

    // ---- mainwindow_reports.cpp
    void handleLine(const QString &line);
    void acceptBanner(const QString &line);
    void parseBanner(const QString &line);
    void showFit(Protocol::ChannelFit fit);
    void setFitted(Channel &channel, bool fitted);
    void acknowledge(const QString &line);
    void refuse(const QString &line);
    void closeToReconnect();
    void showIdentifier(const QString &line);
    void showTemperature(const QString &line);
    void showVoltage(const QString &line);
    void showStatus(const QString &text);

    // ---- mainwindow_settingsreply.cpp
    void parseSetting(const QString &line);
    void applyPiece(const Protocol::ReplyPiece &piece, Protocol::ReplyKind kind);
    void applyCommonPiece(const Protocol::ReplyPiece &piece);
    void applyHighSwitch(const QString &value);
    void applyLowSwitch(const QString &value);
    void applySwitch(Channel &channel, const QString &value);
    void applyRate(const QString &value);
    void applyFormat(const QString &value);
    void applyPings(const QString &value);
    void applyMaxDepth(const QString &value);
    void applyVelocity(const QString &value);
    void applyChannelPiece(Channel &channel, const Protocol::ReplyPiece &piece);
    void applyMode(Channel &channel, QChar mode);

    // ---- mainwindow_depths.cpp
    void parseDepth(const QString &line);
    void noteSentence(const DepthSentence::Depths &depths);
    void showDepth(Channel &channel, const char *prefix, float metres);
    void showNmeaDepth(const QString &line, const DepthSentence::Depths &depths, bool isLow);

    // ---- mainwindow_controls.cpp: what can be used when
    void updateControls();
    void updateChannelControls(Channel &channel);
    void placeLostFocus();
    void lockForFormat();
    void setChildrenDisabled(QWidget *widget, bool disabled);

    // ---- mainwindow_queue.cpp
    void triggerChange(const QString &name, const QString &value);
    void mergeRepeatsOfFirst();
    QString announcedValue(const QString &name) const;

    // ---- mainwindow_fields.cpp
    int changeField(QLineEdit *edit, const QString &name, float step);
    int changeField(QLineEdit *edit, const QString &name, float step, bool inImperial);
    void changeMaxDepth(float step);
    void enterBlanking(Channel &channel);
    Channel &channelOf(const QString &name);

    // ---- mainwindow_sliders.cpp
    void changeSliderWithClick(QLabel *label, QSlider *slider, const QString &name, int delta);
    void setSliderField(QLabel *label, QSlider *slider, const QString &name, int position);
    float changeField(QLabel *label, const QString &name, float value);
    float changeField(QLabel *label, const QString &name, float value, bool inImperial);
    void slideTo(QLabel *label, const QString &name, int position);
    void slideBlanking(Channel &channel);

    // ---- mainwindow_options.cpp
    void changeStringSetting(const QString &name, const QString &value);
    void chooseWord(bool checked, const QString &name, const QString &word);
    void chooseMode(bool checked, Channel &channel, const QString &mode);
    void followHighShallow(bool shallow);
    void switchChannel(bool checked, Channel &channel, bool on, const QString &announcement,
                       const char *command);

    // ---- mainwindow_units.cpp
    void setImperialDisplay(bool inImperial);

    // ---- mainwindow_actions.cpp
    void showHelp(const QString &topic);

    QString version;
    std::unique_ptr<Ui::MainWindow> ui;
    QSize normalSize;
    QListView *portListView;
    QListView *baudListView;
    QListView *formatListView;
    QListView *newBaudListView;
    PortLister listPorts;
    QString deviceType; ///< "HF", "LF" or "DUAL": the channels of the connected device
    Settings settings;
    bool commandInFlight = false;
    bool connecting = false;
    bool autoBaud = false;
    bool imperial = false;
    bool connectButtonState = false;
    QString unitSuffix;
    QString lastInfoText;
    int userEdits = 1; ///< 0 while the window fills itself
    SerialPortLayer serial;
    QStringList knownPorts;
    QTimer infoTimer{this};
    QTimer commandTimer{this};
    QTimer portScanTimer{this};
    QTimer answerTimer{this};
    QTimer temperatureTimer{this};
    QTimer resizeTimer{this}; ///< its running alone counts: a silence meanwhile is forgiven
    QStringList pendingChanges;
    depthGraph graph;
    bool autoSave = false;
    InfoForm info;
    bool highModeLocked = false;
    bool lowModeLocked = false;
    bool highDisabled = false;
    bool lowDisabled = false;
    bool offline = false;
    bool formatLocked = false;
    bool settingsReceived = false; ///< since the start; noted, not yet asked by anything
    float lastHfDepth = DepthSentence::noDepth;
    float lastLfDepth = DepthSentence::noDepth;
    float fakeDataCount = 0.0F;
    Channel high;
    Channel low;
};

#endif // MAINWINDOW_H
