// The change of the language and the language editor.

#include "bench/rows.h"
#include "languages/userlanguageeditpopup.h"
#include "support/window.h"

namespace bench {

namespace {

Row frames(const QString &what, const Numbers &times, double atMost)
{
    return {what, QStringLiteral("one frame"), ratios(times, frame), atMost};
}

void visitEveryPage(Window &window)
{
    window.use(documents::standard(QStringLiteral("R32")));
    for (const int step : {MainDialog::ProductPage, MainDialog::DipSwitchPage, MainDialog::ValidationPage}) {
        window.showPage(step);
    }
    for (const int tab : {MainDialog::FunctionTab, MainDialog::UserTab, MainDialog::ServiceTab,
                          MainDialog::InstallationTab}) {
        window.showPage(MainDialog::SettingPage, tab);
    }
}

} // namespace

std::vector<Row> languageRows(Window &window)
{
    visitEveryPage(window);
    std::vector<Row> rows;
    rows.push_back(frames(QStringLiteral("language change with all pages visited"), timedRuns([&] {
                              window.dialog.changeLanguage();
                              QCoreApplication::processEvents();
                          }),
                          3));

    window.dialog.setLanguageSnapshot(window.dialog.languageDocument());
    std::unique_ptr<UserLanguageEditPopup> editor;
    const auto open = [&] {
        editor = std::make_unique<UserLanguageEditPopup>();
        editor->setNewLanguage(true);
        editor->show();
        QCoreApplication::processEvents();
    };
    rows.push_back(
        frames(QStringLiteral("opening the language editor"), timedRuns(open, [&] { editor.reset(); }), 9));

    auto *search = Window::find<QLineEdit>(editor.get(), "searchLineEdit");
    const auto press = [search](Qt::Key key) {
        return [search, key] {
            QTest::keyClick(search, key);
            QCoreApplication::processEvents();
        };
    };
    rows.push_back(frames(QStringLiteral("its search: a key that hides rows"),
                          timedRuns(press(Qt::Key_A), press(Qt::Key_Backspace)), 1));
    rows.push_back(frames(QStringLiteral("its search: the key that shows all again"),
                          timedRuns(press(Qt::Key_Backspace), press(Qt::Key_A)), 1));
    return rows;
}

} // namespace bench
