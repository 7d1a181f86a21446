// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "myproxystyle.h"

namespace {
// The style sheet draws a handle 50 px wide that stands out of the groove by 7 px on either side:
// the metrics make the slider's own area, and with it the area that the mouse can catch, as large.
constexpr int sliderThickness = 20;
constexpr int sliderHandleLength = 50;
} // namespace

MyProxyStyle::MyProxyStyle(const QString &baseStyle)
    : QProxyStyle(baseStyle)
{}

MyProxyStyle::~MyProxyStyle() = default;

int MyProxyStyle::pixelMetric(PixelMetric metric, const QStyleOption *option,
                              const QWidget *widget) const
{
    switch (metric) {
    case QStyle::PM_SliderThickness:
        return sliderThickness;
    case QStyle::PM_SliderLength:
        return sliderHandleLength;
    default:
        return QProxyStyle::pixelMetric(metric, option, widget);
    }
}
