// calora-files: checks, compares and prints settings files from the command line.

#include "files/check.h"
#include "files/diff.h"
#include "files/options.h"
#include "files/printing.h"
#include "files/report.h"

#include <QApplication>

namespace {

/// The pages write a log of their own, which is none of this program's output.
void discardMessage(QtMsgType type, const QMessageLogContext &, const QString &message)
{
    if (type == QtFatalMsg) {
        printing::complain(message);
    }
}

/// Whether the wizard's pages or fonts will be asked, as far as can be told before there is an application.
bool needsPages(int count, char *arguments[])
{
    bool needs = false;
    for (int index = 1; index < count; ++index) {
        const QByteArray argument(arguments[index]);
        if (argument == "--no-pages" || argument == "--help" || argument == "-h" || argument == "diff") {
            return false;
        }
        needs = needs || argument == "check" || argument == "report";
    }
    return needs;
}

std::unique_ptr<QCoreApplication> makeApplication(int &count, char *arguments[])
{
    if (!needsPages(count, arguments)) {
        return std::make_unique<QCoreApplication>(count, arguments);
    }
    // No display is needed, and none is looked for.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qunsetenv("QT_QPA_PLATFORMTHEME");
    QCoreApplication::setAttribute(Qt::AA_DisableHighDpiScaling);
    return std::make_unique<QApplication>(count, arguments);
}

int run(const Options &options)
{
    switch (options.command) {
    case Options::Check:
        return check::run(options);
    case Options::Diff:
        return diff::run(options);
    case Options::Report:
        return report::run(options);
    case Options::Help:
    case Options::Version:
        printing::say(options.message);
        return 0;
    default:
        printing::complain(options.message);
        return 2;
    }
}

} // namespace

int main(int argumentCount, char *arguments[])
{
    qInstallMessageHandler(discardMessage);
    const auto application = makeApplication(argumentCount, arguments);
    return run(options::read(QCoreApplication::arguments()));
}
