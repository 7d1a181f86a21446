// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#ifndef MYPROXYSTYLE_H
#define MYPROXYSTYLE_H

#include <QProxyStyle>

/// The program's look: Fusion on every platform, so that the style sheets of the forms meet the
/// same base everywhere, with sliders that are broad enough for a gloved hand on a rolling deck.
/// Message boxes speak in the program's own icons, whatever the desktop has, and their buttons in
/// words alone. Lists that pop up have the one frame that the form's sheet draws.
class MyProxyStyle : public QProxyStyle
{
    Q_OBJECT

public:
    /// `baseStyle` is the key of the style that draws; an unknown key gives Qt's default style.
    explicit MyProxyStyle(const QString &baseStyle = QStringLiteral("fusion"));
    ~MyProxyStyle() override;

    /// Sliders are 20 px thick and their handles 50 px long (both in device-independent pixels);
    /// every other metric is Fusion's. `option` and `widget` may be null.
    int pixelMetric(PixelMetric metric, const QStyleOption *option = nullptr,
                    const QWidget *widget = nullptr) const override;

    /// No icons in the buttons of boxes and no frame around a list that pops up; all else is
    /// Fusion's.
    int styleHint(StyleHint hint, const QStyleOption *option = nullptr,
                  const QWidget *widget = nullptr,
                  QStyleHintReturn *returnData = nullptr) const override;

    /// The program's icons for messages and questions; every other is Fusion's.
    QIcon standardIcon(StandardPixmap icon, const QStyleOption *option = nullptr,
                       const QWidget *widget = nullptr) const override;

    /// All but the frame of the focus, in whose stead the program has a ring.
    void drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                       const QWidget *widget = nullptr) const override;
};

#endif // MYPROXYSTYLE_H
