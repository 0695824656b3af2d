#include "app/tabbutton.h"

#include "widgets/palette.h"

#include <QLayout>
#include <QPainter>

#include <algorithm>

TabButton::TabButton(QWidget *parent)
    : PaintedButton(parent)
{
}

void TabButton::setSelected(bool nowSelected)
{
    selected = nowSelected;
    update();
}

void TabButton::setText(const QString &newText)
{
    PaintedButton::setText(newText);
    placeMark();
}

void TabButton::resizeEvent(QResizeEvent *) { placeMark(); }

// Beside the text, and at the end of the tab where that leaves no room.
void TabButton::placeMark()
{
    constexpr int gap = 10;
    constexpr int markWidth = 24;
    constexpr int least = 10;
    if (layout() != nullptr) {
        const int right = (width() - textWidth()) / 2 - gap - markWidth;
        layout()->setContentsMargins(0, 0, std::max(least, right), 0);
    }
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
