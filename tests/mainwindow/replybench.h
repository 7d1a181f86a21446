// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#ifndef REPLYBENCH_H
#define REPLYBENCH_H

#include "reportbench.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMap>
#include <QRadioButton>
#include <QSlider>

/// The window on a bare line, for the sounder's settings reply: what every control shows, as text.
class ReplyBench : public ReportBench
{
public:
    /// What controls show, by their names: a text, a slider's position, or "checked".
    using Shown = QMap<QString, QString>;

    /// What one control shows.
    QString shown(const QString &name)
    {
        auto *const widget = find<QWidget>(name);
        if (const auto *slider = qobject_cast<QSlider *>(widget)) {
            return QString::number(slider->value());
        }
        if (const auto *radio = qobject_cast<QRadioButton *>(widget)) {
            return radio->isChecked() ? QStringLiteral("checked") : QString();
        }
        return text(name);
    }

    /// What these controls show.
    Shown shown(const QStringList &names)
    {
        Shown result;
        for (const QString &name : names) {
            result.insert(name, shown(name));
        }
        return result;
    }

    /// What every control that a reply could set shows.
    Shown everythingShown()
    {
        QStringList names;
        for (const QWidget *widget : window.findChildren<QWidget *>()) {
            const bool canBeSet = qobject_cast<const QLineEdit *>(widget) != nullptr ||
                                  qobject_cast<const QSlider *>(widget) != nullptr ||
                                  qobject_cast<const QRadioButton *>(widget) != nullptr ||
                                  qobject_cast<const QComboBox *>(widget) != nullptr ||
                                  widget->objectName().endsWith("Edit");
            if (canBeSet && !widget->objectName().isEmpty()) {
                names.append(widget->objectName());
            }
        }
        return shown(names);
    }

    /// Those of the controls that show something else than they should, in words; else empty.
    QString differences(const Shown &shouldBe)
    {
        QStringList words;
        for (auto at = shouldBe.begin(); at != shouldBe.end(); ++at) {
            const QString is = shown(at.key());
            if (is != at.value()) {
                words.append(at.key() + " shows \"" + is + "\" instead of \"" + at.value() + "\"");
            }
        }
        return words.join("; ");
    }

    /// Whether the window has sent nothing since it connected, and has nothing in its queue.
    bool hasSentNothing()
    {
        return line.received().isEmpty() && !timer("commandTimer")->isActive();
    }
};

#endif // REPLYBENCH_H
