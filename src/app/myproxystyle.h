// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#ifndef MYPROXYSTYLE_H
#define MYPROXYSTYLE_H

#include <QProxyStyle>

/// The program's look: Fusion on every platform, so that the style sheets of the forms meet the
/// same base everywhere, with sliders that are broad enough for a gloved hand on a rolling deck.
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
};

#endif // MYPROXYSTYLE_H
