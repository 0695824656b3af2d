#pragma once

#include "walk/exceptions.h"
#include "walk/seasonalrules.h"

/// Whether each control that is shown offers and shows what its rule gives for the document.
class Selections
{
public:
    /// A control has been touched, or "language" has changed, and pages have been loaded by that.
    void touched(const QString &name, const QStringList &loadedPages);
    /// Pages have been shown.
    void loaded(const QStringList &pages);

    /// Of all controls, or of those whose name begins so: "Page/".
    QStringList complaints(const Scene &scene, const QString &page = QString());

    /// The combo boxes and radios that have a rule.
    static QStringList ruled();

private:
    QStringList ofCombos(const Scene &scene, const QString &page) const;
    QStringList ofRadios(const Scene &scene, const QString &page) const;
    static QStringList ofTexts(const Scene &scene);

    exceptions::Traces traces;
    SeasonalRules seasonal;
};
