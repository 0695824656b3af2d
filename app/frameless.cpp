#include "app/frameless.h"

#include <QDebug>
#include <QHoverEvent>
#include <QMouseEvent>
#include <QRubberBand>
#include <QWidget>

namespace {

constexpr int probeSize = 5;

/// Where the drag's start lies once the window is narrower by `shrunk`, now being `size` wide.
int dragStart(int start, int size, int shrunk)
{
    const int half = size / 2;
    if (start <= half) {
        return start;
    }
    return start >= shrunk + half ? half : start - shrunk;
}

Qt::CursorShape edgeCursor(int edge)
{
    switch (edge) {
    case FrameLess::TopEdge:
    case FrameLess::BottomEdge:
        return Qt::SizeVerCursor;
    case FrameLess::LeftEdge:
    case FrameLess::RightEdge:
        return Qt::SizeHorCursor;
    case FrameLess::TopLeftEdge:
    case FrameLess::BottomRightEdge:
        return Qt::SizeFDiagCursor;
    default:
        return Qt::SizeBDiagCursor;
    }
}

} // namespace

FrameLess::FrameLess(QWidget *targetWindow, bool isResizable)
    : target(targetWindow)
    , resizable(isResizable)
{
    target->setAttribute(Qt::WA_MouseTracking);
    target->setWindowFlags(target->windowFlags() | Qt::FramelessWindowHint);
    target->setAttribute(Qt::WA_Hover);
    target->installEventFilter(this);
    rubberBand = std::make_unique<QRubberBand>(QRubberBand::Rectangle);
    cursorProbe = new QWidget(target);
    cursorProbe->setAutoFillBackground(false);
    cursorProbe->setWindowOpacity(0.0);
    if (!resizable) {
        cursorProbe->installEventFilter(this);
    }
    cursorProbe->resize(probeSize, probeSize);
}

FrameLess::~FrameLess()
{
    qDebug() << "FrameLess::~FrameLess()...1";
    if (rubberBand) {
        rubberBand->deleteLater();
        rubberBand.reset();
    }
    qDebug() << "FrameLess::~FrameLess()...2";
}

bool FrameLess::eventFilter(QObject *watched, QEvent *event)
{
    bool handled = true;
    switch (event->type()) {
    case QEvent::MouseButtonPress:
        onPress(static_cast<QMouseEvent *>(event));
        break;
    case QEvent::MouseButtonRelease:
        onRelease(static_cast<QMouseEvent *>(event));
        break;
    case QEvent::MouseMove:
        onMove(static_cast<QMouseEvent *>(event));
        break;
    case QEvent::Leave:
        if (!leftPressed) {
            target->unsetCursor();
        }
        break;
    case QEvent::HoverMove:
        updateCursor(target->mapToGlobal(static_cast<QHoverEvent *>(event)->pos()));
        break;
    default:
        handled = false;
    }
    if (handled && hoverEdge != NoEdge && pressEdge != NoEdge) {
        return false;
    }
    return target->eventFilter(watched, event);
}

bool FrameLess::isPinned() const { return target->isFullScreen() || target->isMaximized(); }

// All bounds belong to their band, and the first band wins. The left one alone reaches out of the frame.
int FrameLess::edgeAt(const QPoint &globalPos, const QRect &frame) const
{
    if (isPinned() || !resizable) {
        return NoEdge;
    }
    const int left = frame.x();
    const int top = frame.y();
    const int right = left + frame.width();
    const int bottom = top + frame.height();
    const int width = borderWidth;
    const struct {
        Edge edge;
        int fromX, toX, fromY, toY;
    } bands[] = {
        {LeftEdge, left - width, left + width, top + width, bottom - width},
        {RightEdge, right - width, right, top + width, bottom - width},
        {BottomEdge, left + width, right - width, bottom - width, bottom},
        {TopEdge, left + width, right - width, top, top + width},
        {BottomLeftEdge, left, left + width, bottom - width, bottom},
        {BottomRightEdge, right - width, right, bottom - width, bottom},
        {TopRightEdge, right - width, right, top, top + width},
        {TopLeftEdge, left, left + width, top, top + width},
    };
    for (const auto &band : bands) {
        if (globalPos.x() >= band.fromX && globalPos.x() <= band.toX && globalPos.y() >= band.fromY
            && globalPos.y() <= band.toY) {
            return band.edge;
        }
    }
    return NoEdge;
}

void FrameLess::updateCursor(const QPoint &globalPos)
{
    if (isPinned()) {
        if (cursorSet) {
            target->unsetCursor();
            cursorProbe->hide();
        }
        return;
    }
    if (leftPressed) {
        return;
    }
    hoverEdge = edgeAt(globalPos, target->frameGeometry());
    cursorSet = hoverEdge != NoEdge;
    if (!cursorSet) {
        target->unsetCursor();
        cursorProbe->hide();
        return;
    }
    target->setCursor(edgeCursor(hoverEdge));
    cursorProbe->move(target->mapFromGlobal(globalPos) - QPoint(2, 2));
    cursorProbe->raise();
    cursorProbe->show();
}

void FrameLess::onPress(const QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton || target->isMaximized()) {
        return;
    }
    leftPressed = true;
    target->grabMouse(target->cursor());
    pressEdge = edgeAt(event->globalPos(), target->frameGeometry());
    rubberBand->setGeometry(target->frameGeometry());
    const QMargins border(borderWidth, borderWidth, borderWidth, borderWidth);
    if (target->rect().marginsRemoved(border).contains(event->pos())) {
        dragging = true;
        dragX = event->pos().x();
        dragY = event->pos().y();
    }
}

void FrameLess::onRelease(const QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton) {
        leftPressed = false;
        dragging = false;
        target->releaseMouse();
    }
}

void FrameLess::onMove(const QMouseEvent *event)
{
    if (!leftPressed) {
        updateCursor(event->globalPos());
    } else if (dragging) {
        moveTarget(event);
    } else if (pressEdge != NoEdge) {
        resizeTarget(event->globalPos());
    }
}

void FrameLess::moveTarget(const QMouseEvent *event)
{
    if (isPinned()) {
        target->showNormal();
        return;
    }
    const QSize size = target->frameGeometry().size();
    const QSize shrunk = rubberBand->frameGeometry().size() - size;
    if (shrunk == QSize(0, 0)) {
        target->move(target->frameGeometry().topLeft() + event->pos() - QPoint(dragX, dragY));
        return;
    }
    // The window has come back from the maximized state since the press.
    dragX = dragStart(dragX, size.width(), shrunk.width());
    dragY = dragStart(dragY, size.height(), shrunk.height());
    target->move(event->globalPos() - QPoint(dragX, dragY));
    rubberBand->setGeometry(target->frameGeometry());
}

// Left and top are held back at the minimum size; on the right and at the bottom Qt's minimum size does it.
void FrameLess::resizeTarget(const QPoint &globalPos)
{
    constexpr int lefts = LeftEdge | TopLeftEdge | BottomLeftEdge;
    constexpr int tops = TopEdge | TopLeftEdge | TopRightEdge;
    constexpr int rights = RightEdge | TopRightEdge | BottomRightEdge;
    constexpr int bottoms = BottomEdge | BottomLeftEdge | BottomRightEdge;

    const QRect start = rubberBand->frameGeometry();
    QPoint topLeft((pressEdge & lefts) != 0 ? globalPos.x() : start.left(),
                   (pressEdge & tops) != 0 ? globalPos.y() : start.top());
    const QPoint bottomRight((pressEdge & rights) != 0 ? globalPos.x() : start.right(),
                             (pressEdge & bottoms) != 0 ? globalPos.y() : start.bottom());
    const QRect wanted(topLeft, bottomRight);
    if (wanted.width() < target->minimumWidth()) {
        topLeft.setX(target->frameGeometry().x());
    }
    if (wanted.height() < target->minimumHeight()) {
        topLeft.setY(target->frameGeometry().y());
    }
    const QRect result(topLeft, bottomRight);
    target->setGeometry(result);
    rubberBand->setGeometry(result);
}
