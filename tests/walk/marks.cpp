#include "walk/marks.h"

#include "support/window.h"
#include "walk/exceptions.h"
#include "walk/scene.h"
#include "walk/validity.h"

namespace {

using exceptions::note;

const char *const stepButtons[] = {"productSelectionButton", "dipSwitchButton", "settingButton",
                                   "validationButton"};
const char *const errorMarks[] = {"labelErrorProduct", "labelErrorDipSwitch", "labelErrorSetting"};
const char *const tabIcons[] = {"functionValidationIcon", "userValidationIcon", "serviceValidationIcon",
                                "installationValidationIcon"};
const char *const tabButtons[] = {"functionTabButton", "userTabButton", "serviceTabButton",
                                  "installationTabButton"};
const char *const tabPages[] = {"SettingFunction", "SettingUser", "SettingService"};
const QStringList &sectionPages()
{
    static const QStringList pages{QStringLiteral("InstallationSystemSetting"),
                                   QStringLiteral("InstallationCool"), QStringLiteral("InstallationHeat"),
                                   QStringLiteral("InstallationaAuto"), QStringLiteral("InstallationDWH")};
    return pages;
}

bool isProductSection(const QString &page)
{
    return page == QLatin1String("InstallationSystemAWHP")
        || page == QLatin1String("InstallationSystemAquabox");
}

QString complaint(const char *what, int number, bool is)
{
    return QStringLiteral("%1 %2 is %3").arg(QLatin1String(what)).arg(number).arg(is ? "true" : "false");
}

} // namespace

Marks::Marks(const MainDialog &window, const Scene &now)
    : dialog(window)
    , scene(now)
{
}

Marks::Flags Marks::flags() const
{
    const DialogState &state = dialog.members();
    return {{state.results.productDone, state.results.dipSwitchDone, state.results.settingDone},
            {state.results.functionValid, state.results.userValid, state.results.serviceValid,
             state.results.installationValid},
            {state.results.systemSectionValid, state.results.coolSectionValid, state.results.heatSectionValid,
             state.results.autoSectionValid, state.results.dwhSectionValid}};
}

void Marks::before()
{
    old = flags();
    shown.clear();
    moduleWasShown = isProductShown("widgetAquabox");
    chosenBefore = validity::productSelection(scene);
    for (std::size_t step = 0; step < 3; ++step) {
        marksBefore.at(step) = Window::shownItself(&dialog, errorMarks[step]);
    }
}

void Marks::after(const Happening &happening)
{
    switch (happening.kind) {
    case Happening::New:
        old.steps = {};
        reported = {};
        hasBar = true;
        firstStepEnabled = true;
        shownPage == MainDialog::ProductPage ? void(note("New keeps styles")) : show(MainDialog::ProductPage);
        break;
    case Happening::Opened:
        old.steps.at(0) = true;
        styles.at(0) = Completed;
        hasBar = true;
        firstStepEnabled = false;
        // The product page comes up for an instant.
        if (shownPage != MainDialog::ProductPage) {
            show(MainDialog::ProductPage);
        }
        show(MainDialog::DipSwitchPage);
        break;
    case Happening::Step:
        pressStep(happening.number);
        break;
    case Happening::Tab:
        highlightedTab = happening.number;
        if (shownTab != happening.number) {
            shownTab = happening.number;
            followPage();
        }
        break;
    case Happening::Refrigerant:
        report(3);
        break;
    default:
        break;
    }
    if (happening.shownAgain) {
        followPage();
    }
    followUserTab(happening);
    followSections(happening);
    // A report only ever follows the flag, so a report more than was made changes nothing on the page's own
    // step.
    const std::array<int, 6> ownSteps{0, 1, 2, 3, 0, 0};
    if (const int own = ownSteps.at(static_cast<std::size_t>(shownPage));
        own > 1 || (own == 1 && flags().steps.at(0))) {
        report(own);
    }
}

void Marks::pressStep(int number)
{
    const DialogState &state = dialog.members();
    const bool hasFile = !state.settings.filePath.isEmpty();
    const bool open[] = {hasFile, hasFile && old.steps.at(0), hasFile && old.steps.at(0) && old.steps.at(1),
                         true};
    if (!open[number]) {
        return;
    }
    if (number == 2) {
        highlightedTab = MainDialog::FunctionTab;
    }
    if (shownPage != number + 1) {
        show(number + 1);
    }
}

void Marks::show(int newPage)
{
    shownPage = newPage;
    followPage();
}

/// What a page's show event does to the steps, and which pages it loads.
void Marks::followPage()
{
    switch (shownPage) {
    case MainDialog::ProductPage:
        setCurrentStep(1, old);
        shown.append(QStringLiteral("ProductSelection"));
        break;
    case MainDialog::DipSwitchPage:
        setCurrentStep(2, old);
        shown.append(QStringLiteral("DipSwitchSettingStatus"));
        break;
    case MainDialog::SettingPage:
        if (shownTab == MainDialog::FunctionTab) {
            setCurrentStep(3, old);
        } else {
            note("tab without highlight");
        }
        if (shownTab == MainDialog::InstallationTab) {
            unchecked.clear();
            shown += sectionPages();
            showProducts();
        } else {
            shown.append(QLatin1String(tabPages[shownTab]));
        }
        report(3);
        break;
    case MainDialog::ValidationPage:
        setCurrentStep(4, old);
        break;
    default:
        break;
    }
}

/// The product sections come up with the body of the section that hosts them.
void Marks::showProducts()
{
    if (scene.isOpen(sectionPages().first())) {
        shown << QStringLiteral("InstallationSystemAWHP") << QStringLiteral("InstallationSystemAquabox");
        reportProduct();
    }
    // At the first load of all, the heat pump section is told to load too.
    if (isFirstLoad && scene.word(QStringLiteral("product")) == QLatin1String("AWHP")) {
        pumpResult = validity::heatPump(scene);
    }
    isFirstLoad = false;
}

/// The product section that isn't hidden has told its result to the system section, which has checked itself.
void Marks::reportProduct()
{
    const bool pump = isProductShown("widgetAwhp");
    const bool module = isProductShown("widgetAquabox");
    if (pump || module) {
        (pump ? pumpResult : moduleResult) = pump ? validity::heatPump(scene)
                                                  : validity::hydronicModule(scene);
        if (pump == moduleWasShown) {
            (pump ? moduleResult : pumpResult) = std::nullopt;
        }
        unchecked.remove(sectionPages().first());
    }
}

bool Marks::isProductShown(const char *widget) const
{
    return !scene.control(sectionPages().first() + QLatin1Char('/') + QLatin1String(widget))->isHidden();
}

void Marks::setCurrentStep(int step, const Flags &at)
{
    for (int each = 1; each <= 4; ++each) {
        const auto place = static_cast<std::size_t>(each - 1);
        if (each == 4 || !at.steps.at(place)) {
            styles.at(place) = each == step ? Focus : Normal;
        }
    }
}

void Marks::report(int step)
{
    const auto place = static_cast<std::size_t>(step - 1);
    const bool done = flags().steps.at(place);
    styles.at(place) = done ? Completed : Focus;
    reported.at(place) = true;
}

void Marks::followUserTab(const Happening &happening)
{
    if (happening.name == QLatin1String("SettingUser/radioSummerTimeUse")) {
        userUnchecked = "summer time isn't checked";
    } else if (happening.name == QLatin1String("language")) {
        userUnchecked = "language isn't checked";
    } else if (happening.kind == Happening::Control || !shown.isEmpty()) {
        userUnchecked = nullptr;
    }
}

void Marks::followSections(const Happening &happening)
{
    const QString page = happening.name.section(QLatin1Char('/'), 0, 0);
    if (happening.kind == Happening::Header) {
        unchecked.insert(page);
        if (page == sectionPages().first()) {
            showProducts();
        }
    } else if (happening.kind == Happening::Control) {
        unchecked.remove(page);
        for (const QString &loaded : happening.loaded) {
            unchecked.remove(loaded);
        }
        if (isProductSection(page)) {
            reportProduct();
        }
    }
}

QStringList Marks::complaints(const Happening &happening) const
{
    return ofSteps(happening) + ofTabs(happening) + ofSections(happening) + ofMarks(happening) + ofLooks()
        + ofPages();
}

QStringList Marks::ofSteps(const Happening &happening) const
{
    const Flags now = flags();
    QStringList result;
    bool first = shownPage == MainDialog::ProductPage && validity::productSelection(scene);
    if (happening.kind == Happening::New && !shown.isEmpty() && chosenBefore) {
        first = note("New finds old choices");
    }
    if (now.steps.at(0) != (old.steps.at(0) || first)) {
        result.append(complaint("step", 1, now.steps.at(0)));
    }
    const bool second = shownPage == MainDialog::DipSwitchPage ? validity::dipSwitches(scene)
                                                               : old.steps.at(1);
    if (now.steps.at(1) != second) {
        result.append(complaint("step", 2, now.steps.at(1)));
    }
    if (now.steps.at(2) != (now.tabs.at(0) && now.tabs.at(1) && now.tabs.at(3))) {
        result.append(complaint("step", 3, now.steps.at(2)));
    }
    return result;
}

QStringList Marks::ofTabs(const Happening &happening) const
{
    const Flags now = flags();
    const bool reset = happening.kind == Happening::New || happening.kind == Happening::Refrigerant;
    std::array<bool, 4> expected = reset && note("tabs reset") ? std::array<bool, 4>{} : old.tabs;
    if (shownPage == MainDialog::SettingPage && shownTab == MainDialog::FunctionTab) {
        expected.at(0) = validity::functionTab(scene);
    } else if (shownPage == MainDialog::SettingPage && shownTab == MainDialog::UserTab) {
        expected.at(1) = validity::userTab(scene);
        if (now.tabs.at(1) != expected.at(1) && userUnchecked != nullptr && note(userUnchecked)) {
            expected.at(1) = old.tabs.at(1);
        }
    } else if (shownPage == MainDialog::SettingPage && shownTab == MainDialog::ServiceTab) {
        expected.at(2) = true;
    } else if (shownPage == MainDialog::SettingPage) {
        expected.at(3) = std::all_of(now.sections.begin(), now.sections.end(),
                                     [](bool valid) { return valid; });
        if (!now.sections.at(0) && now.tabs.at(3) && note("product section isn't joined")) {
            expected.at(3) = true;
        }
    }
    QStringList result;
    for (std::size_t tab = 0; tab < expected.size(); ++tab) {
        if (now.tabs.at(tab) != expected.at(tab)) {
            result.append(complaint("tab", static_cast<int>(tab), now.tabs.at(tab)));
        }
    }
    return result;
}

QStringList Marks::ofSections(const Happening &) const
{
    const Flags now = flags();
    if (shownPage != MainDialog::SettingPage || shownTab != MainDialog::InstallationTab) {
        return now.sections == old.sections ? QStringList()
                                            : QStringList{QStringLiteral("a section's result moved")};
    }
    // A product section that isn't shown again keeps the result that it told last.
    const std::optional<bool> product = isProductShown("widgetAwhp") ? pumpResult
        : isProductShown("widgetAquabox")                            ? moduleResult
                                                                     : true;
    const std::array<bool, 5> expected{validity::system(scene) && product.value_or(now.sections.at(0)),
                                       validity::cooling(scene), validity::heating(scene), true,
                                       validity::hotWater(scene)};
    QStringList result;
    for (int section = 0; section < sectionPages().size(); ++section) {
        const auto place = static_cast<std::size_t>(section);
        const bool stale = unchecked.contains(sectionPages().at(section));
        if (now.sections.at(place) != expected.at(place) && !(stale && note("header isn't checked"))) {
            result.append(complaint("section", section, now.sections.at(place)));
        }
    }
    return result;
}

QStringList Marks::ofMarks(const Happening &) const
{
    const Flags now = flags();
    QStringList result;
    for (std::size_t tab = 0; tab < now.tabs.size(); ++tab) {
        if (Window::shownItself(&dialog, tabIcons[tab]) == now.tabs.at(tab)) {
            result.append(complaint("icon of tab with result", static_cast<int>(tab), now.tabs.at(tab)));
        }
    }
    for (std::size_t step = 0; step < now.steps.size(); ++step) {
        bool expected = !now.steps.at(step);
        if (step == 0) {
            expected = false;
            note("product is never marked");
        } else if (!reported.at(step)) {
            expected = marksBefore.at(step);
            note(hasBar ? "New keeps marks" : "start without marks");
        }
        if (Window::shownItself(&dialog, errorMarks[step]) != expected) {
            result.append(
                complaint("mark of step with result", static_cast<int>(step) + 1, now.steps.at(step)));
        }
    }
    return result;
}

QStringList Marks::ofLooks() const
{
    QStringList result;
    const char *const looks[] = {"normal", "focus"};
    for (int step = 0; step < 4; ++step) {
        const Style style = styles.at(static_cast<std::size_t>(step));
        const QString image = style == Completed
            ? QStringLiteral("btn_step_completed.png")
            : QStringLiteral("btn_step_%1_%2.png").arg(step + 1).arg(QLatin1String(looks[style]));
        const QString sheet = Window::find(&dialog, stepButtons[step])->styleSheet();
        // At the start the form's own look stands.
        if (hasBar
            && sheet.section(QStringLiteral("::hover"), 0, 0)
                    .section(QLatin1Char('/'), -1)
                    .section(QLatin1Char(')'), 0, 0)
                != image) {
            result.append(QStringLiteral("step %1 looks like %2, not %3").arg(step + 1).arg(sheet, image));
        }
        if (step < 3 && style == Focus && shownPage != step + 1) {
            note("focus out of place");
        }
    }
    for (int tab = 0; tab < 4; ++tab) {
        const bool dark =
            Window::find(&dialog, tabButtons[tab])->styleSheet().contains(QLatin1String("#333333"));
        if (hasBar && dark != (tab == highlightedTab)) {
            result.append(complaint("highlight of tab", tab, dark));
        }
    }
    return result;
}

QStringList Marks::ofPages() const
{
    QStringList result;
    const int page = Window::find<QStackedWidget>(&dialog, "stackedWidget")->currentIndex();
    const int tab = Window::find<QStackedWidget>(&dialog, "settingStackedWidget")->currentIndex();
    if (page != shownPage || tab != shownTab) {
        result.append(
            QStringLiteral("page %1 tab %2, not %3 and %4").arg(page).arg(tab).arg(shownPage).arg(shownTab));
    }
    if (Window::shownItself(&dialog, "sideGroupBox") != hasBar
        || Window::enabled(&dialog, "productSelectionButton") != firstStepEnabled) {
        result.append(QStringLiteral("the side bar"));
    }
    if (page == MainDialog::ValidationPage) {
        const QString key = dialog.stepsDone() ? QStringLiteral("CompleteMessage")
                                               : QStringLiteral("ErrorMessage");
        if (scene.control<QLabel>(QStringLiteral("Validation/messageLabel"))->text() != scene.speak(key)) {
            result.append(QStringLiteral("the result page"));
        }
    }
    return result;
}
