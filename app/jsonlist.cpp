#include "app/jsonlist.h"

#include <QChildEvent>
#include <QFileDialog>
#include <QFileSystemModel>

JsonList::JsonList(QObject *window)
    : QObject(window)
{
    window->installEventFilter(this);
}

// The dialog sets its own filter up to the moment when it is shown, and again when one is chosen.
bool JsonList::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::ChildPolished) {
        QObject *child = static_cast<QChildEvent *>(event)->child();
        if (qobject_cast<QFileDialog *>(child) != nullptr) {
            child->installEventFilter(this);
        }
    } else if (event->type() == QEvent::Show && watched != parent()) {
        if (auto *files = watched->findChild<QFileSystemModel *>()) {
            const auto list = [files] { files->setNameFilters({QStringLiteral("*.json")}); };
            list();
            connect(static_cast<QFileDialog *>(watched), &QFileDialog::filterSelected, files, list);
        }
    }
    return QObject::eventFilter(watched, event);
}
