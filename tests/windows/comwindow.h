// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#ifndef COMWINDOW_H
#define COMWINDOW_H

#include "hostsounder.h"
#include "mainwindow.h"
#include "portclosing.h"

#include <QComboBox>
#include <QLabel>
#include <QTextDocumentFragment>
#include <QtTest>

/// The window as the program makes it, with an operator who has one COM port. (The window's own
/// bench plays the sounder on a pseudo-terminal, which is not to be had here.)
class ComWindow
{
public:
    explicit ComWindow(int portNumber)
        : port(comPort(portNumber))
    {
        window.show();
        if (!QTest::qWaitForWindowExposed(&window)) {
            qFatal("the window did not open");
        }
    }

    template <typename Widget>
    Widget *find(const char *name)
    {
        auto *const widget = window.findChild<Widget *>(QLatin1String(name));
        if (widget == nullptr) {
            qFatal("the window has no %s", name);
        }
        return widget;
    }

    void click(const char *name) { QTest::mouseClick(find<QWidget>(name), Qt::LeftButton); }

    void choose(const char *list, const QString &entry)
    {
        auto *const box = find<QComboBox>(list);
        const int index = box->findText(entry);
        if (index < 0) {
            qFatal("%s does not offer %s", list, qPrintable(entry));
        }
        box->setCurrentIndex(index);
    }

    void pressConnect(const char *rate = "9600")
    {
        choose("portComboBox", port);
        choose("baudComboBox", rate);
        click("connectToDevice");
    }

    /// Whether a connection comes and all that a fresh one asks for; a search tries up to six
    /// rates.
    bool isConnectedSoon()
    {
        constexpr int patienceMs = 20000;
        auto *const temperature = find<QLabel>("temperatureLabel");
        return QTest::qWaitFor(
            [temperature] { return temperature->text().contains("Temperature"); }, patienceMs);
    }

    QString info()
    {
        return QTextDocumentFragment::fromHtml(find<QLabel>("infoLabel")->text()).toPlainText();
    }

    QString port;
    PortClosing closing;
    MainWindow window;
};

#endif // COMWINDOW_H
