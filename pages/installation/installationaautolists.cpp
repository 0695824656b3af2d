// The lists of the seasonal form: their limits, and how they narrow one another.

#include "pages/installation/installationaauto.h"

#include "app/maindialog.h"
#include "rules/autoengine.h"
#include "ui_installationaauto.h"

namespace {

QString seasonalPath(const autoengine::Row &row)
{
    return QStringLiteral("SettingInfo.installation.seasonalAutoOption.") + QLatin1String(row.path);
}

} // namespace

QComboBox *InstallationaAuto::box(int modelName) const
{
    const std::array<QComboBox *, autoengine::boxCount> boxes{
        ui->comboHeatingOutdoorMin,        ui->comboHeatingOutdoorMax,
        ui->comboCoolingOutdoorMin,        ui->comboCoolingOutdoorMax,
        ui->comboHeatingWaterMax,          ui->comboHeatingWaterMin,
        ui->comboCoolingWaterMax,          ui->comboCoolingWaterMin,
        ui->comboMainZoneHeatingWaterMax,  ui->comboMainZoneHeatingWaterMin,
        ui->comboMainZoneWaterMax,         ui->comboMainZoneWaterMin,
        ui->comboHeatingIndoorMax,         ui->comboHeatingIndoorMin,
        ui->comboCoolingIndoorMax,         ui->comboCoolingIndoorMin,
        ui->comboMainZoneHeatingIndoorMax, ui->comboMainZoneHeatingIndoorMin,
        ui->comboMainZoneIndoorMax,        ui->comboMainZoneIndoorMin};
    return boxes.at(static_cast<std::size_t>(modelName - 1));
}

int InstallationaAuto::current(int modelName) const
{
    return celsius(mainDialog->textWithoutTwoChars(box(modelName)->currentText()));
}

// Oddity 34: compared as it stands, unlike where it decides what is shown.
bool InstallationaAuto::mainZoneOff()
{
    return text(installation("circuitMainZone.enableMainZone")) == QLatin1String("CLR");
}

void InstallationaAuto::setTempValue(QComboBox *comboBox, int value) { selectTemperature(comboBox, value); }

void InstallationaAuto::setloadJsonValue()
{
    const auto show = [](QComboBox *combo, const QString &path) {
        mainDialog->setComboByValue(combo, number(path), MainDialog::Temperature);
    };
    show(ui->comboOutdoorIndoorMax, installation("autoOp_tempair.max"));
    show(ui->comboOutdoorIndoorMin, installation("autoOp_tempair.min"));
    for (const int modelName : autoengine::showOrder) {
        show(box(modelName), seasonalPath(*autoengine::row(modelName)));
    }
}

void InstallationaAuto::setTempRangeValue()
{
    const auto entrance = [](const char *choosable, const char *basis) {
        return flag(choosable) && word(installation(basis)) == QLatin1String("ENTRANCE");
    };
    autoranges::Flags flags{};
    flags.fanCoilDisabled = isSet(installation("UFH_stop.FCU_disable"));
    flags.installedHeater = flag("is_installed_heater");
    flags.coolTempMin5 = flag("isCoolTempMin5");
    flags.r32 = flag("isR32");
    flags.r410CoolExpand = flag("isR410CoolExpand");
    flags.coolAir16 = flag("isCoolAir16");
    flags.heatingEntrance = entrance("is_heatwatercontrolbasis", "heatWaterControlBasis");
    flags.coolingEntrance = entrance("is_coolwatercontrolbasis", "coolWaterControlBasis");
    tempRange = autoranges::seasonalMode(flags);
    for (const int modelName : autoengine::fillOrder) {
        offer(box(modelName), tempRange.at(autoengine::row(modelName)->slot));
    }
}

void InstallationaAuto::valueChanged(int modelName, int selectedTemp, bool isRefreshRange)
{
    const autoengine::Row *row = autoengine::row(modelName);
    if (row == nullptr) {
        return;
    }
    const bool leads = row->mainZone != autoengine::none && mainZoneOff();
    const Range list = autoengine::offered(*row, tempRange.at(row->slot), leads,
                                           [this](int each) { return current(each); });
    offer(box(modelName), list);
    if (leads) {
        offer(box(row->mainZone), list);
        setTempValue(box(row->mainZone), selectedTemp);
    }
    setTempValue(box(modelName), selectedTemp);
    if (isRefreshRange) {
        refreshTempRange(autoengine::groupOf(modelName));
    }
}

void InstallationaAuto::refreshTempRange(int type)
{
    const autoengine::Group group = autoengine::group(type);
    for (int modelName = group.first; modelName <= group.last; ++modelName) {
        valueChanged(modelName, mainDialog->textWithoutTwoChars(box(modelName)->currentText()), false);
    }
}

// Oddity 20: what the text says is saved, also where narrowing the lists has blanked the box.
void InstallationaAuto::choose(int modelName, const QString &text)
{
    const autoengine::Row *row = autoengine::row(modelName);
    const bool leads = row->mainZone != autoengine::none && mainZoneOff();
    const int shown = mainDialog->textWithoutTwoChars(text);
    valueChanged(modelName, shown, true);
    saveJsonData(seasonalPath(*row), celsius(shown));
    if (leads) {
        saveJsonData(seasonalPath(*autoengine::row(row->mainZone)), celsius(shown));
    }
    validationCheck();
}
