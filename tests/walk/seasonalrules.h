#pragma once

#include <QSet>
#include <QStringList>

class Scene;

/// The twenty boxes of the seasonal auto mode, whose lists narrow one another.
class SeasonalRules
{
public:
    /// The section has been loaded: no box is lost any more.
    void loaded() { lost.clear(); }
    /// Something has been chosen in the box.
    void touched(const QString &name) { lost.remove(name); }
    /// What is wrong with the lists and selections that are shown.
    QStringList complaints(const Scene &scene);

private:
    void noteBlanks(const Scene &scene);
    bool isAnyLostOf(const QString &group) const;

    /// Boxes that have gone blank since the last load.
    QSet<QString> lost;
};
