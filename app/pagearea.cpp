#include "app/pagearea.h"

#include <QEvent>
#include <QHash>
#include <QScrollBar>

PageArea::PageArea(QWidget *parent)
    : QScrollArea(parent)
{
    // The bar itself is always shown: its container comes and goes.
    verticalScrollBar()->parentWidget()->installEventFilter(this);
    keepRoom(false);
}

bool PageArea::turn(int key)
{
    static const QHash<int, QAbstractSlider::SliderAction> moves{
        {Qt::Key_PageUp, QAbstractSlider::SliderPageStepSub},
        {Qt::Key_PageDown, QAbstractSlider::SliderPageStepAdd},
        {Qt::Key_Home, QAbstractSlider::SliderToMinimum},
        {Qt::Key_End, QAbstractSlider::SliderToMaximum}};
    const auto move = moves.find(key);
    const bool turns = move != moves.end() && verticalScrollBar()->maximum() > 0;
    if (turns) {
        verticalScrollBar()->triggerAction(*move);
    }
    return turns;
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
