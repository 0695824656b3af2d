// The start of the tool, seen from outside: the tool, the bare program and the tour run by turns, so that
// what else the machine does meets all three.

#include "bench/rows.h"

#include <QElapsedTimer>
#include <QGuiApplication>
#include <QPixmap>
#include <QProcess>
#include <QScreen>
#include <QThread>

namespace bench {

namespace {

/// The colour in the middle of the screen, which a window of 1440 x 800 on 1920 x 1080 covers wherever it
/// stands.
QRgb middle()
{
    QScreen *screen = QGuiApplication::primaryScreen();
    const QPoint centre = screen->geometry().center();
    return screen->grabWindow(0, centre.x(), centre.y(), 1, 1).toImage().pixel(0, 0);
}

void waitFor(const std::function<bool()> &condition, const char *what)
{
    constexpr qint64 patience = 60000;
    QElapsedTimer waited;
    for (waited.start(); !condition(); QThread::usleep(200)) {
        if (waited.elapsed() > patience) {
            qFatal("Waited in vain for %s", what);
        }
    }
}

struct Start {
    double firstPaint = 0;
    Memory memory;
};

/// Starts a program; tells when its window gets its first colour, and its memory once it rests. The
/// background is black, and a window has none of its own until the program paints it.
Start start(const QString &program)
{
    constexpr unsigned long rest = 400;
    const QRgb background = middle();
    QProcess process;
    process.setStandardErrorFile(QProcess::nullDevice());
    Start result;
    result.firstPaint = timed([&] {
        process.start(program, QStringList());
        waitFor([&] { return middle() != background; }, "the first paint");
    });
    QThread::msleep(rest);
    result.memory = memoryOf(QString::number(process.processId()));
    process.kill();
    process.waitForFinished();
    waitFor([&] { return middle() == background; }, "the window to go");
    return result;
}

struct Told {
    QString name;
    double number;
};

/// What the tour tells, in its order.
std::vector<Told> tour()
{
    QProcess process;
    process.start(QStringLiteral(CALORA_TOUR), QStringList());
    process.waitForFinished(-1);
    std::vector<Told> told;
    const auto lines = process.readAllStandardOutput().split('\n');
    for (const QByteArray &line : lines) {
        const auto cells = line.split('\t');
        if (cells.size() == 2) {
            told.push_back({QString::fromUtf8(cells.at(0)), cells.at(1).toDouble()});
        }
    }
    if (process.exitCode() != 0 || told.empty()) {
        qFatal("The tour failed");
    }
    return told;
}

} // namespace

std::vector<Row> startRows()
{
    const QString bareWindow = QStringLiteral("bare Qt window");
    Row paint{QStringLiteral("process start to first paint"), bareWindow, {}, 1.6};
    Row memory{QStringLiteral("resident memory after start"), bareWindow, {}, 1.3};
    Row own{QStringLiteral("memory of its own after start"), bareWindow, {}, 0};
    Row visited{QStringLiteral("resident memory after visiting every page"), bareWindow, {}, 1.6};
    Row ownVisited{QStringLiteral("memory of its own after visiting every page"), bareWindow, {}, 0};
    std::vector<Row> shows;
    for (int run = 0; run < runs; ++run) {
        const Start bare = start(QStringLiteral(CALORA_BARE));
        const Start tool = start(QStringLiteral(CALORA_EXECUTABLE));
        paint.ratios.push_back(tool.firstPaint / bare.firstPaint);
        memory.ratios.push_back(tool.memory.resident / bare.memory.resident);
        own.ratios.push_back(tool.memory.own / bare.memory.own);
        std::vector<Told> told = tour();
        ownVisited.ratios.push_back(told.back().number / bare.memory.own);
        told.pop_back();
        visited.ratios.push_back(told.back().number / bare.memory.resident);
        told.pop_back();
        shows.resize(told.size());
        for (std::size_t show = 0; show < told.size(); ++show) {
            shows[show].what = told[show].name;
            shows[show].ratios.push_back(told[show].number / frame);
        }
    }
    std::vector<Row> rows{paint, memory, own, visited, ownVisited};
    for (const Row &show : shows) {
        rows.push_back({show.what, QStringLiteral("one frame"), show.ratios, 1});
    }
    return rows;
}

} // namespace bench
