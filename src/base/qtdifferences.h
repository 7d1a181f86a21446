// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#ifndef QTDIFFERENCES_H
#define QTDIFFERENCES_H

#include <QCoreApplication>

/// What differs between Qt 5.15 and Qt 6. Nothing else asks for Qt's version.
namespace QtDifferences {

#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)

/// Sharp text and images on high-density screens. Before the application object is made.
inline void askForHighDensity()
{
    QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
}

inline bool isHighDensityAskedFor()
{
    return QCoreApplication::testAttribute(Qt::AA_EnableHighDpiScaling) &&
           QCoreApplication::testAttribute(Qt::AA_UseHighDpiPixmaps);
}

/// The second colour of the headers' gradient as the compiled forms have it.
constexpr char headerBlue[] = "rgba(50,50,140)";

/// A font's weight that style sheets write as a number of up to 1000: Qt counted to 99.
constexpr int fontWeight(int inStyleSheet) { return inStyleSheet / 8; }

/// A painter covers a dot that lies within one column of pixels from both sides and adds the two.
constexpr bool coversOneColumnTwice = true;

/// By how many of the 255 steps of a colour a painter may round otherwise than this one.
constexpr int painterSteps = 0;

/// Whether a painter shares large fills among threads of its own, which it keeps for half a minute.
constexpr bool paintsInThreads = false;

#else

/// It is always given.
inline void askForHighDensity() {}
inline bool isHighDensityAskedFor() { return true; }

/// See cmake/AdoptPagesEarly.cmake.
constexpr char headerBlue[] = "rgba(50,50,140,255)";

constexpr int fontWeight(int inStyleSheet) { return inStyleSheet; }

constexpr bool coversOneColumnTwice = false;
constexpr int painterSteps = 1;
constexpr bool paintsInThreads = true;

#endif

} // namespace QtDifferences

#endif // QTDIFFERENCES_H
