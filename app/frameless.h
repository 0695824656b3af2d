#pragma once

#include <QObject>

#include <memory>

class QMouseEvent;
class QPoint;
class QRect;
class QRubberBand;
class QWidget;

/// Makes a window without a system frame movable by its inner area and resizable at its edges. It takes the
/// frame off the window and attaches itself as event filter; the window's own filter still sees every event.
/// A press reaches it only where no control takes it.
class FrameLess : public QObject
{
public:
    /// One edge at a time: a corner has a code of its own.
    enum Edge {
        NoEdge = 0,
        LeftEdge = 1,
        TopEdge = 2,
        RightEdge = 4,
        BottomEdge = 8,
        TopLeftEdge = 16,
        TopRightEdge = 32,
        BottomLeftEdge = 64,
        BottomRightEdge = 128
    };

    /// Without `resizable` no edge is ever found. A member of the target, or a child of it.
    FrameLess(QWidget *target, bool resizable);
    ~FrameLess() override;

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    bool isPinned() const;
    int edgeAt(const QPoint &globalPos, const QRect &frame) const;
    void updateCursor(const QPoint &globalPos);
    void onPress(const QMouseEvent *event);
    void onRelease(const QMouseEvent *event);
    void onMove(const QMouseEvent *event);
    void moveTarget(const QMouseEvent *event);
    void resizeTarget(const QPoint &globalPos);

    /// Lies under the pointer on an edge, so that the cursor shows above children that reach to the edge.
    QWidget *cursorProbe = nullptr;
    QWidget *target;
    /// Never shown: holds the frame geometry from which a move or resize goes on.
    std::unique_ptr<QRubberBand> rubberBand;
    bool cursorSet = false;
    bool leftPressed = false;
    /// Edge codes; that of the press stays until the next press.
    int pressEdge = NoEdge;
    int hoverEdge = NoEdge;
    /// Pixels.
    int borderWidth = 5;
    /// Where in the target the drag began.
    int dragX = 0;
    int dragY = 0;
    bool dragging = false;
    bool resizable;
};
