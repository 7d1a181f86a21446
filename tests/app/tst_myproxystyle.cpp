// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "myproxystyle.h"

#include <QApplication>
#include <QPushButton>
#include <QSlider>
#include <QStyleFactory>
#include <QStyleOptionButton>
#include <QStyleOptionSlider>
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

QTEST_MAIN(tst_MyProxyStyle)
#include "tst_myproxystyle.moc"
