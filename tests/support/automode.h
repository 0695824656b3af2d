#pragma once

#include "pages/installation/installationaauto.h"
#include "support/window.h"

#include <memory>
#include <vector>

/// The documents that the tests of the Auto mode section load, and the section in a window.
namespace automode {

inline const QString root = QStringLiteral("SettingInfo.installation.");
inline const QString seasonalRoot = root + QStringLiteral("seasonalAutoOption.");

/// In the order of their numbers, 1 to 20.
inline const char *const seasonalBoxes[] = {
    "comboHeatingOutdoorMin",       "comboHeatingOutdoorMax",        "comboCoolingOutdoorMin",
    "comboCoolingOutdoorMax",       "comboHeatingWaterMax",          "comboHeatingWaterMin",
    "comboCoolingWaterMax",         "comboCoolingWaterMin",          "comboMainZoneHeatingWaterMax",
    "comboMainZoneHeatingWaterMin", "comboMainZoneWaterMax",         "comboMainZoneWaterMin",
    "comboHeatingIndoorMax",        "comboHeatingIndoorMin",         "comboCoolingIndoorMax",
    "comboCoolingIndoorMin",        "comboMainZoneHeatingIndoorMax", "comboMainZoneHeatingIndoorMin",
    "comboMainZoneIndoorMax",       "comboMainZoneIndoorMin"};

/// Where their values are kept, below seasonalRoot.
inline const char *const seasonalPaths[] = {
    "heatOutTemp.min",           "heatOutTemp.max",           "coolOutTemp.min",
    "coolOutTemp.max",           "heatWaterTemp.max",         "heatWaterTemp.min",
    "coolWaterTemp.max",         "coolWaterTemp.min",         "heatWaterTempMainZone.max",
    "heatWaterTempMainZone.min", "coolWaterTempMainZone.max", "coolWaterTempMainZone.min",
    "heatAirTemp.max",           "heatAirTemp.min",           "coolAirTemp.max",
    "coolAirTemp.min",           "heatAirTempMainZone.max",   "heatAirTempMainZone.min",
    "coolAirTempMainZone.max",   "coolAirTempMainZone.min"};

inline QVariantMap mainZone(const QString &use) { return {{root + "circuitMainZone.enableMainZone", use}}; }

inline QVariantMap sensing(const QString &select, const QString &both)
{
    return {{root + "sensorDefine.settemp_select", select}, {root + "sensorDefine.airAndWaterUse", both}};
}

inline QVariantMap limits(const QString &key, int low, int high)
{
    return {{seasonalRoot + key + ".min", low}, {seasonalRoot + key + ".max", high}};
}

inline QVariantMap join(const std::vector<QVariantMap> &maps)
{
    QVariantMap joined;
    for (const QVariantMap &map : maps) {
        for (auto value = map.begin(); value != map.end(); ++value) {
            joined.insert(value.key(), value.value());
        }
    }
    return joined;
}

/// Seasonal mode with all rows on the page, and room between the values.
inline QVariantMap seasonalPlant(const QString &mainZoneUse)
{
    return join({{{"IduFuncList.isSeasonalAuto", "SET"}},
                 sensing("AIR", "SET"),
                 mainZone(mainZoneUse),
                 limits("heatAirTemp", 24, 29),
                 limits("heatAirTempMainZone", 20, 26),
                 limits("coolAirTemp", 18, 22),
                 limits("coolAirTempMainZone", 20, 26),
                 limits("heatWaterTemp", 30, 45),
                 limits("heatWaterTempMainZone", 25, 40),
                 limits("coolWaterTemp", 16, 20),
                 limits("coolWaterTempMainZone", 18, 24)});
}

/// One window whose Auto mode section is shown.
class Section
{
public:
    Section()
        : page(window.page<InstallationaAuto>())
    {
        window.speak();
    }

    /// Puts the default document with the changes in force, and shows and opens the section.
    void load(const QVariantMap &values, const char *refrigerant = "R32", const char *unit = "CENTIGRADE")
    {
        window.use(documents::with(documents::standard(refrigerant), values), unit);
        window.showPage(MainDialog::SettingPage, MainDialog::InstallationTab);
        Window::expand(page);
        page->refresh();
        messages::clear();
    }

    /// The same, and leaves for another page: the boxes work the same there, and sooner. The document then
    /// in force.
    QJsonDocument loadAside(const QVariantMap &values, const char *refrigerant = "R32",
                            const char *unit = "CENTIGRADE")
    {
        load(values, refrigerant, unit);
        window.showPage(MainDialog::SelectPage);
        return window.dialog.document();
    }

    QComboBox *box(const char *name) const { return Window::find<QComboBox>(page, name); }
    QString shown(const char *name) const { return box(name)->currentText(); }
    QStringList items(const char *name) const { return Window::items(box(name)); }
    /// The first and the last item.
    QString ends(const char *name) const
    {
        const QStringList list = items(name);
        return list.isEmpty() ? QString() : list.first() + ' ' + list.last();
    }
    /// All seasonal boxes as they stand.
    QStringList allLists() const
    {
        QStringList lists;
        for (const char *name : seasonalBoxes) {
            lists.append(shown(name) + ": " + items(name).join(' '));
        }
        return lists;
    }

    void refreshTempRange(int type) { QMetaObject::invokeMethod(page, "refreshTempRange", Q_ARG(int, type)); }
    void valueChanged(int box, int value, bool refresh)
    {
        QMetaObject::invokeMethod(page, "valueChanged", Q_ARG(int, box), Q_ARG(int, value),
                                  Q_ARG(bool, refresh));
    }

    Window window;
    InstallationaAuto *page;
};

} // namespace automode
