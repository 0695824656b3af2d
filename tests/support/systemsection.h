#pragma once

#include "support/window.h"

#include "pages/installation/installationsystemsetting.h"

/// The path of a key of the installation settings, and of a flag of the indoor unit.
inline QString installation(const char *key)
{
    return QStringLiteral("SettingInfo.installation.") + QLatin1String(key);
}
inline QString flag(const char *name) { return QStringLiteral("IduFuncList.") + QLatin1String(name); }

/// Flags that show every group of the heat pump section.
inline QVariantMap heatPumpGroups()
{
    QVariantMap flags;
    for (const char *name : {"isSGReady", "is_hotwater", "is_heater1", "isHotwaterTankHeaterUse",
                             "isAntiFreeze", "isPumpPreOverRun", "isExtWaterPump", "isBoilerOf3rdParty"}) {
        flags.insert(flag(name), "SET");
    }
    return flags;
}

/// A window with the system section of the Installation tab, for its tests and those of its product sections.
class SystemSection
{
public:
    Window window;
    InstallationSystemSetting *page = window.page<InstallationSystemSetting>();

    SystemSection() { window.speak(); }

    /// Loads a default document with changes into the collapsed section.
    void load(const QVariantMap &values = {}, const char *refrigerant = "R32",
              const QString &unit = QStringLiteral("CENTIGRADE"))
    {
        if (Window::shownItself(page, "frame")) {
            Window::invoke(page, "on_hideButton_clicked");
        }
        window.use(documents::with(documents::standard(QLatin1String(refrigerant)), values), unit);
        showAgain();
        messages::clear();
    }

    /// Shows the tab anew, the section open or closed as it is.
    void showAgain() { window.showPage(MainDialog::SettingPage, MainDialog::InstallationTab); }

    QJsonDocument document() const { return window.dialog.document(); }
    const DialogState &members() const { return window.dialog.members(); }
};
