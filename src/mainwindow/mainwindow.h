// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#ifndef MAINWINDOW_H
#define MAINWINDOW_H

#include "channelpane.h"
#include "commonfields.h"
#include "controltips.h"
#include "depthgraph.h"
#include "infoform.h"
#include "linksession.h"
#include "portchooser.h"
#include "settingeditor.h"
#include "settingmarks.h"
#include "settings.h"
#include "soundings.h"

#include <QIcon>
#include <QMainWindow>
#include <QTimer>

#include <memory>

namespace Ui {
class MainWindow;
}

/// The operator's window. It owns the settings, the session with the sounder, the depth graph and
/// the help window, and connects them to the form: what the operator does goes to the setting
/// editor and to the session, what the session tells is shown. Each banner below names the file
/// that implements what follows.
class MainWindow : public QMainWindow
{
    Q_OBJECT

public:
    /// `ports` names the serial ports to choose from. It is asked once at construction and then
    /// once a second while no device is connected. `details` tells of a port so named what the
    /// operator may know it by.
    explicit MainWindow(PortLister ports = systemSerialPorts, QWidget *parent = nullptr,
                        PortDetails details = systemPortDetails);
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
    // The order of the slots is fixed: Qt numbers them in it, and others may call them by number as
    // well as by name. All stand in mainwindow_slots.cpp, each in one line that says what it leads
    // to. The form's controls reach theirs by name.

    void updateSerialPorts();
    void connectionFailed();
    void connectionSucceeded();
    void gotSerialData();
    void serialTimeout();
    void getLatestTemperature();
    void on_connectToDevice_clicked();

    void on_portComboBox_currentTextChanged(const QString &newStr);
    void on_baudComboBox_currentTextChanged(const QString &newStr);
    void clearInfoText();

    void sendLatestCommand();

    void addFakeData();
    void on_hamburgerButton_clicked();
    void on_openGraph_clicked();

    void on_saveSettings_clicked();
    void on_saveSettingsToDevice_clicked();
    void on_resetSettings_clicked();
    void on_importButton_clicked();
    void on_BootloadButton_clicked();
    void on_autoSave_toggled(bool selected);

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

    void on_highPulseSlider_valueChanged(int position);
    void on_highGainSlider_valueChanged(int position);
    void on_highDetectSlider_valueChanged(int position);
    void on_highBlankingSlider_valueChanged(int position);
    void on_lowPulseSlider_valueChanged(int position);
    void on_lowGainSlider_valueChanged(int position);
    void on_lowDetectSlider_valueChanged(int position);
    void on_lowBlankingSlider_valueChanged(int position);

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

    void on_imperialRadio_toggled(bool checked);
    void on_metricRadio_toggled(bool checked);

    void on_enableHF_toggled(bool checked);
    void on_enableLF_toggled(bool checked);
    void on_disableHF_toggled(bool checked);
    void on_disableLF_toggled(bool checked);
    void on_formatComboBox_currentTextChanged(const QString &format);
    void on_newBaudComboBox_currentTextChanged(const QString &rate);

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
    // ---- mainwindow.cpp: construction
    void makeConnections();
    void connectSession();
    void initialize();

    // ---- mainwindow_link.cpp: connecting, and what the unit is
    void pressConnect();
    void followLink(SessionState state);
    void setConnectButton(bool connected);
    void parseBanner(const Protocol::Banner &banner);

    // ---- mainwindow_settingsreply.cpp: what the unit is set to
    void parseSetting(const Protocol::SettingsReply &reply);
    // MovesLocks: shown, and what can be used may be something else now.
    enum class PieceEffect { Ignored, Shown, MovesLocks };
    PieceEffect applyPiece(Protocol::ReplyKind kind, const Protocol::ReplyPiece &piece);
    PieceEffect applyCommonPiece(const Protocol::ReplyPiece &piece);
    PieceEffect applyChannelPiece(ChannelPane &pane, const Protocol::ReplyPiece &piece);
    bool applyFormat(const QString &value);
    bool applyMode(ChannelPane &pane, QChar mode);
    bool applyRate(const QString &value);

    // ---- mainwindow_depths.cpp: what the unit measures
    void parseDepth(const QString &line);
    void showDepthsAlive(bool alive);

    // ---- mainwindow_controls.cpp: what can be used when
    void updateControls();
    void allow(const ControlRules::Locks &locks);
    ControlRules::State controlState() const;

    // ---- mainwindow_tips.cpp: what the controls tell under the pointer
    void explainLocks(const ControlRules::Locks &locks);
    void tellRanges(bool imperial);

    // ---- mainwindow_options.cpp: modes, channels, output, unit of display
    void chooseMode(bool checked, ChannelPane &pane, const QString &mode);
    void followHighShallow(bool shallow);
    void switchChannel(bool checked, ChannelPane &pane, bool on, const QString &announcement,
                       const char *command);
    void chooseFormat(const QString &format);
    void changeMaxDepth(int direction);
    void setImperialDisplay(bool imperial);

    // ---- mainwindow_actions.cpp: what is not the edit of one setting
    void resetToFactory();
    void updateFirmware();
    void toggleFooter();
    void showHelp(const QString &topic);

    // Made once: an icon made anew for each connection leaves some of its memory behind.
    struct LinkIcons
    {
        QIcon connected{QStringLiteral(":/resourcefiles/images/connected.png")};
        QIcon notConnected{QStringLiteral(":/resourcefiles/images/not_connected.png")};
    };

    std::unique_ptr<Ui::MainWindow> ui;
    const LinkIcons linkIcons;
    Settings settings;
    LinkSession session;
    PortChooser ports;
    ControlTips tips;
    SettingEditor editor;
    CommonFields common;
    ChannelPane high;
    ChannelPane low;
    Soundings soundings;
    Protocol::ChannelFit fit = Protocol::ChannelFit::Unknown; ///< of the unit connected last
    bool autoSave = false;
    depthGraph graph;
    InfoForm info;
    QTimer resizeTimer{this}; ///< its running alone counts: a silence meanwhile is forgiven
};

#endif // MAINWINDOW_H
