// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "mainwindow.h"

#include "debuglog.h"
#include "firmwareupdater.h"
#include "keyboardaccess.h"
#include "pausededits.h"
#include "resources.h"
#include "sharplogo.h"
#include "ui_mainwindow.h"
#include "wheelguard.h"

#include <QCloseEvent>
#include <QFile>
#include <QTabBar>
#include <QWindowStateChangeEvent>

#include <chrono>
#include <cmath>

namespace {

using namespace std::chrono_literals;

constexpr auto infoShownFor = 10s;
constexpr auto commandPause = 500ms;
constexpr auto portScanInterval = 1s;
constexpr auto answerAllowance = 2s;
constexpr auto temperatureInterval = 5s;
constexpr auto resizeGrace = 1s;

constexpr QSize startSize(1136, 800);

/// To which a result is appended: longer than any that the operator gets to read. A line full of
/// noise may answer without end.
constexpr int longestInfoText = 1000;

/// The output format that the list shows until a device has told its own.
constexpr char startFormat[] = "NMEA DBS";

constexpr char listItemStyle[] = "QListView::item {min-height:20px;padding: 1px 23px 1px 10px;}"
                                 "QListView::item:hover {color: black;}";

} // namespace

MainWindow::MainWindow(PortLister ports, QWidget *parent)
    : QMainWindow(parent)
    , version(QStringLiteral("1.2.11"))
    , ui(std::make_unique<Ui::MainWindow>())
    , normalSize(startSize)
    , portListView(new QListView(this))
    , baudListView(new QListView(this))
    , formatListView(new QListView(this))
    , newBaudListView(new QListView(this))
    , listPorts(std::move(ports))
    , settings(listPorts())
    , unitSuffix(QStringLiteral("m"))
{
    useTalVeroResources();
    ui->setupUi(this);
    showSharp(ui->headerLabel, ":/resourcefiles/images/brimsett-logo-header.png");
    high = channelOnForm(*this, "high", "HF", &highModeLocked, &highDisabled);
    low = channelOnForm(*this, "low", "LF", &lowModeLocked, &lowDisabled);
    resize(normalSize);
    // On the tab widget itself the form cannot set it without the pages taking it over.
    ui->h->tabBar()->setCursor(Qt::PointingHandCursor);
    styleLists();
    new WheelGuard(this);
    prepareKeyboardAccess(this);
    ui->label_33->setText("TAL-VERO Connect Version: " + version);
    settings.setDeviceType(QStringLiteral("TalVeroNew"));
    setConnectButton(false);
    configureTimers();
    makeConnections();
    hideWhatIsNotOffered();
    autoSave = false;
    initialize();
}

MainWindow::~MainWindow() = default;

void MainWindow::styleLists()
{
    const std::pair<QComboBox *, QListView *> lists[] = {
        {ui->portComboBox, portListView},
        {ui->baudComboBox, baudListView},
        {ui->formatComboBox, formatListView},
        {ui->newBaudComboBox, newBaudListView},
    };
    for (const auto &[comboBox, view] : lists) {
        view->setStyleSheet(listItemStyle);
        comboBox->setView(view);
    }
}

void MainWindow::configureTimers()
{
    struct Plan
    {
        QTimer &timer;
        const char *name;
        std::chrono::milliseconds interval;
        bool singleShot;
    };
    const Plan plans[] = {
        {infoTimer, "infoTimer", infoShownFor, true},
        {commandTimer, "commandTimer", commandPause, true},
        {portScanTimer, "portScanTimer", portScanInterval, false},
        {answerTimer, "answerTimer", answerAllowance, true},
        {temperatureTimer, "temperatureTimer", temperatureInterval, false},
        {resizeTimer, "resizeTimer", resizeGrace, true},
    };
    for (const Plan &plan : plans) {
        plan.timer.setObjectName(plan.name);
        plan.timer.setInterval(plan.interval);
        plan.timer.setSingleShot(plan.singleShot);
    }
    portScanTimer.start();
    temperatureTimer.start();
}

void MainWindow::makeConnections()
{
    connect(&serial, SIGNAL(gotData()), this, SLOT(gotSerialData()));
    connect(&serial, SIGNAL(gotTimeout()), this, SLOT(serialTimeout()));

    connect(this, SIGNAL(gotDepths(float, float)), &graph, SLOT(addData(float, float)));
    connect(this, SIGNAL(setMaxDepth(float)), &graph, SLOT(setMaxDepth(float)));
    connect(this, SIGNAL(goToImperial(bool)), &graph, SLOT(goToImperial(bool)));
    connect(this, SIGNAL(setFrequency(QString)), &graph, SLOT(setFrequency(QString)));
    connect(this, SIGNAL(goToImperial(bool)), &settings, SLOT(goToImperial(bool)));

    connect(&infoTimer, SIGNAL(timeout()), this, SLOT(clearInfoText()));
    connect(&commandTimer, SIGNAL(timeout()), this, SLOT(sendLatestCommand()));
    connect(&portScanTimer, SIGNAL(timeout()), this, SLOT(updateSerialPorts()));
    connect(&answerTimer, SIGNAL(timeout()), this, SLOT(serialTimeout()));
    connect(&temperatureTimer, SIGNAL(timeout()), this, SLOT(getLatestTemperature()));
}

void MainWindow::hideWhatIsNotOffered()
{
    ui->autoSave->hide();
    const bool hasUpdater = QFile::exists(firmwareUpdaterPath());
    ui->BootloadButton->setVisible(hasUpdater);
    ui->widget_41->setMinimumSize(0, hasUpdater ? 80 : 60);
}

/// Brings the link and the lists to their state at the start of the program.
void MainWindow::initialize()
{
    // Deliberately the second such connection: the second run finds no line left.
    connect(&serial, SIGNAL(gotData()), this, SLOT(gotSerialData()));
    fillLists();
    offline = true;
    updateControls();
    const PausedEdits paused(*this);
    setImperialDisplay(false);
}

void MainWindow::fillLists()
{
    const PausedEdits paused(*this);
    ui->portComboBox->clear();
    ui->portComboBox->addItems(settings.portList());
    ui->baudComboBox->clear();
    ui->baudComboBox->addItems(rateChoices());
    ui->newBaudComboBox->clear();
    ui->newBaudComboBox->addItems(settings.baudList());
    ui->formatComboBox->clear();
    ui->formatComboBox->addItems(settings.formatList());
    ui->formatComboBox->setCurrentText(startFormat);
}

void MainWindow::setInfoText(const QString &text) { setInfoText(InfoColour::progress, text); }

void MainWindow::setInfoText(const QString &colour, const QString &text)
{
    lastInfoText = text;
    ui->infoLabel->setText("<font color='" + colour + "'>" + text + "</font>");
    infoTimer.start();
}

void MainWindow::setInfoResult(const QString &colour, const QString &result)
{
    setInfoText(colour, lastInfoText.left(longestInfoText) + result);
}

void MainWindow::clearInfoText() { setInfoText(QString()); }

void MainWindow::on_portComboBox_currentTextChanged(const QString &newStr)
{
    settings.changeSetting(QStringLiteral("port"), newStr);
}

void MainWindow::on_baudComboBox_currentTextChanged(const QString &newStr)
{
    settings.changeSetting(QStringLiteral("baud"), newStr);
}

/// A made-up sounding, a pair of slow waves, as if the device had sent it.
void MainWindow::addFakeData()
{
    const float x = fakeDataCount / 10.0F;
    fakeDataCount += 1.0F;
    const int a = static_cast<int>((std::sin(x) + 1.0F) * 100.0F);
    const int b = static_cast<int>((std::cos(x) + 2.3F) * 100.0F);
    parseDepth(QString::asprintf(" et B %05d %05d\r", a, b));
}

void MainWindow::on_openGraph_clicked()
{
    graph.show();
    graph.raise();
}

void MainWindow::on_hamburgerButton_clicked()
{
    const bool nowShown = ui->widget_40->isHidden();
    ui->widget_40->setVisible(nowShown);
    ui->scrollAreaWidgetContents->setMinimumHeight(nowShown ? 800 : 600);
    if (nowShown) {
        ui->widget_40->setMinimumHeight(ui->BootloadButton->isHidden() ? 80 : 100);
    }
}

void MainWindow::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::WindowStateChange) {
        const Qt::WindowStates before = static_cast<QWindowStateChangeEvent *>(event)->oldState();
        const bool wasMaximized = before.testFlag(Qt::WindowMaximized);
        if (isMaximized() && !wasMaximized) {
            DEBUG_LOG << "Window has been maximized";
        } else if (wasMaximized && !isMaximized() && !isMinimized()) {
            DEBUG_LOG << "Window has been restored";
            resize(normalSize);
        }
    }
    QMainWindow::changeEvent(event);
}

void MainWindow::closeEvent(QCloseEvent *event)
{
    graph.close();
    info.close();
    event->accept();
}

void MainWindow::resizeEvent(QResizeEvent *event)
{
    QMainWindow::resizeEvent(event);
    resizeTimer.start();
}
