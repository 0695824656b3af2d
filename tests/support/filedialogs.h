#pragma once

#include <QString>
#include <QStringList>

#include <functional>

/// The real file dialogs, answered while they block their caller.
namespace filedialogs {

/// What a file dialog showed when it opened; empty texts when none did.
struct Seen {
    QString title;
    QString folder;
    QString filter;
    /// The text of the box that the answer brought up, such as the question before a file is replaced.
    QString question;
    /// Whether that text is drawn letter for letter.
    bool questionIsPlain = false;
};

/// Runs `action`, types `path` into the file dialog that it opens, and accepts; an empty path cancels the
/// dialog. A question is answered with Yes, any other box is closed; a dialog that then stays open is
/// cancelled.
Seen answer(const std::function<void()> &action, const QString &path);

/// Runs `action` and gives the files that the file dialog lists which it opens, by name, before it is
/// cancelled. Waits for the first one, a few seconds at most. May choose the dialog's own filter before.
QStringList listed(const std::function<void()> &action, bool choosesFilter = false);

} // namespace filedialogs
