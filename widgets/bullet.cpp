#include "widgets/bullet.h"

#include <QLayout>
#include <QPainter>
#include <QStyle>

namespace {

/// How far down the middle of a label's small letters lies in its first line.
qreal firstLine(const QLabel *label)
{
    const int edge = label->margin();
    const QRect room = label->contentsRect().adjusted(edge, edge, -edge, -edge);
    const int wrap = label->wordWrap() ? Qt::TextWordWrap : 0;
    const QFontMetrics metrics = label->fontMetrics();
    const QSize text = metrics.boundingRect(room, wrap, label->text()).size();
    const int top = QStyle::alignedRect(Qt::LeftToRight, label->alignment(), text, room).top();
    return top + metrics.ascent() - metrics.xHeight() / 2.0;
}

} // namespace

void Bullet::paintEvent(QPaintEvent *event)
{
    const QLayout *row = parentWidget()->layout();
    QLayoutItem *next = row->itemAt(row->indexOf(this) + 1);
    const auto *caption = next == nullptr ? nullptr : qobject_cast<const QLabel *>(next->widget());
    if (caption == nullptr) {
        PlainLabel::paintEvent(event);
        return;
    }
    constexpr qreal radius = 2;
    constexpr qreal toEnd = 4;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(palette().color(foregroundRole()));
    painter.drawEllipse(QPointF(width() - toEnd, caption->y() + firstLine(caption) - y()), radius, radius);
}
