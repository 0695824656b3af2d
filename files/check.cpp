#include "files/check.h"

#include "files/options.h"
#include "files/printing.h"
#include "files/reading.h"
#include "files/shape.h"
#include "files/wizard.h"

#include <QSet>

#include <algorithm>

namespace {

/// The findings of one way, less those about values that another way has found fault with.
void add(Findings *all, const Findings &more)
{
    QSet<QString> paths;
    for (const Finding &each : *all) {
        paths.insert(each.path);
    }
    std::copy_if(more.begin(), more.end(), std::back_inserter(*all),
                 [&paths](const Finding &each) { return !paths.contains(each.path); });
}

} // namespace

int Verdict::count(Severity severity) const
{
    return static_cast<int>(std::count_if(findings.begin(), findings.end(), [severity](const Finding &each) {
        return each.severity == severity;
    }));
}

Checker::Checker(bool withPages)
    : wizard(withPages ? std::make_unique<Wizard>() : nullptr)
{
}

Checker::~Checker() = default;

Verdict Checker::check(const Reading &reading)
{
    Verdict verdict;
    if (!reading.document) {
        verdict.trouble = reading.trouble;
        return verdict;
    }
    verdict.findings = schema.check(*reading.document);
    add(&verdict.findings, shape::check(*reading.document, schema));
    if (wizard) {
        const Wizard::Answer answer = wizard->ask(*reading.document);
        add(&verdict.findings, answer.findings);
        verdict.complete = answer.complete;
    }
    std::stable_sort(verdict.findings.begin(), verdict.findings.end(),
                     [](const Finding &one, const Finding &other) { return one.severity > other.severity; });
    return verdict;
}

int check::run(const Options &options)
{
    Printer printer(options);
    if (!printer.isReady()) {
        return 2;
    }
    Checker checker(options.pages);
    for (const QString &file : options.files) {
        printer.progress();
        const Reading reading = reading::read(file);
        printer.print(file, reading, checker.check(reading));
    }
    return printer.finish();
}
