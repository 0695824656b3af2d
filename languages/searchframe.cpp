#include "languages/searchframe.h"

#include "widgets/palette.h"

#include <QApplication>
#include <QLineEdit>
#include <QPainter>

SearchFrame::SearchFrame(QWidget *parent)
    : QFrame(parent)
{
    connect(qApp, &QApplication::focusChanged, this, qOverload<>(&QWidget::update));
}

void SearchFrame::paintEvent(QPaintEvent *event)
{
    QFrame::paintEvent(event);
    if (qobject_cast<QLineEdit *>(focusWidget()) == nullptr || !focusWidget()->hasFocus()) {
        return;
    }
    constexpr int width = 2;
    constexpr int corner = 15; // as that of the frame, in the form
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(QColor(palette::focus.value), width));
    painter.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), corner - 1, corner - 1);
}
