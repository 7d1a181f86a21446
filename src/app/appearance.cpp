// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "appearance.h"

#include "focusring.h"
#include "myproxystyle.h"
#include "qtdifferences.h"

#include <QApplication>
#include <QFont>
#include <QStyle>

void prepareForHighDensity()
{
    QtDifferences::askForHighDensity();
#ifdef Q_OS_WIN
    // There the operator chooses 125 % or 150 %. Elsewhere the factor comes from the screen's
    // measured density, and a factor such as 1.04 would only blur the images.
    QApplication::setHighDpiScaleFactorRoundingPolicy(
        Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
#else
    QApplication::setHighDpiScaleFactorRoundingPolicy(
        Qt::HighDpiScaleFactorRoundingPolicy::RoundPreferFloor);
#endif
}

void startWithoutOpenGl()
{
    constexpr char variable[] = "QT_XCB_GL_INTEGRATION";
    if (!qEnvironmentVariableIsSet(variable)) {
        qputenv(variable, "none");
    }
}

namespace {

/// The font that the forms name for the depths stands for the system's own on Windows and is known
/// nowhere else, where it must not become whatever font comes first.
void replaceWindowsFont()
{
#ifndef Q_OS_WIN
    QFont::insertSubstitutions(QStringLiteral("MS Shell Dlg 2"),
                               {QApplication::font().family(), QStringLiteral("DejaVu Sans")});
#endif
}

} // namespace

void giveProgramStyle()
{
    QApplication::setStyle(new MyProxyStyle(QStringLiteral("fusion")));
    // The forms are drawn for a light window: a dark desktop theme must not bring white text to it.
    QApplication::setPalette(QApplication::style()->standardPalette());
    if (qApp->findChild<FocusRing *>() == nullptr) {
        new FocusRing(qApp);
    }
    replaceWindowsFont();
}
