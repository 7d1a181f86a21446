// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "chartundertest.h"

#include "depthgraph.h"
#include "plainchart.h"

#include <QCoreApplication>
#include <QLabel>
#include <QTimer>

namespace {

/// Paints what is outstanding, and what followed from it (a new picture lays the window out anew).
void bringIntoWindow() { QCoreApplication::sendPostedEvents(); }

/// The program's own window.
class WindowChart : public ChartUnderTest
{
public:
    WindowChart(const QSize &size, const ChartScene &scene)
        : label(*graph.findChild<QLabel *>("label"))
    {
        graph.findChild<QTimer *>("drawTimer")->stop(); // drawn when the clock runs, not before
        graph.setMaxDepth(static_cast<float>(scene.chart().maxDepthLine));
        for (int i = scene.chart().samples.size() - 1; i >= 0; --i) {
            const DepthSample sample = scene.chart().samples.at(i);
            graph.addData(sample.hf, sample.lf);
        }
        graph.resize(size);
        showForPainting(graph);
        giveLabel(size);
    }

    void takeDepths(const ChartScene &scene) override
    {
        const DepthSample newest = scene.chart().samples.first();
        graph.addData(newest.hf, newest.lf);
        bringIntoWindow(); // the depths in the header are not the chart's
    }

    void redraw() override
    {
        graph.drawPic();
        bringIntoWindow();
    }

    QImage picture() override { return shownBy(label); }

private:
    /// The header takes its height only after the first drawing, which brings its colour keys.
    void giveLabel(const QSize &size)
    {
        constexpr int rounds = 3;
        for (int i = 0; i < rounds; ++i) {
            WindowChart::redraw();
            graph.resize(graph.size() + (size - label.size()));
        }
    }

    depthGraph graph;
    QLabel &label;
};

/// A label that shows a picture as the window's does.
class LabelChart : public ChartUnderTest
{
public:
    LabelChart(const QSize &size, const ChartScene &scene)
        : chart(scene.chart())
        , kept(size, QImage::Format_RGB32)
    {
        label.setScaledContents(true);
        label.setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Ignored);
        label.resize(size);
        showForPainting(label);
    }

    void takeDepths(const ChartScene &scene) override { chart = scene.chart(); }
    QImage picture() override { return shownBy(label); }

protected:
    void show(const QImage &image)
    {
        label.setPixmap(QPixmap::fromImage(image));
        bringIntoWindow();
    }

    DepthChartData chart;
    QImage kept;
    QLabel label;
};

/// The plainest drawing: a new image every time, scaled into the label.
class PlainChart : public LabelChart
{
public:
    using LabelChart::LabelChart;

    void redraw() override
    {
        show(plainChart(label.size(), chart)
                 .scaled(label.size(), Qt::IgnoreAspectRatio, Qt::FastTransformation));
    }
};

/// What any chart pays that shows a new picture: white, and nothing on it.
class WhitePicture : public LabelChart
{
public:
    using LabelChart::LabelChart;

    void redraw() override
    {
        label.clear(); // else the label shares the image, and filling it would copy it
        kept.fill(Qt::white);
        show(kept);
    }
};

using Drawing = void (*)(QImage &canvas, const DepthChartData &chart);

/// A drawing that is shown nowhere, on a canvas that is kept.
class DrawingAlone : public ChartUnderTest
{
public:
    DrawingAlone(const QSize &size, const ChartScene &scene, Drawing itsDrawing)
        : chart(scene.chart())
        , canvas(size, QImage::Format_RGB32)
        , drawing(itsDrawing)
    {}

    void takeDepths(const ChartScene &scene) override { chart = scene.chart(); }
    void redraw() override { drawing(canvas, chart); }
    QImage picture() override { return canvas; }

private:
    DepthChartData chart;
    QImage canvas;
    Drawing drawing;
};

void drawOurs(QImage &canvas, const DepthChartData &chart) { drawDepthChart(canvas, chart); }

/// As for a screen of 200 %.
void drawOursDense(QImage &canvas, const DepthChartData &chart)
{
    canvas.setDevicePixelRatio(2.0);
    drawDepthChart(canvas, chart);
}

void drawByPainter(QImage &canvas, const DepthChartData &chart) { drawPlainChart(canvas, chart); }

void drawByPainterDense(QImage &canvas, const DepthChartData &chart)
{
    drawPlainChart(canvas, chart, 2.0);
}

void drawBatched(QImage &canvas, const DepthChartData &chart)
{
    drawPlainChart(canvas, chart, 1.0, StrokeOrder::Batched);
}

ChartMaker alone(const char *name, Drawing drawing)
{
    return {name, [drawing](const QSize &size, const ChartScene &scene) {
                return std::make_unique<DrawingAlone>(size, scene, drawing);
            }};
}

template <typename Chart>
std::unique_ptr<ChartUnderTest> make(const QSize &size, const ChartScene &scene)
{
    return std::make_unique<Chart>(size, scene);
}

} // namespace

std::vector<ChartMaker> ownChartMakers()
{
    return {{"product", make<WindowChart>},
            alone("product, drawing alone", drawOurs),
            alone("painter, drawing alone", drawByPainter),
            alone("painter batched, drawing alone", drawBatched),
            alone("product, drawing alone at 2x", drawOursDense),
            alone("painter, drawing alone at 2x", drawByPainterDense),
            {"literal", make<PlainChart>},
            {"floor", make<WhitePicture>}};
}
