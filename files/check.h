#pragma once

#include "files/finding.h"
#include "files/schema.h"

#include <QJsonObject>

#include <memory>
#include <optional>

struct Options;
struct Reading;
class Wizard;

/// What there is to say about one file.
struct Verdict {
    QString trouble; ///< why the file isn't usable; empty when it is
    Findings findings;
    std::optional<bool> complete; ///< whether the wizard would call it complete; nothing when it wasn't asked

    int count(Severity severity) const;
};

/// Judges documents.
class Checker
{
public:
    /// With the wizard's pages, which need a QApplication, or without.
    explicit Checker(bool withPages);
    ~Checker();

    Verdict check(const Reading &reading);

private:
    Schema schema;
    std::unique_ptr<Wizard> wizard;
};

namespace check {

/// Checks the files and prints what there is to say. Returns the exit code.
int run(const Options &options);

} // namespace check
