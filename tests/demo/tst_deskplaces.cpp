// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "deskplaces.h"

#include <QtTest>

namespace {

constexpr QMargins frame(8, 40, 8, 8);
constexpr QSize startSize(1136, 800);
constexpr QSize panelSize(290, 460);

} // namespace

/// Where the program's window and the sounder's panel stand on a desk.
class TestDeskPlaces : public QObject
{
    Q_OBJECT

private slots:
    void sideBySideOnTheScreen_data();
    void sideBySideOnTheScreen();
    void onALargeScreenBothStandInTheMiddle();
    void whereThereIsNoRoomThePanelStaysOnTheScreen();
};

void TestDeskPlaces::sideBySideOnTheScreen_data()
{
    QTest::addColumn<QRect>("available");
    QTest::addColumn<QSize>("window");
    QTest::newRow("1920x1080") << QRect(0, 0, 1920, 1080) << startSize;
    QTest::newRow("1920x1080, right of another screen") << QRect(1920, 0, 1920, 1080) << startSize;
    QTest::newRow("1458x848, as large as both") << QRect(0, 0, 1458, 848) << startSize;
    QTest::newRow("1366x768") << QRect(0, 0, 1366, 768) << QSize(1044, 720);
    QTest::newRow("1366x728 below a bar") << QRect(0, 40, 1366, 728) << QSize(1044, 680);
    QTest::newRow("1280x1024") << QRect(0, 0, 1280, 1024) << QSize(958, 800);
}

void TestDeskPlaces::sideBySideOnTheScreen()
{
    QFETCH(QRect, available);
    const DeskPlaces places = placesOnDesk(available, frame, startSize, panelSize);
    QTEST(places.window.size(), "window");
    QCOMPARE(places.panel.size(), panelSize);
    QCOMPARE(places.panel.top(), places.window.top());
    const QRect framedWindow = places.window.marginsAdded(frame);
    const QRect framedPanel = places.panel.marginsAdded(frame);
    QVERIFY(available.contains(framedWindow));
    QVERIFY(available.contains(framedPanel));
    QCOMPARE(framedPanel.left(), framedWindow.right() + 1);
}

void TestDeskPlaces::onALargeScreenBothStandInTheMiddle()
{
    const QRect available(100, 50, 1920, 1080);
    const DeskPlaces places = placesOnDesk(available, frame, startSize, panelSize);
    const QRect both = places.window.marginsAdded(frame).united(places.panel.marginsAdded(frame));
    QCOMPARE(both.left() - available.left(), available.right() - both.right());
    QCOMPARE(both.top() - available.top(), available.bottom() - both.bottom());
}

void TestDeskPlaces::whereThereIsNoRoomThePanelStaysOnTheScreen()
{
    const QRect available(0, 0, 1024, 768);
    const DeskPlaces places = placesOnDesk(available, frame, startSize, panelSize);
    QCOMPARE(places.window.size(), QSize(800, 720));
    QCOMPARE(places.window.left(), frame.left());
    QCOMPARE(places.panel.marginsAdded(frame).right(), available.right());
}

QTEST_APPLESS_MAIN(TestDeskPlaces)
#include "tst_deskplaces.moc"
