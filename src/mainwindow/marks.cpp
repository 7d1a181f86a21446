// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "marks.h"

#include <QLineEdit>
#include <QStyle>
#include <QVariant>

namespace {

constexpr char waitingProperty[] = "waits";
constexpr char notAppliedProperty[] = "notApplied";
constexpr char staleProperty[] = "stale";
constexpr char plainToolTipProperty[] = "plainToolTip";
constexpr char plainDescriptionProperty[] = "plainDescription";
constexpr char markProperty[] = "mark";

constexpr char waitingWords[] = "Press Return to send";

/// What is most urgent for the operator to know.
QString markOf(const QWidget &control)
{
    if (control.property(waitingProperty).toBool()) {
        return QStringLiteral("waiting");
    }
    if (!control.property(notAppliedProperty).toString().isEmpty()) {
        return QStringLiteral("notApplied");
    }
    return control.property(staleProperty).toBool() ? QStringLiteral("stale") : QString();
}

QString wordsFor(const QWidget &control)
{
    if (!control.isEnabled()) {
        return {}; // why it is locked matters more: what it waits for cannot be done
    }
    if (control.property(waitingProperty).toBool()) {
        return waitingWords;
    }
    return control.property(notAppliedProperty).toString();
}

void show(QWidget *control)
{
    const QString words = wordsFor(*control);
    control->setToolTip(words.isEmpty() ? control->property(plainToolTipProperty).toString()
                                        : words);
    if (!control->property(plainDescriptionProperty).isValid()) {
        control->setProperty(plainDescriptionProperty, control->accessibleDescription());
    }
    control->setAccessibleDescription(
        words.isEmpty() ? control->property(plainDescriptionProperty).toString() : words);
    const QString mark = markOf(*control);
    if (control->property(markProperty).toString() != mark) {
        control->setProperty(markProperty, mark);
        control->style()->unpolish(control); // the sheets look at properties only when they polish
        control->style()->polish(control);
    }
}

void set(QWidget *control, const char *property, const QVariant &value)
{
    if (control->property(property) != value) {
        control->setProperty(property, value);
        show(control);
    }
}

/// Through the edit's own commands, so that the operator can undo it.
void pointsForCommas(QLineEdit *edit)
{
    const int cursor = edit->cursorPosition();
    for (auto at = edit->text().indexOf(QLatin1Char(',')); at >= 0;
         at = edit->text().indexOf(QLatin1Char(','), at + 1)) {
        edit->setSelection(static_cast<int>(at), 1);
        edit->insert(QStringLiteral("."));
    }
    edit->setCursorPosition(cursor);
}

} // namespace

namespace Marks {

void watchTyping(QLineEdit *edit)
{
    QObject::connect(edit, &QLineEdit::textEdited, edit, [edit](const QString &text) {
        if (text.contains(QLatin1Char(','))) {
            pointsForCommas(edit);
        }
        set(edit, waitingProperty, true);
    });
    // Qt tells of a change first as one of the operator's, if it is one, then as a change.
    QObject::connect(edit, &QLineEdit::textChanged, edit, [edit] {
        if (!edit->isModified()) {
            settled(edit);
        }
    });
}

void settled(QWidget *control) { set(control, waitingProperty, false); }

void setNotApplied(QWidget *control, const QString &words)
{
    set(control, notAppliedProperty, words);
}

void setApplied(QWidget *control) { set(control, notAppliedProperty, QString()); }

void setAlive(QWidget *control, bool alive) { set(control, staleProperty, !alive); }

void setPlainToolTip(QWidget *control, const QString &text)
{
    control->setProperty(plainToolTipProperty, text);
    show(control);
}

} // namespace Marks
