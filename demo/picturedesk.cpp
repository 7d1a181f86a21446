// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "picturedesk.h"

#include "windowhand.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QTabWidget>
#include <QTimer>
#include <QWindow>
#include <QtTest>

namespace {

constexpr int patienceMs = 20000;

/// What the graph is given for a depth that the sounder did not find.
constexpr float noDepth = -1.0F;

/// Lists and tooltips have no title.
constexpr char untitled[] = "";

} // namespace

PictureDesk::PictureDesk(const SounderOptions &options)
    : sounder(options)
    , seabed(options.seed)
    , window([this] { return QStringList(sounder.portPath()); })
{
    window.show();
    window.activateWindow(); // else there are neither tooltips nor a focus
    if (!sounder.isOpen() || !QTest::qWaitForWindowActive(&window)) {
        qFatal("No pseudo-terminal, or no window");
    }
}

template <typename Widget>
Widget *PictureDesk::find(const char *name)
{
    return WindowHand(window).find<Widget>(name);
}

void PictureDesk::choosePort(const char *rate)
{
    choose("portComboBox", qPrintable(sounder.portPath()));
    choose("baudComboBox", rate);
}

void PictureDesk::pressConnect(const char *rate)
{
    choosePort(rate);
    click("connectToDevice");
}

bool PictureDesk::connectToSounder()
{
    pressConnect();
    const auto *temperature = find<QLabel>("temperatureLabel");
    // The temperature is the last that a fresh connection asks for.
    return QTest::qWaitFor([temperature] { return temperature->text().contains("Temperature"); },
                           patienceMs);
}

void PictureDesk::click(const char *name)
{
    auto *const widget = find<QWidget>(name);
    constexpr int insideIndicator = 12; // a radio button answers at its left end
    QTest::mouseClick(widget, Qt::LeftButton, {}, QPoint(insideIndicator, widget->height() / 2));
    window.setFocus(); // no picture depends on what was pressed last
}

bool PictureDesk::clickForBox(const char *name, const std::function<void(QWidget &)> &look)
{
    bool came = false;
    QTimer glance; // a box holds up the click that opened it
    QObject::connect(&glance, &QTimer::timeout, &glance, [&] {
        QWidget *const box = QApplication::activeModalWidget();
        if (box != nullptr && box->windowHandle() != nullptr && box->windowHandle()->isExposed()) {
            came = true;
            look(*box);
            box->close();
        }
    });
    constexpr int glanceMs = 20;
    glance.start(glanceMs);
    click(name);
    return came || QTest::qWaitFor([&came] { return came; }, patienceMs);
}

bool PictureDesk::pointAt(const char *name)
{
    auto *const widget = find<QWidget>(name);
    QTest::mouseMove(widget);
    return QTest::qWaitFor([] { return popup(untitled) != nullptr; }, patienceMs);
}

bool PictureDesk::tabTo(const char *name)
{
    constexpr int stopsOfTheForm = 120;
    const auto *const widget = find<QWidget>(name);
    for (int i = 0; i < stopsOfTheForm && !widget->hasFocus(); ++i) {
        QTest::keyClick(window.windowHandle(), Qt::Key_Tab);
    }
    return widget->hasFocus();
}

void PictureDesk::type(const char *edit, const char *text)
{
    auto *const widget = find<QLineEdit>(edit);
    widget->setFocus();
    widget->selectAll();
    QTest::keyClicks(widget, text);
    window.setFocus();
}

void PictureDesk::choose(const char *list, const char *entry)
{
    auto *const box = find<QComboBox>(list);
    const int index = box->findText(entry);
    if (index < 0) {
        qFatal("%s does not offer %s", list, entry);
    }
    box->setCurrentIndex(index);
}

void PictureDesk::showTab(int index) { find<QTabWidget>("h")->setCurrentIndex(index); }

bool PictureDesk::openList(const char *name)
{
    auto *const box = find<QComboBox>(name);
    box->showPopup();
    return QTest::qWaitForWindowExposed(box->view()->window());
}

bool PictureDesk::openGraphWithHistory()
{
    constexpr int soundings = 760;
    constexpr double pingsPerSecond = 10;
    for (int i = 0; i < soundings; ++i) {
        const DepthPair depths = seabed.depthsAt(i / pingsPerSecond);
        emit window.gotDepths(static_cast<float>(depths.high.value_or(noDepth)),
                              static_cast<float>(depths.low.value_or(noDepth)));
    }
    click("openGraph");
    const QWidget *graph = popup("Depth Graph");
    // The chart is drawn when its timer comes round, and the colour keys with it.
    const auto *key = graph == nullptr ? nullptr : graph->findChild<QLabel *>("depthKeyHF");
    return QTest::qWaitFor(
        [key] { return key != nullptr && !key->pixmap(Qt::ReturnByValue).isNull(); }, patienceMs);
}

bool PictureDesk::infoComesToHold(const char *words)
{
    const auto *info = find<QLabel>("infoLabel");
    return QTest::qWaitFor([info, words] { return info->text().contains(words); }, patienceMs);
}

bool PictureDesk::textComes(const char *label)
{
    const auto *text = find<QLabel>(label);
    return QTest::qWaitFor([text] { return !text->text().isEmpty(); }, patienceMs);
}

QWidget *PictureDesk::popup(const char *title) { return WindowHand::popup(title); }
