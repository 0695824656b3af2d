// The lists of the Function and the User tab. tst_controls.cpp holds them.

#include "support/times.h"
#include "walk/comborules.h"
#include "walk/scene.h"

namespace {

using comborules::find;

QString user(const char *key) { return QStringLiteral("SettingInfo.user.") + QLatin1String(key); }

QString twoDigits(int value)
{
    return value < 0 ? QString() : QString::number(value).rightJustified(2, QLatin1Char('0'));
}

QStringList minutes()
{
    QStringList items;
    for (int value = 0; value < 60; ++value) {
        items.append(twoDigits(value));
    }
    return items;
}

ComboRule hour(const char *name, const QString &path)
{
    return {name, comborules::fixed(times::hours()), [path](const Scene &scene, const QComboBox &combo) {
                return find(combo,
                            times::shown(scene.number(path + QStringLiteral(".hour")),
                                         scene.word(path + QStringLiteral(".ampm"))));
            }};
}

ComboRule minute(const char *name, const QString &path)
{
    return {name, comborules::fixed(minutes()), [path](const Scene &scene, const QComboBox &combo) {
                return qMax(0, find(combo, twoDigits(scene.number(path))));
            }};
}

ComboRule::Items led(const char *leadKey, int first, int last)
{
    return [=](const Scene &scene) {
        return QStringList(scene.speak(QLatin1String(leadKey))) + *comborules::plain(first, last)(scene);
    };
}

/// The days of a month that is shown; while none is, the list keeps the days that it had.
ComboRule::Items days(const char *monthCombo)
{
    return [monthCombo](const Scene &scene) -> std::optional<QStringList> {
        const int month = scene.control<QComboBox>(QLatin1String(monthCombo))->currentText().toInt();
        return month == 0 ? std::nullopt : led("UserDay", 1, times::daysOf(month))(scene);
    };
}

/// -9999 stands for the first item; what isn't listed leaves the box blank.
ComboRule::Shown dated(const QString &path)
{
    return [path](const Scene &scene, const QComboBox &combo) {
        const int value = scene.number(path);
        return value == -9999 ? 0 : find(combo, QString::number(value));
    };
}

/// What isn't listed shows as the first item.
ComboRule::Shown summerTime(const QString &path)
{
    return [path](const Scene &scene, const QComboBox &combo) {
        return qMax(0, find(combo, QString::number(scene.number(path))));
    };
}

std::optional<int> brightness(const Scene &scene, const QComboBox &combo)
{
    QString shown = scene.word(user("backlightControl.brightness"));
    return shown.isEmpty()
        ? std::nullopt
        : std::optional<int>(find(combo, shown.remove(QStringLiteral("BRIGHTNESS")) + QLatin1Char('%')));
}

std::optional<int> screenSaver(const Scene &scene, const QComboBox &combo)
{
    QString shown = scene.word(user("backlightControl.dimmTimeSet"));
    if (shown.isEmpty()) {
        return std::nullopt;
    }
    shown.remove(QStringLiteral("BACKLIGHT")).remove(QLatin1Char('S'));
    return find(combo, shown + scene.speak(QStringLiteral("OperationSecond")));
}

std::optional<QStringList> screenSaverItems(const Scene &scene)
{
    const QString second = scene.speak(QStringLiteral("OperationSecond"));
    return QStringList{QStringLiteral("15") + second, QStringLiteral("30") + second,
                       QStringLiteral("60") + second};
}

} // namespace

std::vector<ComboRule> comborules::ofOperation()
{
    const QString timer = QStringLiteral("SettingInfo.func.silentTimer.");
    return {
        hour("SettingFunction/comboSilentStartHour", timer + QStringLiteral("start")),
        minute("SettingFunction/comboSilentStartMin", timer + QStringLiteral("start.min")),
        hour("SettingFunction/comboSilentEndHour", timer + QStringLiteral("end")),
        minute("SettingFunction/comboSilentEndMin", timer + QStringLiteral("end.min")),
        keyed("SettingFunction/comboDefrostMode", QStringLiteral("SettingInfo.func.installDefrostMode"),
              {"STEP0", "STEP1", "STEP2", "STEP3"}),
        {"SettingUser/comboBrightness",
         fixed({QStringLiteral("0%"), QStringLiteral("10%"), QStringLiteral("20%"), QStringLiteral("30%")}),
         brightness},
        {"SettingUser/comboScreenSaverTimer", screenSaverItems, screenSaver},
        {"SettingUser/comboDateYear", led("Year", 2015, 2037), dated(user("DateInfo.year"))},
        {"SettingUser/comboDateMonth", led("Month", 1, 12), dated(user("DateInfo.month"))},
        {"SettingUser/comboDateDay", days("SettingUser/comboDateMonth"), dated(user("DateInfo.mday"))},
        {"SettingUser/comboStartMonth", led("Month", 1, 12), summerTime(user("summerTime.start.mon"))},
        {"SettingUser/comboStartDay", days("SettingUser/comboStartMonth"),
         summerTime(user("summerTime.start.day"))},
        {"SettingUser/comboEndMonth", led("Month", 1, 12), summerTime(user("summerTime.end.mon"))},
        {"SettingUser/comboEndDay", days("SettingUser/comboEndMonth"),
         summerTime(user("summerTime.end.day"))},
    };
}
