// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#ifndef GRAPHBENCH_H
#define GRAPHBENCH_H

#include "depthgraph.h"

#include "logcapture.h"

#include <QLabel>
#include <QScreen>
#include <QTimer>
#include <QtTest>

/// The window beside the data that it should show.
struct GraphBench
{
    QLabel *label(const char *name) { return window.findChild<QLabel *>(QLatin1String(name)); }
    QString hfText() { return label("depthGraphFieldHF")->text(); }
    QString lfText() { return label("depthGraphFieldLF")->text(); }
    QTimer *timer() { return window.findChild<QTimer *>(QStringLiteral("drawTimer")); }
    QPixmap picture() { return label("label")->pixmap(Qt::ReturnByValue); }

    /// What the window system shows of the chart.
    QImage onScreen()
    {
        const QLabel *const chart = label("label");
        const QPoint place = chart->mapTo(&window, QPoint());
        return window.screen()
            ->grabWindow(window.winId(), place.x(), place.y(), chart->width(), chart->height())
            .toImage()
            .convertToFormat(QImage::Format_RGB32);
    }

    void show()
    {
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
    }

    /// Draws the window's picture now and compares it with the chart of `expected`.
    bool showsTheChart()
    {
        window.drawPic();
        const double ratio = label("label")->devicePixelRatioF();
        QImage chart(label("label")->size() * ratio, QImage::Format_RGB32);
        chart.setDevicePixelRatio(ratio);
        drawDepthChart(chart, expected);
        return picture().toImage().convertToFormat(QImage::Format_RGB32) == chart;
    }

    LogCapture log;
    depthGraph window;
    DepthChartData expected;
};

#endif // GRAPHBENCH_H
