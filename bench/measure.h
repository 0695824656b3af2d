#pragma once

#include <QString>

#include <functional>
#include <vector>

/// What the benchmark measures with, and the table that it prints.
namespace bench {

constexpr int runs = 21;

/// Milliseconds that one frame of a 60 Hz display lasts.
constexpr double frame = 1000.0 / 60.0;

using Numbers = std::vector<double>;

/// Milliseconds that `action` takes, alone.
double timed(const std::function<void()> &action);
/// The same in each of the runs, with `prepare` before each, which isn't measured.
Numbers timedRuns(const std::function<void()> &action, const std::function<void()> &prepare = {});

double median(Numbers numbers);
/// Each number by the yardstick of the same run.
Numbers ratios(Numbers numbers, const Numbers &yardsticks);
Numbers ratios(Numbers numbers, double yardstick);

/// Resident memory of a process in kB, and the part of it that no other process shares. "self" for this
/// process.
struct Memory {
    double resident = 0;
    double own = 0;
};
Memory memoryOf(const QString &process);

/// Milliseconds that processors have worked for a process, in the system's code as in its own.
double cpuTimeOf(const QString &process);

/// One row: what is measured, by which yardstick, the ratios of the runs, and the most that the median may
/// be; 0 for a row that is only told.
struct Row {
    QString what;
    QString yardstick;
    Numbers ratios;
    double atMost = 0;
};

enum class Form { Plain, Markdown };

void print(const std::vector<Row> &rows, Form form);

} // namespace bench
