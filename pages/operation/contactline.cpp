#include "pages/operation/contactline.h"

#include <QFocusEvent>

ContactLine::ContactLine(QWidget *parent)
    : QLineEdit(parent)
{
}

void ContactLine::focusInEvent(QFocusEvent *event)
{
    QLineEdit::focusInEvent(event);
    enteredByClick = event->reason() == Qt::MouseFocusReason;
}

void ContactLine::mouseReleaseEvent(QMouseEvent *event)
{
    QLineEdit::mouseReleaseEvent(event);
    if (enteredByClick && event->button() == Qt::LeftButton && !hasSelectedText()) {
        selectAll();
    }
    enteredByClick = false;
}
