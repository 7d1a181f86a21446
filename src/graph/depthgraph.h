// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#ifndef DEPTHGRAPH_H
#define DEPTHGRAPH_H

#include "chartpicture.h"

#include <QPixmap>
#include <QTimer>
#include <QWidget>

#include <array>
#include <memory>

class QLabel;

namespace Ui {
class depthGraph;
}

/// The window that plots the live depths of both channels as a scrolling strip chart, with the
/// newest depths as text above it. Closing it hides it; depths are collected all the same. While it
/// is hidden nothing is drawn.
class depthGraph : public QWidget
{
    Q_OBJECT

public:
    explicit depthGraph(QWidget *parent = nullptr);
    ~depthGraph() override;

    depthGraph(const depthGraph &) = delete;
    depthGraph &operator=(const depthGraph &) = delete;

    /// Shows the depths above the chart as alive, or in grey as what was true when the link ended.
    /// The next depths are alive again.
    void showAlive(bool alive);

public slots:
    /// One new pair of depths in metres. A negative depth (or one that is no number) means that the
    /// channel gave none; so does the mode of the other channel.
    void addData(float hf, float lf);

    /// The device's maximum depth in metres: sets the range of the chart, to the next multiple of
    /// five above it but at most 100, and the dashed line.
    void setMaxDepth(float depth);

    /// Shows feet (true) or metres: the text with the next depths, the chart with its next drawing.
    void goToImperial(bool imperial);

    /// The channels to take from the next depths on: "HF", "LF" or "dual" (exactly so). Anything
    /// else is logged and changes nothing.
    void setFrequency(const QString &mode);

    /// Draws the chart if the window is visible and the chart has changed. Called every 50 ms.
    void drawPic();

protected:
    /// Escape closes the window.
    void keyPressEvent(QKeyEvent *event) override;

private:
    void showDepth(QLabel *label, const QString &channel, float depth);
    bool labelShowsOwnPicture() const;
    bool pictureIsUpToDate() const;

    std::unique_ptr<Ui::depthGraph> ui;
    bool depthsAreAlive = true;
    DepthChartData chart;
    QString frequencyMode;
    QTimer drawTimer;

    QPixmap keyHF;
    QPixmap keyLF;

    /// The label shows one picture while the next is drawn over the one before.
    std::array<ChartPicture, 2> pictures;
    std::size_t shownPicture = 0;
    qint64 shownKey = 0; // the cache key of what the label shows of it
};

#endif // DEPTHGRAPH_H
