#pragma once

class QByteArray;
class QString;
struct Options;

/// The commissioning report.
namespace report {

/// Writes the report of the file, as HTML or, by the name of the output, as PDF. Returns the exit code.
int run(const Options &options);

} // namespace report
