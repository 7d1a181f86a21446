// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "myproxystyle.h"

#include "resources.h"

#include <QFrame>
#include <QIcon>

namespace {
// The style sheet draws a handle 50 px wide that stands out of the groove by 7 px on either side:
// the metrics make the slider's own area, and with it the area that the mouse can catch, as large.
constexpr int sliderThickness = 20;
constexpr int sliderHandleLength = 50;
} // namespace

MyProxyStyle::MyProxyStyle(const QString &baseStyle)
    : QProxyStyle(baseStyle)
{
    useTalVeroResources();
}

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

int MyProxyStyle::styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                            QStyleHintReturn *returnData) const
{
    switch (hint) {
    case QStyle::SH_DialogButtonBox_ButtonsHaveIcons:
        return 0;
    case QStyle::SH_ComboBox_PopupFrameStyle:
        return QFrame::NoFrame;
    default:
        return QProxyStyle::styleHint(hint, option, widget, returnData);
    }
}

QIcon MyProxyStyle::standardIcon(StandardPixmap icon, const QStyleOption *option,
                                 const QWidget *widget) const
{
    switch (icon) {
    case QStyle::SP_MessageBoxInformation:
        return QIcon(QStringLiteral(":/boxes/message_information.png"));
    case QStyle::SP_MessageBoxQuestion:
        return QIcon(QStringLiteral(":/boxes/message_question.png"));
    default:
        return QProxyStyle::standardIcon(icon, option, widget);
    }
}

void MyProxyStyle::drawPrimitive(PrimitiveElement element, const QStyleOption *option,
                                 QPainter *painter, const QWidget *widget) const
{
    if (element != QStyle::PE_FrameFocusRect) {
        QProxyStyle::drawPrimitive(element, option, painter, widget);
    }
}
