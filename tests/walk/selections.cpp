#include "walk/selections.h"

#include "support/window.h"
#include "walk/comborules.h"
#include "walk/radiorules.h"
#include "walk/scene.h"

namespace {

/// "Page/radio" of each radio of the rule.
QStringList radiosOf(const RadioRule &rule)
{
    QStringList names = rule.radios.split(QLatin1Char(' '));
    for (QString &name : names) {
        name.prepend(QLatin1String(rule.page) + QLatin1Char('/'));
    }
    return names;
}

QString checkedOf(const Scene &scene, const QStringList &radios)
{
    for (const QString &name : radios) {
        if (scene.control<QRadioButton>(name)->isChecked()) {
            return name.section(QLatin1Char('/'), 1);
        }
    }
    return {};
}

/// A meter's pulses are kept in tenths.
bool isMeterText(const QString &shown, double tenths)
{
    return shown == QString::number(tenths / 10.0)
        || static_cast<int>(shown.toDouble() * 10.0) == static_cast<int>(tenths);
}

} // namespace

void Selections::touched(const QString &name, const QStringList &loadedPages)
{
    loaded(loadedPages);
    traces.touched(name);
    seasonal.touched(name);
}

void Selections::loaded(const QStringList &pages)
{
    for (const QString &page : pages) {
        traces.loaded(page);
        if (page == QLatin1String("InstallationaAuto")) {
            seasonal.loaded();
        }
    }
}

QStringList Selections::complaints(const Scene &scene, const QString &page)
{
    QStringList result = ofCombos(scene, page) + ofRadios(scene, page) + ofTexts(scene);
    if (QStringLiteral("InstallationaAuto/").startsWith(page)) {
        result += seasonal.complaints(scene);
    }
    return result;
}

QStringList Selections::ofCombos(const Scene &scene, const QString &page) const
{
    QStringList result;
    for (const ComboRule &rule : comborules::all()) {
        const QString name = QLatin1String(rule.name);
        const auto *combo = scene.control<QComboBox>(name);
        if (!combo->isVisible() || !name.startsWith(page)) {
            continue;
        }
        const auto items = rule.items(scene);
        if (!items) {
            exceptions::note(name.startsWith(QLatin1String("SettingUser")) ? "no month" : "crossed limits");
        } else if (Window::items(combo) != *items && !traces.excuseList(name)
                   && !exceptions::excuseList(scene, name)) {
            result.append(
                QStringLiteral("%1 lists \"%2\", its rule \"%3\"")
                    .arg(name, Window::items(combo).join(QLatin1Char(' ')), items->join(QLatin1Char(' '))));
        }
        const auto index = rule.shown(scene, *combo);
        if (index && combo->currentIndex() != *index && !traces.excuseSelection(name)
            && !exceptions::excuse(scene, name, *index)) {
            result.append(QStringLiteral("%1 shows item %2 \"%3\", not %4 \"%5\"")
                              .arg(name)
                              .arg(combo->currentIndex())
                              .arg(combo->currentText())
                              .arg(*index)
                              .arg(combo->itemText(*index)));
        }
    }
    return result;
}

QStringList Selections::ofRadios(const Scene &scene, const QString &page) const
{
    QStringList result;
    for (const RadioRule &rule : radioRules()) {
        const QStringList radios = radiosOf(rule);
        const auto expected = rule.checked(scene);
        if (!expected || !scene.control(radios.first())->isVisible() || !radios.first().startsWith(page)
            || checkedOf(scene, radios) == *expected) {
            continue;
        }
        const bool excused = std::any_of(radios.begin(), radios.end(), [&](const QString &radio) {
            return traces.excuseSelection(radio) || exceptions::excuse(scene, radio);
        });
        if (!excused) {
            result.append(QStringLiteral("of %1 is \"%2\" checked, not \"%3\"")
                              .arg(radios.join(QLatin1Char(' ')), checkedOf(scene, radios), *expected));
        }
    }
    return result;
}

QStringList Selections::ofTexts(const Scene &scene)
{
    QStringList result;
    for (const QString &number :
         {QStringLiteral("1"), QStringLiteral("2"), QStringLiteral("3"), QStringLiteral("4")}) {
        const auto *edit = scene.control<QLineEdit>(QStringLiteral("DipSwitchSettingStatus/lineEditWHM")
                                                    + number);
        const QString path = QStringLiteral("SettingInfo.installation.meterInterface.interface") + number;
        if (edit->isVisible() && !isMeterText(edit->text(), scene.value(path).toDouble())
            && !exceptions::excuse(scene, Scene::nameOf(edit))) {
            result.append(QStringLiteral("%1 shows \"%2\"").arg(edit->objectName(), edit->text()));
        }
    }
    const QPair<const char *, const char *> contacts[] = {{"lineEditOfficeName", "company"},
                                                          {"lineEditInstallerName", "installerName"},
                                                          {"lineEditTelephone", "phoneNumber"}};
    for (const auto &[name, key] : contacts) {
        const auto *edit = scene.control<QLineEdit>(QStringLiteral("SettingService/") + QLatin1String(name));
        const QString kept = scene.text(QStringLiteral("SettingInfo.svc.svcContact.") + QLatin1String(key));
        // An empty company is kept as "-", and what is kept as empty isn't loaded.
        const bool fallen = edit->text().isEmpty() && kept == QLatin1String("-");
        if (edit->isVisible() && !kept.isEmpty() && !fallen && edit->text() != kept
            && !exceptions::excuse(scene, Scene::nameOf(edit))) {
            result.append(
                QStringLiteral("%1 shows \"%2\" for \"%3\"").arg(QLatin1String(name), edit->text(), kept));
        }
    }
    return result;
}

QStringList Selections::ruled()
{
    QStringList names;
    for (const ComboRule &rule : comborules::all()) {
        names.append(QLatin1String(rule.name));
    }
    for (const RadioRule &rule : radioRules()) {
        names += radiosOf(rule);
    }
    return names;
}
