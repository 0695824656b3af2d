// The lists of the seasonal form: their limits, and how they narrow one another.

#include "pages/installation/installationaauto.h"

#include "app/maindialog.h"
#include "document/paths.h"
#include "rules/autoengine.h"
#include "ui_installationaauto.h"

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
    return celsius(MainDialog::textWithoutTwoChars(box(modelName)->currentText()));
}

// Oddity 34: compared as it stands, unlike where it decides what is shown.
bool InstallationaAuto::mainZoneOff() { return text(paths::enableMainZone) == QLatin1String("CLR"); }

void InstallationaAuto::setTempValue(QComboBox *comboBox, int value) { selectTemperature(comboBox, value); }

void InstallationaAuto::setloadJsonValue()
{
    loadList(ui->comboOutdoorIndoorMax);
    loadList(ui->comboOutdoorIndoorMin);
    for (const int modelName : autoengine::showOrder) {
        const int stored = read(autoengine::path(*autoengine::row(modelName))).toInt();
        mainDialog->setComboByValue(box(modelName), stored, MainDialog::Temperature);
    }
}

void InstallationaAuto::setTempRangeValue()
{
    const auto entrance = [](const char *choosable, const char *basis) {
        return isSet(choosable) && word(basis) == QLatin1String("ENTRANCE");
    };
    autoranges::Flags flags{};
    flags.fanCoilDisabled = isSet(paths::fcuDisable);
    flags.installedHeater = isSet(flags::installedHeater);
    flags.coolTempMin5 = isSet(flags::coolTempMin5);
    flags.r32 = isSet(flags::r32);
    flags.r410CoolExpand = isSet(flags::r410CoolExpand);
    flags.coolAir16 = isSet(flags::coolAir16);
    flags.heatingEntrance = entrance(flags::heatWaterControlBasis, paths::heatWaterControlBasis);
    flags.coolingEntrance = entrance(flags::coolWaterControlBasis, paths::coolWaterControlBasis);
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
    // Oddity 20: a box that loses its item here writes nothing.
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
        valueChanged(modelName, MainDialog::textWithoutTwoChars(box(modelName)->currentText()), false);
    }
}

// What the user chose is saved, also where narrowing the lists has blanked the box meanwhile.
void InstallationaAuto::choose(int modelName, const QString &text)
{
    const autoengine::Row *row = autoengine::row(modelName);
    const bool leads = row->mainZone != autoengine::none && mainZoneOff();
    const int shown = MainDialog::textWithoutTwoChars(text);
    valueChanged(modelName, shown, true);
    saveJsonData(autoengine::path(*row), celsius(shown));
    if (leads) {
        saveJsonData(autoengine::path(*autoengine::row(row->mainZone)), celsius(shown));
    }
    validationCheck();
}
