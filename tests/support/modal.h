#pragma once

#include <QApplication>
#include <QDialog>
#include <QTimer>

#include <functional>

/// Modal dialogs of the tool, driven while they block their caller.
namespace modal {

/// Runs `action`, and `steps` on the dialog of class D that it opens; a dialog that `steps` leave open is
/// rejected. Returns whether one opened.
template <class D>
bool drive(const std::function<void()> &action, const std::function<void(D *)> &steps)
{
    bool driven = false;
    QTimer poll;
    QObject::connect(&poll, &QTimer::timeout, &poll, [&] {
        auto *dialog = qobject_cast<D *>(QApplication::activeModalWidget());
        if (dialog == nullptr || !dialog->isVisible()) {
            return;
        }
        poll.stop();
        driven = true;
        // Not in here: a timer doesn't fire again below its own slot.
        QTimer::singleShot(0, dialog, [&steps, dialog] {
            steps(dialog);
            if (dialog->isVisible()) {
                dialog->reject();
            }
        });
    });
    poll.start(5);
    action();
    return driven;
}

} // namespace modal
