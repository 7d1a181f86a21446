// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#ifndef APPEARANCE_H
#define APPEARANCE_H

/// Sharp text and images on high-density screens. To be called before the application object is
/// made: Qt ignores these attributes afterwards.
void prepareForHighDensity();

/// Saves a third of the start: on X11 Qt otherwise prepares OpenGL for every window, with which
/// this program draws nothing. To be called before the first window; where QT_XCB_GL_INTEGRATION is
/// set in the environment, that holds.
void startWithoutOpenGl();

/// Installs the program's style and the ring around what has the keyboard. To be called once, after
/// the application object is made and before the first window.
void giveProgramStyle();

#endif // APPEARANCE_H
