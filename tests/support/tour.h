#pragma once

#include "support/window.h"

#include <vector>

/// The states of the window that are worth looking at, each with the name of its picture: every page as a new
/// document shows it, the two results, and the pages with all that they can offer.
class Tour
{
public:
    struct Stop {
        QString name;
        std::function<void()> show;
    };

    /// A tour of the default document of "R32" or "R410", with the temperatures in `unit`.
    Tour(Window &shown, QString refrigerantName, QString shownUnit = QStringLiteral("CENTIGRADE"));

    /// In the order in which they are to be shown: a stop builds on those before it. They belong to this
    /// tour, which must outlive them.
    std::vector<Stop> stops() &;

    /// Lets the layouts settle: parts that a page hides while it is shown leave their places layout by
    /// layout.
    static void settle();

    /// Opens every section that can be opened and isn't.
    void expandSections();

private:
    void startDocument();
    void offerEverything();
    void showTab(int tab);
    void showResult(bool complete);

    Window &window;
    QString refrigerant;
    QString unit;
};
