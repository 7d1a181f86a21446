// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

// The window on a screen that is smaller than it.

#include "appearance.h"
#include "mainwindow.h"
#include "screenfit.h"

#include <QApplication>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QtTest>

class TestScreenFit : public QObject
{
    Q_OBJECT

private slots:
    void sizeFitsIntoWhatIsFree_data();
    void sizeFitsIntoWhatIsFree();
    void windowThatFitsStaysAsItIs();
    void tooLargeWindowLiesWithinTheScreen();
    void footerCanBeReachedByTheMouse();
};

void TestScreenFit::sizeFitsIntoWhatIsFree_data()
{
    QTest::addColumn<QSize>("available");
    QTest::addColumn<QSize>("expected");
    QTest::newRow("1920x1080 with a taskbar") << QSize(1920, 1040) << QSize(1136, 800);
    QTest::newRow("1366x768 with a taskbar") << QSize(1366, 728) << QSize(1136, 680);
    QTest::newRow("1280x800") << QSize(1280, 800) << QSize(1136, 752);
    QTest::newRow("1024x768") << QSize(1024, 768) << QSize(1008, 720);
    QTest::newRow("just enough") << QSize(1152, 848) << QSize(1136, 800);
    QTest::newRow("one pixel too few") << QSize(1151, 847) << QSize(1135, 799);
    QTest::newRow("nothing is free") << QSize(0, 0) << QSize(1, 1);
}

void TestScreenFit::sizeFitsIntoWhatIsFree()
{
    QFETCH(QSize, available);
    QFETCH(QSize, expected);
    QCOMPARE(fittingSize({1136, 800}, available, {8, 40, 8, 8}), expected);
}

void TestScreenFit::windowThatFitsStaysAsItIs()
{
    QWidget window;
    window.setGeometry(10, 20, 300, 200);
    fitToScreen(window);
    QCOMPARE(window.geometry(), QRect(10, 20, 300, 200));
}

void TestScreenFit::tooLargeWindowLiesWithinTheScreen()
{
    MainWindow window;
    QCOMPARE(window.size(), QSize(1136, 800));
    const QRect available = window.screen()->availableGeometry();
    QVERIFY2(!available.contains(QRect(available.topLeft(), window.size())),
             "this test needs a screen that is too small");
    fitToScreen(window);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QVERIFY(available.contains(window.frameGeometry()));
    QVERIFY2(window.width() >= available.width() - 16 && window.height() >= available.height() - 48,
             "smaller than it has to be");
}

/// Turning the wheel over the form brings the menu button of the footer under the pointer.
void TestScreenFit::footerCanBeReachedByTheMouse()
{
    MainWindow window;
    fitToScreen(window);
    window.resize(window.size().boundedTo({784, 552})); // Qt 6 plays a screen as tall as the form
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    auto *const button = window.findChild<QPushButton *>("hamburgerButton");
    QScrollBar *const bar = window.findChild<QScrollArea *>("scrollArea")->verticalScrollBar();
    QVERIFY2(bar->isVisible(), "the form fits: there is nothing to reach");
    QVERIFY(button->visibleRegion().isEmpty());
    QTest::mouseClick(bar, Qt::LeftButton, {}, {bar->width() / 2, bar->height() - 4});
    QTRY_COMPARE(button->visibleRegion().boundingRect(), button->rect());
}

int main(int argc, char **argv)
{
    prepareForHighDensity();
    QApplication application(argc, argv);
    giveProgramStyle();
    TestScreenFit test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_screenfit.moc"
