#include "fuzz/dice.h"

#include <QFile>

QVector<QByteArray> words(const char *file)
{
    QFile list(QStringLiteral(FUZZ_WORDS_DIR "/") + QLatin1String(file));
    if (!list.open(QIODevice::ReadOnly)) {
        qFatal("Can't read %s", file);
    }
    return list.readAll().trimmed().split('\n').toVector();
}

QByteArray Dice::absurdValue()
{
    static const QVector<QByteArray> values = words("absurd.txt");
    switch (roll(8)) {
    case 0:
        return QByteArray::number(roll(400) - 130);
    case 1:
        return '"' + QByteArray(1 << roll(9), 'x') + '"';
    default:
        return pick(values);
    }
}
