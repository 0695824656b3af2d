#pragma once

#include <QByteArray>
#include <QVector>

#include <random>

/// The lines of a file of tests/fuzz/words: values as JSON.
QVector<QByteArray> words(const char *file);

/// Random choices that a seed repeats.
class Dice
{
public:
    explicit Dice(unsigned seed)
        : engine(seed)
    {
    }

    /// From 0 to sides - 1.
    int roll(int sides) { return static_cast<int>(engine() % static_cast<unsigned>(sides)); }
    bool once(int in) { return roll(in) == 0; }
    template <class T>
    const T &pick(const QVector<T> &from)
    {
        return from.at(roll(from.size()));
    }

    /// A JSON value as text that no page expects where it stands: of a wrong kind, absurd, or empty.
    QByteArray absurdValue();

private:
    std::minstd_rand engine;
};
