#pragma once

#include "support/window.h"

#include <QTemporaryDir>

/// An installer at the window: walks the wizard by its buttons and answers its file dialogs.
class Installer
{
public:
    Window window;
    QTemporaryDir folder;

    /// New by the tool bar, medium temperature, and "R32" or "R410".
    void startNew(const QString &refrigerant);
    /// Writes the document into a file of the folder and opens it by the tool bar. Returns the file's path.
    QString open(const QJsonDocument &document);

    void goToDipSwitches() { press("dipSwitchButton"); }
    void goToSettings() { press("settingButton"); }
    void goToValidation() { press("validationButton"); }
    void press(const char *button) { Window::click(&window.dialog, button); }
    void tab(const char *tabButton);

    /// Presses Save and, if the tool asks, gives it `path`. Returns whether it asked. What then stands in the
    /// file is kept beside the test program, for the test of the file's schema.
    bool save(const QString &path = QString());

    /// Chooses a date on the User tab.
    void enterDate(int year, int month, int day);

    QString message() const { return Window::find<QLabel>(&window.dialog, "messageLabel")->text(); }

    /// The bytes of a file.
    static QByteArray content(const QString &path);
    /// What Save is to write: the document with the values of a hand-written table (path, tab, JSON value a
    /// line).
    static QByteArray expected(const QJsonDocument &document, const QString &table);

private:
    void keepSaved() const;

    QString file; ///< what was opened or given a name last
};
