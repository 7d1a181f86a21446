// SPDX-FileCopyrightText: 2026 The TAL-VERO Connect developers
// SPDX-License-Identifier: MIT

#include "labelroom.h"

#include <QAbstractTextDocumentLayout>
#include <QBoxLayout>
#include <QEvent>
#include <QLabel>
#include <QPainter>
#include <QStyle>
#include <QStyleOptionFrame>
#include <QTextCursor>
#include <QTextDocument>

#include <algorithm>
#include <cmath>

namespace {

constexpr QChar ellipsis(0x2026);

/// Draws its label's text with an ellipsis when there is no room for all of it.
class Shortener : public QObject
{
public:
    explicit Shortener(QLabel &itsLabel)
        : QObject(&itsLabel)
        , label(itsLabel)
    {
        label.installEventFilter(this);
    }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() != QEvent::Paint || hasRoom()) {
            return QObject::eventFilter(watched, event);
        }
        QPainter painter(&label);
        drawGround(painter);
        if (isRich()) {
            drawRichText(painter);
        } else {
            drawPlainText(painter);
        }
        return true;
    }

private:
    bool hasRoom() const { return label.wordWrap() || label.sizeHint().width() <= label.width(); }

    bool isRich() const
    {
        return label.textFormat() == Qt::RichText ||
               (label.textFormat() == Qt::AutoText && Qt::mightBeRichText(label.text()));
    }

    /// As every label does first: what a style sheet puts behind the text.
    void drawGround(QPainter &painter) const
    {
        QStyleOptionFrame option;
        option.initFrom(&label);
        option.frameShape = label.frameShape();
        option.lineWidth = label.lineWidth();
        option.midLineWidth = label.midLineWidth();
        label.style()->drawControl(QStyle::CE_ShapedFrame, &option, &painter, &label);
    }

    void drawPlainText(QPainter &painter) const
    {
        const QRect room = label.contentsRect();
        const QString text =
            label.fontMetrics().elidedText(label.text(), Qt::ElideRight, room.width());
        label.style()->drawItemText(&painter, room, static_cast<int>(label.alignment()),
                                    label.palette(), label.isEnabled(), text,
                                    label.foregroundRole());
    }

    void drawRichText(QPainter &painter) const
    {
        const QRect room = label.contentsRect();
        QTextDocument document;
        document.setDefaultFont(label.font());
        document.setDocumentMargin(0);
        document.setHtml(label.text());
        shorten(document, room.width());
        QAbstractTextDocumentLayout::PaintContext context;
        context.palette = label.palette();
        context.palette.setColor(QPalette::Text, label.palette().color(label.foregroundRole()));
        const double above = (room.height() - document.size().height()) / 2;
        painter.translate(room.left(), room.top() + std::floor(above));
        document.documentLayout()->draw(&painter, context);
    }

    static void shorten(QTextDocument &document, int width)
    {
        QTextCursor end(&document);
        end.movePosition(QTextCursor::End);
        constexpr int emptyDocument = 1;
        while (document.idealWidth() > width && document.characterCount() > emptyDocument + 1) {
            end.deletePreviousChar();
            end.deletePreviousChar();
            end.insertText(ellipsis);
        }
    }

    QLabel &label;
};

/// A label's place in a layout that does not ask the label.
class HeldPlace : public QWidgetItem
{
public:
    using QWidgetItem::QWidgetItem;

    QSize sizeHint() const override { return wid->minimumSize(); }
    QSize minimumSize() const override { return wid->minimumSize(); }
    QSize maximumSize() const override { return wid->maximumSize(); }
    void setGeometry(const QRect &place) override { wid->setGeometry(place); }
    bool hasHeightForWidth() const override { return false; }
    int heightForWidth(int /*width*/) const override { return -1; }
};

/// The width that the label asks for when it shows this text.
int widthFor(QLabel &label, const QString &text)
{
    const QString before = label.text();
    label.setText(text);
    const int width = label.sizeHint().width();
    label.setText(before);
    return width;
}

} // namespace

namespace LabelRoom {

void growUpTo(QLabel &label, const QString &longest)
{
    label.setMaximumWidth(std::max(label.minimumWidth(), widthFor(label, longest)));
    new Shortener(label);
}

void keep(QLabel &label, const QString &longest)
{
    label.setMinimumWidth(std::max(label.minimumWidth(), widthFor(label, longest)));
    QSizePolicy policy = label.sizePolicy();
    policy.setHorizontalPolicy(QSizePolicy::Ignored);
    label.setSizePolicy(policy);
    new Shortener(label);
}

void holdAsItIs(QLabel &label, const QString & /*longest*/)
{
    const auto layouts = label.parentWidget()->findChildren<QBoxLayout *>();
    for (QBoxLayout *layout : layouts) {
        const int place = layout->indexOf(&label);
        if (place >= 0) {
            delete layout->takeAt(place);
            layout->insertItem(place, new HeldPlace(&label));
        }
    }
}

} // namespace LabelRoom
