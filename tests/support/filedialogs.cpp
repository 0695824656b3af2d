#include "support/filedialogs.h"

#include <QApplication>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>

namespace {

void confirmOverwrite()
{
    if (auto *question = qobject_cast<QMessageBox *>(QApplication::activeModalWidget())) {
        QTest::keyClick(question, Qt::Key_Y, Qt::AltModifier);
        if (question->isVisible()) {
            question->button(QMessageBox::Yes)->click();
        }
    }
}

} // namespace

filedialogs::Seen filedialogs::answer(const std::function<void()> &action, const QString &path)
{
    Seen seen;
    QTimer poll;
    bool answered = false;
    QObject::connect(&poll, &QTimer::timeout, &poll, [&] {
        auto *dialog = qobject_cast<QFileDialog *>(QApplication::activeModalWidget());
        if (dialog == nullptr || !dialog->isVisible()) {
            confirmOverwrite();
            return;
        }
        if (answered) {
            return;
        }
        answered = true;
        seen = {dialog->windowTitle(), dialog->directory().path(),
                dialog->nameFilters().join(QLatin1Char('|'))};
        if (path.isEmpty()) {
            QTest::keyClick(dialog, Qt::Key_Escape);
            return;
        }
        auto *name = dialog->findChild<QLineEdit *>(QStringLiteral("fileNameEdit"));
        name->setFocus();
        name->clear();
        QTest::keyClicks(name, path);
        QTest::keyClick(name, Qt::Key_Return);
        if (dialog->isVisible()
            && qobject_cast<QMessageBox *>(QApplication::activeModalWidget()) == nullptr) {
            QTest::keyClick(dialog, Qt::Key_Escape);
        }
    });
    poll.start(20);
    action();
    return seen;
}
