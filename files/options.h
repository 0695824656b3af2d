#pragma once

#include <QStringList>

/// What the command line asks for.
struct Options {
    enum Command { Check, Diff, Report, Help, Version, Wrong };

    Command command = Wrong;
    QStringList files;
    QString language;
    QString output;
    bool json = false;
    bool fahrenheit = false;
    bool pages = true;     ///< let the wizard's pages judge
    bool paths = false;    ///< tell paths beside captions
    bool defaults = false; ///< compare with the default document
    QString message;       ///< the help, the version, or what is wrong with the command line
};

namespace options {

Options read(const QStringList &arguments);

}
