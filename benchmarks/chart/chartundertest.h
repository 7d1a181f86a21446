// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#ifndef CHARTUNDERTEST_H
#define CHARTUNDERTEST_H

#include "chartscene.h"

#include <QImage>
#include <QSize>
#include <QWidget>

#include <functional>
#include <memory>
#include <vector>

/// One way to draw the strip chart, in a window of its own that is shown.
class ChartUnderTest
{
public:
    ChartUnderTest() = default;
    virtual ~ChartUnderTest() = default;
    ChartUnderTest(const ChartUnderTest &) = delete;
    ChartUnderTest &operator=(const ChartUnderTest &) = delete;

    /// Takes over what the scene shows after it has scrolled by one ping. Not timed: how depths
    /// are handed over is the caller's matter as much as the chart's.
    virtual void takeDepths(const ChartScene &scene) = 0;

    /// Draws everything anew and brings it into the window's backing store. This is what is timed.
    virtual void redraw() = 0;

    /// The pixels that the window shows.
    virtual QImage picture() = 0;
};

/// Shows the window; afterwards the system takes what is painted in it. (Until then painting does
/// nothing at all, in no time.)
void showForPainting(QWidget &window);

/// What the window of this widget shows at the widget's place, as it came to the system.
QImage shownBy(const QWidget &widget);

/// A way to draw by its name. `make` gives a chart of this size that shows the scene.
struct ChartMaker
{
    const char *name;
    std::function<std::unique_ptr<ChartUnderTest>(const QSize &, const ChartScene &)> make;
};

/// The program's own window, its drawing alone, the plainest drawing, and a white picture.
std::vector<ChartMaker> ownChartMakers();

/// The same chart of the other libraries, with and without smoothed edges.
std::vector<ChartMaker> qwtChartMakers();
std::vector<ChartMaker> customPlotChartMakers();

#endif // CHARTUNDERTEST_H
