#include "files/options.h"

#include <QCommandLineParser>
#include <QFileInfo>

namespace {

QString description()
{
    return QStringLiteral("Checks, compares and prints settings files of air-to-water heat pumps.\n\n"
                          "Commands:\n"
                          "  check FILE...     is it sound, and would the wizard call it complete?\n"
                          "  diff A B          what differs; diff FILE --default compares with the defaults\n"
                          "  report FILE       a commissioning report, as .html or .pdf\n\n"
                          "Examples:\n"
                          "  calora-files check plant.json\n"
                          "  calora-files check --json *.json | jq '.files[] | select(.errors > 0) | .file'\n"
                          "  calora-files diff before.json after.json --language Deutsch\n"
                          "  calora-files diff plant.json --default --paths\n"
                          "  calora-files report plant.json -o plant.pdf\n\n"
                          "FILE may be - for the standard input. The program ends with 0 when there is "
                          "nothing to tell, 1 with an\n"
                          "error or a difference, 2 when a file isn't usable or the command line is wrong.");
}

struct Parser {
    Parser()
    {
        parser.setApplicationDescription(description());
        parser.addPositionalArgument(QStringLiteral("command"), QStringLiteral("check, diff or report"));
        parser.addPositionalArgument(QStringLiteral("file"), QStringLiteral("settings files"),
                                     QStringLiteral("FILE..."));
        parser.addOptions({help, version, language, json, fahrenheit, noPages, paths, defaults, output});
    }

    QCommandLineOption help{{QStringLiteral("h"), QStringLiteral("help")}, QStringLiteral("Show this help.")};
    QCommandLineOption version{QStringLiteral("version"), QStringLiteral("Show the version.")};
    QCommandLineOption language{QStringLiteral("language"),
                                QStringLiteral("Captions and values in this language."),
                                QStringLiteral("NAME"), QStringLiteral("English")};
    QCommandLineOption json{QStringLiteral("json"), QStringLiteral("check, diff: write JSON, for programs.")};
    QCommandLineOption fahrenheit{QStringLiteral("fahrenheit"), QStringLiteral("Temperatures in °F.")};
    QCommandLineOption noPages{QStringLiteral("no-pages"),
                               QStringLiteral("check: without the wizard's pages, which is quicker.")};
    QCommandLineOption paths{QStringLiteral("paths"), QStringLiteral("diff: tell the paths of values.")};
    QCommandLineOption defaults{QStringLiteral("default"),
                                QStringLiteral("diff: compare with the defaults of the file's refrigerant.")};
    QCommandLineOption output{{QStringLiteral("o"), QStringLiteral("output")},
                              QStringLiteral("report: the file to write, .html or .pdf."),
                              QStringLiteral("FILE")};
    QCommandLineParser parser;
};

Options::Command command(const QString &name)
{
    if (name == QLatin1String("check")) {
        return Options::Check;
    }
    if (name == QLatin1String("diff")) {
        return Options::Diff;
    }
    return name == QLatin1String("report") ? Options::Report : Options::Wrong;
}

/// An option that the command doesn't have; empty when there is none. The description of one that isn't for
/// all begins with its commands.
QString strangeOption(const Parser &rules, const QString &command)
{
    for (const QCommandLineOption &each :
         {rules.json, rules.noPages, rules.paths, rules.defaults, rules.output}) {
        if (rules.parser.isSet(each)
            && !each.description().section(QLatin1Char(':'), 0, 0).contains(command)) {
            return each.names().constLast();
        }
    }
    return {};
}

/// What is wrong with where a report is to go; empty when it is right.
QString complaint(const QString &output, const QString &file)
{
    if (!output.endsWith(QLatin1String(".html"), Qt::CaseInsensitive)
        && !output.endsWith(QLatin1String(".pdf"), Qt::CaseInsensitive)) {
        return QStringLiteral("report: the name of the output has to end in .html or .pdf");
    }
    const QString existing = QFileInfo(output).canonicalFilePath();
    return existing.isEmpty() || existing != QFileInfo(file).canonicalFilePath()
        ? QString()
        : QStringLiteral("report: the output is the file itself");
}

/// What is wrong with the number of files; empty when it is right.
QString complaint(const Options &read)
{
    const int count = read.files.size();
    switch (read.command) {
    case Options::Check:
        return count > 0 ? QString() : QStringLiteral("check: which file?");
    case Options::Diff:
        if (count == (read.defaults ? 1 : 2)) {
            return {};
        }
        return read.defaults ? QStringLiteral("diff --default: one file, please")
                             : QStringLiteral("diff: two files, please, or one and --default");
    case Options::Report:
        return count == 1 ? QString() : QStringLiteral("report: one file, please");
    default:
        return QStringLiteral("Say check, diff or report. Help is by --help");
    }
}

} // namespace

Options options::read(const QStringList &arguments)
{
    Parser rules;
    Options read;
    if (!rules.parser.parse(arguments)) {
        read.message = rules.parser.errorText();
        return read;
    }
    if (rules.parser.isSet(rules.help) || rules.parser.isSet(rules.version)) {
        const bool help = rules.parser.isSet(rules.help);
        read.command = help ? Options::Help : Options::Version;
        read.message = help ? rules.parser.helpText() : QStringLiteral("calora-files " CALORA_VERSION "\n");
        return read;
    }
    read.files = rules.parser.positionalArguments();
    const QString name = read.files.value(0);
    read.command = command(name);
    if (!read.files.isEmpty()) {
        read.files.removeFirst();
    }
    read.language = rules.parser.value(rules.language);
    read.output = rules.parser.value(rules.output);
    read.json = rules.parser.isSet(rules.json);
    read.fahrenheit = rules.parser.isSet(rules.fahrenheit);
    read.pages = !rules.parser.isSet(rules.noPages);
    read.paths = rules.parser.isSet(rules.paths);
    read.defaults = rules.parser.isSet(rules.defaults);
    read.message = complaint(read);
    const QString strange = strangeOption(rules, name);
    if (read.message.isEmpty() && !strange.isEmpty()) {
        read.message = QStringLiteral("%1 has no option --%2").arg(name, strange);
    } else if (read.message.isEmpty() && rules.parser.isSet(rules.output)) {
        read.message = complaint(read.output, read.files.first());
    }
    if (!read.message.isEmpty()) {
        read.command = Options::Wrong;
    }
    return read;
}
