// What a step of a walk can be.

#include "walk/walker.h"

#include "app/tabbutton.h"
#include "languages/languageitem.h"
#include "languages/languagemenu.h"
#include "languages/userlanguageeditpopup.h"
#include "support/languagefolder.h"
#include "support/modal.h"
#include "walk/exceptions.h"
#include "walk/mutations.h"

#include <QListWidget>
#include <QSignalSpy>

namespace {

const char *const stepButtons[] = {"productSelectionButton", "dipSwitchButton", "settingButton",
                                   "validationButton"};
const char *const tabButtons[] = {"functionTabButton", "userTabButton", "serviceTabButton",
                                  "installationTabButton"};
const char *const sections[] = {"InstallationSystemSetting", "InstallationCool", "InstallationHeat",
                                "InstallationaAuto", "InstallationDWH"};
const char *const pulses[] = {"12.5", "0", "9999", "", "7.3", "1000", "0.1", "55"};
const char *const contacts[] = {"", "-", "Warm Works", "0123-456", "99999999999999999", "A", "& <b>"};

} // namespace

Walker::Action Walker::act()
{
    if (marks.page() == MainDialog::SelectPage) {
        return dice(3) == 0 ? open() : dice(2) == 0 ? startNew() : changeLanguage();
    }
    const int roll = dice(1000);
    if (roll < 800) {
        return actOnPage();
    }
    struct Kind {
        int upTo;
        Action (Walker::*act)();
    };
    const Kind kinds[] = {
        {870, &Walker::pressStep},  {920, &Walker::pressTab},   {940, &Walker::changeLanguage},
        {944, &Walker::startNew},   {964, &Walker::open},       {988, &Walker::save},
        {991, &Walker::toggleMenu}, {993, &Walker::openEditor}, {995, &Walker::loadLanguage},
        {998, &Walker::maximize},   {1000, &Walker::minimize}};
    for (const Kind &kind : kinds) {
        if (roll < kind.upTo) {
            return (this->*kind.act)();
        }
    }
    return {};
}

Walker::Action Walker::actOnPage()
{
    const bool installation = marks.page() == MainDialog::SettingPage
        && marks.tab() == MainDialog::InstallationTab;
    return installation && dice(12) == 0 ? toggleHeader() : touch();
}

Walker::Action Walker::touch()
{
    QVector<QPair<QString, QWidget *>> offered;
    for (const auto &control : qAsConst(controls)) {
        // The drawn switches do nothing, so they needn't be tried often.
        const bool isDrawn = control.first.contains(QLatin1String("/DipSwitch"));
        if (control.second->isVisible() && control.second->isEnabled() && (!isDrawn || dice(20) == 0)) {
            offered.append(control);
        }
    }
    if (offered.isEmpty()) {
        return pressStep();
    }
    const auto &[name, widget] = offered.at(dice(offered.size()));
    if (auto *combo = qobject_cast<QComboBox *>(widget)) {
        const QSignalSpy spy(combo, SIGNAL(currentIndexChanged(int)));
        const QString chosen = choose(combo);
        // Without a change no slot runs.
        return {
            name + chosen,
            {spy.isEmpty() ? Happening::Nothing : Happening::Control, 0, spy.isEmpty() ? QString() : name}};
    }
    if (auto *edit = qobject_cast<QLineEdit *>(widget)) {
        return {name + type(edit), {Happening::Control, 0, name}};
    }
    Window::click(widget);
    const bool r32 = widget->objectName() == QLatin1String("radioButtonR32");
    if (r32 || widget->objectName() == QLatin1String("radioButtonR410")) {
        return {name,
                {Happening::Refrigerant},
                documents::standard(r32 ? QStringLiteral("R32") : QStringLiteral("R410"))};
    }
    return {name, {Happening::Control, 0, name}};
}

/// By its popup, or by keys on the closed box.
QString Walker::choose(QComboBox *combo)
{
    if (combo->count() > 0 && dice(3) == 0) {
        Window::choose(combo, dice(combo->count()));
    } else {
        const Qt::Key keys[] = {Qt::Key_Down, Qt::Key_Down, Qt::Key_Up, Qt::Key_Up,
                                Qt::Key_Home, Qt::Key_End,  Qt::Key_End};
        const Qt::Key key = keys[dice(7)];
        for (int times = 1 + dice(3); times > 0; --times) {
            QTest::keyClick(combo, key);
        }
    }
    return QStringLiteral(" -> %1 \"%2\"").arg(combo->currentIndex()).arg(combo->currentText());
}

QString Walker::type(QLineEdit *edit)
{
    const bool isMeter = edit->objectName().startsWith(QLatin1String("lineEditWHM"));
    Window::type(edit, QString::fromUtf8(isMeter ? pulses[dice(8)] : contacts[dice(7)]));
    return QStringLiteral(" -> \"%1\"").arg(edit->text());
}

Walker::Action Walker::pressStep()
{
    const int number = dice(4);
    if (!Window::enabled(&installer.window.dialog, stepButtons[number])) {
        return {QStringLiteral("nothing"), {}};
    }
    installer.press(stepButtons[number]);
    return {QLatin1String(stepButtons[number]), {Happening::Step, number}};
}

Walker::Action Walker::pressTab()
{
    if (marks.page() != MainDialog::SettingPage) {
        return pressStep();
    }
    // The Installation tab has the most to offer.
    const int number = qMin(3, dice(7));
    installer.tab(tabButtons[number]);
    return {QLatin1String(tabButtons[number]), {Happening::Tab, number}};
}

Walker::Action Walker::toggleHeader()
{
    QString section = QLatin1String(sections[dice(5)]);
    if (scene.isOpen(section) && dice(3) != 0) {
        section = QLatin1String(sections[dice(5)]); // Open ones are worth more.
    }
    Window::click(scene.control(section + QStringLiteral("/hideButton")));
    return {section + QStringLiteral("/hideButton"), {Happening::Header, 0, section}};
}

void Walker::pressLanguageBox() { installer.press("languageCombobox"); }

Walker::Action Walker::changeLanguage()
{
    pressLanguageBox();
    const MainDialog &dialog = installer.window.dialog;
    auto *list = Window::find<QListWidget>(dialog.members().languageMenuWidget, "listWidget");
    QListWidgetItem *item = list->item(dice(list->count()));
    list->scrollToItem(item);
    const QString name = qobject_cast<LanguageItem *>(list->itemWidget(item))->language();
    Window::click(list->itemWidget(item), "labelLanguage");
    Action action{QStringLiteral("language ") + name, {Happening::Nothing, 0, QStringLiteral("language")}};
    const QJsonObject texts = QJsonDocument::fromJson(
                                  testfiles::content(languagefolder::file(name + QStringLiteral(".json"))))
                                  .object();
    if (Window::find<QLabel>(&dialog, "labelLanguage")->text()
            != texts.value(QStringLiteral("Language")).toString()
        || Window::find<QLabel>(&dialog, "labelCurrentLanguage")->text() != name
        || dialog.members().languageMenuOpen) {
        action.complaints.append(QStringLiteral("the language isn't in force"));
    }
    return action;
}

/// A file of the language folder, by its dialog.
Walker::Action Walker::loadLanguage()
{
    const bool cancelled = dice(2) == 0;
    const QString path = languagefolder::file(QStringLiteral("Marked.json"));
    pressLanguageBox();
    QWidget *menu = installer.window.dialog.members().languageMenuWidget;
    filedialogs::answer([&] { Window::click(menu, "loadButton"); }, cancelled ? QString() : path);
    return {cancelled ? QStringLiteral("load-language cancelled") : QStringLiteral("load-language"),
            {Happening::Nothing, 0, QStringLiteral("language")}};
}

Walker::Action Walker::openEditor()
{
    pressLanguageBox();
    QWidget *menu = installer.window.dialog.members().languageMenuWidget;
    const bool opened = modal::drive<UserLanguageEditPopup>(
        [&] { Window::click(menu, "newButton"); }, [](UserLanguageEditPopup *editor) { editor->reject(); });
    Action action{QStringLiteral("editor"), {}};
    if (!opened) {
        action.complaints.append(QStringLiteral("no editor"));
    }
    return action;
}

Walker::Action Walker::toggleMenu()
{
    pressLanguageBox();
    pressLanguageBox();
    return {QStringLiteral("menu"), {}};
}

Walker::Action Walker::startNew()
{
    installer.press("newButton");
    return {QStringLiteral("new"), {Happening::New}};
}

Walker::Action Walker::open()
{
    const QString path = installer.folder.filePath(QStringLiteral("plant.json"));
    const auto whole = [this] {
        return documents::standard(dice(2) == 0 ? QStringLiteral("R32") : QStringLiteral("R410")).toJson();
    };
    const QByteArray content = opens == Opens::Damaged ? mutations::file(random) : whole();
    testfiles::put(path, content);
    if (dice(6) == 0) {
        filedialogs::answer([this] { installer.press("openButton"); }, QString());
        return {QStringLiteral("open cancelled"), {}};
    }
    filedialogs::answer([this] { installer.press("openButton"); }, path);
    return {QStringLiteral("open"), {Happening::Opened}, QJsonDocument::fromJson(content)};
}

Walker::Action Walker::save()
{
    const MainDialog &dialog = installer.window.dialog;
    const bool allowed = dialog.stepsDone() && !dialog.members().settings.filePath.isEmpty();
    const bool asks = allowed && dialog.members().settings.isNewFile;
    const bool cancelled = asks && dice(3) == 0;
    const QString path = asks ? installer.folder.filePath(QStringLiteral("saved-%1.json").arg(savedFiles++))
                              : dialog.members().settings.filePath;
    const QByteArray before = testfiles::content(path);
    const bool asked = installer.save(cancelled ? QString() : path);
    Action action{QStringLiteral("save ") + (cancelled ? "cancelled" : allowed ? "done" : "refused"), {}};
    const bool written = allowed && !cancelled;
    const QByteArray expected = written ? dialog.document().toJson(QJsonDocument::Compact) : before;
    if (asked != asks || testfiles::content(path) != expected) {
        action.complaints.append(QStringLiteral("Save asked or wrote what it mustn't"));
    }
    return action;
}

Walker::Action Walker::maximize()
{
    installer.press("maximumButton");
    QCoreApplication::processEvents();
    return {QStringLiteral("maximize"), {}};
}

/// The window that comes back is shown anew, and so is its page.
Walker::Action Walker::minimize()
{
    MainDialog &dialog = installer.window.dialog;
    const bool wasMaximized = dialog.isMaximized();
    installer.press("minimizeButton");
    Action action{QStringLiteral("minimize"), {}};
    if (!QTest::qWaitFor([&] { return dialog.isMinimized(); })) {
        action.complaints.append(QStringLiteral("the window isn't minimized"));
    }
    wasMaximized ? dialog.showMaximized() : dialog.showNormal();
    if (!QTest::qWaitFor([&] { return !dialog.isMinimized() && displayShows.count > 0; })) {
        action.complaints.append(QStringLiteral("the window doesn't come back"));
    }
    return action;
}
