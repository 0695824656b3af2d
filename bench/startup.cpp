// The start of the tool, seen from outside: the tool, the bare program and the tour run by turns, so that
// what else the machine does meets all three.

#include "bench/rows.h"

#include <QElapsedTimer>
#include <QGuiApplication>
#include <QPixmap>
#include <QProcess>
#include <QScreen>
#include <QThread>

#include <algorithm>
#include <iterator>

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
Start start(const QString &program, const QStringList &arguments = {})
{
    constexpr unsigned long rest = 400;
    const QRgb background = middle();
    QProcess process;
    process.setStandardErrorFile(QProcess::nullDevice());
    Start result;
    result.firstPaint = timed([&] {
        process.start(program, arguments);
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

/// What the tour tells: each page's shows in their order, and the memory at its end.
struct Tour {
    std::vector<Told> shows;
    Memory visited;
};

Tour tour()
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
    constexpr int sizes = 2;
    if (process.exitCode() != 0 || told.size() <= sizes) {
        qFatal("The tour failed");
    }
    const auto memory = told.end() - sizes;
    return {{told.begin(), memory}, {memory[0].number, memory[1].number}};
}

struct Run {
    Start bare;
    Start text;
    Start tool;
    Tour tour;
};

std::vector<Run> startByTurns()
{
    std::vector<Run> all;
    for (int run = 0; run < runs; ++run) {
        const Start bare = start(QStringLiteral(CALORA_BARE));
        const Start text = start(QStringLiteral(CALORA_BARE), {QStringLiteral("--text")});
        const Start tool = start(QStringLiteral(CALORA_EXECUTABLE));
        all.push_back({bare, text, tool, tour()});
    }
    return all;
}

/// What is measured, the most that it may be, and how to get it from a start or from the end of the tour.
struct Measure {
    const char *what;
    double atMost;
    std::function<double(const Run &)> ratio;
    QString forced = {};
};

std::vector<Measure> measures()
{
    const auto forced = QStringLiteral("text, and every page built with the window");
    const char *const ofText = "the same, of a bare window with a line of text";
    return {
        {"process start to first paint", 1.6,
         [](const Run &run) { return run.tool.firstPaint / run.bare.firstPaint; }, forced},
        {ofText, 0, [](const Run &run) { return run.text.firstPaint / run.bare.firstPaint; }},
        {"resident memory after start", 1.3,
         [](const Run &run) { return run.tool.memory.resident / run.bare.memory.resident; }, forced},
        {ofText, 0, [](const Run &run) { return run.text.memory.resident / run.bare.memory.resident; }},
        {"memory of its own after start", 0,
         [](const Run &run) { return run.tool.memory.own / run.bare.memory.own; }},
        {"resident memory after visiting every page", 1.6,
         [](const Run &run) { return run.tour.visited.resident / run.bare.memory.resident; }},
        {"memory of its own after visiting every page", 0,
         [](const Run &run) { return run.tour.visited.own / run.bare.memory.own; }},
    };
}

} // namespace

std::vector<Row> startRows()
{
    const std::vector<Run> all = startByTurns();
    std::vector<Row> rows;
    const auto add = [&](const QString &what, const char *yardstick, double atMost,
                         const std::function<double(const Run &)> &ratio, const QString &forced = {}) {
        Numbers ratios;
        std::transform(all.begin(), all.end(), std::back_inserter(ratios), ratio);
        rows.push_back({what, QLatin1String(yardstick), ratios, atMost, forced});
    };
    for (const Measure &measure : measures()) {
        add(QLatin1String(measure.what), "bare Qt window", measure.atMost, measure.ratio, measure.forced);
    }
    for (std::size_t show = 0; show < all.front().tour.shows.size(); ++show) {
        const Told &told = all.front().tour.shows[show];
        add(told.name, "one frame", 1,
            [show](const Run &run) { return run.tour.shows.at(show).number / frame; });
    }
    return rows;
}

} // namespace bench
