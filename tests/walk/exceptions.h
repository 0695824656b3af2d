#pragma once

#include <QHash>
#include <QMap>
#include <QString>

class QWidget;
class Scene;

/// Where the tool is meant to break a rule that the walk holds, one by one: each has a name and its reason.
namespace exceptions {

/// Counts the exception of that name as needed. Always true.
bool note(const char *name);
/// How often each was needed so far, those that never were included.
QMap<QString, int> counts();
/// Whether an exception lets the control show other than its rule says, whatever came before; `expected` is
/// the index that the rule gives for a combo box.
bool excuse(const Scene &scene, const QString &control, int expected = 0);
/// The same for the list of a combo box.
bool excuseList(const Scene &scene, const QString &control);

/// What touches leave behind that the document doesn't tell, until the control is loaded or touched.
class Traces
{
public:
    /// After a touch, or after "language" for a change of language.
    void touched(const QString &name);
    void loaded(const QString &page);
    /// Whether the control's selection, or its list, is excused by what was touched.
    bool excuseSelection(const QString &control) const;
    bool excuseList(const QString &control) const;

private:
    QHash<QString, const char *> selections;
    QHash<QString, const char *> lists;
};

} // namespace exceptions
