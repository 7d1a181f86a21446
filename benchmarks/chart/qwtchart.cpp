// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "chartundertest.h"
#include "peerscale.h"

#include <qwt_interval_symbol.h>
#include <qwt_plot.h>
#include <qwt_plot_canvas.h>
#include <qwt_plot_curve.h>
#include <qwt_plot_grid.h>
#include <qwt_plot_intervalcurve.h>
#include <qwt_plot_marker.h>
#include <qwt_scale_draw.h>

#include <QCoreApplication>

namespace {

class MetreScale : public QwtScaleDraw
{
public:
    QwtText label(double value) const override { return PeerScale::text(value); }
};

QwtPlotCurve *dots(QwtPlot &plot, const QColor &colour, bool smooth)
{
    auto *const curve = new QwtPlotCurve;
    curve->setStyle(QwtPlotCurve::Dots);
    curve->setPen(QPen(colour, PeerScale::dotWidth, Qt::SolidLine, Qt::SquareCap, Qt::RoundJoin));
    curve->setRenderHint(QwtPlotItem::RenderAntialiased, smooth);
    curve->attach(&plot);
    return curve;
}

QwtPlotIntervalCurve *connectors(QwtPlot &plot, const QColor &colour, bool smooth)
{
    auto *const curve = new QwtPlotIntervalCurve;
    auto *const bar = new QwtIntervalSymbol(QwtIntervalSymbol::Bar);
    bar->setWidth(0); // no caps
    bar->setPen(QPen(colour, 1.0));
    curve->setStyle(QwtPlotIntervalCurve::NoCurve);
    curve->setSymbol(bar);
    curve->setRenderHint(QwtPlotItem::RenderAntialiased, smooth);
    curve->attach(&plot);
    return curve;
}

class QwtChart : public ChartUnderTest
{
public:
    QwtChart(const QSize &size, const ChartScene &scene, bool smooth)
        : lfBelowHf(connectors(plot, PeerScale::lfBelowHf, smooth))
        , lfAboveHf(connectors(plot, PeerScale::lfAboveHf, smooth))
        , hf(dots(plot, Qt::blue, smooth))
        , lf(dots(plot, Qt::red, smooth))
    {
        plot.setAutoReplot(false);
        prepareCanvas();
        prepareScales(PeerScale(scene.chart()));
        addGridAndMaxDepth(scene.chart().maxDepthLine);
        QwtChart::takeDepths(scene);
        plot.resize(size);
        showForPainting(plot);
    }

    void takeDepths(const ChartScene &scene) override
    {
        QVector<QPointF> hfDots;
        QVector<QPointF> lfDots;
        QVector<QwtIntervalSample> below;
        QVector<QwtIntervalSample> above;
        int ping = 0;
        for (const DepthSample &sample : scene.chart().samples) {
            const auto hfDepth = static_cast<double>(sample.hf);
            const auto lfDepth = static_cast<double>(sample.lf);
            hfDots.append({static_cast<double>(ping), hfDepth});
            lfDots.append({static_cast<double>(ping), lfDepth});
            (lfDepth > hfDepth ? below : above)
                .append({static_cast<double>(ping), hfDepth, lfDepth});
            ++ping;
        }
        hf->setSamples(hfDots);
        lf->setSamples(lfDots);
        lfBelowHf->setSamples(below);
        lfAboveHf->setSamples(above);
    }

    void redraw() override
    {
        plot.replot(); // paints at once
        QCoreApplication::sendPostedEvents();
    }

    QImage picture() override { return shownBy(plot); }

private:
    /// The quickest canvas: plain white, painted straight into the window, and at once.
    void prepareCanvas()
    {
        auto *const canvas = static_cast<QwtPlotCanvas *>(plot.canvas());
        canvas->setFrameStyle(QFrame::NoFrame);
        canvas->setPaintAttribute(QwtPlotCanvas::BackingStore, false);
        canvas->setPaintAttribute(QwtPlotCanvas::ImmediatePaint, true);
        plot.setCanvasBackground(Qt::white);
    }

    void prepareScales(const PeerScale &scale)
    {
        plot.enableAxis(QwtPlot::xBottom, false);
        plot.setAxisScale(QwtPlot::xBottom, DepthChartData::maxSamples, 0);
        plot.setAxisScaleDraw(QwtPlot::yLeft, new MetreScale);
        plot.setAxisFont(QwtPlot::yLeft, PeerScale::font());
        plot.setAxisScale(QwtPlot::yLeft, scale.bottom, scale.top, scale.step);
        plot.updateAxes();
    }

    void addGridAndMaxDepth(int metres)
    {
        auto *const grid = new QwtPlotGrid;
        grid->enableX(false);
        grid->setMajorPen(QPen(Qt::darkGray));
        grid->attach(&plot);

        auto *const maxDepth = new QwtPlotMarker;
        maxDepth->setLineStyle(QwtPlotMarker::HLine);
        maxDepth->setLinePen(PeerScale::dashedPen());
        maxDepth->setYValue(metres);
        maxDepth->attach(&plot);
    }

    QwtPlot plot; // owns what is attached to it
    QwtPlotIntervalCurve *lfBelowHf;
    QwtPlotIntervalCurve *lfAboveHf;
    QwtPlotCurve *hf;
    QwtPlotCurve *lf;
};

template <bool smooth>
std::unique_ptr<ChartUnderTest> make(const QSize &size, const ChartScene &scene)
{
    return std::make_unique<QwtChart>(size, scene, smooth);
}

} // namespace

std::vector<ChartMaker> qwtChartMakers()
{
    return {{"Qwt", make<true>}, {"Qwt, edges not smoothed", make<false>}};
}
