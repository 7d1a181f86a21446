// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#ifndef MARKS_H
#define MARKS_H

#include <QString>

class QLineEdit;
class QWidget;

/// What a control says of the value that it shows, besides the value: that it was typed and not yet
/// sent, that the sounder did not apply it, that it no longer lives. The form's style sheets draw
/// it by the control's property "mark"; the control's tooltip and accessible description say it in
/// words. The value itself is never touched.
namespace Marks {

/// Makes the edit say when it waits: from the first character that the operator types until
/// settled() or until the program shows something else in it. A comma that the operator types or
/// pastes becomes a point, since half the world writes one and the sounder reads points.
void watchTyping(QLineEdit *edit);

/// What the control shows is now the program's: it waits no longer.
void settled(QWidget *control);

/// The sounder did not apply what the control shows; `words` say what it answered.
void setNotApplied(QWidget *control, const QString &words);

/// The sounder has accepted, or told anew, what the control shows.
void setApplied(QWidget *control);

/// Whether what the control shows is alive, or only what was true when the link ended.
void setAlive(QWidget *control, bool alive);

/// The tooltip that the control has while nothing is marked.
void setPlainToolTip(QWidget *control, const QString &text);

} // namespace Marks

#endif // MARKS_H
