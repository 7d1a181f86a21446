// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "depthgraph.h"
#include "ui_depthgraph.h"

#include "debuglog.h"
#include "labelroom.h"
#include "numbertext.h"
#include "resources.h"
#include "units.h"

#include <QKeyEvent>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <utility>

using namespace std::chrono_literals;

namespace {

/// Grey on the dark header, for depths that no longer live.
const QString staleSheet = QStringLiteral("color: rgb(165, 175, 195);");

constexpr auto redrawTime = 50ms;
constexpr int largestRange = 100;

QPixmap colourKey(const QColor &colour)
{
    QPixmap key(20, 20);
    key.fill(colour);
    return key;
}

/// Setting a picture again would lay the window out anew.
void showPicture(QLabel *label, const QPixmap &picture)
{
    if (label->pixmap(Qt::ReturnByValue).cacheKey() != picture.cacheKey()) {
        label->setPixmap(picture);
    }
}

/// The pixels that the label has on its screen.
QSize pixelsOf(const QLabel &label) { return label.size() * label.devicePixelRatioF(); }

/// Rounded outwards: on a screen of 150 % a pixel of the label shares some with its neighbours.
QRegion inLabelCoordinates(const QRegion &pixels, double ratio)
{
    QRegion region;
    for (const QRect &part : pixels) {
        region +=
            QRectF(part.x() / ratio, part.y() / ratio, part.width() / ratio, part.height() / ratio)
                .toAlignedRect();
    }
    return region;
}

/// Shows a picture that differs from the one shown only in this region, in label coordinates. A
/// label paints itself anew as a whole otherwise, and copying a big chart takes longer than drawing
/// it.
void exchangePicture(QLabel *label, const QPixmap &picture, const QRegion &difference)
{
    const bool wasHeldBack = label->testAttribute(Qt::WA_UpdatesDisabled);
    label->setAttribute(Qt::WA_UpdatesDisabled, true);
    label->setPixmap(picture);
    label->setAttribute(Qt::WA_UpdatesDisabled, wasHeldBack);
    label->update(difference);
}

/// What is kept of a received depth: the depth, or noDepth for a channel that gave none.
float storedDepth(float depth, bool channelIsOn)
{
    const bool isDepth = std::isfinite(depth) && !(depth < 0.0F);
    return isDepth && channelIsOn ? depth : DepthChartData::noDepth;
}

/// Truncated towards zero; kept within an integer's bounds, with room for a few metres more.
int wholeMetres(float depth)
{
    constexpr float bound = 1e9F;
    return std::isnan(depth) ? 0 : static_cast<int>(std::clamp(depth, -bound, bound));
}

/// The next multiple of five above the depth. It leaves room below the dashed line.
int rangeAbove(float depth)
{
    const int next = wholeMetres(depth + 5 - static_cast<float>(wholeMetres(depth) % 5));
    return std::min(largestRange, next);
}

} // namespace

depthGraph::depthGraph(QWidget *parent)
    : QWidget(parent)
    , ui(std::make_unique<Ui::depthGraph>())
    , frequencyMode(QStringLiteral("Dual"))
    , drawTimer(this)
    , keyHF(colourKey(QColor(0, 0, 255)))
    , keyLF(colourKey(QColor(255, 0, 0)))
{
    useTalVeroResources();
    ui->setupUi(this);
    for (QLayout *layout : findChildren<QLayout *>()) {
        layout->setContentsMargins(0, 0, 0, 0);
    }

    QImage blank(ui->label->size(), QImage::Format_ARGB32);
    blank.fill(Qt::white);
    ui->label->setPixmap(QPixmap::fromImage(std::move(blank)));

    drawTimer.setObjectName(QStringLiteral("drawTimer"));
    connect(&drawTimer, &QTimer::timeout, this, &depthGraph::drawPic);
    drawTimer.start(redrawTime);

    QFont font = ui->depthGraphFieldHF->font();
    font.setStyleStrategy(QFont::PreferAntialias);
    for (QLabel *label : {ui->depthGraphFieldHF, ui->depthGraphFieldLF, ui->titleLabel}) {
        label->setFont(font);
    }
    LabelRoom::keep(*ui->depthGraphFieldHF, "High Frequency Depth: <b>3280.84ft</b>");
    LabelRoom::keep(*ui->depthGraphFieldLF, "Low Frequency Depth: <b>3280.84ft</b>");
    ui->depthGraphFieldLF->clear();
}

depthGraph::~depthGraph() = default;

void depthGraph::addData(float hf, float lf)
{
    while (chart.samples.size() >= DepthChartData::maxSamples) {
        chart.samples.removeLast();
    }
    const DepthSample sample{storedDepth(hf, frequencyMode != QLatin1String("LF")),
                             storedDepth(lf, frequencyMode != QLatin1String("HF"))};
    chart.samples.prepend(sample);
    showDepth(ui->depthGraphFieldHF, QStringLiteral("High"), sample.hf);
    showDepth(ui->depthGraphFieldLF, QStringLiteral("Low"), sample.lf);
    showAlive(true);
}

void depthGraph::showAlive(bool alive)
{
    if (alive == depthsAreAlive) {
        return;
    }
    depthsAreAlive = alive;
    for (QLabel *label : {ui->depthGraphFieldHF, ui->depthGraphFieldLF}) {
        label->setStyleSheet(alive ? QString() : staleSheet);
    }
}

void depthGraph::showDepth(QLabel *label, const QString &channel, float depth)
{
    if (depth == DepthChartData::noDepth) {
        label->clear();
        return;
    }
    label->setText(channel + QLatin1String(" Frequency Depth: <b>") +
                   NumberText::fixed(depth * chart.unitFactor, 2) + chart.unitSuffix +
                   QLatin1String("</b>"));
}

void depthGraph::setMaxDepth(float depth)
{
    DEBUG_LOG << "Setting Max Depth To" << depth;
    chart.graphRange = rangeAbove(depth);
    chart.maxDepthLine = wholeMetres(depth);
}

void depthGraph::goToImperial(bool imperial)
{
    DEBUG_LOG << "GRAPH TO IMPERIAL" << imperial;
    chart.unitFactor = Units::shown(1.0F, imperial);
    chart.unitSuffix = imperial ? QStringLiteral("ft") : QStringLiteral("m");
}

void depthGraph::setFrequency(const QString &mode)
{
    DEBUG_LOG << "SETTING FREUQNEYC";
    for (const char *known : {"HF", "LF", "dual"}) {
        if (mode == QLatin1String(known)) {
            frequencyMode = mode;
            return;
        }
    }
    DEBUG_LOG << "Unknown frequency!?";
}

void depthGraph::drawPic()
{
    if (!isVisible()) {
        return;
    }
    showPicture(ui->depthKeyHF, keyHF);
    showPicture(ui->depthKeyLF, keyLF);
    if (pictureIsUpToDate() || ui->label->size().isEmpty()) {
        return;
    }
    const ChartPicture &shown = pictures[shownPicture];
    ChartPicture &next = pictures[1 - shownPicture];
    const double ratio = ui->label->devicePixelRatioF();
    next.draw(pixelsOf(*ui->label), chart, ratio);
    const QPixmap picture = QPixmap::fromImage(next.image()); // shares the pixels
    if (labelShowsOwnPicture()) {
        exchangePicture(ui->label, picture, inLabelCoordinates(next.difference(shown), ratio));
    } else {
        ui->label->setPixmap(picture);
    }
    shownPicture = 1 - shownPicture;
    shownKey = picture.cacheKey();
}

void depthGraph::keyPressEvent(QKeyEvent *event)
{
    if (event->matches(QKeySequence::Cancel)) {
        close();
        return;
    }
    QWidget::keyPressEvent(event);
}

bool depthGraph::labelShowsOwnPicture() const
{
    const QPixmap shown = ui->label->pixmap(Qt::ReturnByValue);
    return shown.cacheKey() == shownKey && shown.size() == pixelsOf(*ui->label);
}

bool depthGraph::pictureIsUpToDate() const
{
    return labelShowsOwnPicture() && pictures[shownPicture].chart() == chart;
}
