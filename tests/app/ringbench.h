// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#ifndef RINGBENCH_H
#define RINGBENCH_H

#include "focusring.h"

#include <QApplication>
#include <QComboBox>
#include <QPushButton>
#include <QScrollArea>
#include <QTabBar>
#include <QTabWidget>
#include <QVBoxLayout>
#include <QtTest>

/// A window with two tabs of controls in an area that scrolls, and one control beside it.
class RingBench
{
public:
    RingBench()
    {
        auto *const layout = new QVBoxLayout(&window);
        layout->addWidget(area);
        layout->addWidget(below);
        auto *const holder = new QWidget;
        auto *const column = new QVBoxLayout(holder);
        column->addWidget(first);
        column->addWidget(second);
        column->addSpacing(1000);
        column->addWidget(far);
        tabs->addTab(holder, "one");
        tabs->addTab(otherPage, "two");
        area->setWidget(tabs);
        area->setWidgetResizable(true);
        list->addItems({"a", "b"});
        layout->addWidget(list);
        window.resize(400, 300);
        window.show();
        window.activateWindow();
        ready = QTest::qWaitForWindowActive(&window);
        // What a test before has done with the keyboard is forgotten.
        QTest::mouseClick(window.windowHandle(), Qt::LeftButton, {}, QPoint(2, 2));
        tabs->tabBar()->setFocus();
    }

    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {})
    {
        QTest::keyClick(window.windowHandle(), key, modifiers);
    }

    /// The ring that is seen anywhere in the program, if there is one.
    static QWidget *ring()
    {
        const QWidgetList widgets = QApplication::allWidgets();
        for (QWidget *widget : widgets) {
            if (widget->objectName() == "focusRing" && widget->isVisible()) {
                return widget;
            }
        }
        return nullptr;
    }

    /// Whether the ring is seen around the control, as far as the window has room for it.
    static bool isAround(const QWidget *control)
    {
        const QWidget *const seen = ring();
        if (seen == nullptr || seen->window() != control->window()) {
            return false;
        }
        const QRect place(control->mapToGlobal(QPoint()), control->size());
        const QRect ringPlace(seen->mapToGlobal(QPoint()), seen->size());
        constexpr int reach = FocusRingFrame::reach;
        return ringPlace.contains(place) &&
               place.adjusted(-reach, -reach, reach, reach).contains(ringPlace);
    }

    QWidget window;
    QScrollArea *area = new QScrollArea;
    QTabWidget *tabs = new QTabWidget;
    QWidget *otherPage = new QWidget;
    QPushButton *first = new QPushButton("first");
    QPushButton *second = new QPushButton("second");
    QPushButton *far = new QPushButton("far");
    QPushButton *below = new QPushButton("below");
    QComboBox *list = new QComboBox;
    bool ready = false;
};

#endif // RINGBENCH_H
