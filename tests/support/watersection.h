#pragma once

#include "support/window.h"

#include <QJsonValue>

namespace water {

inline const QString root = QStringLiteral("SettingInfo.installation.");
inline const QString mainZone = root + QStringLiteral("circuitMainZone.enableMainZone");
inline const QString sensed = root + QStringLiteral("sensorDefine.settemp_select");
inline const QString airAndWater = root + QStringLiteral("sensorDefine.airAndWaterUse");

inline QString flag(const char *name) { return QStringLiteral("IduFuncList.") + QLatin1String(name); }

/// The eight seasonal values.
inline QVariantMap seasons(int coolMin, int coolMax, int heatMin, int heatMax)
{
    const QString under = root + QStringLiteral("seasonalAutoOption.");
    return {{under + "coolWaterTemp.min", coolMin},         {under + "coolWaterTemp.max", coolMax},
            {under + "coolWaterTempMainZone.min", coolMin}, {under + "coolWaterTempMainZone.max", coolMax},
            {under + "heatWaterTemp.min", heatMin},         {under + "heatWaterTemp.max", heatMax},
            {under + "heatWaterTempMainZone.min", heatMin}, {under + "heatWaterTempMainZone.max", heatMax}};
}

/// Drives the cooling or the heating section of a window. Cooling is on, and air and water are sensed, so
/// that all groups but that of circuit 1 are shown.
template <class Page>
class Driver
{
public:
    /// Loads R32 with more values into the closed section.
    void load(const QVariantMap &more = {}, const QString &unit = QStringLiteral("CENTIGRADE"))
    {
        if (page->isVisible()) {
            Window::expand(page, false);
        }
        const QVariantMap shownAll{{flag("is_cool"), "SET"}, {sensed, "AIR"}, {airAndWater, "SET"}};
        window.use(documents::with(documents::standard("R32"), documents::joined(shownAll, more)), unit);
        window.showPage(MainDialog::SettingPage, MainDialog::InstallationTab);
    }
    /// The same, and opens it.
    void open(const QVariantMap &more = {}, const QString &unit = QStringLiteral("CENTIGRADE"))
    {
        load(more, unit);
        Window::expand(page);
        messages::clear();
    }
    /// Sets values behind the section's back.
    void put(const QVariantMap &values) { window.use(documents::with(window.dialog.document(), values)); }

    // What an action changes in the document
    QVariantMap choose(const char *combo, const QString &item)
    {
        return window.changes([&] { Window::choose(page, combo, item); });
    }
    QVariantMap click(const char *radio)
    {
        return window.changes([&] { Window::click(page, radio); });
    }
    /// Chooses the item, or clicks the radio when there is none.
    QVariantMap operate(const char *control, const QString &item)
    {
        return item.isEmpty() ? click(control) : choose(control, item);
    }
    QVariantMap run(const char *slot)
    {
        return window.changes([&] { Window::invoke(page, slot); });
    }
    QVariantMap refresh()
    {
        return window.changes([&] { page->refresh(); });
    }

    QStringList items(const char *combo) const { return Window::items(page, combo); }
    QString shown(const char *combo) const { return Window::shown(page, combo); }
    bool checked(const char *radio) const { return Window::checked(page, radio); }
    bool enabled(const char *name) const { return Window::enabled(page, name); }

    void uncheck(std::initializer_list<const char *> radios)
    {
        for (const char *name : radios) {
            auto *radio = Window::find<QRadioButton>(page, name);
            radio->setAutoExclusive(false);
            radio->setChecked(false);
            radio->setAutoExclusive(true);
        }
    }

    Window window;
    Page *page = window.page<Page>();
};

/// Names a row of a data table after its control and what makes it differ.
inline QByteArray rowName(const char *control, const QVariantMap &values, const QString &more = QString())
{
    QString name = QString::fromLatin1(control) + QLatin1Char(' ') + more;
    for (auto value = values.begin(); value != values.end(); ++value) {
        name += QStringLiteral(" %1=%2").arg(value.key().section(QLatin1Char('.'), -2),
                                             value.value().toString());
    }
    return name.toUtf8();
}

/// The control that the current row is named after.
inline QByteArray rowControl() { return QByteArray(QTest::currentDataTag()).split(' ').first(); }

} // namespace water
