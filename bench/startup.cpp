// The start of the tool, seen from outside: the tool, its yardstick and the tour run by turns, so that what
// else the machine does meets all of them.

#include "bench/rows.h"

#include <QElapsedTimer>
#include <QGuiApplication>
#include <QPixmap>
#include <QProcess>
#include <QScreen>
#include <QStandardPaths>
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

struct Program {
    QString path;
    QStringList arguments = {};
};

struct Start {
    double firstPaint = 0;
    double cpuToFirstPaint = 0;
    double cpuToRest = 0;
    Memory memory;
};

/// Starts a program; tells when its window gets its first colour, and what it has taken then and once it
/// rests. The background is black, and a window has none of its own until the program paints it.
Start start(const Program &program)
{
    constexpr unsigned long rest = 400;
    const QRgb background = middle();
    QProcess process;
    process.setStandardErrorFile(QProcess::nullDevice());
    Start result;
    result.firstPaint = timed([&] {
        process.start(program.path, program.arguments);
        waitFor([&] { return middle() != background; }, "the first paint");
    });
    const QString number = QString::number(process.processId());
    result.cpuToFirstPaint = cpuTimeOf(number);
    QThread::msleep(rest);
    result.cpuToRest = cpuTimeOf(number);
    result.memory = memoryOf(number);
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
    Start text;
    Start bare;
    Start tool;
    Start editor;
    Tour tour;
};

/// A Qt program of daily use, to compare with where it is installed.
Program editor()
{
    return {QStandardPaths::findExecutable(QStringLiteral("featherpad")),
            {QStringLiteral("--standalone"), QStringLiteral(CALORA_SETTINGS)}};
}

std::vector<Run> startByTurns()
{
    const QString bare = QStringLiteral(CALORA_BARE);
    const Program other = editor();
    std::vector<Run> all;
    for (int run = 0; run < runs; ++run) {
        Run turn;
        turn.text = start({bare, {QStringLiteral("--text")}});
        turn.bare = start({bare});
        turn.tool = start({QStringLiteral(CALORA_EXECUTABLE)});
        turn.editor = other.path.isEmpty() ? Start() : start(other);
        turn.tour = tour();
        all.push_back(turn);
    }
    return all;
}

/// What is measured, the most that it may be, and how to get it from a turn and from the yardstick's start.
struct Measure {
    const char *what;
    double atMost;
    std::function<double(const Run &)> get;
    std::function<double(const Start &)> yardstick;
};

std::vector<Measure> measures()
{
    const auto painted = [](const Start &start) { return start.cpuToFirstPaint; };
    const auto rested = [](const Start &start) { return start.cpuToRest; };
    const auto resident = [](const Start &start) { return start.memory.resident; };
    const auto own = [](const Start &start) { return start.memory.own; };
    std::vector<Measure> all{
        {"processor time from start to first paint", 1.3, [=](const Run &run) { return painted(run.tool); },
         painted},
        {"the same, to the end of what waits for that paint", 0,
         [=](const Run &run) { return rested(run.tool); }, rested},
        {"the same to first paint, of a dialog without text", 0,
         [=](const Run &run) { return painted(run.bare); }, painted},
        {"time by the clock from start to first paint", 0, [](const Run &run) { return run.tool.firstPaint; },
         [](const Start &start) { return start.firstPaint; }},
        {"resident memory after start", 0.7, [=](const Run &run) { return resident(run.tool); }, resident},
        {"the same, of a dialog without text", 0, [=](const Run &run) { return resident(run.bare); },
         resident},
        {"memory of its own after start", 0, [=](const Run &run) { return own(run.tool); }, own},
        {"resident memory after visiting every page", 1,
         [](const Run &run) { return run.tour.visited.resident; }, resident},
        {"memory of its own after visiting every page", 0,
         [](const Run &run) { return run.tour.visited.own; }, own},
    };
    if (!editor().path.isEmpty()) {
        all.insert(all.begin() + 2,
                   {"the same to first paint, of a text editor on a settings file", 0,
                    [=](const Run &run) { return painted(run.editor); }, painted});
    }
    return all;
}

} // namespace

std::vector<Row> startRows()
{
    const std::vector<Run> all = startByTurns();
    std::vector<Row> rows;
    const auto add = [&](const QString &what, const char *yardstick, double atMost,
                         const std::function<double(const Run &)> &ratio) {
        Numbers ratios;
        std::transform(all.begin(), all.end(), std::back_inserter(ratios), ratio);
        rows.push_back({what, QLatin1String(yardstick), ratios, atMost});
    };
    for (const Measure &measure : measures()) {
        add(QLatin1String(measure.what), "dialog with a line of text", measure.atMost,
            [&](const Run &run) { return measure.get(run) / measure.yardstick(run.text); });
    }
    for (std::size_t show = 0; show < all.front().tour.shows.size(); ++show) {
        const Told &told = all.front().tour.shows[show];
        add(told.name, "one frame", told.name.startsWith(QLatin1String("first")) ? 0.5 : 1,
            [show](const Run &run) { return run.tour.shows.at(show).number / frame; });
    }
    return rows;
}

} // namespace bench
