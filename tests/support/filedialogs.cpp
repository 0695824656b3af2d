#include "support/filedialogs.h"

#include "support/window.h"

#include <QApplication>
#include <QFileDialog>
#include <QLineEdit>
#include <QListView>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>

namespace {

void typeAndAccept(QFileDialog *dialog, const QString &path)
{
    auto *name = dialog->findChild<QLineEdit *>(QStringLiteral("fileNameEdit"));
    name->setFocus();
    // Not key by key: completions that come up meanwhile would take the place of what is typed.
    name->setText(path);
    // Returns once the boxes that come up have been closed.
    QTest::keyClick(name, Qt::Key_Return);
    if (dialog->isVisible()) {
        dialog->reject();
    }
}

QString closeBox(QMessageBox *box)
{
    const QString text = box->text();
    QAbstractButton *yes = box->button(QMessageBox::Yes);
    (yes != nullptr ? yes : box->buttons().constFirst())->click();
    return text;
}

} // namespace

filedialogs::Seen filedialogs::answer(const std::function<void()> &action, const QString &path)
{
    Seen seen;
    QTimer poll;
    bool answered = false;
    QObject::connect(&poll, &QTimer::timeout, &poll, [&] {
        QWidget *modal = QApplication::activeModalWidget();
        if (auto *box = qobject_cast<QMessageBox *>(modal)) {
            seen.questionIsPlain = box->textFormat() == Qt::PlainText;
            seen.question = closeBox(box);
        } else if (auto *dialog = qobject_cast<QFileDialog *>(modal);
                   dialog != nullptr && dialog->isVisible() && !answered) {
            answered = true;
            seen = {dialog->windowTitle(), dialog->directory().path(),
                    dialog->nameFilters().join(QLatin1Char('|')), QString(), false};
            // Not in here: a timer doesn't fire again below its own slot, and a box may come up.
            QTimer::singleShot(0, dialog, [dialog, path] {
                // Closed before it has the focus, it may leave it with no window.
                static_cast<void>(QTest::qWaitForWindowActive(dialog));
                if (path.isEmpty()) {
                    QTest::keyClick(dialog, Qt::Key_Escape);
                } else {
                    typeAndAccept(dialog, path);
                }
            });
        }
    });
    poll.start(20);
    action();
    return seen;
}

QStringList filedialogs::listed(const std::function<void()> &action, bool choosesFilter)
{
    QStringList names;
    QTimer poll;
    int rounds = 0;
    QObject::connect(&poll, &QTimer::timeout, &poll, [&] {
        auto *dialog = qobject_cast<QFileDialog *>(QApplication::activeModalWidget());
        if (dialog == nullptr) {
            return;
        }
        if (choosesFilter) {
            choosesFilter = false;
            Window::choose(dialog, "fileTypeCombo", dialog->nameFilters().constFirst());
            return;
        }
        const auto *view = dialog->findChild<QListView *>(QStringLiteral("listView"));
        for (int row = 0; row < view->model()->rowCount(view->rootIndex()); ++row) {
            names.append(view->model()->index(row, 0, view->rootIndex()).data().toString());
        }
        if (!names.isEmpty() || ++rounds == 150) {
            dialog->reject();
        }
    });
    poll.start(20);
    action();
    return names;
}
