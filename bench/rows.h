#pragma once

#include "bench/measure.h"

class Window;

/// The rows of the benchmark by subject. Each measures and returns its rows.
namespace bench {

/// Starts the tool, its yardstick and the tour by turns: time and memory, and each page's shows.
std::vector<Row> startRows();
/// The program for the command line.
std::vector<Row> commandLineRows();
std::vector<Row> controlRows(Window &window);
std::vector<Row> languageRows(Window &window);
std::vector<Row> documentRows(Window &window);

} // namespace bench
