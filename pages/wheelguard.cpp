#include "pages/wheelguard.h"

#include <QComboBox>
#include <QEvent>

void WheelGuard::guard(QWidget *page)
{
    auto *guard = new WheelGuard(page);
    const auto combos = page->findChildren<QComboBox *>();
    for (QComboBox *combo : combos) {
        // The wheel gives no focus, and the width doesn't hang on lists of hundreds of items.
        combo->setFocusPolicy(Qt::StrongFocus);
        combo->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
        combo->installEventFilter(guard);
    }
}

bool WheelGuard::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Wheel) {
        // Taken from the combo box and left unaccepted, so that the scroll area above gets it.
        event->ignore();
        return true;
    }
    return QObject::eventFilter(watched, event);
}
