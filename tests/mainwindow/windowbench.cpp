// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "windowbench.h"

#include "appearance.h"

#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QTextDocumentFragment>
#include <QtTest>

#include <algorithm>
#include <cstring>

namespace {

/// Requests that belong to a connection or to polling and change nothing in the device.
constexpr char requestLetters[] = "nGU";

bool isRequest(const QByteArray &command)
{
    return command.size() > 1 && std::strchr(requestLetters, command.at(1)) != nullptr;
}

} // namespace

SounderOptions WindowBench::quietSounder()
{
    SounderOptions options;
    options.rate = 9600;
    options.soundings = false;
    return options;
}

WindowBench::WindowBench(const SounderOptions &options)
    : sounder(options)
    , keptWindow(KeptWindow::take([this] {
        ++timesListed;
        return ports;
    }))
    , window(keptWindow->window())
{
    ports = QStringList{QStringLiteral("ttyNOBODY"), sounder.portPath()};
    QMetaObject::invokeMethod(&window, "updateSerialPorts");
    watchForForgottenBoxes();
}

WindowBench::~WindowBench() { KeptWindow::leave(std::move(keptWindow)); }

/// A message box that no test answers would keep the program in its event loop for ever.
void WindowBench::watchForForgottenBoxes()
{
    constexpr int patienceMs = 30000;
    boxWatch.setInterval(patienceMs / 2);
    QObject::connect(&boxWatch, &QTimer::timeout, [this] {
        const QWidget *box = QApplication::activeModalWidget();
        if (box != nullptr && box == boxSeen) {
            qFatal("A box waits for an answer: %s",
                   qPrintable(box->windowTitle() + ": " + box->property("text").toString()));
        }
        boxSeen = box;
    });
    boxWatch.start();
}

void WindowBench::reportMissing(const QString &name) const
{
    QStringList names;
    const QList<QObject *> children = window.findChildren<QObject *>();
    for (const QObject *child : children) {
        if (!child->objectName().isEmpty() && !child->objectName().startsWith("qt_")) {
            names.append(child->objectName());
        }
    }
    names.sort();
    qFatal("There is no %s of the asked kind in the window. There are: %s", qPrintable(name),
           qPrintable(names.join(' ')));
}

void WindowBench::click(const QString &name)
{
    auto *const widget = find<QWidget>(name);
    // A radio button answers on its indicator and text, which begin at the left.
    const bool isRadio = qobject_cast<QRadioButton *>(widget) != nullptr;
    const QPoint place = isRadio ? QPoint(12, widget->height() / 2) : widget->rect().center();
    QTest::mouseClick(widget, Qt::LeftButton, {}, place);
}

void WindowBench::type(const QString &edit, const QString &text)
{
    auto *const widget = find<QLineEdit>(edit);
    widget->setFocus();
    widget->selectAll();
    QTest::keyClick(widget, Qt::Key_Delete);
    QTest::keyClicks(widget, text);
    QTest::keyClick(widget, Qt::Key_Return);
}

void WindowBench::choose(const QString &comboBox, const QString &entry)
{
    auto *const list = find<QComboBox>(comboBox);
    const int index = list->findText(entry);
    if (index < 0) {
        qFatal("%s does not offer %s", qPrintable(comboBox), qPrintable(entry));
    }
    list->setCurrentIndex(index);
}

QString WindowBench::text(const QString &name)
{
    const QString shown = find<QWidget>(name)->property("text").toString();
    auto *const list = window.findChild<QComboBox *>(name);
    return list != nullptr ? list->currentText() : shown;
}

QString WindowBench::info()
{
    return QTextDocumentFragment::fromHtml(find<QLabel>("infoLabel")->text()).toPlainText();
}

QString WindowBench::infoColour() { return find<QLabel>("infoLabel")->text().section('\'', 1, 1); }

bool WindowBench::isChecked(const QString &name)
{
    return find<QAbstractButton>(name)->isChecked();
}

void WindowBench::pressConnect(const QString &rate)
{
    choose("portComboBox", sounder.portPath());
    choose("baudComboBox", rate);
    click("connectToDevice");
}

bool WindowBench::connectToSounder(const QString &rate)
{
    pressConnect(rate);
    constexpr int patienceMs = 15000;
    // The temperature is the last that a fresh connection asks for.
    return QTest::qWaitFor([this] { return text("temperatureLabel").contains("Temperature"); },
                           patienceMs);
}

bool WindowBench::showsConnected()
{
    return text("connectToDevice") == "Disconnect" && isEnabled("commonHolder");
}

void WindowBench::stopPainting()
{
    window.setUpdatesEnabled(false);
    auto *const infoLine = find<QLabel>("infoLabel");
    infoLine->setFixedSize(infoLine->size());
}

QByteArrayList WindowBench::settingCommands()
{
    QByteArrayList commands = device().received();
    commands.erase(std::remove_if(commands.begin(), commands.end(), isRequest), commands.end());
    return commands;
}
