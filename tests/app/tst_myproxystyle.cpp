// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "myproxystyle.h"

#include <QApplication>
#include <QCheckBox>
#include <QMessageBox>
#include <QPushButton>
#include <QRadioButton>
#include <QSlider>
#include <QStyleFactory>
#include <QStyleOptionButton>
#include <QStyleOptionSlider>
#include <QTabBar>
#include <QTest>

#include <memory>

class tst_MyProxyStyle : public QObject
{
    Q_OBJECT

private slots:
    void sliderIsTwentyThickAndItsHandleFiftyLong_data();
    void sliderIsTwentyThickAndItsHandleFiftyLong();
    void everyOtherMetricIsFusions_data();
    void everyOtherMetricIsFusions();
    void shownSliderTakesBothMeasures();
    void drawsWithFusionUnlessToldOtherwise();
    void unknownStyleKeyFallsBackToAWorkingStyle();
    void applicationTakesTheStyleOver();
    void boxesSpeakInTheProgramsIcons_data();
    void boxesSpeakInTheProgramsIcons();
    void everyOtherIconIsFusions();
    void buttonsOfBoxesHaveNoIcons();
    void focusDrawsNoFrameOfItsOwn_data();
    void focusDrawsNoFrameOfItsOwn();
};

void tst_MyProxyStyle::sliderIsTwentyThickAndItsHandleFiftyLong_data()
{
    QTest::addColumn<bool>("withWidget");
    QTest::newRow("without a widget") << false;
    QTest::newRow("for a slider") << true;
}

void tst_MyProxyStyle::sliderIsTwentyThickAndItsHandleFiftyLong()
{
    QFETCH(bool, withWidget);
    const MyProxyStyle style;
    const QSlider slider(Qt::Horizontal);
    QStyleOptionSlider option;
    option.initFrom(&slider);
    const QWidget *widget = withWidget ? &slider : nullptr;
    const QStyleOption *optionOrNone = withWidget ? &option : nullptr;
    QCOMPARE(style.pixelMetric(QStyle::PM_SliderThickness, optionOrNone, widget), 20);
    QCOMPARE(style.pixelMetric(QStyle::PM_SliderLength, optionOrNone, widget), 50);
}

void tst_MyProxyStyle::everyOtherMetricIsFusions_data()
{
    QTest::addColumn<QStyle::PixelMetric>("metric");
    QTest::newRow("button margin") << QStyle::PM_ButtonMargin;
    QTest::newRow("slider tick offset") << QStyle::PM_SliderTickmarkOffset;
    QTest::newRow("slider control thickness") << QStyle::PM_SliderControlThickness;
    QTest::newRow("slider space") << QStyle::PM_SliderSpaceAvailable;
    QTest::newRow("scroll bar extent") << QStyle::PM_ScrollBarExtent;
    QTest::newRow("radio indicator") << QStyle::PM_ExclusiveIndicatorWidth;
    QTest::newRow("frame width") << QStyle::PM_DefaultFrameWidth;
    QTest::newRow("layout spacing") << QStyle::PM_LayoutHorizontalSpacing;
    QTest::newRow("small icon") << QStyle::PM_SmallIconSize;
    QTest::newRow("tab overlap") << QStyle::PM_TabBarTabOverlap;
}

void tst_MyProxyStyle::everyOtherMetricIsFusions()
{
    QFETCH(QStyle::PixelMetric, metric);
    const MyProxyStyle style;
    const std::unique_ptr<QStyle> fusion(QStyleFactory::create(QStringLiteral("fusion")));
    QCOMPARE(style.pixelMetric(metric), fusion->pixelMetric(metric));
    const QPushButton button;
    QStyleOptionButton option;
    option.initFrom(&button);
    QCOMPARE(style.pixelMetric(metric, &option, &button),
             fusion->pixelMetric(metric, &option, &button));
}

void tst_MyProxyStyle::shownSliderTakesBothMeasures()
{
    MyProxyStyle style;
    QSlider slider(Qt::Horizontal);
    slider.setStyle(&style);
    QCOMPARE(slider.sizeHint().height(), 20);
    slider.resize(200, slider.sizeHint().height());
    QStyleOptionSlider option;
    option.initFrom(&slider);
    option.orientation = Qt::Horizontal;
    option.maximum = 99;
    option.sliderPosition = 99;
    const QRect handle =
        style.subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderHandle, &slider);
    QCOMPARE(handle.size(), QSize(50, 20));
    QCOMPARE(handle.right(), slider.rect().right());
}

void tst_MyProxyStyle::drawsWithFusionUnlessToldOtherwise()
{
    const MyProxyStyle style;
    QCOMPARE(style.baseStyle()->objectName(), QStringLiteral("fusion"));
    const MyProxyStyle other(QStringLiteral("windows"));
    QCOMPARE(other.baseStyle()->objectName(), QStringLiteral("windows"));
}

void tst_MyProxyStyle::unknownStyleKeyFallsBackToAWorkingStyle()
{
    const MyProxyStyle style(QStringLiteral("no such style"));
    QVERIFY(style.baseStyle() != nullptr);
    QCOMPARE(style.pixelMetric(QStyle::PM_SliderLength), 50);
    QVERIFY(style.pixelMetric(QStyle::PM_ScrollBarExtent) > 0);
}

void tst_MyProxyStyle::applicationTakesTheStyleOver()
{
    auto *style = new MyProxyStyle;
    QApplication::setStyle(style);
    QCOMPARE(style->parent(), qApp);
    const QSlider slider(Qt::Horizontal);
    QCOMPARE(slider.style()->pixelMetric(QStyle::PM_SliderThickness, nullptr, &slider), 20);
}

void tst_MyProxyStyle::boxesSpeakInTheProgramsIcons_data()
{
    QTest::addColumn<QMessageBox::Icon>("icon");
    QTest::addColumn<QString>("path");
    QTest::newRow("message") << QMessageBox::Information << ":/boxes/message_information.png";
    QTest::newRow("question") << QMessageBox::Question << ":/boxes/message_question.png";
}

void tst_MyProxyStyle::boxesSpeakInTheProgramsIcons()
{
    QFETCH(QMessageBox::Icon, icon);
    QFETCH(QString, path);
    QApplication::setStyle(new MyProxyStyle);
    const QMessageBox box(icon, "Title", "Text", QMessageBox::Ok);
    const QPixmap expected = QIcon(path).pixmap(box.iconPixmap().size());
    QVERIFY(!expected.isNull());
    QCOMPARE(box.iconPixmap().toImage(), expected.toImage());
}

void tst_MyProxyStyle::everyOtherIconIsFusions()
{
    const MyProxyStyle style;
    const std::unique_ptr<QStyle> fusion(QStyleFactory::create(QStringLiteral("fusion")));
    for (const QStyle::StandardPixmap icon :
         {QStyle::SP_MessageBoxWarning, QStyle::SP_FileIcon, QStyle::SP_DirHomeIcon}) {
        QCOMPARE(style.standardIcon(icon).pixmap(24).toImage(),
                 fusion->standardIcon(icon).pixmap(24).toImage());
    }
}

void tst_MyProxyStyle::buttonsOfBoxesHaveNoIcons()
{
    QApplication::setStyle(new MyProxyStyle);
    const QMessageBox box(QMessageBox::Question, "Title", "Text",
                          QMessageBox::Yes | QMessageBox::Cancel);
    for (const QAbstractButton *button : box.buttons()) {
        QVERIFY(button->icon().isNull());
    }
}

void tst_MyProxyStyle::focusDrawsNoFrameOfItsOwn_data()
{
    QTest::addColumn<QWidget *>("control");
    QTest::newRow("option") << static_cast<QWidget *>(new QRadioButton("Option"));
    QTest::newRow("check box") << static_cast<QWidget *>(new QCheckBox("Check"));
    QTest::newRow("slider") << static_cast<QWidget *>(new QSlider(Qt::Horizontal));
    auto *const tabs = new QTabBar;
    tabs->addTab("Tab");
    QTest::newRow("tab") << static_cast<QWidget *>(tabs);
}

/// The ring of the program shows where the keyboard is; a second mark would only blur it.
void tst_MyProxyStyle::focusDrawsNoFrameOfItsOwn()
{
    QFETCH(QWidget *, control);
    const std::unique_ptr<QWidget> owned(control);
    QApplication::setStyle(new MyProxyStyle);
    QWidget window;
    control->setParent(&window);
    control->move(10, 10);
    control->adjustSize();
    QPushButton other("other", &window);
    other.move(10, 80);
    window.resize(200, 120);
    window.show();
    window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    other.setFocus(Qt::TabFocusReason);
    const QImage without = control->grab().toImage();
    control->setFocus(Qt::TabFocusReason);
    QVERIFY(control->hasFocus());
    QCOMPARE(control->grab().toImage(), without);
    control->setParent(nullptr);
}

QTEST_MAIN(tst_MyProxyStyle)
#include "tst_myproxystyle.moc"
