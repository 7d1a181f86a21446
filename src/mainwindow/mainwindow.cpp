// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "mainwindow.h"

#include "busyindicator.h"
#include "debuglog.h"
#include "devicelabels.h"
#include "fieldtips.h"
#include "firmwareupdater.h"
#include "foreigntext.h"
#include "keyboardaccess.h"
#include "ratesearch.h"
#include "resources.h"
#include "sharplogo.h"
#include "stepbuttons.h"
#include "ui_mainwindow.h"
#include "version.h"
#include "wheelguard.h"

#include <QCloseEvent>
#include <QFile>
#include <QListView>
#include <QStyledItemDelegate>
#include <QTabBar>
#include <QWindowStateChangeEvent>

#include <chrono>

namespace {

using namespace std::chrono_literals;

constexpr auto resizeGrace = 1s;

/// At the start and whenever the window is no longer maximised.
constexpr QSize normalSize(1136, 800);

/// The output format that the list shows until a device has told its own.
constexpr char startFormat[] = "NMEA DBS";

constexpr char listItemStyle[] = "QListView::item {min-height:20px;padding: 1px 23px 1px 10px;}"
                                 "QListView::item:hover {color: black;}";

std::unique_ptr<Ui::MainWindow> formOn(MainWindow &window)
{
    useTalVeroResources();
    auto form = std::make_unique<Ui::MainWindow>();
    form->setupUi(&window);
    return form;
}

/// The colours in which the info line speaks, as its rich text names them.
const char *colourName(InfoColour colour)
{
    switch (colour) {
    case InfoColour::Success:
        return "Green";
    case InfoColour::Failure:
        return "Red";
    case InfoColour::Progress:
        break;
    }
    return "black";
}

QString inColour(InfoColour colour, const QString &text)
{
    return QStringLiteral("<font color='") + colourName(colour) + "'>" + text.toHtmlEscaped() +
           "</font>";
}

LinkChoices linkChoices(const Ui::MainWindow &form)
{
    return {form.portComboBox->currentText(), form.baudComboBox->currentText(),
            form.newBaudComboBox->currentText(), form.formatComboBox->currentText()};
}

/// With their padding some entries are wider than the box below which they open.
void letEntriesBeRead(const QComboBox &list)
{
    QAbstractItemView *const view = list.view();
    const auto widen = [view] {
        constexpr int bothFrames = 2;
        constexpr int widest = 480; // whatever a system calls its ports
        view->setMinimumWidth(qMin(view->sizeHintForColumn(0) + bothFrames, widest));
    };
    QObject::connect(view->model(), &QAbstractItemModel::rowsInserted, view, widen,
                     Qt::QueuedConnection);
    QObject::connect(view->model(), &QAbstractItemModel::modelReset, view, widen,
                     Qt::QueuedConnection);
}

void styleLists(const Ui::MainWindow &form)
{
    for (QComboBox *list :
         {form.portComboBox, form.baudComboBox, form.formatComboBox, form.newBaudComboBox}) {
        auto *const view = new QListView(list);
        view->setStyleSheet(listItemStyle);
        list->setView(view);
        list->setItemDelegate(new QStyledItemDelegate(list)); // the list's own knows no style sheet
        letEntriesBeRead(*list);
    }
}

void fillLists(const Ui::MainWindow &form, const Settings &settings)
{
    const std::pair<QComboBox *, QStringList> lists[] = {
        {form.portComboBox, settings.portList()},
        {form.baudComboBox, RateSearch::choices(settings.baudList())},
        {form.newBaudComboBox, settings.baudList()},
        {form.formatComboBox, settings.formatList()},
    };
    for (const auto &[list, entries] : lists) {
        list->clear();
        list->addItems(entries);
    }
    form.formatComboBox->setCurrentText(startFormat);
}

void hideWhatIsNotOffered(const Ui::MainWindow &form)
{
    form.autoSave->hide();
    const bool hasUpdater = QFile::exists(firmwareUpdaterPath());
    form.BootloadButton->setVisible(hasUpdater);
    form.widget_41->setMinimumSize(0, hasUpdater ? 80 : 60);
}

} // namespace

MainWindow::MainWindow(PortLister portLister, QWidget *parent, PortDetails details)
    : QMainWindow(parent)
    , ui(formOn(*this))
    , settings(portLister())
    , session(
          settings, [this] { return linkChoices(*ui); }, this)
    , ports(*ui->portComboBox, std::move(portLister), std::move(details), this)
    , editor(settings, session.queue())
    , common(*this)
    , high(*this, "high", "HF")
    , low(*this, "low", "LF")
{
    showSharp(ui->headerLabel, ":/resourcefiles/images/brimsett-logo-header.png");
    resize(normalSize);
    // On the tab widget itself the form cannot set it without the pages taking it over.
    ui->h->tabBar()->setCursor(Qt::PointingHandCursor);
    styleLists(*ui);
    prepareDeviceLabels(*ui);
    new WheelGuard(this);
    new BusyIndicator(*ui->busyIndicator, session, this);
    new StepKeys(this);
    prepareKeyboardAccess(this);
    ui->label_33->setText(QStringLiteral("TAL-VERO Connect Version: ") + TalVero::version);
    settings.setDeviceType(QStringLiteral("TalVeroNew"));
    setConnectButton(false);
    resizeTimer.setObjectName(QStringLiteral("resizeTimer"));
    resizeTimer.setInterval(resizeGrace);
    resizeTimer.setSingleShot(true);
    makeConnections();
    connectSession();
    hideWhatIsNotOffered(*ui);
    initialize();
}

MainWindow::~MainWindow() = default;

/// By name, as the form's controls are: these slots belong to what others may look for in the
/// window.
void MainWindow::makeConnections()
{
    connect(&session.port(), SIGNAL(gotData()), this, SLOT(gotSerialData()));
    connect(&session.port(), SIGNAL(gotTimeout()), this, SLOT(serialTimeout()));

    connect(this, SIGNAL(gotDepths(float, float)), &graph, SLOT(addData(float, float)));
    connect(this, SIGNAL(setMaxDepth(float)), &graph, SLOT(setMaxDepth(float)));
    connect(this, SIGNAL(goToImperial(bool)), &graph, SLOT(goToImperial(bool)));
    connect(this, SIGNAL(setFrequency(QString)), &graph, SLOT(setFrequency(QString)));
    connect(this, SIGNAL(goToImperial(bool)), &settings, SLOT(goToImperial(bool)));

    connect(&session.info().timer(), SIGNAL(timeout()), this, SLOT(clearInfoText()));
    connect(&session.queue().timer(), SIGNAL(timeout()), this, SLOT(sendLatestCommand()));
    connect(&ports.timer(), SIGNAL(timeout()), this, SLOT(updateSerialPorts()));
    connect(&session.answerWatch(), SIGNAL(timeout()), this, SLOT(serialTimeout()));
    connect(&session.pollClock(), SIGNAL(timeout()), this, SLOT(getLatestTemperature()));
}

/// Shows what the session tells.
void MainWindow::connectSession()
{
    connect(&session.info(), &InfoLine::shown, this,
            [this](InfoColour colour, const QString &text) {
                ui->infoLabel->setText(inColour(colour, text));
            });
    connect(&session.info(), &InfoLine::explained, this,
            [this](const QString &reason) { ui->infoLabel->setToolTip(literalToolTip(reason)); });
    connect(&session, &LinkSession::stateChanged, this, &MainWindow::followLink);
    connect(&ports, &PortChooser::listed, this,
            [this] { tips.setOwn(ui->portComboBox, ports.advice()); });
    connect(&session, &LinkSession::rateChosen, ui->baudComboBox, &QComboBox::setCurrentText);
    connect(&session, &LinkSession::identified, this, &MainWindow::parseBanner);
    connect(&session, &LinkSession::settingsReplied, this, &MainWindow::parseSetting);
    connect(&session, &LinkSession::settingAccepted, this,
            [this](const QString &key) { SettingMarks(common, high, low).setApplied(key); });
    connect(&session, &LinkSession::settingNotApplied, this,
            [this](const QString &key, const QString &words) {
                SettingMarks(common, high, low).setNotApplied(key, words);
            });
    connect(&session, &LinkSession::sounded, this, &MainWindow::parseDepth);
    connect(&session, &LinkSession::identifierRead, this, [this](const QString &identifier) {
        ui->label_24->setText(ForeignText::shown("Serial Number: QZ" + identifier));
    });
    connect(&session, &LinkSession::statusRead, this, [this](const QString &text) {
        ui->temperatureLabel->setText("<font color=Green>" + text.toHtmlEscaped() + "</font>");
    });
}

/// Brings the link and the lists to their state at the start of the program.
void MainWindow::initialize()
{
    // Deliberately the second such connection: the second run finds no line left.
    connect(&session.port(), SIGNAL(gotData()), this, SLOT(gotSerialData()));
    const SettingEditor::Pause paused(editor);
    fillLists(*ui, settings);
    ports.describeEntries();
    tips.setOwn(ui->portComboBox, ports.advice());
    updateControls();
    setImperialDisplay(false);
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
