// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#ifndef FORMEYES_H
#define FORMEYES_H

#include "eyes.h"

#include <QImage>
#include <QSlider>
#include <QStyleOptionSlider>
#include <QTest>
#include <QWindow>

/// What the screen shows of this part of a widget, with all the pixels of a dense screen.
inline QImage seen(QWidget *widget, QRect part)
{
    const QRect inWindow(widget->mapTo(widget->window(), part.topLeft()), part.size());
    return widget->window()->grab(inWindow).toImage().convertToFormat(QImage::Format_RGB32);
}

/// The mouse comes from the header; a first move alone only tells Qt where the mouse is.
inline void moveMouseTo(QWidget *widget, QPoint place = QPoint(5, 5))
{
    QWidget *const window = widget->window();
    QTest::mouseMove(window->windowHandle(), QPoint(1, 1));
    QTest::mouseMove(window->windowHandle(), widget->mapTo(window, place));
    QTRY_VERIFY(widget->underMouse());
}

inline QRect handleOf(const QSlider *slider)
{
    QStyleOptionSlider option;
    option.initFrom(slider);
    option.orientation = slider->orientation();
    option.minimum = slider->minimum();
    option.maximum = slider->maximum();
    option.sliderPosition = slider->sliderPosition();
    option.sliderValue = slider->value();
    option.state |= QStyle::State_Horizontal;
    return slider->style()->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderHandle,
                                           slider);
}

/// How much light a colour sends, from 0 (black) to 1 (white).
inline double luminanceOf(QRgb colour)
{
    return 0.2126 * linearLight(qRed(colour)) + 0.7152 * linearLight(qGreen(colour)) +
           0.0722 * linearLight(qBlue(colour));
}

/// From 1 (the same) to 21 (black on white); text wants 4.5, the parts of a control 3.
inline double contrastOf(QRgb one, QRgb other)
{
    const auto [darker, lighter] = std::minmax({luminanceOf(one), luminanceOf(other)});
    return (lighter + 0.05) / (darker + 0.05);
}

#endif // FORMEYES_H
