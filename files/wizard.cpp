#include "files/wizard.h"

#include "app/maindialog.h"
#include "files/catalogue.h"
#include "files/reading.h"
#include "files/texts.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QCoreApplication>
#include <QFile>
#include <QJsonObject>
#include <QPushButton>
#include <QShowEvent>
#include <QSignalBlocker>
#include <QStackedWidget>

#include <array>

namespace {

constexpr int noTab = -1;

/// The pages in the order of the wizard.
constexpr std::array<WizardPlace, 11> places{
    {{"DipSwitchSettingStatus", MainDialog::DipSwitchPage, noTab},
     {"SettingFunction", MainDialog::SettingPage, MainDialog::FunctionTab},
     {"SettingUser", MainDialog::SettingPage, MainDialog::UserTab},
     {"SettingService", MainDialog::SettingPage, MainDialog::ServiceTab},
     {"InstallationSystemSetting", MainDialog::SettingPage, MainDialog::InstallationTab},
     {"InstallationSystemAWHP", MainDialog::SettingPage, MainDialog::InstallationTab},
     {"InstallationSystemAquabox", MainDialog::SettingPage, MainDialog::InstallationTab},
     {"InstallationCool", MainDialog::SettingPage, MainDialog::InstallationTab},
     {"InstallationHeat", MainDialog::SettingPage, MainDialog::InstallationTab},
     {"InstallationaAuto", MainDialog::SettingPage, MainDialog::InstallationTab},
     {"InstallationDWH", MainDialog::SettingPage, MainDialog::InstallationTab}}};

QStringList itemsOf(const QComboBox &list)
{
    QStringList items;
    for (int index = 0; index < list.count(); ++index) {
        items.append(list.itemText(index));
    }
    return items;
}

void check(QAbstractButton *button, bool checked)
{
    const QSignalBlocker silent(button);
    button->setAutoExclusive(false);
    button->setChecked(checked);
    button->setAutoExclusive(true);
}

} // namespace

Wizard::Wizard()
    : dialog(std::make_unique<MainDialog>())
{
    steps = dialog->findChild<QStackedWidget *>(QStringLiteral("stackedWidget"));
    tabs = dialog->findChild<QStackedWidget *>(QStringLiteral("settingStackedWidget"));
    const QList<QWidget *> widgets = dialog->findChildren<QWidget *>();
    for (const WizardPlace &place : places) {
        for (QWidget *each : widgets) {
            if (qstrcmp(each->metaObject()->className(), place.page) == 0) {
                pages.insert(QLatin1String(place.page), each);
            }
        }
    }
    dialog->setTempUnit(QStringLiteral("CENTIGRADE"));
    speakKeys();
    openSections();
    collect();
    remember();
    dialog->setUpdatesEnabled(false);
    dialog->show();
}

Wizard::~Wizard() = default;

/// No two texts are the same then, and none is that of a user.
void Wizard::speakKeys()
{
    QFile file(QStringLiteral(":/language/English.json"));
    file.open(QIODevice::ReadOnly);
    QJsonObject map = QJsonDocument::fromJson(file.readAll()).object();
    const QStringList keys = map.keys();
    for (const QString &key : keys) {
        map.insert(key, key);
    }
    dialog->setLanguageDocument(QJsonDocument(map));
    dialog->changeLanguage();
}

/// A closed one hides its controls, and passes its checks.
void Wizard::openSections()
{
    const auto headers = dialog->findChildren<QPushButton *>(QStringLiteral("hideButton"));
    for (QPushButton *button : headers) {
        button->click();
    }
}

void Wizard::collect()
{
    for (const Setting &setting : catalogue::settings()) {
        QWidget *page = pages.value(catalogue::page(setting));
        if (page == nullptr) {
            continue;
        }
        Control control{&setting, nullptr, {}, nullptr};
        const QStringList names =
            QString(QLatin1String(setting.control)).section(QLatin1Char('/'), 1).split(QLatin1Char(' '));
        for (const QString &name : names) {
            auto *widget = page->findChild<QWidget *>(name);
            if (widget == nullptr) {
                qFatal("No control %s", setting.control);
            }
            control.widget = control.widget == nullptr ? widget : control.widget;
            control.list = qobject_cast<QComboBox *>(widget);
            if (auto *radio = qobject_cast<QAbstractButton *>(widget)) {
                control.radios.push_back(radio);
            }
        }
        controls[catalogue::page(setting)].push_back(control);
    }
}

void Wizard::remember()
{
    const QList<QComboBox *> lists = dialog->findChildren<QComboBox *>();
    for (QComboBox *list : lists) {
        firstLists.insert(list, {itemsOf(*list), list->currentIndex()});
    }
    for (const auto &page : qAsConst(controls)) {
        for (const Control &control : page) {
            for (QAbstractButton *radio : control.radios) {
                firstChecks.insert(radio, radio->isChecked());
            }
        }
    }
    for (const QWidget *page : qAsConst(pages)) {
        const QList<QWidget *> parts = page->findChildren<QWidget *>();
        for (QWidget *part : parts) {
            firstLooks.insert(part, {part->isHidden(), part->testAttribute(Qt::WA_ForceDisabled)});
        }
    }
}

/// To what a new window has: a load leaves some lists, radios and groups as the document before had them.
void Wizard::reset()
{
    for (auto list = firstLists.begin(); list != firstLists.end(); ++list) {
        if (list.key()->count() != list->items.size() || list.key()->itemText(0) != list->items.value(0)) {
            MainDialog::setComboItems(list.key(), list->items, -1);
        }
        const QSignalBlocker silent(list.key());
        list.key()->setCurrentIndex(list->index);
    }
    for (auto radio = firstChecks.begin(); radio != firstChecks.end(); ++radio) {
        check(radio.key(), *radio);
    }
    for (auto part = firstLooks.begin(); part != firstLooks.end(); ++part) {
        if (part.key()->isHidden() != part->hidden) {
            part.key()->setHidden(part->hidden);
        }
        if (part.key()->testAttribute(Qt::WA_ForceDisabled) != part->disabled) {
            part.key()->setDisabled(part->disabled);
        }
    }
}

/// As Open and a hand on the buttons would: each page gets what the one before has left. Returns what the
/// marks tell.
bool Wizard::walk(const QJsonDocument &document)
{
    dialog->setDocument(document);
    steps->setCurrentIndex(MainDialog::ProductPage);
    for (const WizardPlace &place : places) {
        show(place);
    }
    const bool complete = dialog->members().results.dipSwitchDone && dialog->members().results.settingDone;
    leave();
    return complete;
}

void Wizard::show(const WizardPlace &place)
{
    steps->setCurrentIndex(place.step);
    if (place.tab != noTab) {
        tabs->setCurrentIndex(place.tab);
    }
}

void Wizard::leave()
{
    tabs->setCurrentIndex(MainDialog::FunctionTab);
    steps->setCurrentIndex(MainDialog::ValidationPage);
    // Nothing is ever painted or laid out; what waits for that would pile up.
    QCoreApplication::removePostedEvents(nullptr);
}

Wizard::Answer Wizard::ask(const QJsonObject &document)
{
    Answer answer;
    reset();
    answer.complete = walk(QJsonDocument(document));
    reset();
    for (const WizardPlace &place : places) {
        show(place);
        // Without what the pages before have written.
        dialog->setDocument(QJsonDocument(document));
        QWidget *page = pages.value(QLatin1String(place.page));
        if (page->isVisible()) {
            QShowEvent event;
            QCoreApplication::sendEvent(page, &event);
            judge(QLatin1String(place.page), document, &answer);
            answer.switches = place.step == MainDialog::DipSwitchPage ? switches() : answer.switches;
        }
    }
    leave();
    return answer;
}

QMap<QString, bool> Wizard::switches() const
{
    QMap<QString, bool> shown;
    const QWidget *page = pages.value(QStringLiteral("DipSwitchSettingStatus"));
    const QList<QAbstractButton *> buttons = page->findChildren<QAbstractButton *>();
    for (const QAbstractButton *drawn : buttons) {
        if (drawn->objectName().startsWith(QLatin1String("DipSwitch")) && drawn->isVisible()) {
            shown.insert(drawn->objectName(), drawn->text() == QLatin1String("true"));
        }
    }
    return shown;
}

void Wizard::judge(const QString &page, const QJsonObject &document, Answer *answer) const
{
    for (const Control &control : controls.value(page)) {
        if (!control.widget->isVisible()) {
            continue;
        }
        if (control.widget->isEnabled()) {
            answer->offered.push_back(control.setting);
        }
        if (control.list != nullptr && control.setting->form != Form::PartOfWord) {
            judgeList(control, document, &answer->findings);
        }
        const auto isChecked = [](const QAbstractButton *radio) { return radio->isChecked(); };
        if (!control.radios.empty() && control.widget->isEnabled()
            && std::none_of(control.radios.begin(), control.radios.end(), isChecked)) {
            const QString path = QLatin1String(control.setting->path);
            answer->findings.push_back(
                {Severity::Warning, path, reading::told(reading::at(document, path)),
                 QStringLiteral("leaves the page without a choice, which it asks for")});
        }
    }
}

void Wizard::judgeList(const Control &control, const QJsonObject &document, Findings *findings) const
{
    static const Texts keys = Texts::keys();
    const QString path = QLatin1String(control.setting->path);
    const View view(keys, false, document);
    const QString text = catalogue::shown(*control.setting, document, view);
    const QString value = reading::told(reading::at(document, path));
    // Its first item is no choice then, and the page asks for one.
    const bool headed = control.list->itemText(0)
        == QString(QLatin1String(control.setting->captions)).section(QLatin1Char('/'), -1);
    const bool open = text.isEmpty() && !MainDialog::checkValidationComboBox(control.list);
    if (open && (headed || value == QLatin1String("-9999") || value == QLatin1String(R"("")"))) {
        const QString asks = headed ? QStringLiteral(", which the page asks for") : QString();
        findings->push_back({Severity::Warning, path, value, QStringLiteral("isn't chosen yet") + asks});
    } else if (open || (!text.isEmpty() && control.list->findText(text, Qt::MatchFixedString) < 0)) {
        findings->push_back({Severity::Warning, path, value,
                             QStringLiteral("isn't offered with the other values of the file"),
                             itemsOf(*control.list).mid(headed ? 1 : 0)});
    }
}
