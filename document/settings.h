#pragma once

#include <QJsonDocument>

/// The one settings document: its values by path, how it comes from a file and goes into one. Messages name
/// the dialog, whose operations these are.
struct Settings {
    /// Null until New or Open.
    QJsonDocument document;
    /// After New the path of the default document, after Open or the first Save that of the file. Empty: no
    /// document.
    QString filePath;
    /// The next Save asks for a file name.
    bool isNewFile = true;
    /// Nothing sets it; the message of a refused Save prints it.
    bool saveValidated = false;

    QJsonValue value(const QString &path) const;
    /// Does nothing without a document.
    void setValue(const QString &path, const QJsonValue &value);

    /// Loads the default document of "R32" or "R410", in any case. False for any other text.
    bool startWith(const QString &refrigerant);
    bool open(const QString &path);
    bool load(const QString &path);
    /// Whether Save may go on, with the steps done or not.
    bool allowsSave(bool stepsDone) const;
    /// Takes the name that a new document is saved under from now on.
    void takeName(const QString &path);
    void save(const QString &path) const;
};
