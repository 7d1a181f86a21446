// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "operatortour.h"

#include "mainwindow.h"
#include "sounderline.h"

#include <QAbstractButton>
#include <QLabel>
#include <QPixmap>
#include <QRegularExpression>
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
    words.replace(QRegularExpression("[^a-z0-9]+"), "-");
    return QString("%1-%2.png").arg(number, 2, 10, QLatin1Char('0')).arg(words);
}

} // namespace

OperatorTour::OperatorTour(MainWindow &mainWindow, SounderLine &dual, SounderLine &highOnly,
                           const QDir &folder, QObject *parent)
    : QObject(parent)
    , WindowHand(mainWindow)
    , window(mainWindow)
    , sounder(dual)
    , singleChannel(highOnly)
    , pictures(folder)
{
    connect(&window, &MainWindow::gotDepths, this, [this] { ++soundings; });
    clock.setInterval(lookInterval);
    connect(&clock, &QTimer::timeout, this, &OperatorTour::watch);
    plan();
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

void OperatorTour::addChange(const QString &name, std::function<void()> act, const char *confirmed)
{
    add(name, std::move(act), [this, confirmed] { return infoHolds(confirmed); });
}

void OperatorTour::addGraph(const QString &name)
{
    const auto open = [this] {
        click("openGraph");
        soundings = 0;
    };
    constexpr int someSoundings = 30; // more than the tour's reader looks at
    add(
        name, open, [this] { return soundings >= someSoundings; },
        [this] { return popup("Depth Graph"); });
}

void OperatorTour::answer(const char *title, QMessageBox::StandardButton button) const
{
    auto *const box = qobject_cast<QMessageBox *>(popup(title));
    if (box != nullptr && box->button(button) != nullptr) {
        QTest::mouseClick(box->button(button), Qt::LeftButton);
    }
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
