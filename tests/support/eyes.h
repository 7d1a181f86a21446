// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#ifndef EYES_H
#define EYES_H

#include <QImage>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>

/// The eyes with which an image is looked at: what two states of a control have in common for one
/// of them cannot be told apart by every operator.
struct Eyes
{
    const char *name;
    /// What reaches red, green and blue of linear light; Machado, Oliveira and Fernandes, 2009.
    std::array<std::array<double, 3>, 3> sees;
};

constexpr Eyes everyEye[] = {
    {"an eye without hues",
     {{{0.2126, 0.7152, 0.0722}, {0.2126, 0.7152, 0.0722}, {0.2126, 0.7152, 0.0722}}}},
    {"an eye without red",
     {{{0.152286, 1.052583, -0.204868},
       {0.114503, 0.786281, 0.099216},
       {-0.003882, -0.048116, 1.051998}}}},
    {"an eye without green",
     {{{0.367322, 0.860646, -0.227968},
       {0.280085, 0.672501, 0.047413},
       {-0.011820, 0.042940, 0.968881}}}},
};

inline double linearLight(int channel)
{
    const double part = channel / 255.0;
    return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
}

inline int channelOf(double light)
{
    const double held = std::clamp(light, 0.0, 1.0);
    const double part = held <= 0.0031308 ? held * 12.92 : 1.055 * std::pow(held, 1 / 2.4) - 0.055;
    return static_cast<int>(std::lround(part * 255));
}

inline QRgb seenBy(const Eyes &eyes, QRgb colour)
{
    const double light[] = {linearLight(qRed(colour)), linearLight(qGreen(colour)),
                            linearLight(qBlue(colour))};
    std::array<int, 3> seen{};
    for (size_t i = 0; i < seen.size(); ++i) {
        const auto &part = eyes.sees.at(i);
        seen.at(i) = channelOf(part[0] * light[0] + part[1] * light[1] + part[2] * light[2]);
    }
    return qRgb(seen[0], seen[1], seen[2]);
}

/// The share of the pixels (0 to 1) that these eyes see plainly different in two opaque images of
/// one size.
inline double plainlyDifferent(const Eyes &eyes, const QImage &one, const QImage &other)
{
    const int plainDifference = 24;
    int count = 0;
    for (int y = 0; y < one.height(); ++y) {
        for (int x = 0; x < one.width(); ++x) {
            const QRgb a = seenBy(eyes, one.pixel(x, y));
            const QRgb b = seenBy(eyes, other.pixel(x, y));
            count += std::max({std::abs(qRed(a) - qRed(b)), std::abs(qGreen(a) - qGreen(b)),
                               std::abs(qBlue(a) - qBlue(b))}) > plainDifference;
        }
    }
    return static_cast<double>(count) / (one.width() * one.height());
}

#endif // EYES_H
