// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#ifndef FIELDBENCH_H
#define FIELDBENCH_H

#include "windowbench.h"

/// A connected window for many short edits, one after another: both channels are in manual mode, so
/// that every control can be used, and the queue's pause (which other tests measure) is cut short.
class FieldBench : public WindowBench
{
public:
    enum class Unit { Metric, Imperial };

    /// Connects; the test program ends if that fails. The unit is chosen before, as the operator
    /// must.
    explicit FieldBench(Unit unit = Unit::Metric);

    /// Forgets what earlier edits left behind: the info line is empty, the sounder has received
    /// nothing and holds values that let it take any ping rate and any depth.
    void beginEdit();

    /// Brings the tab that holds this widget to the front, by a click on the tab.
    void showTabOf(const QString &name);

    /// Types this over an edit's text, without Return.
    void overwrite(const QString &edit, const QString &text);

    /// Presses Return in `edit` if `action` is "Return", else clicks the button of that name.
    void act(const QString &edit, const QString &action);

    /// Waits for the sounder's answer to everything that is queued; false if none comes.
    bool awaitAnswer();

    /// The info line without the result that the sounder's answer has added: "Setting … to …".
    QString announcement() { return info().section(QStringLiteral(" ... "), 0, 0); }

    /// The result alone: "Success", or why not.
    QString result() { return info().section(QStringLiteral(" ... "), 1); }
};

#endif // FIELDBENCH_H
