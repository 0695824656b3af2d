#include "support/tour.h"

#include <QFrame>

#include <array>
#include <utility>

namespace {

/// The body of the section whose header holds the button.
const QFrame *bodyBeside(const QWidget *button)
{
    for (const QWidget *widget = button; widget != nullptr; widget = widget->parentWidget()) {
        if (const auto *body = widget->findChild<QFrame *>(QStringLiteral("frame"),
                                                           Qt::FindDirectChildrenOnly)) {
            return body;
        }
    }
    return nullptr;
}

} // namespace

Tour::Tour(Window &shown, QString refrigerantName, QString shownUnit)
    : window(shown)
    , refrigerant(std::move(refrigerantName))
    , unit(std::move(shownUnit))
{
}

std::vector<Tour::Stop> Tour::stops() &
{
    const auto tab = [this](int index) { return [this, index] { showTab(index); }; };
    const auto dipSwitch = [this] { window.showPage(MainDialog::DipSwitchPage); };
    return {{"0-select", [this] { window.showPage(MainDialog::SelectPage); }},
            {"1-product", [this] { startDocument(); }},
            {"8-validation-failed", [this] { showResult(false); }},
            {"2-dip-switch", dipSwitch},
            {"4-function", tab(MainDialog::FunctionTab)},
            {"5-user", tab(MainDialog::UserTab)},
            {"6-service", tab(MainDialog::ServiceTab)},
            {"7-installation", tab(MainDialog::InstallationTab)},
            {"9-validation-complete", [this] { showResult(true); }},
            {"everything-2-dip-switch",
             [this, dipSwitch] {
                 offerEverything();
                 dipSwitch();
             }},
            {"everything-4-function", tab(MainDialog::FunctionTab)},
            {"everything-5-user", tab(MainDialog::UserTab)},
            {"everything-7-installation", tab(MainDialog::InstallationTab)}};
}

void Tour::settle()
{
    for (int round = 0; round < 5; ++round) {
        QCoreApplication::processEvents();
    }
}

void Tour::startDocument()
{
    Window::click(&window.dialog, "newButton");
    Window::click(&window.dialog, "radioButtonMiddleTemp");
    Window::click(&window.dialog, qPrintable(QStringLiteral("radioButton") + refrigerant));
    window.use(
        documents::with(window.dialog.document(), {{"SettingInfo.user.tempUnit.tempConversion", unit}}),
        unit);
}

void Tour::offerEverything()
{
    const QVariantMap shown{{"SettingInfo.user.tempUnit.tempConversion", unit}};
    window.use(documents::with(documents::everything(refrigerant), shown), unit);
}

void Tour::showTab(int tab)
{
    static constexpr std::array buttons{"functionTabButton", "userTabButton", "serviceTabButton",
                                        "installationTabButton"};
    window.showPage(MainDialog::SettingPage, tab);
    Window::click(&window.dialog, buttons.at(static_cast<std::size_t>(tab)));
    expandSections();
}

void Tour::expandSections()
{
    const auto buttons = window.dialog.findChildren<QPushButton *>(QStringLiteral("hideButton"));
    for (QPushButton *button : buttons) {
        const auto *body = bodyBeside(button);
        if (button->isVisible() && body != nullptr && body->isHidden()) {
            Window::click(button);
        }
    }
}

// The steps are marked rather than filled in: what their pages require is no matter of the result's look.
void Tour::showResult(bool complete)
{
    for (const int step : {1, 2, 3}) {
        if (complete) {
            window.dialog.setStepCompleted(true, step);
        }
    }
    Window::click(&window.dialog, "validationButton");
}
