#include "walk/effects.h"

#include "support/dipswitches.h"
#include "support/schema.h"
#include "walk/comborules.h"
#include "walk/controlrows.h"
#include "walk/radiorules.h"
#include "walk/scene.h"

#include <QHash>
#include <QMap>
#include <QRegularExpression>
#include <QSet>

namespace {

/// The same of a page's load.
struct LoadRow {
    const char *page;
    const char *root;
    const char *paths;
    const char *loads = "";
};

const LoadRow loadRows[] = {
    {"ProductSelection", "", ""},
    {"DipSwitchSettingStatus", "IduFuncList.", "@heater"},
    {"SettingFunction", "SettingInfo.func.",
     "silentTimer.start.hour silentTimer.start.ampm silentTimer.start.min silentTimer.end.hour "
     "silentTimer.end.ampm silentTimer.end.min installDefrostMode"},
    {"SettingUser", "SettingInfo.user.",
     "backlightControl.brightness backlightControl.dimmTimeSet DateInfo.year DateInfo.month DateInfo.mday "
     "summerTime.start.mon summerTime.start.day summerTime.end.mon summerTime.end.day"},
    {"SettingService", "SettingInfo.svc.svcContact.", "company installerName phoneNumber"},
    {"InstallationSystemSetting", "SettingInfo.installation.",
     "@sensing sensorDefine.airTempLocation cc_address digitalInput modbusAddress cement_cure.cmt_step "
     "cement_cure.cmt_holding pumpRPM.pumpRPMValue pumpOperationByForce.ByForcePeriod "
     "pumpOperationByForce.ByForceRuntime dryContactInstallation",
     "InstallationCool InstallationHeat InstallationaAuto InstallationDWH"},
    {"InstallationSystemAWHP", "SettingInfo.installation.",
     "boilerOfThirdParty.thirdPartyMode antiFreezeTemp pumpPreOverRun.overRun pumpPreOverRun.preRun "
     "smartGrid.smartGridMode hotWaterTankHeater.tankHeaterDelay hotWaterTankHeater.tankHeaterPriority "
     "circuitMainZone.hysterisisMainZone circuitMainZone.controlTimeMainZone"},
    {"InstallationSystemAquabox", "SettingInfo.installation.", "kNightType"},
    {"InstallationCool", "SettingInfo.installation.",
     "@coolLimits coolWaterControlBasis @seasonalWater coolAirThermoOnOff coolWaterThermoOnOff "
     "pumpOperOptionInCool.timeOn pumpOperOptionInCool.time",
     "InstallationaAuto"},
    {"InstallationHeat", "SettingInfo.installation.",
     "@heatLimits heatWaterControlBasis @seasonalWater typeOfHeat_Air_thermo typeOfHeat_Water_thermo "
     "pumpOperOptionInHeat.timeOn pumpOperOptionInHeat.time",
     "InstallationaAuto"},
    {"InstallationaAuto", "SettingInfo.installation.",
     "autoOp_outtemp.min autoOp_outtemp.max autoOp_tempwater.high_limit autoOp_tempwater.low_limit"},
    {"InstallationDWH", "SettingInfo.installation.",
     "hotwater_timer.maintain_time hotwater_timer.restrict_time waterThermoOnOff disinfect_time.day "
     "disinfect_time.start disinfect_data.howLong disinfect_data.cutOffTime"},
};

QStringList words(const QString &text) { return text.split(QLatin1Char(' '), Qt::SkipEmptyParts); }

/// The paths below the document's root, as rows say them.
QString whole(const QVariantMap &values)
{
    QStringList paths = values.keys();
    return paths.replaceInStrings(QRegularExpression(QStringLiteral("^")), QStringLiteral("/"))
        .join(QLatin1Char(' '));
}

QString heaterFlags()
{
    QVariantMap values;
    for (const QString &radio : dipswitches::radios(QStringLiteral("heater"))) {
        values.insert(dipswitches::loaded(radio));
    }
    return whole(values);
}

const QMap<QString, QString> &groups()
{
    static const QMap<QString, QString> paths{
        {"@heater", heaterFlags()},
        {"@sensing", "sensorDefine.settemp_select sensorDefine.airAndWaterUse sensorDefine.remote_sensor"},
        {"@coolLimits", "settempLimit.coolWater.low_limit settempLimit.coolWater.high_limit"},
        {"@heatLimits", "settempLimit.heatWater.low_limit settempLimit.heatWater.high_limit"},
        {"@coolControl",
         "/SettingInfo.func.waterCtrBasisAirCool.ctrTemp "
         "/SettingInfo.func.waterCtrBasisAirCool.ctrTempMainZone"},
        {"@heatControl",
         "/SettingInfo.func.waterCtrBasisAirHeat.ctrTemp "
         "/SettingInfo.func.waterCtrBasisAirHeat.ctrTempMainZone"},
        {"@seasonalWater",
         "/SettingInfo.installation.seasonalAutoOption.coolWaterTemp.min "
         "/SettingInfo.installation.seasonalAutoOption.coolWaterTemp.max "
         "/SettingInfo.installation.seasonalAutoOption.coolWaterTempMainZone.min "
         "/SettingInfo.installation.seasonalAutoOption.coolWaterTempMainZone.max "
         "/SettingInfo.installation.seasonalAutoOption.heatWaterTemp.min "
         "/SettingInfo.installation.seasonalAutoOption.heatWaterTemp.max "
         "/SettingInfo.installation.seasonalAutoOption.heatWaterTempMainZone.min "
         "/SettingInfo.installation.seasonalAutoOption.heatWaterTempMainZone.max"},
    };
    return paths;
}

const LoadRow &loadRow(const QString &page)
{
    for (const LoadRow &row : loadRows) {
        if (page == QLatin1String(row.page)) {
            return row;
        }
    }
    qFatal("No page %s", qPrintable(page));
}

struct Written {
    QString page;
    QString paths;
    QString loads;
};

/// By "Page/control": the one path of a rule, unless a row tells otherwise.
QHash<QString, Written> joinedRows()
{
    QHash<QString, Written> all;
    const auto add = [&all](const QString &page, const QString &control, const QString &path) {
        if (!path.isEmpty()) {
            all.insert(page + QLatin1Char('/') + control, {page, QLatin1Char('/') + path, {}});
        }
    };
    for (const ComboRule &rule : comborules::all()) {
        const QString name = QLatin1String(rule.name);
        add(name.section(QLatin1Char('/'), 0, 0), name.section(QLatin1Char('/'), 1), rule.path);
    }
    for (const RadioRule &rule : radioRules()) {
        for (const QString &radio : words(rule.radios)) {
            add(QLatin1String(rule.page), radio, rule.path);
        }
    }
    const QString dipSwitches = QStringLiteral("DipSwitchSettingStatus");
    for (const QString &radio : dipswitches::radios()) {
        all.insert(dipSwitches + QLatin1Char('/') + radio,
                   {dipSwitches, whole(dipswitches::clicked(radio)), {}});
    }
    for (const ControlRow &row : controlRows()) {
        for (const QString &control : words(QLatin1String(row.controls))) {
            all.insert(QLatin1String(row.page) + QLatin1Char('/') + control,
                       {QLatin1String(row.page), QLatin1String(row.paths), QLatin1String(row.loads)});
        }
    }
    return all;
}

const QHash<QString, Written> &allRows()
{
    static const QHash<QString, Written> rows = joinedRows();
    return rows;
}

const Written *controlRow(const QString &name)
{
    const auto row = allRows().find(name);
    return row == allRows().end() ? nullptr : &*row;
}

/// The full paths of a row. Without a scene, also those that are written only at times.
QStringList expand(const QString &paths, const QString &root, const Scene *scene)
{
    QStringList result;
    const auto names = words(paths);
    for (QString name : names) {
        if (name.startsWith(QLatin1Char('@'))) {
            result += expand(groups().value(name), root, scene);
            continue;
        }
        if (name.startsWith(QLatin1Char('~'))) {
            name.remove(0, 1);
            const QString circuits = QStringLiteral(
                "SettingInfo.installation.circuitMainZone.enableMainZone");
            if (scene != nullptr && scene->text(circuits) != QLatin1String("CLR")) {
                continue;
            }
        }
        result.append(name.startsWith(QLatin1Char('/')) ? name.mid(1) : root + name);
    }
    return result;
}

void follow(const QString &page, QSet<QString> &pages)
{
    if (!pages.contains(page)) {
        pages.insert(page);
        const auto next = words(QLatin1String(loadRow(page).loads));
        for (const QString &other : next) {
            follow(other, pages);
        }
    }
}

} // namespace

QStringList effects::loadsBy(const QString &name)
{
    const Written *row = controlRow(name);
    QSet<QString> pages;
    const auto loads = row == nullptr ? QStringList() : words(row->loads);
    for (const QString &page : loads) {
        follow(page, pages);
    }
    return pages.values();
}

QStringList effects::ofLoads(const QStringList &pages, const Scene &scene)
{
    QSet<QString> all;
    for (const QString &page : pages) {
        follow(page, all);
    }
    QStringList paths;
    for (const QString &page : qAsConst(all)) {
        if (scene.isOpen(page)) {
            const LoadRow &row = loadRow(page);
            paths += expand(QLatin1String(row.paths), QLatin1String(row.root), &scene);
        }
    }
    return paths;
}

QStringList effects::ofControl(const QString &name, const Scene &scene)
{
    const Written *row = controlRow(name);
    if (row == nullptr) {
        return {};
    }
    QStringList paths;
    if (scene.isOpen(row->page)) {
        const QString root = QLatin1String(loadRow(row->page).root);
        paths = expand(row->paths, root, &scene);
    }
    return paths + ofLoads(words(row->loads), scene);
}

QStringList effects::own(const QString &name, const Scene &scene)
{
    const Written *row = controlRow(name);
    const QStringList told = words(row->paths);
    // Of a choice with several paths, one or another changes.
    const bool depends = told.size() > 1
        && name.section(QLatin1Char('/'), 1).startsWith(QLatin1String("radio"));
    QStringList paths;
    for (const QString &path : told) {
        if (!depends && !path.startsWith(QLatin1Char('@'))
            && (paths.isEmpty() || path.startsWith(QLatin1Char('~')))) {
            paths += expand(path, QLatin1String(loadRow(row->page).root), &scene);
        }
    }
    return paths;
}

bool effects::isBelowMissingGroup(const QString &name, const Scene &scene)
{
    const Written *row = controlRow(name);
    const QStringList paths = row == nullptr
        ? QStringList()
        : expand(row->paths, QLatin1String(loadRow(row->page).root), nullptr);
    return std::any_of(paths.begin(), paths.end(), [&](const QString &path) {
        return !scene.value(path.section(QLatin1Char('.'), 0, -2)).isObject();
    });
}

QStringList effects::all()
{
    QStringList paths;
    for (const LoadRow &row : loadRows) {
        paths += expand(QLatin1String(row.paths), QLatin1String(row.root), nullptr);
    }
    for (const Written &row : allRows()) {
        paths += expand(row.paths, QLatin1String(loadRow(row.page).root), nullptr);
    }
    paths.removeDuplicates();
    return paths;
}

QStringList effects::untold()
{
    QStringList paths = schema::written();
    for (const QString &path : all()) {
        paths.removeOne(path);
    }
    return paths;
}

bool effects::knows(const QString &name) { return controlRow(name) != nullptr; }

// Refrigerants replace the document, and the other two are hidden for good.
bool effects::needsNoRow(const QString &name)
{
    static const QStringList names{QStringLiteral("ProductSelection/radioButtonR32"),
                                   QStringLiteral("ProductSelection/radioButtonR410"),
                                   QStringLiteral("ProductSelection/radioButtonHighTemp"),
                                   QStringLiteral("ProductSelection/radioButtonAquabox")};
    return names.contains(name);
}
