// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#ifndef SLIDERHAND_H
#define SLIDERHAND_H

#include <QMouseEvent>
#include <QSlider>
#include <QStyle>
#include <QStyleOptionSlider>
#include <QtTest>

/// An operator's hand at a slider: keys, and the mouse that drags the handle.
class SliderHand
{
public:
    explicit SliderHand(QSlider *grabbed)
        : slider(grabbed)
    {}

    void press(Qt::Key key, int times = 1)
    {
        slider->setFocus();
        for (int i = 0; i < times; ++i) {
            QTest::keyClick(slider, key);
        }
    }

    /// Brings the slider to a position with keys alone, step by step from the nearer end or, where
    /// steps above 1 pass over the position, from the other. False if neither leads there.
    bool walkTo(int position)
    {
        const bool isRight = position * 2 > slider->minimum() + slider->maximum();
        return walkFrom(isRight, position) || walkFrom(!isRight, position);
    }

    /// Drags the handle to the left end (0), the right end (1) or between, in several moves.
    void dragTo(double place)
    {
        const QPoint start = handle().center();
        const QPoint target(static_cast<int>(place * (slider->width() - 1)), start.y());
        send(QEvent::MouseButtonPress, start);
        constexpr int moves = 5;
        for (int i = 1; i <= moves; ++i) {
            send(QEvent::MouseMove, start + (target - start) * i / moves);
        }
        send(QEvent::MouseButtonRelease, target);
    }

private:
    bool walkFrom(bool right, int position)
    {
        press(right ? Qt::Key_End : Qt::Key_Home);
        const int way = qAbs(position - slider->value());
        press(right ? Qt::Key_Left : Qt::Key_Right, way / slider->singleStep());
        return slider->value() == position;
    }

    struct Opened : QSlider
    {
        using QSlider::initStyleOption;
    };

    QRect handle() const
    {
        QStyleOptionSlider option;
        (slider->*&Opened::initStyleOption)(&option);
        return slider->style()->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderHandle,
                                               slider);
    }

    void send(QEvent::Type type, const QPoint &at)
    {
        const bool isMove = type == QEvent::MouseMove;
        const bool isUp = type == QEvent::MouseButtonRelease;
        QMouseEvent event(type, at, slider->mapTo(slider->window(), at), slider->mapToGlobal(at),
                          isMove ? Qt::NoButton : Qt::LeftButton,
                          isUp ? Qt::NoButton : Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(slider, &event);
    }

    QSlider *slider;
};

#endif // SLIDERHAND_H
