#pragma once

#include "languages/language.h"

#include <QObject>

/// The languages beside the executable: which there are, the one in force, and the copy that the editor works
/// on. Its signals tell the windows what to do. Messages name the dialog, whose operations these are.
class Languages : public QObject
{
    Q_OBJECT

public:
    Languages();
    /// The languages of the one dialog.
    static Languages &instance();

    Language inForce;
    Language snapshot;
    /// The file that holds the name of the language in force and nothing else.
    QString iniPath;

    /// Those that the folder holds files of, in no order of their own.
    static QStringList names();
    /// What a language file is called without ".json", wherever that stands.
    static QString nameOf(const QString &path);

    /// Reads the name of the language from the file and puts that language in force.
    void load(const QString &namePath);
    /// Copies a language file into the folder and puts it in force.
    void loadAnotherPath(const QString &source);
    void loadDefault();
    /// Remembers the name for the next run and shows it.
    void saveName(const QString &name);
    /// After a new file: lists it, and reads the language whose name is remembered.
    void reload();

signals:
    void nameChanged(const QString &name);
    /// The folder may hold other files than before.
    void filesChanged();
    /// The texts of the window itself are to follow; those of the pages follow `changed`.
    void replaced();
    void changed();
    void reloaded();
    /// An editor is being made, a window that wants the frame of the tool's windows.
    void editorMade(QWidget *editor);
};
