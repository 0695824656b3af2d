#include "fuzz/target.h"

#include <QList>

#include <algorithm>
#include <cstddef>
#include <cstdint>

// What libFuzzer calls. Most mutations keep the form of script.h; some are libFuzzer's own, on the bytes.

extern "C" std::size_t LLVMFuzzerMutate(std::uint8_t *data, std::size_t size, std::size_t maxSize);

namespace {

/// Lives until the process ends, which libFuzzer does in its own way.
Target *target = nullptr;

QByteArray bytes(const std::uint8_t *data, std::size_t size)
{
    QByteArray result(static_cast<int>(size), Qt::Uninitialized);
    std::copy(data, data + size, result.begin());
    return result;
}

QByteArray anyLine(Dice &dice)
{
    const QByteArray path = target->anyPath(dice);
    return dice.once(8) ? path : path + '\t' + target->anyValue(dice, path);
}

void mutateOnce(QList<QByteArray> &lines, Dice &dice)
{
    const int at = lines.size() > 1 ? 1 + dice.roll(lines.size() - 1) : 0;
    switch (dice.roll(8)) {
    case 0:
        lines[0] = target->anyBase(dice);
        break;
    case 1:
        if (at > 0) {
            lines.removeAt(at);
        }
        break;
    case 2:
    case 3:
        if (at > 0) {
            const QByteArray path = lines.at(at).left(lines.at(at).indexOf('\t'));
            lines[at] = path + '\t' + target->anyValue(dice, path);
        }
        break;
    default:
        lines.insert(1 + dice.roll(lines.size()), anyLine(dice));
    }
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int * /*argc*/, char *** /*argv*/)
{
    target = makeTarget().release();
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    // The first time as well: an input that is given alone is the first.
    static unsigned count = 0;
    target->run(bytes(data, size));
    if (count++ % 16 == 0) {
        target->runAfter();
    }
    return 0;
}

extern "C" std::size_t LLVMFuzzerCustomMutator(std::uint8_t *data, std::size_t size, std::size_t maxSize,
                                               unsigned seed)
{
    Dice dice(seed);
    if (dice.once(6)) {
        return LLVMFuzzerMutate(data, size, maxSize);
    }
    QList<QByteArray> lines = bytes(data, size).split('\n');
    for (int left = 1 + dice.roll(4); left > 0; --left) {
        mutateOnce(lines, dice);
    }
    const QByteArray mutated = lines.join('\n');
    if (mutated.isEmpty() || static_cast<std::size_t>(mutated.size()) > maxSize) {
        return LLVMFuzzerMutate(data, size, maxSize);
    }
    std::copy(mutated.begin(), mutated.end(), data);
    return static_cast<std::size_t>(mutated.size());
}
