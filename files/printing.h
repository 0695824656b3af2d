#pragma once

#include "files/check.h"
#include "files/texts.h"

#include <QTextStream>

/// Prints verdicts as they come, as lines or as JSON, and sums at the end.
class Printer
{
public:
    explicit Printer(const Options &options);

    /// False when the language isn't there, which has been told.
    bool isReady() const { return texts.has_value(); }
    /// Shows on a terminal how far it is.
    void progress();
    void print(const QString &file, const Reading &reading, const Verdict &verdict);
    /// Prints the sums. Returns the exit code.
    int finish();

private:
    struct Sums {
        int files = 0;
        int sound = 0;
        int faulty = 0;
        int unusable = 0;
        int errors = 0;
        int warnings = 0;
        int notes = 0;
    };

    void count(const Verdict &verdict);
    void printLines(const QString &file, const Reading &reading, const Verdict &verdict);
    void printJson(const QString &file, const Reading &reading, const Verdict &verdict);
    void clearProgress();

    const Options &options;
    std::optional<Texts> texts;
    QTextStream out;
    Sums sums;
    bool onTerminal = false;
    bool progressShown = false;
};

/// What comes from a file or a name goes to a terminal without what could steer it.
namespace printing {

QString plain(const QString &text);
/// The texts of the language; nothing, and a message, when there is none of that name.
std::optional<Texts> language(const QString &name);
/// On one line for programs.
QString json(const QJsonObject &object);
/// To the standard output as it stands. Returns what end() does.
int say(const QString &text, int code = 0);
/// Ends an output. Returns the exit code; another, and a message, when not all of it could be written.
int end(QTextStream *out, int code);
void complain(const QString &message);

} // namespace printing
