// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#ifndef LABELROOM_H
#define LABELROOM_H

class QLabel;
class QString;

/// Labels that show what others have written. A label grows with its text, and the window with the
/// label: noise that reads as a number of forty digits would push controls out of the window. Here
/// a label gets a room of its own; of a text that needs more it draws as much as fits, and an
/// ellipsis, so that nobody takes the rest of a number for a number. The label's text stays whole.
namespace LabelRoom {

/// The label grows with its text up to what `longest` needs, and not beyond.
void growUpTo(QLabel &label, const QString &longest);

/// The label has the room that `longest` needs, or its minimum width where that is more, whatever
/// it shows.
void keep(QLabel &label, const QString &longest);

/// The label's smallest size is the room that the form gives it, and its layout asks for no other:
/// a label that wraps works out several times for each new text how large it would like to be,
/// which takes 25 ms for a long one. `longest` is not looked at. The label must stand in a box
/// layout.
void holdAsItIs(QLabel &label, const QString &longest);

} // namespace LabelRoom

#endif // LABELROOM_H
