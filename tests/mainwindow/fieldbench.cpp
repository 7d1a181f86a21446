// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "fieldbench.h"

#include <QLineEdit>
#include <QTabBar>
#include <QTabWidget>
#include <QtTest>

namespace {

SounderOptions swiftSounder()
{
    SounderOptions options = WindowBench::quietSounder();
    options.pace = false;
    return options;
}

} // namespace

FieldBench::FieldBench(Unit unit)
    : WindowBench(swiftSounder())
{
    device().settings().high.mode = 'm';
    device().settings().low.mode = 'm';
    if (unit == Unit::Imperial) {
        click("imperialRadio");
    }
    if (!connectToSounder()) {
        qFatal("the window did not connect to the simulated sounder");
    }
    timer("commandTimer")->setInterval(1);
}

void FieldBench::beginEdit()
{
    QMetaObject::invokeMethod(&window, "clearInfoText");
    device().settings().pings = 1;
    device().settings().maxDepthMm = 3000;
    device().clearTranscript();
}

void FieldBench::showTabOf(const QString &name)
{
    const auto *const widget = find<QWidget>(name);
    auto *const tabs = find<QTabWidget>("h");
    for (int index = 0; index < tabs->count(); ++index) {
        if (tabs->widget(index)->isAncestorOf(widget)) {
            QTest::mouseClick(tabs->tabBar(), Qt::LeftButton, {},
                              tabs->tabBar()->tabRect(index).center());
        }
    }
}

void FieldBench::overwrite(const QString &edit, const QString &text)
{
    auto *const widget = find<QLineEdit>(edit);
    widget->setFocus();
    widget->selectAll();
    QTest::keyClick(widget, Qt::Key_Delete);
    QTest::keyClicks(widget, text);
}

void FieldBench::act(const QString &edit, const QString &action)
{
    if (action == QLatin1String("Return")) {
        QTest::keyClick(find<QLineEdit>(edit), Qt::Key_Return);
    } else {
        click(action);
    }
}

bool FieldBench::awaitAnswer()
{
    return QTest::qWaitFor(
        [this] { return !timer("commandTimer")->isActive() && !result().isEmpty(); });
}
