// How quick the window is. Every row is measured in the same run as its yardstick and told as a ratio to it.
// Usage: benchmark [--markdown]

#include "bench/rows.h"
#include "support/window.h"

#include <QFile>
#include <QFontDatabase>
#include <QSysInfo>
#include <QThread>

#include <cstdio>

namespace {

/// The value behind a name in a file of /proc.
QString told(const QString &path, const QByteArray &name)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return {};
    }
    const auto lines = file.readAll().split('\n');
    for (const QByteArray &line : lines) {
        if (line.startsWith(name)) {
            return QString::fromUtf8(line.mid(line.indexOf(':') + 1).simplified());
        }
    }
    return {};
}

void printMachine()
{
    QFile load(QStringLiteral("/proc/loadavg"));
    const QByteArray before = load.open(QIODevice::ReadOnly) ? load.readAll().split(' ').first()
                                                             : QByteArray();
    std::printf("%s, %d cores, %s of memory, %s, Qt %s, %d font families. Load before: %s. %d runs.\n\n",
                qPrintable(told(QStringLiteral("/proc/cpuinfo"), "model name")), QThread::idealThreadCount(),
                qPrintable(told(QStringLiteral("/proc/meminfo"), "MemTotal")),
                qPrintable(QSysInfo::prettyProductName()), qVersion(), QFontDatabase().families().size(),
                before.constData(), bench::runs);
    // Or each program that is started later writes it again into a file.
    static_cast<void>(std::fflush(stdout));
}

} // namespace

int main(int argc, char *argv[])
{
    QCoreApplication::setAttribute(Qt::AA_Use96Dpi);
    const QApplication application(argc, argv);
    const bool markdown = QCoreApplication::arguments().contains(QLatin1String("--markdown"));
    prepareApplication();
    printMachine();
    std::vector<bench::Row> rows = bench::startRows();
    Window window;
    window.speak();
    for (const auto measure : {bench::controlRows, bench::languageRows, bench::documentRows}) {
        const std::vector<bench::Row> more = measure(window);
        rows.insert(rows.end(), more.begin(), more.end());
    }
    const std::vector<bench::Row> ofCommandLine = bench::commandLineRows();
    rows.insert(rows.end(), ofCommandLine.begin(), ofCommandLine.end());
    bench::print(rows, markdown ? bench::Form::Markdown : bench::Form::Plain);
    return 0;
}
