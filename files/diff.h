#pragma once

#include <QJsonValue>
#include <QString>

#include <vector>

class QJsonObject;
class Schema;
class Texts;
struct Options;

/// A value that two documents don't have in common.
struct Difference {
    QString page; ///< empty for what no page shows
    QString caption;
    QString path;
    QJsonValue before;
    QJsonValue after;
    QString beforeText;
    QString afterText;
};

/// Comparing documents.
namespace diff {

/// In the order of the wizard; what no page shows comes last.
std::vector<Difference> compare(const QJsonObject &before, const QJsonObject &after, const Texts &texts,
                                bool fahrenheit);
/// Prints what differs. Returns the exit code.
int run(const Options &options);

} // namespace diff
