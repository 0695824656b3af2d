#pragma once

#include <QObject>

/// Serves the file dialogs of a window. It makes them list JSON files: the filter "*.json;" is one for the
/// dialogs of Windows, where a semicolon separates; Qt's own dialog takes it as part of the name, and would
/// list no file. It gives them a plain look, whatever style sheet the window has, and lets their questions
/// name files letter for letter. Attaches itself as event filter; a dialog of the system isn't touched.
class JsonList : public QObject
{
public:
    /// The window owns this.
    explicit JsonList(QObject *window);

    bool eventFilter(QObject *watched, QEvent *event) override;
};

/// As long as it lives, questions name files letter for letter.
class PlainQuestions : public QObject
{
public:
    explicit PlainQuestions(QObject *parent = nullptr);

    bool eventFilter(QObject *watched, QEvent *event) override;
};
