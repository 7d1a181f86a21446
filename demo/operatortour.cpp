// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "operatortour.h"

#include "mainwindow.h"
#include "sounderline.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPixmap>
#include <QScreen>
#include <QTabBar>
#include <QTabWidget>
#include <QTextDocumentFragment>
#include <QTextStream>
#include <QtTest>

#include <chrono>

namespace {

using namespace std::chrono_literals;

constexpr auto lookInterval = 50ms;
constexpr std::chrono::milliseconds patience = 20s;

QString fileName(int number, const QString &stepName)
{
    QString words = stepName.toLower();
    words.replace(QRegExp("[^a-z0-9]+"), "-");
    return QString("%1-%2.png").arg(number, 2, 10, QLatin1Char('0')).arg(words);
}

} // namespace

OperatorTour::OperatorTour(MainWindow &mainWindow, SounderLine &line, const QDir &folder,
                           QObject *parent)
    : QObject(parent)
    , window(mainWindow)
    , sounder(line)
    , pictures(folder)
{
    clock.setInterval(lookInterval);
    connect(&clock, &QTimer::timeout, this, &OperatorTour::watch);
    planConnecting();
    planChanging();
    planLooking();
    planLeaving();
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
            popup("Error")->close();
            choose("portComboBox", sounder.portPath());
            choose("baudComboBox", "Auto");
        },
        [this] { return find<QComboBox>("baudComboBox")->currentText() == "Auto"; });
    add(
        "Search the rate", [this] { click("connectToDevice"); },
        [this] { return infoHolds("Trying"); });
    add(
        "Connected", [] {}, [this] { return isConnected(); });
}

void OperatorTour::planChanging()
{
    add(
        "Change the draft", [this] { click("highDraftUp"); },
        [this] { return infoHolds("High Frequency Draft to 0.50 m ... Success"); });
    add(
        "Ten pings per second", [this] { type("pingEdit", "10"); },
        [this] { return infoHolds("Pings Per Second to 10 ... Success"); });
    add(
        "Maximum depth refused", [this] { type("maxDepthEdit", "80"); },
        [this] { return infoHolds("Reduce pings per second"); });
    add(
        "Maximum depth accepted", [this] { type("maxDepthEdit", "60"); },
        [this] { return infoHolds("Maximum Depth to 60 m ... Success"); });
    add(
        "High channel in manual mode", [this] { click("highManualRadio"); },
        [this] { return infoHolds("Sounder Mode to Manual ... Success"); });
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
        "Low frequency tab", [this] { clickTab(1); },
        [this] { return find<QTabWidget>("h")->currentIndex() == 1; });
    add(
        "Help", [this] { click("commonSettingsInfo"); }, shown("Information"),
        pictureOf("Information"));
    add(
        "Depth graph", [this] { click("openGraph"); }, shown("Depth Graph"),
        pictureOf("Depth Graph"));
}

void OperatorTour::planLeaving()
{
    add(
        "Disconnect", [this] { click("connectToDevice"); }, [this] { return !isConnected(); });
    add(
        "Connect again at the rate found", [this] { click("connectToDevice"); },
        [this] { return isConnected(); });
    add(
        "The sounder is pulled away", [this] { sounder.hangUp(); },
        [this] { return infoHolds("Lost Connection To Device"); });
}

void OperatorTour::add(const QString &name, std::function<void()> act, std::function<bool()> isDone)
{
    add(name, std::move(act), std::move(isDone), [this] { return &window; });
}

void OperatorTour::add(const QString &name, std::function<void()> act, std::function<bool()> isDone,
                       std::function<QWidget *()> shown)
{
    steps.append({name, std::move(act), std::move(isDone), std::move(shown)});
}

void OperatorTour::start() { QTimer::singleShot(0, this, &OperatorTour::begin); }

void OperatorTour::begin()
{
    ++current;
    if (current == steps.size()) {
        emit finished(failures == 0 ? 0 : 1);
        return;
    }
    waiting.start();
    clock.start();
    steps.at(current).act(); // may stay in a message box until a later step closes it
}

void OperatorTour::watch()
{
    const bool came = steps.at(current).isDone();
    if (!came && waiting.elapsed() < patience.count()) {
        return;
    }
    clock.stop();
    // One more turn of the event loop lets the window paint what it shows.
    QTimer::singleShot(lookInterval, this, [this, came] { end(came); });
}

void OperatorTour::end(bool came)
{
    report(came);
    takePicture();
    QTimer::singleShot(0, this, &OperatorTour::begin);
}

void OperatorTour::report(bool came)
{
    failures += came ? 0 : 1;
    const QString said = info();
    QTextStream(stdout) << QString("%1. %2: ").arg(current + 1).arg(steps.at(current).name)
                        << (said.isEmpty() ? "(the info line is empty)" : said)
                        << (came ? "" : "   <-- not what was expected") << '\n';
}

void OperatorTour::takePicture() const
{
    if (QWidget *shown = steps.at(current).shown()) {
        const QString path = pictures.filePath(fileName(current + 1, steps.at(current).name));
        if (!shown->grab().save(path)) {
            QTextStream(stderr) << "Could not write " << path << '\n';
        }
    }
}

template <typename Widget>
Widget *OperatorTour::find(const QString &name) const
{
    auto *const widget = window.findChild<Widget *>(name);
    if (widget == nullptr) {
        qFatal("The window has no %s", qPrintable(name));
    }
    return widget;
}

void OperatorTour::click(const QString &name) const
{
    auto *const widget = find<QWidget>(name);
    constexpr int insideIndicator = 12; // a radio button answers at its left end
    QTest::mouseClick(widget, Qt::LeftButton, {}, QPoint(insideIndicator, widget->height() / 2));
}

void OperatorTour::clickTab(int index) const
{
    QTabBar *const bar = find<QTabWidget>("h")->tabBar();
    QTest::mouseClick(bar, Qt::LeftButton, {}, bar->tabRect(index).center());
}

void OperatorTour::choose(const QString &list, const QString &entry) const
{
    auto *const comboBox = find<QComboBox>(list);
    comboBox->setCurrentIndex(comboBox->findText(entry));
}

void OperatorTour::type(const QString &edit, const QString &text) const
{
    auto *const widget = find<QLineEdit>(edit);
    widget->setFocus();
    widget->selectAll();
    QTest::keyClicks(widget, text);
    QTest::keyClick(widget, Qt::Key_Return);
}

QString OperatorTour::info() const
{
    return QTextDocumentFragment::fromHtml(find<QLabel>("infoLabel")->text()).toPlainText();
}

bool OperatorTour::infoHolds(const char *words) const { return info().contains(words); }

bool OperatorTour::isConnected() const
{
    return find<QWidget>("commonHolder")->isEnabled() &&
           find<QLabel>("temperatureLabel")->text().contains("Temperature");
}

QWidget *OperatorTour::popup(const char *title) const
{
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget *candidate : windows) {
        if (candidate->isVisible() && candidate->windowTitle() == title) {
            return candidate;
        }
    }
    return nullptr;
}
