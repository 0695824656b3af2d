#pragma once

#include "pages/operation/settinguser.h"
#include "support/window.h"

/// A window with the User tab, and short ways to load and ask it.
class UserTabTest : public QObject
{
protected:
    static constexpr int unset = -9999;
    static inline const QString user = QStringLiteral("SettingInfo.user.");
    static inline const QString year = user + QStringLiteral("DateInfo.year");
    static inline const QString month = user + QStringLiteral("DateInfo.month");
    static inline const QString mday = user + QStringLiteral("DateInfo.mday");
    static inline const QString summerTime = user + QStringLiteral("summerTime.enable");
    static inline const QString startMonth = user + QStringLiteral("summerTime.start.mon");
    static inline const QString startDay = user + QStringLiteral("summerTime.start.day");
    static inline const QString endMonth = user + QStringLiteral("summerTime.end.mon");
    static inline const QString endDay = user + QStringLiteral("summerTime.end.day");
    static inline const QVariantMap dated{{year, 2024}, {month, 5}, {mday, 6}};

    /// A list that begins with a caption.
    static QStringList headed(const QString &first, int lower, int upper)
    {
        return QStringList{first} + range(lower, upper, QString());
    }

    /// Makes a window in which the tab hasn't been shown yet.
    void renew()
    {
        window = std::make_unique<Window>();
        page = window->page<SettingUser>();
    }
    /// Loads R410 with the values.
    void show(const QVariantMap &values = {})
    {
        window->use(documents::with(documents::standard("R410"), values));
        window->showPage(MainDialog::SettingPage, MainDialog::UserTab);
    }
    QComboBox *combo(const char *name) const { return Window::find<QComboBox>(page, name); }
    QVariantMap changesOf(const char *name, const QString &item) const
    {
        return window->changes([&] { Window::choose(page, name, item); });
    }
    /// What the page itself reads at the path.
    QVariant stored(const QString &path) const
    {
        QJsonValue value;
        QMetaObject::invokeMethod(page, "parseJsonData", Q_RETURN_ARG(QJsonValue, value),
                                  Q_ARG(QString, path));
        return value.toVariant();
    }
    bool valid() const { return window->dialog.members().results.userValid; }

    std::unique_ptr<Window> window;
    SettingUser *page = nullptr;
};
