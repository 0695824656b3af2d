#pragma once

#include "fuzz/dice.h"

#include <QByteArray>
#include <QString>

#include <memory>

/// What is fuzzed: each target is a source that defines makeTarget(), and becomes a program twice: with
/// libFuzzer, and with a main() that replays files.
class Target
{
public:
    Target() = default;
    virtual ~Target() = default;
    Q_DISABLE_COPY_MOVE(Target)

    /// Ends the process, by fail(), when the input shows a fault.
    virtual void run(const QByteArray &input) = 0;
    /// What takes too long to be done after each input of a fuzzer. A replay does it each time.
    virtual void runAfter() {}

    // For inputs of script.h: what a mutated one may hold. Texts as they stand in the input.
    virtual QByteArray anyBase(Dice &dice) const = 0;
    virtual QByteArray anyPath(Dice &dice) const = 0;
    virtual QByteArray anyValue(Dice &dice, const QByteArray &path) const = 0;
};

std::unique_ptr<Target> makeTarget();

/// The input shows a fault: tells which, and aborts.
[[noreturn]] void fail(const char *what, const QByteArray &detail);
