#pragma once

#include "app/maindialog.h"

#include <QSet>

#include <array>
#include <optional>

class Scene;

/// What one action means for the wizard.
struct Happening {
    enum Kind { Nothing, Control, Refrigerant, New, Opened, Step, Tab, Header };

    Kind kind = Nothing;
    int number = 0;          ///< of the step or tab button, from 0
    QString name = {};       ///< "Page/control", or the section of the header
    QStringList loaded = {}; ///< pages that the touch loaded
    bool shownAgain = false; ///< the display has shown the page anew, as when the window was minimized
};

/// A model of the wizard: which page stands, which flags may change, how marks and step buttons look. Told of
/// each action, it compares the window with what follows.
class Marks
{
public:
    Marks(const MainDialog &window, const Scene &now);

    /// Takes the flags as they stand before an action.
    void before();
    /// Follows the action; the window has done it.
    void after(const Happening &happening);
    /// What is wrong with the flags, and with marks, styles, pages and texts.
    QStringList complaints(const Happening &happening) const;

    int page() const { return shownPage; }
    int tab() const { return shownTab; }
    /// The classes of the pages that the last action showed anew, and so loaded.
    QStringList shownPages() const { return shown; }

private:
    enum Style { Normal, Focus, Completed };

    struct Flags {
        std::array<bool, 3> steps{};
        std::array<bool, 4> tabs{};
        std::array<bool, 5> sections{}; ///< system, cooling, heating, auto mode, hot water
    };

    Flags flags() const;
    void show(int newPage);
    void pressStep(int number);
    void setCurrentStep(int step, const Flags &at);
    void report(int step);
    void followPage();
    void showProducts();
    void reportProduct();
    bool isProductShown(const char *widget) const;
    void followUserTab(const Happening &happening);
    void followSections(const Happening &happening);

    QStringList ofSteps(const Happening &happening) const;
    QStringList ofTabs(const Happening &happening) const;
    QStringList ofSections(const Happening &happening) const;
    QStringList ofMarks(const Happening &happening) const;
    QStringList ofLooks() const;
    QStringList ofPages() const;

    const MainDialog &dialog;
    const Scene &scene;
    Flags old;
    std::array<bool, 3> marksBefore{};
    /// Choices of the product page that a New finds before it takes them back.
    bool chosenBefore = false;
    std::array<Style, 4> styles{};
    std::array<bool, 3> reported{};
    int shownPage = MainDialog::SelectPage;
    int shownTab = MainDialog::FunctionTab;
    int highlightedTab = MainDialog::FunctionTab;
    bool hasBar = false;
    bool firstStepEnabled = true;
    QStringList shown;
    /// What the product sections told last; nothing once one was checked with a document that then hid it.
    std::optional<bool> pumpResult = false;
    std::optional<bool> moduleResult = false;
    bool moduleWasShown = false;
    bool isFirstLoad = true;
    /// The exception by which the User tab has changed since it was checked.
    const char *userUnchecked = nullptr;
    /// Sections that were opened or closed and haven't been checked since.
    QSet<QString> unchecked;
};
