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

/// By an application of its own, which goes with it: what the options are tells which one is needed.
Options readOptions(int count, char *arguments[])
{
    const QCoreApplication application(count, arguments);
    return options::read(QCoreApplication::arguments());
}

/// With pages or fonts only where they are asked. Qt gets no arguments, of which it would take some for its
/// own.
std::unique_ptr<QCoreApplication> makeApplication(const Options &options, int &count, char *arguments[])
{
    if (options.command != Options::Report && (options.command != Options::Check || !options.pages)) {
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
        return printing::say(options.message);
    default:
        printing::complain(options.message);
        return 2;
    }
}

} // namespace

int main(int argumentCount, char *arguments[])
{
    qInstallMessageHandler(discardMessage);
    const Options options = readOptions(argumentCount, arguments);
    int nameAlone = qMin(argumentCount, 1);
    const auto application = makeApplication(options, nameAlone, arguments);
    return run(options);
}
