#include "files/printing.h"

#include "files/catalogue.h"
#include "files/options.h"
#include "files/reading.h"

#include <QJsonArray>
#include <QJsonDocument>

#include <cstdio>
#ifdef Q_OS_WIN
#include <io.h>
#else
#include <unistd.h>
#endif

namespace {

// From here on a terminal shows how far it is.
constexpr int manyFiles = 20;

bool isTerminal(FILE *stream)
{
#ifdef Q_OS_WIN
    return _isatty(_fileno(stream)) != 0;
#else
    return isatty(fileno(stream)) != 0;
#endif
}

const char *name(Severity severity)
{
    switch (severity) {
    case Severity::Error:
        return "error";
    case Severity::Warning:
        return "warning";
    default:
        return "note";
    }
}

QString counted(int count, const char *what)
{
    return QStringLiteral("%1 %2%3").arg(count).arg(QLatin1String(what),
                                                    QLatin1String(count == 1 ? "" : "s"));
}

QString captionOf(const Finding &finding, const View &view)
{
    const Setting *setting = catalogue::find(finding.path, view);
    return setting == nullptr ? QString()
                              : catalogue::pageCaption(*setting, view.texts) + QStringLiteral(": ")
            + catalogue::caption(*setting, view);
}

QString closing(const Verdict &verdict)
{
    const int errors = verdict.count(Severity::Error);
    QString said = errors == 0 ? QStringLiteral("sound") : counted(errors, "error");
    if (const int warnings = verdict.count(Severity::Warning); warnings > 0) {
        said += QStringLiteral(", ") + counted(warnings, "warning");
    }
    if (const int notes = verdict.count(Severity::Note); notes > 0) {
        said += QStringLiteral(", ") + counted(notes, "note");
    }
    if (verdict.complete) {
        said += QLatin1String(*verdict.complete ? "; the wizard would call it complete"
                                                : "; the wizard would not call it complete");
    }
    return said;
}

/// With what is offered: the few that there are, or "5°C to 20°C".
QString whatOf(const Finding &finding, const View &view)
{
    constexpr int few = 5;
    if (finding.offered.isEmpty()) {
        return finding.what;
    }
    QStringList items;
    for (const QString &item : finding.offered) {
        items.append(catalogue::item(item, view));
    }
    return finding.what + QStringLiteral(": ")
        + (items.size() <= few ? items.join(QStringLiteral(", "))
                               : items.first() + QStringLiteral(" to ") + items.last());
}

/// The file has °C; beside °F that are offered, what it comes to is told.
QString valueOf(const Finding &finding, const View &view, const QJsonObject &document)
{
    const Setting *setting = finding.offered.isEmpty() ? nullptr : catalogue::find(finding.path, view);
    return view.fahrenheit && setting != nullptr && setting->form == Form::Celsius
        ? QStringLiteral("%1 (%2)").arg(finding.value, catalogue::shown(*setting, document, view))
        : finding.value;
}

QJsonObject asJson(const Finding &finding, const View &view)
{
    return {{QStringLiteral("severity"), QLatin1String(name(finding.severity))},
            {QStringLiteral("path"), finding.path},
            {QStringLiteral("caption"), captionOf(finding, view)},
            {QStringLiteral("value"), finding.value},
            {QStringLiteral("what"), whatOf(finding, view)}};
}

} // namespace

QString printing::plain(const QString &text)
{
    QString shown;
    for (const QChar each : text) {
        const bool steers = each.category() == QChar::Other_Control || each.category() == QChar::Other_Format
            || each == QChar::LineSeparator || each == QChar::ParagraphSeparator;
        shown += steers ? QStringLiteral("\\u%1").arg(each.unicode(), 4, 16, QLatin1Char('0'))
                        : QString(each);
    }
    return shown;
}

std::optional<Texts> printing::language(const QString &name)
{
    std::optional<Texts> texts = Texts::load(name);
    if (!texts) {
        complain(QStringLiteral("there is no language %1; there are: %2")
                     .arg(name, Texts::delivered().join(QStringLiteral(", "))));
    }
    return texts;
}

QString printing::json(const QJsonObject &object)
{
    return plain(QString::fromUtf8(QJsonDocument(object).toJson(QJsonDocument::Compact)));
}

int printing::say(const QString &text, int code)
{
    QTextStream out(stdout);
    out.setCodec("UTF-8");
    out << text;
    return end(&out, code);
}

int printing::end(QTextStream *out, int code)
{
    out->flush();
    if (out->status() == QTextStream::Ok) {
        return code;
    }
    complain(QStringLiteral("the output can't be written"));
    return 2;
}

void printing::complain(const QString &message)
{
    QTextStream err(stderr);
    err.setCodec("UTF-8");
    err << "calora-files: " << plain(message) << '\n';
}

Printer::Printer(const Options &theOptions)
    : options(theOptions)
    , texts(printing::language(theOptions.language))
    , out(stdout)
    , onTerminal(isTerminal(stderr) && theOptions.files.size() > manyFiles)
{
    out.setCodec("UTF-8");
}

void Printer::progress()
{
    if (onTerminal) {
        QTextStream(stderr) << '\r' << sums.files + 1 << " of " << options.files.size() << ' ';
        progressShown = true;
    }
}

void Printer::clearProgress()
{
    if (progressShown) {
        QTextStream(stderr) << "\r\033[K";
        progressShown = false;
    }
}

void Printer::print(const QString &file, const Reading &reading, const Verdict &verdict)
{
    clearProgress();
    count(verdict);
    if (options.json) {
        printJson(file, reading, verdict);
    } else {
        printLines(file, reading, verdict);
    }
    out.flush();
}

void Printer::count(const Verdict &verdict)
{
    const int errors = verdict.count(Severity::Error);
    ++sums.files;
    ++(!verdict.trouble.isEmpty() ? sums.unusable : errors > 0 ? sums.faulty : sums.sound);
    sums.errors += errors;
    sums.warnings += verdict.count(Severity::Warning);
    sums.notes += verdict.count(Severity::Note);
}

void Printer::printLines(const QString &file, const Reading &reading, const Verdict &verdict)
{
    const QString who = printing::plain(file) + QStringLiteral(": ");
    if (!verdict.trouble.isEmpty()) {
        out << who << printing::plain(verdict.trouble) << '\n';
        return;
    }
    const View view(*texts, options.fahrenheit, *reading.document);
    for (const Finding &finding : verdict.findings) {
        const QString caption = captionOf(finding, view);
        out << who << name(finding.severity) << ": " << printing::plain(finding.path)
            << (caption.isEmpty() ? QString() : QStringLiteral(" (%1)").arg(printing::plain(caption)))
            << (finding.path.isEmpty() ? "" : ": ")
            << printing::plain(valueOf(finding, view, *reading.document))
            << (finding.value.isEmpty() ? "" : " ") << printing::plain(whatOf(finding, view)) << '\n';
    }
    out << who << closing(verdict) << '\n';
}

void Printer::printJson(const QString &file, const Reading &reading, const Verdict &verdict)
{
    QJsonObject said{{QStringLiteral("file"), file}, {QStringLiteral("usable"), verdict.trouble.isEmpty()}};
    if (!verdict.trouble.isEmpty()) {
        said.insert(QStringLiteral("trouble"), verdict.trouble);
    } else {
        const View view(*texts, options.fahrenheit, *reading.document);
        QJsonArray findings;
        for (const Finding &finding : verdict.findings) {
            findings.append(asJson(finding, view));
        }
        said.insert(QStringLiteral("findings"), findings);
    }
    said.insert(QStringLiteral("errors"), verdict.count(Severity::Error));
    said.insert(QStringLiteral("warnings"), verdict.count(Severity::Warning));
    said.insert(QStringLiteral("notes"), verdict.count(Severity::Note));
    if (verdict.complete) {
        said.insert(QStringLiteral("complete"), *verdict.complete);
    }
    // File by file, so that thousands take no memory.
    out << (sums.files == 1 ? "{\"files\":[\n" : ",\n") << printing::json(said);
}

int Printer::finish()
{
    clearProgress();
    if (options.json) {
        const QJsonObject told{
            {QStringLiteral("files"), sums.files},   {QStringLiteral("sound"), sums.sound},
            {QStringLiteral("faulty"), sums.faulty}, {QStringLiteral("unusable"), sums.unusable},
            {QStringLiteral("errors"), sums.errors}, {QStringLiteral("warnings"), sums.warnings},
            {QStringLiteral("notes"), sums.notes}};
        out << "\n],\"sums\":" << printing::json(told) << "}\n";
    } else if (sums.files > 1) {
        out << QStringLiteral("%1: %2 sound, %3 with errors, %4 not usable; %5, %6, %7\n")
                   .arg(counted(sums.files, "file"))
                   .arg(sums.sound)
                   .arg(sums.faulty)
                   .arg(sums.unusable)
                   .arg(counted(sums.errors, "error"), counted(sums.warnings, "warning"),
                        counted(sums.notes, "note"));
    }
    return printing::end(&out, sums.unusable > 0 ? 2 : sums.errors > 0 ? 1 : 0);
}
