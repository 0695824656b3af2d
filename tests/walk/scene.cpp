#include "walk/scene.h"

#include "app/maindialog.h"

#include <QJsonObject>
#include <QMap>

namespace {

const char *const pages[] = {"Select",
                             "ProductSelection",
                             "DipSwitchSettingStatus",
                             "SettingFunction",
                             "SettingUser",
                             "SettingService",
                             "InstallationSystemSetting",
                             "InstallationSystemAWHP",
                             "InstallationSystemAquabox",
                             "InstallationCool",
                             "InstallationHeat",
                             "InstallationaAuto",
                             "InstallationDWH",
                             "Validation"};

bool isPage(const QWidget *widget)
{
    const char *name = widget->metaObject()->className();
    return std::any_of(std::begin(pages), std::end(pages),
                       [name](const char *page) { return qstrcmp(page, name) == 0; });
}

/// °C to °F from -50 to 120: even numbers alone, so that 18 of them stand for two °C.
QMap<int, int> makeTable()
{
    const QList<int> doubled{-47, -32, -27, -19, -16, -6, 4, 14, 24, 34, 44, 54, 64, 74, 84, 94, 104, 114};
    QMap<int, int> table;
    int shown = -56;
    for (int degree = -50; degree <= 120; ++degree) {
        table.insert(degree, shown);
        shown += doubled.contains(degree) ? 0 : 2;
    }
    return table;
}

const QMap<int, int> &table()
{
    static const QMap<int, int> degreesOf = makeTable();
    return degreesOf;
}

} // namespace

Scene::Scene(MainDialog &window)
    : dialog(window)
{
    const auto widgets = window.findChildren<QWidget *>();
    for (QWidget *widget : widgets) {
        const QString name = nameOf(widget);
        if (!name.isEmpty() && !widget->objectName().isEmpty() && !controls.contains(name)) {
            controls.insert(name, widget);
        }
    }
    look();
}

void Scene::look()
{
    now = dialog.document();
    language = dialog.languageMap();
    isFahrenheit = dialog.tempUnit() == QLatin1String("FAHRENHEIT");
}

void Scene::look(const QJsonDocument &document)
{
    look();
    now = document;
}

QJsonValue Scene::value(const QString &path) const
{
    QJsonValue current = now.object();
    const auto names = path.split(QLatin1Char('.'));
    for (const QString &name : names) {
        current = current.toObject().value(name);
    }
    return current;
}

QString Scene::nameOf(const QWidget *widget)
{
    for (const QWidget *page = widget->parentWidget(); page != nullptr; page = page->parentWidget()) {
        if (isPage(page)) {
            return QLatin1String(page->metaObject()->className()) + QLatin1Char('/') + widget->objectName();
        }
    }
    return {};
}

bool Scene::isOpen(const QString &page) const
{
    if (!page.startsWith(QLatin1String("Installation"))) {
        return true;
    }
    // The product sections write through the section that hosts them.
    const bool hosted = page.startsWith(QLatin1String("InstallationSystem"));
    return !control((hosted ? QStringLiteral("InstallationSystemSetting") : page) + QStringLiteral("/frame"))
                ->isHidden();
}

int degrees::fahrenheit(int celsius) { return table().value(celsius, 0); }

int degrees::celsius(int fahrenheit) { return table().key(fahrenheit, 0); }

QString degrees::text(const Scene &scene, int celsius)
{
    return scene.fahrenheit() ? QString::number(fahrenheit(celsius)) + QStringLiteral("°F")
                              : QString::number(celsius) + QStringLiteral("°C");
}

int degrees::of(const Scene &scene, const QString &text)
{
    const int shown = text.chopped(qMin(2, text.size())).toInt();
    return scene.fahrenheit() ? celsius(shown) : shown;
}
