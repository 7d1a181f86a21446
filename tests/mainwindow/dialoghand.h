// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#ifndef DIALOGHAND_H
#define DIALOGHAND_H

#include <QApplication>
#include <QDialog>
#include <QTimer>

#include <functional>

/// An operator's hand at the dialogs of one kind (QMessageBox, QFileDialog) that open while it
/// lives. A dialog holds the code that opened it until it is answered, so the hand must be there
/// before the click.
template <typename Dialog>
class DialogHand
{
public:
    /// `answer` gets each dialog once and must see to it that it closes.
    explicit DialogHand(std::function<void(Dialog &)> answer)
    {
        constexpr int glanceMs = 5;
        QObject::connect(&timer, &QTimer::timeout, &timer, [this, answer = std::move(answer)] {
            auto *const dialog = qobject_cast<Dialog *>(QApplication::activeModalWidget());
            if (dialog != nullptr && dialog->isVisible()) {
                ++answered;
                answer(*dialog);
            }
        });
        timer.start(glanceMs);
    }

    /// How many dialogs have been answered.
    int count() const { return answered; }

private:
    QTimer timer;
    int answered = 0;
};

#endif // DIALOGHAND_H
