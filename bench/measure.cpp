#include "bench/measure.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QStringList>

#include <algorithm>
#include <array>
#include <cstdio>

namespace bench {

double timed(const std::function<void()> &action)
{
    QElapsedTimer timer;
    timer.start();
    action();
    return static_cast<double>(timer.nsecsElapsed()) / 1e6;
}

Numbers timedRuns(const std::function<void()> &action, const std::function<void()> &prepare)
{
    Numbers times;
    for (int run = 0; run < runs; ++run) {
        if (prepare) {
            prepare();
        }
        times.push_back(timed(action));
    }
    return times;
}

double median(Numbers numbers)
{
    const auto middle = numbers.begin() + static_cast<std::ptrdiff_t>(numbers.size() / 2);
    std::nth_element(numbers.begin(), middle, numbers.end());
    return *middle;
}

Numbers ratios(Numbers numbers, const Numbers &yardsticks)
{
    std::transform(numbers.begin(), numbers.end(), yardsticks.begin(), numbers.begin(), std::divides<>());
    return numbers;
}

Numbers ratios(Numbers numbers, double yardstick)
{
    const Numbers yardsticks(numbers.size(), yardstick);
    return ratios(std::move(numbers), yardsticks);
}

Memory memoryOf(const QString &process)
{
    QFile file(QStringLiteral("/proc/%1/smaps_rollup").arg(process));
    if (!file.open(QIODevice::ReadOnly)) {
        qFatal("Can't read %s", qPrintable(file.fileName()));
    }
    Memory memory;
    const auto lines = file.readAll().split('\n');
    for (const QByteArray &line : lines) {
        const double size = line.simplified().split(' ').value(1).toDouble();
        if (line.startsWith("Rss:")) {
            memory.resident = size;
        } else if (line.startsWith("Private_")) {
            memory.own += size;
        }
    }
    return memory;
}

double cpuTimeOf(const QString &process)
{
    const QDir threads(QStringLiteral("/proc/%1/task").arg(process));
    double nanoseconds = 0;
    const QStringList names = threads.entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    for (const QString &name : names) {
        QFile file(threads.filePath(name + QStringLiteral("/schedstat")));
        if (file.open(QIODevice::ReadOnly)) {
            nanoseconds += file.readAll().split(' ').first().toDouble();
        }
    }
    return nanoseconds / 1e6;
}

namespace {

QString number(double value) { return QString::number(value, 'f', value < 0.1 ? 3 : 2); }

QString verdict(const Row &row)
{
    if (row.atMost <= 0) {
        return {};
    }
    return median(row.ratios) <= row.atMost ? QStringLiteral("good") : QStringLiteral("missed");
}

} // namespace

void print(const std::vector<Row> &rows, Form form)
{
    std::vector<QStringList> lines{
        {"what", "yardstick", "minimum", "median", "maximum", "at most", "verdict"}};
    for (const Row &row : rows) {
        const auto [least, most] = std::minmax_element(row.ratios.begin(), row.ratios.end());
        lines.push_back({row.what, row.yardstick, number(*least), number(median(row.ratios)), number(*most),
                         row.atMost > 0 ? number(row.atMost) : QString(), verdict(row)});
    }
    if (form == Form::Markdown) {
        lines.insert(lines.begin() + 1, {"---", "---", "---", "---", "---", "---", "---"});
    }
    for (QStringList &cells : lines) {
        if (form == Form::Markdown) {
            std::printf("| %s |\n", qPrintable(cells.join(QStringLiteral(" | "))));
            continue;
        }
        constexpr std::array<int, 7> widths{-96, -34, 8, 8, 8, 8, 8};
        for (int column = 0; column < cells.size(); ++column) {
            const int width = widths.at(static_cast<std::size_t>(column));
            QString &cell = cells[column];
            cell = width < 0 ? cell.leftJustified(-width) : cell.rightJustified(width);
        }
        std::printf("%s\n", qPrintable(cells.join(QLatin1Char(' '))));
    }
}

} // namespace bench
