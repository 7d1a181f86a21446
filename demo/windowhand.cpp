// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "windowhand.h"

#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QTabBar>
#include <QTabWidget>
#include <QtTest>

void WindowHand::click(const QString &name) const
{
    auto *const widget = find<QWidget>(name);
    constexpr int insideIndicator = 12; // a radio button answers at its left end
    QTest::mouseClick(widget, Qt::LeftButton, {}, QPoint(insideIndicator, widget->height() / 2));
}

void WindowHand::clickTab(const QString &tabs, int index) const
{
    QTabBar *const bar = find<QTabWidget>(tabs)->tabBar();
    QTest::mouseClick(bar, Qt::LeftButton, {}, bar->tabRect(index).center());
}

void WindowHand::choose(const QString &list, const QString &entry) const
{
    auto *const comboBox = find<QComboBox>(list);
    comboBox->setCurrentIndex(comboBox->findText(entry));
}

void WindowHand::type(const QString &edit, const QString &text) const
{
    auto *const widget = find<QLineEdit>(edit);
    widget->setFocus();
    widget->selectAll();
    QTest::keyClicks(widget, text);
    QTest::keyClick(widget, Qt::Key_Return);
}

QWidget *WindowHand::popup(const QString &title)
{
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget *candidate : windows) {
        if (candidate->isVisible() && candidate->windowTitle() == title) {
            return candidate;
        }
    }
    return nullptr;
}
