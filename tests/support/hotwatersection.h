#pragma once

#include "pages/installation/installationdwh.h"
#include "support/window.h"

/// The hot water section in the real window, opened on documents that a test asks for.
class HotWaterSection
{
public:
    /// Offers every group of the section when it is laid over a default document.
    static QVariantMap everything()
    {
        return {{"IduFuncList.is_hotwater", "SET"},
                {"IduFuncList.is_timer_hotwater", "SET"},
                {"IduFuncList.is_waterthermoonoff", "SET"},
                {"SettingInfo.installation.disinfect_time.enable", "SET"}};
    }

    /// The path of a key of the installation settings.
    static QString at(const char *key)
    {
        return QStringLiteral("SettingInfo.installation.") + QLatin1String(key);
    }

    /// Loads the section from a default document with these values, opens it and forgets the log.
    void load(const QVariantMap &values, const QString &unit = QStringLiteral("CENTIGRADE"),
              const QString &refrigerant = QStringLiteral("R32"))
    {
        window.use(documents::with(documents::standard(refrigerant), values), unit);
        show();
        Window::expand(page);
        messages::clear();
    }

    void show() { window.showPage(MainDialog::SettingPage, MainDialog::InstallationTab); }

    /// Back to English, a default document and a closed section.
    void reset()
    {
        window.speak();
        window.use(documents::standard(QStringLiteral("R32")));
        show();
        Window::expand(page, false);
        messages::clear();
    }

    QStringList items(const char *combo) const { return Window::items(page, combo); }
    QString shown(const char *combo) const { return Window::shown(page, combo); }
    bool offered(const char *group) const { return Window::shownItself(page, group); }

    Window window;
    InstallationDWH *page = window.page<InstallationDWH>();
};

/// `values` with `more` laid over them.
inline QVariantMap operator+(QVariantMap values, const QVariantMap &more)
{
    for (auto value = more.begin(); value != more.end(); ++value) {
        values.insert(value.key(), value.value());
    }
    return values;
}
