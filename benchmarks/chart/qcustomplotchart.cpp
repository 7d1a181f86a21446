// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "chartundertest.h"
#include "peerscale.h"

#include <qcustomplot.h>

#include <QCoreApplication>

#include <limits>
#include <numeric>

namespace {

constexpr double gap = std::numeric_limits<double>::quiet_NaN();

class CustomPlotChart : public ChartUnderTest
{
public:
    CustomPlotChart(const QSize &size, const ChartScene &scene, bool smooth)
        : lfBelowHf(connectors(PeerScale::lfBelowHf))
        , lfAboveHf(connectors(PeerScale::lfAboveHf))
        , hf(dots(Qt::blue, smooth))
        , lf(dots(Qt::red, smooth))
    {
        if (!smooth) {
            plot.setNotAntialiasedElements(QCP::aeAll);
        }
        prepareScales(PeerScale(scene.chart()));
        addMaxDepth(scene.chart().maxDepthLine);
        CustomPlotChart::takeDepths(scene);
        plot.resize(size);
        showForPainting(plot);
    }

    void takeDepths(const ChartScene &scene) override
    {
        Line hfDots;
        Line lfDots;
        Line below;
        Line above;
        int ping = 0;
        for (const DepthSample &sample : scene.chart().samples) {
            const auto hfDepth = static_cast<double>(sample.hf);
            const auto lfDepth = static_cast<double>(sample.lf);
            hfDots.add(ping, hfDepth);
            lfDots.add(ping, lfDepth);
            Line &connector = lfDepth > hfDepth ? below : above;
            connector.add(ping, hfDepth);
            connector.add(ping, lfDepth);
            connector.add(ping, gap);
            ++ping;
        }
        hf->setData(hfDots.x, hfDots.y, true);
        lf->setData(lfDots.x, lfDots.y, true);
        lfBelowHf->setData(below.order(), below.x, below.y, true);
        lfAboveHf->setData(above.order(), above.x, above.y, true);
    }

    void redraw() override
    {
        plot.replot(QCustomPlot::rpImmediateRefresh);
        QCoreApplication::sendPostedEvents();
    }

    QImage picture() override { return shownBy(plot); }

private:
    struct Line
    {
        QVector<double> x;
        QVector<double> y;

        void add(int ping, double depth)
        {
            x.append(ping);
            y.append(depth);
        }

        QVector<double> order() const
        {
            QVector<double> numbers(x.size());
            std::iota(numbers.begin(), numbers.end(), 0.0);
            return numbers;
        }
    };

    QCPGraph *dots(const QColor &colour, bool smooth)
    {
        QCPGraph *const graph = plot.addGraph();
        graph->setLineStyle(QCPGraph::lsNone);
        graph->setScatterStyle(smooth ? smoothDot(colour) : pixmapDot(colour));
        return graph;
    }

    static QCPScatterStyle smoothDot(const QColor &colour)
    {
        const QPen pen(colour, PeerScale::dotWidth, Qt::SolidLine, Qt::SquareCap, Qt::RoundJoin);
        return {QCPScatterStyle::ssDot, pen, Qt::NoBrush, PeerScale::dotWidth};
    }

    /// Quicker, but always on whole pixels.
    static QCPScatterStyle pixmapDot(const QColor &colour)
    {
        QPixmap dot(PeerScale::dotWidth, PeerScale::dotWidth);
        dot.fill(colour);
        return QCPScatterStyle(dot);
    }

    /// One curve with gaps. (Error bars would draw two whiskers a sample as well.)
    QCPCurve *connectors(const QColor &colour)
    {
        auto *const curve = new QCPCurve(plot.xAxis, plot.yAxis); // the plot owns it
        curve->setPen(QPen(colour, 1.0));
        return curve;
    }

    void prepareScales(const PeerScale &scale)
    {
        plot.xAxis->setVisible(false);
        plot.xAxis->setRangeReversed(true);
        plot.xAxis->setRange(0, DepthChartData::maxSamples);
        plot.yAxis->setRange(scale.top, scale.bottom);
        plot.yAxis->setRangeReversed(true);
        QSharedPointer<QCPAxisTickerText> ticker(new QCPAxisTickerText);
        for (int mark = 0; mark < scale.bottom; mark += scale.step) {
            ticker->addTick(mark, PeerScale::text(mark));
        }
        plot.yAxis->setTicker(ticker);
        plot.yAxis->setTickLabelFont(PeerScale::font());
        plot.yAxis->grid()->setPen(QPen(Qt::darkGray));
    }

    void addMaxDepth(int metres)
    {
        auto *const line = new QCPItemStraightLine(&plot); // the plot owns it
        line->setPen(PeerScale::dashedPen());
        line->point1->setCoords(0, metres);
        line->point2->setCoords(DepthChartData::maxSamples, metres);
    }

    QCustomPlot plot;
    QCPCurve *lfBelowHf;
    QCPCurve *lfAboveHf;
    QCPGraph *hf;
    QCPGraph *lf;
};

template <bool smooth>
std::unique_ptr<ChartUnderTest> make(const QSize &size, const ChartScene &scene)
{
    return std::make_unique<CustomPlotChart>(size, scene, smooth);
}

} // namespace

std::vector<ChartMaker> customPlotChartMakers()
{
    return {{"QCustomPlot", make<true>}, {"QCustomPlot, edges not smoothed", make<false>}};
}
