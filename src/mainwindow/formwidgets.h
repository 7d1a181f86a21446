// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#ifndef FORMWIDGETS_H
#define FORMWIDGETS_H

#include <QString>
#include <QWidget>

/// The widget of this name and kind on the form. If there is none the program ends with the name:
/// the form and the program do not belong together, and whoever builds it must learn of it at once.
template <typename Widget>
Widget *widgetOnForm(const QWidget &form, const QString &name)
{
    auto *const widget = form.findChild<Widget *>(name);
    if (widget == nullptr) {
        qFatal("The form has no %s \"%s\"", Widget::staticMetaObject.className(), qPrintable(name));
    }
    return widget;
}

#endif // FORMWIDGETS_H
