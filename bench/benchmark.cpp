// How quick the window is: each row is the median of its runs in this one process, told as a ratio to one
// frame of a 60 Hz display or to a length of time.

#include "support/window.h"

#include "languages/userlanguageeditpopup.h"
#include "pages/installation/installationaauto.h"
#include "pages/installation/installationsystemawhp.h"
#include "pages/installation/installationsystemsetting.h"

#include <QElapsedTimer>

#include <algorithm>
#include <cstdio>

namespace {

constexpr double frame = 1000.0 / 60.0;

/// The median of what the action takes, in milliseconds.
double median(const std::function<void()> &action, const std::function<void()> &prepare = {})
{
    constexpr int runs = 11;
    std::vector<double> times;
    for (int run = 0; run < runs; ++run) {
        if (prepare) {
            prepare();
        }
        QElapsedTimer timer;
        timer.start();
        action();
        times.push_back(static_cast<double>(timer.nsecsElapsed()) / 1e6);
    }
    std::nth_element(times.begin(), times.begin() + runs / 2, times.end());
    return times[runs / 2];
}

void tell(const char *what, double milliseconds, double yardstick, double atMost)
{
    const double ratio = milliseconds / yardstick;
    std::printf("%-44s %8.3f ms %8.3f of %6.1f ms, at most %5.2f  %s\n", what, milliseconds, ratio, yardstick,
                atMost, ratio <= atMost ? "good" : "MISSED");
}

/// Shows a page and paints it.
void measurePages(Window &window)
{
    const auto show = [&](int step, int tab, const char *name) {
        const auto leave = [&] { window.showPage(MainDialog::DataSavePage); };
        tell(name,
             median(
                 [&] {
                     window.showPage(step, tab);
                     QCoreApplication::processEvents();
                 },
                 leave),
             frame, 1);
    };
    show(MainDialog::SelectPage, -1, "show Select");
    show(MainDialog::ProductPage, -1, "show Product selection");
    show(MainDialog::DipSwitchPage, -1, "show Dip switches");
    show(MainDialog::SettingPage, MainDialog::FunctionTab, "show Function");
    show(MainDialog::SettingPage, MainDialog::UserTab, "show User");
    show(MainDialog::SettingPage, MainDialog::ServiceTab, "show Service");
    show(MainDialog::SettingPage, MainDialog::InstallationTab, "show Installation");
    show(MainDialog::ValidationPage, -1, "show Validation");
}

void measureControls(Window &window)
{
    auto *system = window.page<InstallationSystemSetting>();
    auto *heatPump = window.page<InstallationSystemAWHP>();
    window.showPage(MainDialog::SettingPage, MainDialog::InstallationTab);
    Window::expand(system);
    auto *central = Window::find<QComboBox>(system, "comboCentral");
    tell("slot: central control address",
         median([&] { central->setCurrentIndex(central->currentIndex() + 1); }), frame, 0.15);
    auto *sensing = Window::find<QComboBox>(system, "comboBoxSensingTemp");
    tell("slot that refreshes: control method",
         median([&] { sensing->setCurrentIndex(1 - sensing->currentIndex()); }), frame, 1);
    auto *use = Window::find<QRadioButton>(heatPump, "radio2ndUse");
    tell("slot that changes texts: mixed circuit", median([&] { use->click(); }), frame, 1);
    auto *automatic = window.page<InstallationaAuto>();
    tell("auto mode lists, all of them", median([&] {
             for (const int group : {1, 2, 3}) {
                 QMetaObject::invokeMethod(automatic, "refreshTempRange", Q_ARG(int, group));
             }
         }),
         frame, 0.25);
    tell("language change", median([&] {
             window.dialog.changeLanguage();
             QCoreApplication::processEvents();
         }),
         frame, 3);
}

void measureEditor(Window &window)
{
    constexpr double openingAtMost = 150;
    window.dialog.setLanguageSnapshot(window.dialog.languageDocument());
    std::unique_ptr<UserLanguageEditPopup> editor;
    tell("open the language editor",
         median(
             [&] {
                 editor = std::make_unique<UserLanguageEditPopup>();
                 editor->setNewLanguage(true);
                 editor->show();
                 QCoreApplication::processEvents();
             },
             [&] { editor.reset(); }),
         openingAtMost, 1);
    auto *search = Window::find<QLineEdit>(editor.get(), "searchLineEdit");
    const auto press = [&](Qt::Key key) {
        QTest::keyClick(search, key);
        QCoreApplication::processEvents();
    };
    tell("editor: one key that filters", median([&] { press(Qt::Key_A); }, [&] { press(Qt::Key_Backspace); }),
         frame, 1);
    tell("editor: the key that shows all again",
         median([&] { press(Qt::Key_Backspace); }, [&] { press(Qt::Key_A); }), frame, 1);
}

} // namespace

int main(int argc, char *argv[])
{
    QCoreApplication::setAttribute(Qt::AA_Use96Dpi);
    const QApplication application(argc, argv);
    prepareApplication();
    Window window;
    window.use(documents::standard("R32"));
    window.speak();
    measurePages(window);
    measureControls(window);
    measureEditor(window);
    return 0;
}
