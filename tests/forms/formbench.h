// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#ifndef FORMBENCH_H
#define FORMBENCH_H

#include "myproxystyle.h"
#include "resources.h"
#include "ui_mainwindow.h"

#include <QMainWindow>
#include <QTest>

/// The main window's form with the program's images and style, and nothing that acts on it.
class FormBench
{
public:
    FormBench()
    {
        useTalVeroResources();
        ui.setupUi(&window);
    }

    /// Fails the running test, and says so, where the form has no such object.
    template <typename Kind = QWidget>
    Kind *find(const char *name)
    {
        auto *found = window.findChild<Kind *>(QLatin1String(name));
        if (found == nullptr) {
            QTest::qFail(qPrintable(QStringLiteral("the form has no %1").arg(QLatin1String(name))),
                         __FILE__, __LINE__);
        }
        return found;
    }

    /// Shows the window at this size and lays it out; false where the platform never draws it.
    bool show(QSize size)
    {
        window.resize(size);
        window.show();
        const bool drawn = QTest::qWaitForWindowExposed(&window);
        QCoreApplication::sendPostedEvents();
        return drawn;
    }

    QMainWindow window;
    Ui::MainWindow ui;
};

/// Makes the test program look as the program does; to be called before the first window.
inline void wearProgramStyle() { QApplication::setStyle(new MyProxyStyle); }

#endif // FORMBENCH_H
