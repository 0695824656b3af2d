#include "app/paintedbutton.h"

#include "widgets/plaintext.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

PaintedButton::PaintedButton(QWidget *parent)
    : QWidget(parent)
{
    // By a click, too: with the focus left on the page that goes, Qt would look for a control to give it to.
    setFocusPolicy(Qt::StrongFocus);
}

void PaintedButton::setText(const QString &newText)
{
    text = newText;
    update();
}

void PaintedButton::enterEvent(QEvent *)
{
    hovered = true;
    update();
}

void PaintedButton::leaveEvent(QEvent *)
{
    if (hovered) {
        hovered = false;
        update();
    }
}

void PaintedButton::mousePressEvent(QMouseEvent *event)
{
    if (event->buttons() == Qt::LeftButton) {
        pressed = true;
        update();
    }
}

// The place of the release doesn't matter, and neither does the button that is released.
void PaintedButton::mouseReleaseEvent(QMouseEvent *)
{
    if (pressed) {
        pressed = false;
        update();
        click();
    }
}

void PaintedButton::keyPressEvent(QKeyEvent *event)
{
    const bool clicks = event->key() == Qt::Key_Space || event->key() == Qt::Key_Return
        || event->key() == Qt::Key_Enter;
    if (clicks && !event->isAutoRepeat()) {
        click();
    } else {
        QWidget::keyPressEvent(event);
    }
}

QFont PaintedButton::large() const
{
    QFont larger = font();
    larger.setPointSize(15);
    return larger;
}

int PaintedButton::textWidth() const { return QFontMetrics(large()).size(0, plaintext::shown(text)).width(); }

void PaintedButton::drawText(QPainter &painter, const QRect &place) const
{
    if (text.isEmpty()) {
        return;
    }
    painter.setFont(large());
    painter.drawText(place, Qt::AlignHCenter | Qt::AlignVCenter, plaintext::shown(text));
}
