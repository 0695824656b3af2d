#include "support/mouse.h"

#include <QTest>
#include <QWidget>

void mouse::place(QWidget &window, const QPoint &topLeft)
{
    // A window manager may have placed the window without Qt having heard of it.
    window.move(topLeft + QPoint(1, 1));
    window.move(topLeft);
    if (!QTest::qWaitFor([&window, topLeft] { return window.pos() == topLeft; })) {
        qFatal("The window doesn't go to %d, %d", topLeft.x(), topLeft.y());
    }
    QTest::qWait(50);
}

void mouse::drag(const QPoint &from, const QPoint &distance)
{
    moveTo(from);
    press();
    moveTo(from + distance);
    release();
}
