#include "widgets/jsonlist.h"

#include <QChildEvent>
#include <QCoreApplication>
#include <QFileDialog>
#include <QFileSystemModel>
#include <QMessageBox>

namespace {

/// The text of the rest of the tool, and nothing of a frame that the window above may have.
QString plainLook()
{
    return QStringLiteral("* { font-family: \"Noto Sans\"; font-size: 10pt; }"
                          "QDialog { border: none; border-radius: 0; background-color: #f2f2f2; }");
}

} // namespace

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
        if (auto *dialog = qobject_cast<QFileDialog *>(child)) {
            dialog->setStyleSheet(plainLook());
            dialog->installEventFilter(this);
            new PlainQuestions(dialog);
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

PlainQuestions::PlainQuestions(QObject *parent)
    : QObject(parent)
{
    QCoreApplication::instance()->installEventFilter(this);
}

bool PlainQuestions::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Polish) {
        if (auto *question = qobject_cast<QMessageBox *>(watched)) {
            question->setTextFormat(Qt::PlainText);
        }
    }
    return QObject::eventFilter(watched, event);
}
