// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "appearance.h"
#include "ringbench.h"

#include <QAbstractItemView>
#include <QLabel>
#include <QMessageBox>
#include <QScrollBar>
#include <QtTest>

#include <algorithm>
#include <cmath>
#include <functional>
#include <memory>

namespace {

double luminance(const QColor &colour)
{
    const auto part = [](double value) {
        return value <= 0.03928 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * part(colour.redF()) + 0.7152 * part(colour.greenF()) +
           0.0722 * part(colour.blueF());
}

double contrast(const QColor &one, const QColor &other)
{
    const double a = luminance(one) + 0.05;
    const double b = luminance(other) + 0.05;
    return std::max(a, b) / std::min(a, b);
}

} // namespace

class TestFocusRing : public QObject
{
    Q_OBJECT

private slots:
    void programHasOneRing();
    void ringComesWithTheFirstKey_data();
    void ringComesWithTheFirstKey();
    void ringComesWithTheTabKey();
    void noRingForAControlThatWasClicked();
    void clickTakesTheRingAway_data();
    void clickTakesTheRingAway();
    void ringStaysWhileTheProgramMovesTheFocus();
    void noRingWhereThePageUnderTheMouseGoes_data();
    void noRingWhereThePageUnderTheMouseGoes();
    void typingAfterAClickBringsNoRing();
    void arrowAfterAClickBringsTheRing();
    void ringFollowsItsControl();
    void ringScrollsWithItsControlAndIsClipped();
    void arrowKeysBringTheChosenOptionIntoView();
    void ringLeavesWithItsControl_data();
    void ringLeavesWithItsControl();
    void ringGoesWithItsWindow();
    void ringComesBackAfterAPopup();
    void ringIsOnTheButtonsOfAMessageBox();
    void boxOpenedByMouseHasNoRing();
    void ringLetsTheMouseThroughAndMovesNothing();
    void ringStandsOutFromEveryGround_data();
    void ringStandsOutFromEveryGround();
};

void TestFocusRing::programHasOneRing()
{
    giveProgramStyle(); // a second time
    QCOMPARE(qApp->findChildren<FocusRing *>().size(), 1);
}

void TestFocusRing::ringComesWithTheFirstKey_data()
{
    QTest::addColumn<Qt::Key>("key");
    QTest::addColumn<Qt::KeyboardModifiers>("modifiers");
    QTest::newRow("Tab") << Qt::Key_Tab << Qt::KeyboardModifiers();
    QTest::newRow("Shift+Tab") << Qt::Key_Tab << Qt::KeyboardModifiers(Qt::ShiftModifier);
    QTest::newRow("Alt+L, the key of a caption")
        << Qt::Key_L << Qt::KeyboardModifiers(Qt::AltModifier);
}

void TestFocusRing::ringComesWithTheFirstKey()
{
    QFETCH(Qt::Key, key);
    QFETCH(Qt::KeyboardModifiers, modifiers);
    RingBench bench;
    QVERIFY(bench.ready);
    QLabel caption("&List", &bench.window);
    caption.setBuddy(bench.list);
    caption.show();
    const QWidget *const before = QApplication::focusWidget();
    bench.press(key, modifiers);
    QVERIFY(QApplication::focusWidget() != nullptr && QApplication::focusWidget() != before);
    QVERIFY(RingBench::isAround(QApplication::focusWidget()));
}

void TestFocusRing::ringComesWithTheTabKey()
{
    RingBench bench;
    QVERIFY(bench.ready);
    QVERIFY2(RingBench::ring() == nullptr, "no key has been pressed yet");
    bench.press(Qt::Key_Tab);
    QVERIFY(bench.first->hasFocus());
    QVERIFY(RingBench::isAround(bench.first));
    bench.press(Qt::Key_Tab);
    QVERIFY(RingBench::isAround(bench.second));
    bench.press(Qt::Key_Tab, Qt::ShiftModifier);
    QVERIFY(RingBench::isAround(bench.first));
}

void TestFocusRing::noRingForAControlThatWasClicked()
{
    RingBench bench;
    QTest::mouseClick(bench.second, Qt::LeftButton);
    QVERIFY(bench.second->hasFocus());
    QVERIFY(RingBench::ring() == nullptr);
}

void TestFocusRing::clickTakesTheRingAway_data()
{
    QTest::addColumn<QString>("place");
    QTest::newRow("on the control itself") << "first";
    QTest::newRow("on another control") << "second";
    QTest::newRow("beside all controls") << "window";
}

void TestFocusRing::clickTakesTheRingAway()
{
    QFETCH(QString, place);
    RingBench bench;
    bench.press(Qt::Key_Tab);
    QVERIFY(RingBench::isAround(bench.first));
    const QHash<QString, QWidget *> places{
        {"first", bench.first}, {"second", bench.second}, {"window", &bench.window}};
    QWidget *const target = places.value(place);
    const QPoint inWindow =
        place == "window" ? QPoint(2, 2) : target->mapTo(&bench.window, target->rect().center());
    QTest::mouseClick(bench.window.windowHandle(), Qt::LeftButton, {}, inWindow);
    QVERIFY(RingBench::ring() == nullptr);
    bench.below->setFocus();
    QVERIFY2(RingBench::ring() == nullptr, "the mouse leads, and yet there is a ring");
}

void TestFocusRing::ringStaysWhileTheProgramMovesTheFocus()
{
    RingBench bench;
    bench.press(Qt::Key_Tab);
    bench.below->setFocus();
    QVERIFY(RingBench::isAround(bench.below));
}

void TestFocusRing::noRingWhereThePageUnderTheMouseGoes_data()
{
    QTest::addColumn<bool>("isHidden");
    QTest::newRow("hidden") << true;
    QTest::newRow("switched off") << false;
}

/// Qt passes the focus on with the reason that the Tab key has.
void TestFocusRing::noRingWhereThePageUnderTheMouseGoes()
{
    QFETCH(bool, isHidden);
    RingBench bench;
    bench.press(Qt::Key_Tab);
    QTest::mouseClick(bench.window.windowHandle(), Qt::LeftButton, {},
                      bench.second->mapTo(&bench.window, bench.second->rect().center()));
    QVERIFY(bench.second->hasFocus());
    if (isHidden) {
        bench.tabs->setCurrentIndex(1);
    } else {
        bench.second->setEnabled(false);
    }
    QVERIFY(!bench.second->hasFocus());
    QVERIFY2(RingBench::ring() == nullptr, "the mouse leads, and yet there is a ring");
}

void TestFocusRing::typingAfterAClickBringsNoRing()
{
    RingBench bench;
    QTest::mouseClick(bench.second, Qt::LeftButton);
    for (const Qt::Key key : {Qt::Key_5, Qt::Key_Return, Qt::Key_Shift, Qt::Key_Alt}) {
        bench.press(key);
    }
    bench.below->setFocus(Qt::TabFocusReason);
    QVERIFY(RingBench::ring() == nullptr);
}

void TestFocusRing::arrowAfterAClickBringsTheRing()
{
    RingBench bench;
    QTest::mouseClick(bench.first, Qt::LeftButton);
    QVERIFY(RingBench::ring() == nullptr);
    bench.press(Qt::Key_Down);
    QVERIFY(!bench.first->hasFocus());
    QVERIFY(RingBench::isAround(QApplication::focusWidget()));
}

void TestFocusRing::ringFollowsItsControl()
{
    RingBench bench;
    bench.press(Qt::Key_Tab);
    bench.first->setMinimumHeight(80);
    QTRY_COMPARE(bench.first->height(), 80);
    QVERIFY(RingBench::isAround(bench.first));
    bench.press(Qt::Key_Tab);
    bench.first->setMinimumHeight(20);
    QTRY_VERIFY(bench.first->height() < 80);
    QVERIFY2(RingBench::isAround(bench.second), "the control moved up and left its ring behind");
    bench.window.layout()->setContentsMargins(60, 60, 60, 60);
    QTRY_COMPARE(bench.area->pos(), QPoint(60, 60));
    QVERIFY2(RingBench::isAround(bench.second), "a parent moved");
}

void TestFocusRing::ringScrollsWithItsControlAndIsClipped()
{
    RingBench bench;
    bench.press(Qt::Key_Tab);
    QScrollBar *const bar = bench.area->verticalScrollBar();
    bar->setValue(bar->value() + 20);
    QVERIFY(RingBench::isAround(bench.first));
    bar->setValue(bar->maximum());
    QVERIFY2(RingBench::ring()->visibleRegion().isEmpty(),
             "the control has scrolled away and its ring is still seen");
    bench.press(Qt::Key_Tab);
    QVERIFY2(bench.second->visibleRegion().boundingRect() == bench.second->rect(),
             "the tab key went to a control that cannot be seen");
    QVERIFY(RingBench::isAround(bench.second));
    QCOMPARE(RingBench::ring()->visibleRegion().boundingRect(), RingBench::ring()->rect());
}

void TestFocusRing::arrowKeysBringTheChosenOptionIntoView()
{
    RingBench bench;
    bench.press(Qt::Key_Tab);
    bench.far->setFocus(Qt::TabFocusReason); // as a set of options does for the arrow keys
    QCOMPARE(bench.far->visibleRegion().boundingRect(), bench.far->rect());
    QVERIFY(RingBench::isAround(bench.far));
}

void TestFocusRing::ringLeavesWithItsControl_data()
{
    QTest::addColumn<QString>("how");
    for (const char *how : {"disabled", "its parent disabled", "hidden", "deleted", "other tab"}) {
        QTest::newRow(how) << how;
    }
}

void TestFocusRing::ringLeavesWithItsControl()
{
    QFETCH(QString, how);
    RingBench bench;
    bench.press(Qt::Key_Tab);
    QVERIFY(RingBench::isAround(bench.first));
    const QHash<QString, std::function<void()>> ways{
        {"disabled", [&] { bench.first->setEnabled(false); }},
        {"its parent disabled", [&] { bench.first->parentWidget()->setEnabled(false); }},
        {"hidden", [&] { bench.first->hide(); }},
        {"deleted", [&] { delete bench.first; }},
        {"other tab", [&] { bench.tabs->setCurrentIndex(1); }},
    };
    ways.value(how)();
    const QWidget *const focused = QApplication::focusWidget();
    if (focused != nullptr && !focused->isWindow()) {
        QVERIFY2(RingBench::isAround(focused), "the ring does not go where the focus went");
    } else {
        QVERIFY2(RingBench::ring() == nullptr, "the ring stays where the control was");
    }
}

void TestFocusRing::ringGoesWithItsWindow()
{
    auto bench = std::make_unique<RingBench>();
    bench->press(Qt::Key_Tab);
    QVERIFY(RingBench::isAround(bench->first));
    bench->window.close();
    QVERIFY(RingBench::ring() == nullptr);
    bench.reset();
    RingBench another;
    another.press(Qt::Key_Tab);
    QVERIFY(RingBench::isAround(another.first));
}

void TestFocusRing::ringComesBackAfterAPopup()
{
    RingBench bench;
    bench.press(Qt::Key_Tab);
    bench.list->setFocus(Qt::TabFocusReason);
    QVERIFY(RingBench::isAround(bench.list));
    bench.list->showPopup();
    QTRY_VERIFY(bench.list->view()->isVisible());
    QVERIFY2(RingBench::ring() == nullptr, "a ring in the list that has popped up");
    bench.list->hidePopup();
    QTRY_VERIFY(RingBench::isAround(bench.list));
}

void TestFocusRing::ringIsOnTheButtonsOfAMessageBox()
{
    RingBench bench;
    bench.press(Qt::Key_Tab);
    QMessageBox box(QMessageBox::Question, "Reset Settings", "Sure?",
                    QMessageBox::Yes | QMessageBox::Cancel, &bench.window);
    box.open();
    QVERIFY(QTest::qWaitForWindowActive(&box));
    QTRY_VERIFY(RingBench::ring() != nullptr);
    QVERIFY(RingBench::isAround(QApplication::focusWidget()));
    const QWidget *const before = QApplication::focusWidget();
    QTest::keyClick(box.windowHandle(), Qt::Key_Tab);
    QVERIFY(QApplication::focusWidget() != before);
    QVERIFY(RingBench::isAround(QApplication::focusWidget()));
    QTest::keyClick(box.windowHandle(), Qt::Key_Escape);
    QTRY_VERIFY(!box.isVisible());
    bench.window.activateWindow(); // a desktop does so by itself
    QTRY_VERIFY2(RingBench::isAround(bench.first), "the ring does not return with the focus");
}

void TestFocusRing::boxOpenedByMouseHasNoRing()
{
    RingBench bench;
    QTest::mouseClick(bench.below, Qt::LeftButton);
    QMessageBox box(QMessageBox::Information, "Error", "No.", QMessageBox::Ok, &bench.window);
    box.open();
    QVERIFY(QTest::qWaitForWindowActive(&box));
    QTRY_VERIFY(box.button(QMessageBox::Ok)->hasFocus());
    QVERIFY(RingBench::ring() == nullptr);
}

void TestFocusRing::ringLetsTheMouseThroughAndMovesNothing()
{
    RingBench bench;
    const auto places = [&bench] {
        QVector<QRect> all;
        for (const QWidget *widget :
             {bench.first, bench.second, bench.far, static_cast<QPushButton *>(bench.below)}) {
            all.append({widget->mapTo(&bench.window, QPoint()), widget->size()});
        }
        return all;
    };
    const QVector<QRect> before = places();
    bench.press(Qt::Key_Tab);
    QVERIFY(RingBench::ring() != nullptr);
    QCoreApplication::sendPostedEvents();
    QCOMPARE(places(), before);
    QCOMPARE(RingBench::ring()->focusPolicy(), Qt::NoFocus);
    const QPoint onButton = bench.first->mapTo(&bench.window, bench.first->rect().center());
    QVERIFY2(bench.window.childAt(onButton) == bench.first, "the pointer meets the ring");
    QSignalSpy clicked(bench.first, &QPushButton::clicked);
    QTest::mouseClick(bench.window.windowHandle(), Qt::LeftButton, {}, onButton);
    QCOMPARE(clicked.count(), 1);
}

void TestFocusRing::ringStandsOutFromEveryGround_data()
{
    QTest::addColumn<QColor>("ground");
    QTest::newRow("white of the form") << QColor(255, 255, 255);
    QTest::newRow("grey of the tabs") << QColor(244, 244, 244);
    QTest::newRow("grey of the footer") << QColor(229, 229, 229);
    QTest::newRow("blue of the buttons") << QColor(78, 139, 255);
    QTest::newRow("green of the save button") << QColor(120, 200, 48);
    QTest::newRow("top of the header") << QColor(0, 0, 100);
    QTest::newRow("foot of the header") << QColor(41, 88, 160);
}

/// What is drawn must differ from its ground by 3:1, as graphics that are needed to work have to.
void TestFocusRing::ringStandsOutFromEveryGround()
{
    QFETCH(QColor, ground);
    RingBench bench;
    QPalette palette = bench.window.palette();
    palette.setColor(QPalette::Window, ground);
    bench.window.setPalette(palette);
    bench.press(Qt::Key_Tab);
    bench.below->setFocus(Qt::TabFocusReason);
    const QWidget *const ring = RingBench::ring();
    QVERIFY(ring != nullptr);
    const QImage seen = bench.window.grab().toImage();
    const QPoint middle(ring->mapTo(&bench.window, ring->rect().center()).x(),
                        ring->mapTo(&bench.window, QPoint()).y());
    const qreal scale = seen.devicePixelRatio();
    double best = 1;
    for (int y = 0; y < FocusRingFrame::reach; ++y) {
        const QPointF point = QPointF(middle + QPoint(0, y)) * scale;
        best = std::max(best, contrast(seen.pixelColor(point.toPoint()), ground));
    }
    QVERIFY2(best >= 3.0, qPrintable(QStringLiteral("only %1 : 1").arg(best)));
}

int main(int argc, char **argv)
{
    prepareForHighDensity();
    QApplication application(argc, argv);
    giveProgramStyle();
    TestFocusRing test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_focusring.moc"
