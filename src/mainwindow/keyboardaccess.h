// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#ifndef KEYBOARDACCESS_H
#define KEYBOARDACCESS_H

class QWidget;

/// Gives those who work with the keyboard or a screen reader what the form cannot say of itself.
/// Tab stops once at each set of options, at the one that is chosen (the arrow keys choose
/// another): Qt alone stops at the first, whichever is chosen. What Qt makes itself, the
/// scroll bars and the lists that pop up, gets its spoken name. To be called once, when the form
/// and its lists are complete.
void prepareKeyboardAccess(QWidget *form);

#endif // KEYBOARDACCESS_H
