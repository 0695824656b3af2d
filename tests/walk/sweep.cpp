#include "walk/sweep.h"

#include "support/dipswitches.h"
#include "support/schema.h"
#include "support/tour.h"
#include "walk/effects.h"
#include "walk/exceptions.h"

#include <QScrollArea>

namespace {

/// Lists of up to so many items are gone through whole.
constexpr int fewItems = 9;

const QStringList &sections()
{
    static const QStringList names{"InstallationSystemSetting", "InstallationCool", "InstallationHeat",
                                   "InstallationaAuto", "InstallationDWH"};
    return names;
}

const QVector<Sweep::Place> &places()
{
    static const QVector<Sweep::Place> all{
        {MainDialog::DipSwitchPage, -1, {"DipSwitchSettingStatus"}},
        {MainDialog::SettingPage, MainDialog::FunctionTab, {"SettingFunction"}},
        {MainDialog::SettingPage, MainDialog::UserTab, {"SettingUser"}},
        {MainDialog::SettingPage, MainDialog::ServiceTab, {"SettingService"}},
        {MainDialog::SettingPage, MainDialog::InstallationTab,
         sections() + QStringList{"InstallationSystemAWHP", "InstallationSystemAquabox"}}};
    return all;
}

QString pageOf(const QString &name) { return name.section(QLatin1Char('/'), 0, 0); }

/// Lists by which more is offered; they end as they were.
bool isGate(const QWidget *list)
{
    return QStringList{"comboBoxSensingTemp", "comboReferenceWater", "comboControlMode"}.contains(
        list->objectName());
}

/// Whether a change runs the page's check, which tells so in the log.
bool isChecked(const QString &name)
{
    return !name.startsWith(QLatin1String("DipSwitch")) && !name.startsWith(QLatin1String("SettingService"))
        && name != QLatin1String("SettingUser/radioSummerTimeUse");
}

bool hasCheckRun(const QString &name)
{
    // The product sections tell it in the name of the section around them.
    const QString page = name.startsWith(QLatin1String("InstallationSystem"))
        ? QStringLiteral("InstallationSystem")
        : pageOf(name) + QStringLiteral("::");
    const QStringList told = messages::all().filter(QLatin1String("alidation"));
    return std::any_of(told.begin(), told.end(),
                       [&page](const QString &message) { return message.startsWith(page); });
}

/// Out of sight the first key would only show it.
void bringIntoSight(QComboBox *list)
{
    Tour::settle();
    for (QWidget *above = list->parentWidget(); above != nullptr; above = above->parentWidget()) {
        if (auto *area = qobject_cast<QScrollArea *>(above)) {
            area->ensureWidgetVisible(list);
        }
    }
}

} // namespace

Sweep::Sweep()
    : scene(window.dialog)
{
    window.speak();
    window.stopPainting();
    for (QWidget *widget : window.dialog.findChildren<QWidget *>()) {
        const QString name = Scene::nameOf(widget);
        const bool isDrawn = qobject_cast<QPushButton *>(widget) != nullptr;
        if (effects::knows(name) && !isDrawn && pageOf(name) != QLatin1String("ProductSelection")) {
            controls.append({name, widget});
        }
        hasUntold |= !name.isEmpty() && qobject_cast<QComboBox *>(widget) != nullptr && !effects::knows(name);
    }
}

QStringList Sweep::untouched() const
{
    QStringList others;
    for (const auto &[name, widget] : controls) {
        if (!touched.contains(name)) {
            others.append(name);
        }
    }
    return others;
}

QStringList Sweep::touch(const QJsonDocument &document, const QString &unit)
{
    complaints.clear();
    for (const Place &place : places()) {
        load(place, document, unit);
        for (const auto &[name, widget] : qAsConst(controls)) {
            if (!place.pages.contains(pageOf(name)) || !widget->isVisible() || !widget->isEnabled()) {
                continue;
            }
            if (auto *combo = qobject_cast<QComboBox *>(widget)) {
                touchList(combo);
            } else if (auto *radio = qobject_cast<QRadioButton *>(widget)) {
                touchRadio(radio);
            } else if (auto *edit = qobject_cast<QLineEdit *>(widget)) {
                act(edit, [edit] { Window::type(edit, QStringLiteral("345")); });
            }
        }
        scene.look();
        const QJsonDocument left = scene.document();
        judge(QStringLiteral("touched"), left, {});
        load(place, documents::standard(QStringLiteral("R410")), unit);
        load(place, left, unit);
    }
    return complaints;
}

QStringList Sweep::show(const QJsonDocument &document, const QString &unit)
{
    complaints.clear();
    for (const Place &place : places()) {
        load(place, document, unit);
    }
    return complaints;
}

QStringList Sweep::showInstallation(const QJsonDocument &document, const QString &unit)
{
    complaints.clear();
    load(places().constLast(), document, unit);
    return complaints;
}

void Sweep::load(const Place &place, const QJsonDocument &document, const QString &unit)
{
    window.use(document, unit);
    window.showPage(place.step, place.tab);
    if (place.tab == MainDialog::InstallationTab) {
        for (const QString &section : sections()) {
            auto *button = scene.control(section + QStringLiteral("/hideButton"));
            if (button->isVisible() && !scene.isOpen(section)) {
                Window::click(button);
            }
        }
    }
    scene.look();
    selections.loaded(place.pages);
    QStringList mayWrite = effects::ofLoads(place.pages, scene);
    if (hasUntold) {
        mayWrite += effects::untold();
    }
    judge(QStringLiteral("show"), document, mayWrite);
    // A load that writes back what it shows would hide that it shows something else than what was stored. Of
    // water, one section sets back what another shows.
    scene.look(document);
    for (const QString &page : place.pages) {
        for (const QString &complaint : selections.complaints(scene, page + QLatin1Char('/'))) {
            if (page != QLatin1String("InstallationaAuto")
                && !complaint.contains(QLatin1String("/comboControl"))) {
                complain(QStringLiteral("stored"), complaint);
            }
        }
    }
    scene.look();
}

/// After another of its choice, so that it changes something, and back to the one that was checked.
void Sweep::touchRadio(QRadioButton *radio)
{
    const auto siblings = radio->parentWidget()->findChildren<QRadioButton *>();
    QRadioButton *first = radio;
    for (QRadioButton *each : siblings) {
        first = each != radio && each->isVisible() && each->isEnabled() ? each : first;
    }
    QRadioButton *checked = first;
    for (QRadioButton *each : siblings) {
        checked = each->isChecked() ? each : checked;
    }
    if (first == radio) {
        return;
    }
    if (!first->isChecked()) {
        Window::click(first);
        selections.touched(Scene::nameOf(first), effects::loadsBy(Scene::nameOf(first)));
    }
    act(radio, [radio] { Window::click(radio); });
    Window::click(checked);
    selections.touched(Scene::nameOf(checked), effects::loadsBy(Scene::nameOf(checked)));
}

void Sweep::touchList(QComboBox *combo)
{
    bringIntoSight(combo);
    const int before = combo->currentIndex();
    const int count = combo->count();
    act(combo, [combo] { QTest::keyClick(combo, Qt::Key_End); });
    act(combo, [combo] { QTest::keyClick(combo, Qt::Key_Up); });
    act(combo, [combo] { QTest::keyClick(combo, Qt::Key_Home); });
    for (int down = 0; down < (count <= fewItems ? count - 1 : 2); ++down) {
        act(combo, [combo] { QTest::keyClick(combo, Qt::Key_Down); });
    }
    if (isGate(combo)) {
        act(combo, [combo, before] { Window::choose(combo, before); });
    } else if (count > fewItems) {
        act(combo, [combo, count] { Window::choose(combo, count / 2); });
    }
}

void Sweep::act(const QWidget *control, const std::function<void()> &action)
{
    const QString name = Scene::nameOf(control);
    const auto *combo = qobject_cast<const QComboBox *>(control);
    const int index = combo == nullptr ? -1 : combo->currentIndex();
    scene.look();
    const QJsonDocument before = scene.document();
    const QStringList mayWrite = effects::ofControl(name, scene);
    const QStringList own = effects::own(name, scene);
    messages::clear();
    action();
    const bool moved = combo == nullptr || combo->currentIndex() != index;
    scene.look();
    selections.touched(name, effects::loadsBy(name));
    const QVariantMap changes = judge(name, before, mayWrite);
    if (!moved) {
        return;
    }
    touched.insert(name);
    if (isChecked(name) && !hasCheckRun(name)) {
        complain(name, QStringLiteral("isn't checked"));
    }
    const auto isWritten = [&changes](const QString &path) { return changes.contains(path); };
    if (dipswitches::radios().contains(control->objectName())) {
        const QVariantMap left = dipswitches::clicked(control->objectName());
        for (auto value = left.begin(); value != left.end(); ++value) {
            if (scene.value(value.key()).toVariant() != value.value()) {
                complain(name, QStringLiteral("doesn't leave its value at ") + value.key());
            }
        }
    }
    // A slave stays the master that it is written as.
    const bool mayStay = name.startsWith(QLatin1String("DipSwitchSettingStatus/radioOdu"));
    const bool whole = mayStay
        || (own.isEmpty() ? !changes.isEmpty() : std::all_of(own.begin(), own.end(), isWritten));
    if (!whole && !exceptions::excuse(scene, name)) {
        complain(name, QStringLiteral("doesn't write ") + own.join(QLatin1Char(' ')));
    }
}

QVariantMap Sweep::judge(const QString &name, const QJsonDocument &before, const QStringList &mayWrite)
{
    const bool isTouch = name.contains(QLatin1Char('/'));
    const QVariantMap changes = documents::changes(before, scene.document());
    for (auto change = changes.begin(); change != changes.end(); ++change) {
        if (!mayWrite.contains(change.key())) {
            complain(name, QStringLiteral("writes ") + change.key());
        } else if (isTouch && !schema::takes(change.key(), change.value())
                   && !exceptions::excuse(scene, name)) {
            complain(name, QStringLiteral("writes %1 at %2").arg(change.value().toString(), change.key()));
        }
    }
    const QString page = isTouch ? pageOf(name) + QLatin1Char('/') : QString();
    for (const QString &complaint : selections.complaints(scene, page)) {
        complain(name, complaint);
    }
    return changes;
}

void Sweep::complain(const QString &name, const QString &text)
{
    const auto *combo = qobject_cast<QComboBox *>(name.contains(QLatin1Char('/')) ? scene.control(name)
                                                                                  : nullptr);
    complaints.append(combo == nullptr
                          ? QStringLiteral("%1: %2").arg(name, text)
                          : QStringLiteral("%1 -> \"%2\": %3").arg(name, combo->currentText(), text));
}
