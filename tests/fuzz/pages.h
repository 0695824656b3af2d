#pragma once

#include "support/window.h"

#include <QApplication>
#include <QTemporaryDir>

#include <array>

/// The window of a target: made once, never painted.
class Pages
{
public:
    Pages();

    /// Opens and closes the bodies of the five sections; a closed section writes nothing.
    void setSectionsOpen(bool open);
    /// Opens the file by Open, as if it had been chosen in the file dialog. It shows, and so loads, the
    /// product page and the dip switch page.
    void open(const QString &path);
    /// Shows the tabs of the Setting step and the result page, which loads them.
    void showSettings();
    /// The same pages get their show events, in that order, but stay hidden: showing takes longer than
    /// loading.
    void loadSettings();
    /// Completes the steps and presses Save.
    void save();

    QString file(const char *name) const { return folder.filePath(QLatin1String(name)); }
    QJsonDocument document() const { return window.dialog.document(); }

private:
    int argc = 1;
    std::array<char, 5> program{"fuzz"};
    char *argv = program.data();
    QApplication application{argc, &argv};
    QTemporaryDir folder;

public:
    Window window;
};
