// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "chartpicture.h"

namespace {

/// Enough for a rolling sea bed to touch little more than itself.
constexpr int strips = 24;

PixelRange united(const std::vector<PixelRange> &ranges)
{
    PixelRange all;
    for (const PixelRange &range : ranges) {
        all = all.united(range);
    }
    return all;
}

} // namespace

bool ChartPicture::hasTheSameGround(const QSize &size, double ratio,
                                    const DepthChartData &chart) const
{
    return canvas.size() == size && canvas.devicePixelRatio() == ratio &&
           haveTheSameScale(drawn, chart);
}

void ChartPicture::draw(const QSize &size, const DepthChartData &chart, double ratio)
{
    const std::vector<PixelRange> newRows = sampleRows(size, ratio, chart, strips);
    if (hasTheSameGround(size, ratio, chart)) {
        const PixelRange touched = united(rows).united(united(newRows));
        drawDepthChart(canvas, chart,
                       {std::max(touched.begin, 0), std::min(touched.end, size.height())});
    } else {
        if (canvas.size() != size) {
            canvas = QImage(size, QImage::Format_RGB32);
        }
        canvas.setDevicePixelRatio(ratio);
        drawDepthChart(canvas, chart);
    }
    drawn = chart;
    rows = newRows;
}

QRegion ChartPicture::difference(const ChartPicture &other) const
{
    if (!hasTheSameGround(other.canvas.size(), other.canvas.devicePixelRatio(), other.drawn)) {
        return canvas.rect();
    }
    QRegion region;
    for (int strip = 0; strip < strips; ++strip) {
        const int left = canvas.width() * strip / strips;
        const int right = canvas.width() * (strip + 1) / strips;
        const auto index = static_cast<std::size_t>(strip);
        const PixelRange touched = rows[index].united(other.rows[index]);
        region += QRect(left, touched.begin, right - left, touched.end - touched.begin);
    }
    return region & canvas.rect();
}
