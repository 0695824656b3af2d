#include "languages/languagebox.h"

#include <QCoreApplication>
#include <QKeyEvent>

namespace {

bool opensLists(const QKeyEvent &event)
{
    switch (event.key()) {
    case Qt::Key_Space:
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Down:
    case Qt::Key_F4:
        return !event.isAutoRepeat();
    default:
        return false;
    }
}

} // namespace

LanguageBox::LanguageBox(QWidget *parent)
    : QGroupBox(parent)
{
}

// Not in keyPressEvent: a group box keeps Space for a check mark, even if it has none.
bool LanguageBox::event(QEvent *event)
{
    if (event->type() == QEvent::KeyPress && opensLists(*static_cast<QKeyEvent *>(event))) {
        press();
        return true;
    }
    return QGroupBox::event(event);
}

// The window opens and closes the popup in its event filter.
void LanguageBox::press()
{
    const QPoint middle = rect().center();
    QMouseEvent press(QEvent::MouseButtonPress, middle, mapTo(window(), middle), mapToGlobal(middle),
                      Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(this, &press);
    emit pressedByKey();
}
