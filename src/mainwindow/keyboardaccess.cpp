// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "keyboardaccess.h"

#include <QAbstractItemView>
#include <QButtonGroup>
#include <QComboBox>
#include <QRadioButton>
#include <QScrollArea>
#include <QScrollBar>

namespace {

/// The options of which one is chosen, `option` among them: those of its group, or without a group
/// those that share its parent.
QList<QAbstractButton *> alternativesTo(const QRadioButton *option)
{
    if (option->group() != nullptr) {
        return option->group()->buttons();
    }
    QList<QAbstractButton *> alternatives;
    const auto siblings =
        option->parentWidget()->findChildren<QRadioButton *>(QString(), Qt::FindDirectChildrenOnly);
    for (QRadioButton *sibling : siblings) {
        if (sibling->autoExclusive() && sibling->group() == nullptr) {
            alternatives.append(sibling);
        }
    }
    return alternatives;
}

void stopOnlyAt(const QRadioButton *chosen)
{
    const QList<QAbstractButton *> alternatives = alternativesTo(chosen);
    for (QAbstractButton *option : alternatives) {
        option->setFocusPolicy(option == chosen ? Qt::StrongFocus : Qt::ClickFocus);
    }
}

void stopAtTheChosenOption(QRadioButton *option)
{
    const auto follow = [option](bool isChosen) {
        if (isChosen) {
            stopOnlyAt(option);
        }
    };
    QObject::connect(option, &QRadioButton::toggled, option, follow);
    follow(option->isChecked());
}

} // namespace

void prepareKeyboardAccess(QWidget *form)
{
    const auto options = form->findChildren<QRadioButton *>();
    for (QRadioButton *option : options) {
        if (option->autoExclusive()) {
            stopAtTheChosenOption(option);
        }
    }
    const auto lists = form->findChildren<QComboBox *>();
    for (const QComboBox *list : lists) {
        list->view()->setAccessibleName(list->accessibleName());
    }
    const auto areas = form->findChildren<QScrollArea *>();
    for (const QScrollArea *area : areas) {
        area->verticalScrollBar()->setAccessibleName(QStringLiteral("Scroll up and down"));
        area->horizontalScrollBar()->setAccessibleName(QStringLiteral("Scroll sideways"));
    }
}
