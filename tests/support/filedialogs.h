#pragma once

#include <QString>

#include <functional>

/// The real file dialogs, answered while they block their caller.
namespace filedialogs {

/// Runs `action`, types `path` into the file dialog that it opens, and accepts; an empty path cancels the
/// dialog. Returns the dialog's window title and the folder in which it started, or empty texts when none
/// opened.
struct Seen {
    QString title;
    QString folder;
    QString filter;
};
Seen answer(const std::function<void()> &action, const QString &path);

} // namespace filedialogs
