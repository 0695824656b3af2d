#include "files/catalogue.h"

#include "document/units.h"
#include "files/reading.h"
#include "files/texts.h"

#include <QJsonObject>
#include <QMultiHash>
#include <QRegularExpression>
#include <QStringList>

#include <algorithm>
#include <cmath>

namespace {

constexpr int unset = -9999;
constexpr auto speed = "SettingInfo.installation.pumpRPM.pumpRPMValue";

bool isSet(const QJsonObject &document, const char *path)
{
    const QString flag = reading::at(document, QLatin1String(path)).toString();
    return flag.compare(QLatin1String("SET"), Qt::CaseInsensitive) == 0;
}

QString number(int value, const QString &unit) { return QString::number(value) + unit; }

/// "#" begins a text of no language, "+" the key of what follows it.
QString wordText(const QString &text, const Texts &texts)
{
    if (!text.startsWith(QLatin1Char('#'))) {
        return texts.text(text);
    }
    const QString unit = text.section(QLatin1Char('+'), 1);
    return text.section(QLatin1Char('+'), 0, 0).mid(1) + (unit.isEmpty() ? QString() : texts.text(unit));
}

QString word(const Setting &setting, const QJsonValue &value, const Texts &texts)
{
    const QString stored = value.isDouble() ? QString::number(value.toInt()) : value.toString();
    const QStringList pairs = QString(QLatin1String(setting.texts)).split(QLatin1Char(' '));
    for (const QString &pair : pairs) {
        if (pair.section(QLatin1Char('='), 0, 0).compare(stored, Qt::CaseInsensitive) == 0) {
            return wordText(pair.section(QLatin1Char('='), 1), texts);
        }
    }
    return {};
}

QString temperatureText(int celsius, bool fahrenheit)
{
    static const QMap<int, int> table = Units::makeTable();
    if (!fahrenheit) {
        return number(celsius, QStringLiteral("°C"));
    }
    return table.contains(celsius) ? number(table.value(celsius), QStringLiteral("°F")) : QString();
}

/// Noon is stored as AM 12 and midnight as AM 0.
int hourOfDay(const Setting &setting, const QJsonObject &document, int hour)
{
    const QString half = QString(QLatin1String(setting.path))
                             .replace(QLatin1String(".hour"), QLatin1String(".ampm"));
    const bool afternoon = reading::at(document, half).toString().toUpper() == QLatin1String("PM");
    return afternoon ? (hour < 12 ? hour + 12 : 0) : hour;
}

QString digits(int value, int base) { return QStringLiteral("%1").arg(value, 2, base, QLatin1Char('0')); }

QString scaled(const Setting &setting, int value, const Texts &texts)
{
    const QString unit = wordText(QLatin1String(setting.texts), texts);
    // Tenths have a unit of their own, as a caption.
    return setting.factor < 0
        ? QString::number(value / -double{setting.factor * 1.0}) + QLatin1Char(' ') + unit
        : number(value * setting.factor + setting.offset, unit);
}

QString numberText(const Setting &setting, const QJsonObject &document, int value, const View &view)
{
    switch (setting.form) {
    case Form::Celsius:
        return temperatureText(value, view.fahrenheit);
    case Form::Kelvin:
        return number(value + setting.offset, QStringLiteral("K"));
    case Form::Number:
        return scaled(setting, value, view.texts);
    case Form::TwoDigits:
        return digits(value, 10);
    case Form::Hour:
        return digits(hourOfDay(setting, document, value), 10);
    case Form::WholeHour:
        return digits(value, 10) + QStringLiteral(":00");
    case Form::Hexadecimal:
        return digits(value, 16);
    default:
        return {};
    }
}

} // namespace

View::View(const Texts &theTexts, bool isFahrenheit, const QJsonObject &document)
    : texts(theTexts)
    , fahrenheit(isFahrenheit)
    , twoCircuits(isSet(document, "SettingInfo.installation.circuitMainZone.enableMainZone"))
    , pumpBySpeed(isSet(document, "IduFuncList.is_PumpRpmOption")
                  || isSet(document, "IduFuncList.isMotorDuty"))
{
}

const Setting *catalogue::find(const QString &path, const View &view)
{
    static const QMultiHash<QString, const Setting *> byPath = [] {
        QMultiHash<QString, const Setting *> all;
        for (const Setting &setting : settings()) {
            all.insert(QLatin1String(setting.path), &setting);
        }
        return all;
    }();
    for (auto each = byPath.find(path); each != byPath.end() && each.key() == path; ++each) {
        if (applies(**each, view)) {
            return *each;
        }
    }
    return nullptr;
}

bool catalogue::isPosition(const QString &path)
{
    const auto setting = std::find_if(settings().begin(), settings().end(), [&path](const Setting &each) {
        return path == QLatin1String(each.path);
    });
    if (setting == settings().end()) {
        return false;
    }
    switch (setting->form) {
    case Form::Words:
    case Form::WholeHour:
        return true;
    case Form::Kelvin:
        return setting->offset != 0;
    case Form::Number:
        // Less those with a unit of no language, and the fields for tenths.
        return *setting->texts != '\0' && *setting->texts != '#' && setting->factor > 0;
    default:
        return false;
    }
}

bool catalogue::applies(const Setting &setting, const View &view)
{
    return qstrcmp(setting.path, speed) != 0 || (setting.factor == 10) == view.pumpBySpeed;
}

QString catalogue::page(const Setting &setting)
{
    return QString(QLatin1String(setting.control)).section(QLatin1Char('/'), 0, 0);
}

QString catalogue::pageCaption(const Setting &setting, const Texts &texts)
{
    static const QHash<QString, const char *> keys{
        {QStringLiteral("ProductSelection"), "ProductSelection"},
        {QStringLiteral("DipSwitchSettingStatus"), "DipSwitchSettingStatus"},
        {QStringLiteral("SettingFunction"), "Function"},
        {QStringLiteral("SettingUser"), "User"},
        {QStringLiteral("SettingService"), "Service"},
        {QStringLiteral("InstallationSystemSetting"), "SystemSetting"},
        {QStringLiteral("InstallationSystemAWHP"), "SystemSetting"},
        {QStringLiteral("InstallationSystemAquabox"), "SystemSetting"},
        {QStringLiteral("InstallationCool"), "Cool"},
        {QStringLiteral("InstallationHeat"), "Heat"},
        {QStringLiteral("InstallationaAuto"), "Automode"},
        {QStringLiteral("InstallationDWH"), "DomesticHotWater"},
    };
    return texts.text(keys.value(page(setting)));
}

QString catalogue::caption(const Setting &setting, const View &view)
{
    // A second circuit gives other names to what there is of both.
    static const QHash<QString, QString> ofCircuit2{
        {QStringLiteral("ConstantWaterTemp"), QStringLiteral("WaterTempRoom2")},
        {QStringLiteral("SeasonalAirTemp"), QStringLiteral("SeasonalAirTempRoom2")},
        {QStringLiteral("SeasonalWaterTemp"), QStringLiteral("SeasonalWaterTempRoom2")},
    };
    QStringList captions;
    const QStringList keys = QString(QLatin1String(setting.captions)).split(QLatin1Char('/'));
    for (const QString &key : keys) {
        captions.append(view.texts.text(view.twoCircuits ? ofCircuit2.value(key, key) : key));
    }
    return captions.join(QStringLiteral(", "));
}

QString catalogue::shown(const Setting &setting, const QJsonObject &document, const View &view)
{
    const QJsonValue value = reading::at(document, QLatin1String(setting.path));
    if (setting.form == Form::Words || setting.form == Form::PartOfWord) {
        return word(setting, value, view.texts);
    }
    if (setting.form == Form::Text) {
        return value.toString();
    }
    const bool whole = value.isDouble() && std::abs(value.toDouble()) <= 1e6;
    return whole && value.toInt(unset) != unset ? numberText(setting, document, value.toInt(), view)
                                                : QString();
}

QString catalogue::item(const QString &text, const View &view)
{
    static const QRegularExpression numberAndUnit(QStringLiteral("^(-?\\d+)(.*)$"));
    const QRegularExpressionMatch match = numberAndUnit.match(text);
    if (!match.hasMatch()) {
        return view.texts.text(text);
    }
    return match.captured(2) == QStringLiteral("°C")
        ? temperatureText(match.captured(1).toInt(), view.fahrenheit)
        : match.captured(1) + view.texts.text(match.captured(2));
}
