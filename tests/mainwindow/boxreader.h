// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#ifndef BOXREADER_H
#define BOXREADER_H

#include <QAbstractButton>
#include <QApplication>
#include <QMessageBox>
#include <QTimer>
#include <QVector>

/// An operator who reads every message box that opens and presses its OK button. A box holds the
/// code that opened it until it is answered, so the reader must live before the click.
class BoxReader
{
public:
    struct Box
    {
        QString title;
        QString text;
        QMessageBox::Icon icon;
        QMessageBox::StandardButtons buttons;
    };

    BoxReader()
    {
        constexpr int glanceMs = 5;
        QObject::connect(&timer, &QTimer::timeout, &timer, [this] { look(); });
        timer.start(glanceMs);
    }

    /// What was read so far, in order.
    const QVector<Box> &seen() const { return boxes; }

private:
    void look()
    {
        auto *const box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
        if (box == nullptr) {
            return;
        }
        boxes.append({box->windowTitle(), box->text(), box->icon(), box->standardButtons()});
        if (QAbstractButton *const button = box->button(QMessageBox::Ok)) {
            button->click();
        } else {
            box->reject();
        }
    }

    QTimer timer;
    QVector<Box> boxes;
};

#endif // BOXREADER_H
