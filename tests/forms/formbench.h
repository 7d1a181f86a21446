// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#ifndef FORMBENCH_H
#define FORMBENCH_H

#include "myproxystyle.h"
#include "ui_mainwindow.h"

#include <QMainWindow>
#include <QTest>

#include <map>
#include <memory>
#include <utility>

/// The main window's form with the program's images and style, and nothing that acts on it.
class FormBench
{
public:
    FormBench();

    /// Fails the running test, and says so, where the form has no such object.
    template <typename Kind = QWidget>
    Kind *find(const char *name) const
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

/// Opened forms for rows that only look: each is opened by the first row that asks for its size,
/// and the later ones look at it again. A row that changes anything opens a FormBench of its own.
class FormShelf
{
public:
    /// What is done to a form after it has been opened.
    using Preparation = void (*)(Ui::MainWindow &);

    explicit FormShelf(Preparation preparation = nullptr)
        : prepare(preparation)
    {}

    /// The form in a window of this size, with this page of the tabs in front; the test program
    /// ends where the platform never draws it.
    const FormBench &shown(QSize size, int page = 0)
    {
        std::unique_ptr<FormBench> &form = forms[{size.width(), size.height()}];
        if (form == nullptr) {
            form = opened(size);
        }
        form->ui.h->setCurrentIndex(page);
        QCoreApplication::sendPostedEvents();
        return *form;
    }

    void clear() { forms.clear(); }

private:
    std::unique_ptr<FormBench> opened(QSize size) const
    {
        auto form = std::make_unique<FormBench>();
        if (!form->show(size)) {
            qFatal("the form did not open");
        }
        if (prepare != nullptr) {
            prepare(form->ui);
        }
        return form;
    }

    Preparation prepare;
    std::map<std::pair<int, int>, std::unique_ptr<FormBench>> forms;
};

/// Makes the test program look as the program does; to be called before the first window.
inline void wearProgramStyle() { QApplication::setStyle(new MyProxyStyle); }

#endif // FORMBENCH_H
