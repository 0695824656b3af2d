#include "app/pagearea.h"

#include <QEvent>
#include <QScrollBar>

PageArea::PageArea(QWidget *parent)
    : QScrollArea(parent)
{
    // The bar itself is always shown: its container comes and goes.
    verticalScrollBar()->parentWidget()->installEventFilter(this);
    keepRoom(false);
}

bool PageArea::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == verticalScrollBar()->parentWidget()
        && (event->type() == QEvent::ShowToParent || event->type() == QEvent::HideToParent)) {
        keepRoom(event->type() == QEvent::ShowToParent);
    }
    return QScrollArea::eventFilter(watched, event);
}

void PageArea::keepRoom(bool barIsShown)
{
    constexpr int widthOfBar = 12; // as the style sheet has it
    setViewportMargins(0, 0, barIsShown ? 0 : widthOfBar, 0);
}
