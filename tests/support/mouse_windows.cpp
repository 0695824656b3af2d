#include "support/mouse.h"

#include <QCursor>
#include <QTest>

#include <array>

#include <windows.h>

namespace {

struct Button {
    DWORD press;
    DWORD release;
    DWORD data;
};

/// By the numbers that X gives them: the wheel is buttons, too.
Button buttonOf(int number)
{
    static const std::array<Button, 5> buttons{{{MOUSEEVENTF_LEFTDOWN, MOUSEEVENTF_LEFTUP, 0},
                                                {MOUSEEVENTF_MIDDLEDOWN, MOUSEEVENTF_MIDDLEUP, 0},
                                                {MOUSEEVENTF_RIGHTDOWN, MOUSEEVENTF_RIGHTUP, 0},
                                                {MOUSEEVENTF_WHEEL, 0, WHEEL_DELTA},
                                                {MOUSEEVENTF_WHEEL, 0, static_cast<DWORD>(-WHEEL_DELTA)}}};
    return buttons.at(static_cast<std::size_t>(number - 1));
}

void send(DWORD flags, DWORD data)
{
    if (flags != 0) {
        mouse_event(flags, 0, 0, data, 0);
    }
    QTest::qWait(30);
}

} // namespace

void mouse::moveTo(const QPoint &globalPos)
{
    SetCursorPos(globalPos.x(), globalPos.y());
    if (!QTest::qWaitFor([globalPos] { return QCursor::pos() == globalPos; })) {
        qFatal("The pointer doesn't reach %d, %d", globalPos.x(), globalPos.y());
    }
    QTest::qWait(30);
}

void mouse::press(int button) { send(buttonOf(button).press, buttonOf(button).data); }

void mouse::release(int button) { send(buttonOf(button).release, 0); }
