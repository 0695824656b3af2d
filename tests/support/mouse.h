#pragma once

#include <QPoint>
#include <QStringList>

class QWidget;

/// The pointer of the X server or of Windows, moved and pressed from outside as a hand does it. Events are
/// served meanwhile.
namespace mouse {

/// Puts a window where the test wants it, so that the places of its widgets are those on the screen: until
/// the window manager has told where it put a window, they needn't be.
void place(QWidget &window, const QPoint &topLeft);

/// Moves the pointer; returns once it is there.
void moveTo(const QPoint &globalPos);

/// Presses or releases a button: 1 left, 3 right, 5 the wheel turned down.
void press(int button = 1);
void release(int button = 1);

/// Presses the left button at `from`, moves by `distance` in one step, and releases it there.
void drag(const QPoint &from, const QPoint &distance);

} // namespace mouse
