#include "support/schema.h"

#include "support/testfiles.h"

#include <QJsonDocument>
#include <QJsonObject>

namespace {

/// What passes through is `true`, or an object whose keys aren't told.
void collect(const QJsonObject &keys, const QString &prefix, QStringList &paths)
{
    for (auto key = keys.begin(); key != keys.end(); ++key) {
        const QJsonObject told = key.value().toObject();
        const QString path = prefix + key.key();
        collect(told.value(QLatin1String("properties")).toObject(), path + QLatin1Char('.'), paths);
        if (!told.isEmpty() && told.value(QLatin1String("type")) != QLatin1String("object")
            && !told.contains(QLatin1String("readOnly"))) {
            paths.append(path);
        }
    }
}

} // namespace

QStringList schema::written()
{
    QStringList paths;
    const QString file = QStringLiteral(TEST_DATA_DIR "/../../docs/settings-file.schema.json");
    collect(QJsonDocument::fromJson(testfiles::content(file))
                .object()
                .value(QLatin1String("properties"))
                .toObject(),
            QString(), paths);
    return paths;
}
