// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "focusring.h"

#include <QApplication>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QScrollArea>

#include <algorithm>

namespace {

constexpr qreal cornerRadius = 4;

const QColor lineColour(0, 60, 200);
constexpr qreal lineWidth = 2;

/// White on either side of the line: on a dark ground it is what is seen.
const QColor edgeColour(Qt::white);
constexpr qreal edgedWidth = FocusRingFrame::reach;

bool isMovedByKey(Qt::FocusReason reason)
{
    return reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason ||
           reason == Qt::ShortcutFocusReason;
}

/// Tab and the arrows move the focus; with Alt alone a key is a caption's.
bool isNavigation(const QKeyEvent &event)
{
    const auto movers = {Qt::Key_Tab,   Qt::Key_Backtab, Qt::Key_Left,
                         Qt::Key_Right, Qt::Key_Up,      Qt::Key_Down};
    const bool isCaptions = event.modifiers() == Qt::AltModifier && event.key() != Qt::Key_Alt;
    return isCaptions || std::find(movers.begin(), movers.end(), event.key()) != movers.end();
}

QScrollArea *scrollAreaAround(const QWidget *widget)
{
    for (QWidget *parent = widget->parentWidget(); parent != nullptr;
         parent = parent->isWindow() ? nullptr : parent->parentWidget()) {
        if (auto *const area = qobject_cast<QScrollArea *>(parent)) {
            return area;
        }
    }
    return nullptr;
}

/// Where the ring stands: as a child of what scrolls, it scrolls and is clipped as the control is.
QWidget *groundOf(const QWidget *widget)
{
    const QScrollArea *const area = scrollAreaAround(widget);
    return area != nullptr && area->widget()->isAncestorOf(widget) ? area->widget()
                                                                   : widget->window();
}

/// Qt does so for the Tab key alone, not for the arrow keys, and of an edit only for its cursor.
void bringIntoView(const QWidget &widget)
{
    QScrollArea *const area = scrollAreaAround(&widget);
    if (area == nullptr || area->widget() == nullptr) {
        return;
    }
    const QPoint middle = widget.mapTo(area->widget(), widget.rect().center());
    const QSize around = widget.size() / 2 + QSize(FocusRingFrame::reach, FocusRingFrame::reach);
    area->ensureVisible(middle.x(), middle.y(), around.width(), around.height());
}

/// A list that has popped up shows by its selection where the keyboard is.
bool isToBeRinged(const QWidget *widget)
{
    return !widget->isWindow() && widget->window()->windowType() != Qt::Popup;
}

} // namespace

FocusRing::FocusRing(QObject *parent)
    : QObject(parent)
{
    qApp->installEventFilter(this);
}

bool FocusRing::eventFilter(QObject *watched, QEvent *event)
{
    switch (event->type()) {
    case QEvent::ShortcutOverride: // a shortcut's key comes as nothing else
    case QEvent::KeyPress:
        keyboardLeads = keyboardLeads || isNavigation(*static_cast<QKeyEvent *>(event));
        break;
    case QEvent::FocusIn:
        // A dialog also sends one to the button that has the focus only later.
        if (watched == QApplication::focusWidget()) {
            enter(QApplication::focusWidget(), *static_cast<QFocusEvent *>(event));
        }
        break;
    case QEvent::FocusOut:
        if (watched == control) {
            leave();
        }
        break;
    case QEvent::MouseButtonPress:
        keyboardLeads = false;
        leave();
        break;
    case QEvent::Move:
    case QEvent::Resize:
        if (control != nullptr && watched->isWidgetType() &&
            (watched == control || static_cast<QWidget *>(watched)->isAncestorOf(control))) {
            follow();
        }
        break;
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}

/// What the operator has done last decides, not the event's reason: a control that is switched off
/// or hidden with its page passes the focus on as the Tab key does, also under the mouse. A focus
/// that comes back with its window or from a closed popup or box is shown if the keyboard leads.
void FocusRing::enter(QWidget *widget, const QFocusEvent &event)
{
    leave();
    if (!keyboardLeads || !isToBeRinged(widget)) {
        return;
    }
    control = widget;
    connect(control, &QObject::destroyed, this, &FocusRing::leave, Qt::UniqueConnection);
    if (isMovedByKey(event.reason())) {
        bringIntoView(*widget);
    }
    follow();
}

void FocusRing::follow()
{
    QWidget *const ground = groundOf(control);
    if (frame == nullptr) {
        frame = new FocusRingFrame(ground);
    } else if (frame->parentWidget() != ground) {
        frame->setParent(ground);
    }
    constexpr int reach = FocusRingFrame::reach;
    const QRect place(control->mapTo(ground, QPoint()), control->size());
    frame->setGeometry(place.adjusted(-reach, -reach, reach, reach) & ground->rect());
    frame->raise();
    frame->show();
}

void FocusRing::leave()
{
    if (control != nullptr) {
        disconnect(control, &QObject::destroyed, this, &FocusRing::leave);
    }
    control = nullptr;
    if (frame != nullptr) {
        frame->hide();
    }
}

FocusRingFrame::FocusRingFrame(QWidget *parent)
    : QWidget(parent)
{
    setObjectName(QStringLiteral("focusRing"));
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setFocusPolicy(Qt::NoFocus);
}

void FocusRingFrame::paintEvent(QPaintEvent * /*event*/)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    constexpr qreal middle = edgedWidth / 2;
    const QRectF line = QRectF(rect()).adjusted(middle, middle, -middle, -middle);
    painter.setPen(QPen(edgeColour, edgedWidth));
    painter.drawRoundedRect(line, cornerRadius, cornerRadius);
    painter.setPen(QPen(lineColour, lineWidth));
    painter.drawRoundedRect(line, cornerRadius, cornerRadius);
}
