// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#ifndef SURVEYBENCH_H
#define SURVEYBENCH_H

#include "depthgraph.h"
#include "readybench.h"
#include "toplevels.h"

#include <QLabel>
#include <QSignalSpy>

#include <optional>

/// A survey: the window with its depth graph open beside a sounder that pings ten times a second.
/// The test says where the bottom is, and reckons itself what the sounder must send of it.
class SurveyBench : private NewWindow, public ReadyBench
{
public:
    /// The bottom below the transducers in millimetres; without a value it is lost.
    struct Bottom
    {
        std::optional<int> high;
        std::optional<int> low;
    };

    // Draft and index of each channel, in millimetres.
    static constexpr int highDraftMm = 400;
    static constexpr int lowDraftMm = 350;
    static constexpr int lowIndexMm = 120;

    explicit SurveyBench(SounderFit fit)
        : ReadyBench(false, prepare, pingingSounder(fit))
        , told(&window, SIGNAL(gotDepths(float, float)))
    {
        click("openGraph");
    }

    /// Shows metres or feet. The choice stands open to the operator before connecting only.
    void showUnit(bool imperial)
    {
        if (isChecked("imperialRadio") == imperial) {
            return;
        }
        click("connectToDevice");
        click(imperial ? "imperialRadio" : "metricRadio");
        if (isChecked("imperialRadio") != imperial) {
            qFatal("the unit cannot be chosen");
        }
        reconnect();
    }

    /// Chooses the format in the window and waits until the sounder has taken it; false if it does
    /// not.
    bool chooseFormat(const QString &name)
    {
        choose("formatComboBox", name);
        return QTest::qWaitFor([this, &name] {
            return !hasPendingChange() && device().settings().format == DepthFormats::number(name);
        });
    }

    /// Lets the sounder ping once for each of these, until the window has told the graph of all
    /// that was sent: so many pairs. False if it told of fewer or more.
    bool ping(const QList<Bottom> &bottoms, int pairs)
    {
        told.clear();
        pings = bottoms;
        device().setDepthSource([this](double) {
            const Bottom bottom = pings.takeFirst();
            device().setSoundings(!pings.isEmpty());
            return DepthPair{inMetres(bottom.high), inMetres(bottom.low)};
        });
        device().setSoundings(true);
        return QTest::qWaitFor([this] { return pings.isEmpty() && !device().isSending(); }) &&
               isHeardOut() && told.size() == pairs;
    }

    /// Two labels of the window, high one first.
    QStringList labels() { return {text("highDepthLabel"), text("lowDepthLabel")}; }

    /// The two texts above the graph, high one first.
    QStringList graphTexts()
    {
        return {inGraph("depthGraphFieldHF")->text(), inGraph("depthGraphFieldLF")->text()};
    }

    QList<DepthSample> expectedSamples; ///< newest first, entered by the test

    /// Whether the graph's picture is the one of `expectedSamples`.
    bool graphShowsExpectedSamples()
    {
        DepthChartData chart;
        const bool imperial = isChecked("imperialRadio");
        chart.samples = expectedSamples;
        chart.graphRange = 35; // the next multiple of five
        chart.maxDepthLine = 30;
        chart.unitFactor = imperial ? 3.28084F : 1.0F;
        chart.unitSuffix = imperial ? "ft" : "m";
        topLevel<depthGraph>()->drawPic();
        const QPixmap picture = inGraph("label")->pixmap(Qt::ReturnByValue);
        QImage canvas(picture.size(), QImage::Format_RGB32);
        drawDepthChart(canvas, chart);
        return picture.toImage().convertToFormat(canvas.format()) == canvas;
    }

private:
    static SounderOptions pingingSounder(SounderFit fit)
    {
        SounderOptions options = quietSounder();
        options.fit = fit;
        return options;
    }

    static void prepare(SounderSettings &settings)
    {
        settings.pings = 10;
        settings.maxDepthMm = 30000;
        settings.high.draftMm = highDraftMm;
        settings.low.draftMm = lowDraftMm;
        settings.low.indexMm = lowIndexMm;
    }

    static std::optional<double> inMetres(const std::optional<int> &mm)
    {
        return mm ? std::optional<double>(*mm / 1000.0) : std::nullopt;
    }

    /// Polls the sounder and waits for its answer: what was sent before has been dealt with.
    bool isHeardOut()
    {
        const bool asksVoltage = text("temperatureLabel").contains("Temperature");
        QMetaObject::invokeMethod(&window, "clearInfoText"); // a message holds polling back
        QMetaObject::invokeMethod(&window, "getLatestTemperature");
        return QTest::qWaitFor([=] {
            return text("temperatureLabel").contains(asksVoltage ? "Voltage" : "Temperature");
        });
    }

    static QLabel *inGraph(const char *name)
    {
        return topLevel<depthGraph>()->findChild<QLabel *>(name);
    }

    QSignalSpy told;
    QList<Bottom> pings; // still to come
};

#endif // SURVEYBENCH_H
