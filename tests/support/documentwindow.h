#pragma once

#include "pages/product/productselection.h"
#include "support/testfiles.h"
#include "support/window.h"

#include <QDir>
#include <QRegularExpression>
#include <QTemporaryDir>

/// The window with what New, Open and Save need: a desktop of the test's own, a folder for files, and the
/// real dialogs.
class DocumentWindow : public Window
{
public:
    DocumentWindow() { messages::clear(); }

    /// Makes an empty desktop in `home`; before the first window.
    static void useDesktopIn(const QTemporaryDir &home)
    {
        qputenv("HOME", home.path().toUtf8());
        qputenv("XDG_CONFIG_HOME", home.filePath(QStringLiteral(".config")).toUtf8());
        QDir().mkpath(desktop(home));
    }

    /// Where the desktop is then. Windows doesn't let a program move it for itself.
    static QString desktop(const QTemporaryDir &home)
    {
#ifdef Q_OS_WIN
        Q_UNUSED(home)
        return QDir::fromNativeSeparators(qEnvironmentVariable("USERPROFILE")) + QStringLiteral("/Desktop");
#else
        return home.filePath(QStringLiteral("Desktop"));
#endif
    }

    /// A file of that name in the folder of this window.
    QString path(const QString &name) const { return folder.filePath(name); }
    QString path() const { return folder.path(); }

    const DialogState &members() const { return dialog.members(); }
    QString shownPath() const { return find<QLabel>(&dialog, "pathLabel")->text(); }
    int step() const { return find<QStackedWidget>(&dialog, "stackedWidget")->currentIndex(); }

    /// What has been logged by New, Open and Save; the file dialogs have messages of their own.
    static QStringList told()
    {
        static const QRegularExpression own(QStringLiteral("^(MainDialog|Select)::|^Load Json Data"));
        return messages::all().filter(own);
    }

    void completeSteps()
    {
        for (const int number : {1, 2, 3}) {
            dialog.setStepCompleted(true, number);
        }
    }
    void clickNew() { click(&dialog, "newButton"); }
    void chooseRefrigerant(const char *radio) { click(page<ProductSelection>(), radio); }
    /// Clicks Open or Save and answers the file dialog with `file`, or cancels it.
    filedialogs::Seen open(const QString &file) { return press("openButton", file); }
    filedialogs::Seen save(const QString &file) { return press("saveButton", file); }

    /// A write as pages do it, without a guard.
    void write(const QString &documentPath, const QJsonValue &value)
    {
        QMetaObject::invokeMethod(&dialog, "saveJsonData", Q_ARG(QString, documentPath),
                                  Q_ARG(QJsonValue, value));
    }

private:
    filedialogs::Seen press(const char *button, const QString &file)
    {
        return filedialogs::answer([this, button] { click(&dialog, button); }, file);
    }

    QTemporaryDir folder;
};
