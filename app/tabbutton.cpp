#include "app/tabbutton.h"

#include "widgets/palette.h"

#include <QPainter>

TabButton::TabButton(QWidget *parent)
    : PaintedButton(parent)
{
}

void TabButton::setSelected(bool nowSelected)
{
    selected = nowSelected;
    update();
}

void TabButton::click() { emit clicked(); }

void TabButton::paintEvent(QPaintEvent *)
{
    constexpr int lineHeight = 2;
    const bool marked = selected || pressed;
    QPainter painter(this);
    painter.fillRect(rect(), Qt::white);
    painter.fillRect(0, height() - lineHeight, width(), lineHeight,
                     QColor((marked ? palette::accent : palette::line).value));
    drawText(painter, QRect(0, 0, width(), height() - lineHeight));
}
