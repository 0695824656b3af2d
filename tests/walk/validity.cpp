// Which choices a page requires. The order in which it asks stands in the tests of the pages.

#include "walk/validity.h"

#include "walk/scene.h"

#include <QLineEdit>

namespace {

using Names = std::initializer_list<const char *>;

QString name(const char *page, const char *control)
{
    return QLatin1String(page) + QLatin1Char('/') + QLatin1String(control);
}

/// The first two decide whether the choice is required; a third may be the choice.
bool chosen(const Scene &scene, const char *page, Names radios)
{
    bool required = true;
    bool any = false;
    int place = 0;
    for (const char *radio : radios) {
        const auto *button = scene.control<QRadioButton>(name(page, radio));
        required = required && (place >= 2 || (button->isVisible() && button->isEnabled()));
        any = any || button->isChecked();
        ++place;
    }
    return !required || any;
}

bool allChosen(const Scene &scene, const char *page, std::initializer_list<Names> choices)
{
    return std::all_of(choices.begin(), choices.end(),
                       [&](const Names &radios) { return chosen(scene, page, radios); });
}

bool isDate(const Scene &scene, const char *combo)
{
    const auto *box = scene.control<QComboBox>(name("SettingUser", combo));
    return !box->isVisible() || !box->isEnabled() || box->currentIndex() != 0;
}

bool isFilled(const Scene &scene, const char *edit)
{
    const auto *line = scene.control<QLineEdit>(name("DipSwitchSettingStatus", edit));
    return !line->isVisible() || !line->isEnabled() || !line->text().isEmpty();
}

} // namespace

bool validity::productSelection(const Scene &scene)
{
    const auto checked = [&](const char *radio) {
        return scene.control<QRadioButton>(name("ProductSelection", radio))->isChecked();
    };
    const bool spec = checked("radioButtonMiddleTemp") || checked("radioButtonHighTemp");
    if (checked("radioButtonAwhp")) {
        return spec && (checked("radioButtonR32") || checked("radioButtonR410"));
    }
    return spec && checked("radioButtonAquabox");
}

bool validity::dipSwitches(const Scene &scene)
{
    const bool radios = allChosen(
        scene, "DipSwitchSettingStatus",
        {{"radioDhwUse", "radioDhwOnly", "radioDhwNotUse"},
         {"radioSolarThermalKitNotuse", "radioSolarThermalKitUse"},
         {"radioOperationHeating", "radioOperationBoth"},
         {"radioFlowAlways", "radioFlowOnlyPump"},
         {"radioAdditionalAirNotUse", "radioAdditionalAirUse"},
         {"radioElectricHeater1", "radioElectricHeaterBoth", "radioElectricHeaterNotuse"},
         {"radioAntifreezeNotuse", "radioAntifreezeUse"},
         {"radioThermostatNone", "radioThermostatUse"},
         {"radioOduMaster", "radioOduSlave"},
         {"radioSilentODU", "radioSilentRemote"}});
    const Names edits{"lineEditWHM1", "lineEditWHM2", "lineEditWHM3", "lineEditWHM4"};
    return radios
        && std::all_of(edits.begin(), edits.end(), [&](const char *edit) { return isFilled(scene, edit); });
}

bool validity::functionTab(const Scene &scene)
{
    return allChosen(scene, "SettingFunction",
                     {{"radioSlientModeNotuse", "radioSlientModeUse"},
                      {"radioAllButtonNone", "radioAllButtonUse"},
                      {"radioOnOffButtonNone", "radioOnOffButtonUse"},
                      {"radioOperationModeButtonNone", "radioOperationModeButtonUse"},
                      {"radioDhwOnOffNone", "radioDhwOnOffUse"}});
}

bool validity::userTab(const Scene &scene)
{
    const bool radios = allChosen(scene, "SettingUser",
                                  {{"radioCelicious", "radioFahreheit"},
                                   {"radioSummerTimeNotuse", "radioSummerTimeUse"},
                                   {"radioWhite", "radioBlack"}});
    const Names dates{"comboDateYear", "comboDateMonth", "comboDateDay", "comboStartMonth",
                      "comboStartDay", "comboEndMonth",  "comboEndDay"};
    return radios
        && std::all_of(dates.begin(), dates.end(), [&](const char *combo) { return isDate(scene, combo); });
}

bool validity::system(const Scene &scene)
{
    return allChosen(scene, "InstallationSystemSetting",
                     {{"radioDryAuto", "radioDryManual"}, {"radioEnforcedNotuse", "radioEnforcedUse"}});
}

bool validity::heatPump(const Scene &scene)
{
    return allChosen(scene, "InstallationSystemAWHP",
                     {{"radio2ndNotuse", "radio2ndUse"},
                      {"radio3rdNotUse", "radio3rdUse"},
                      {"radioExternalPumpNotuse", "radioExternalPumpUse"},
                      {"radioHeaterPriorityNotuse", "radioHeaterPriorityUse"},
                      {"radioSgNotuse", "radioSgUse"},
                      {"radioWaterTankHeaterMode", "radioWaterTankHeaterNotuse", "radioWaterTankHeaterUse"}});
}

bool validity::hydronicModule(const Scene &scene)
{
    return allChosen(scene, "InstallationSystemAquabox",
                     {{"radioStandbyNotuse", "radioStandbyUse"},
                      {"radioHsmodeNotuse", "radioHsmodeUse"},
                      {"radioCombinationNotuse", "radioCombinationUse"},
                      {"radioOpt1", "radioOpt2"},
                      {"radioRefrigerantNotuse", "radioRefrigerantUse"}});
}

bool validity::cooling(const Scene &scene)
{
    return allChosen(scene, "InstallationCool",
                     {{"radioControlTypeAuto", "radioControlTypeManual"},
                      {"radioFanCoilNotuse", "radioFanCoilUse"},
                      {"radioWaterPumpNotuse", "radioWaterPumpUse"}});
}

bool validity::heating(const Scene &scene)
{
    return allChosen(
        scene, "InstallationHeat",
        {{"radioControlTypeAuto", "radioControlTypeManual"}, {"radioWaterPumpNotuse", "radioWaterPumpUse"}});
}

bool validity::hotWater(const Scene &scene)
{
    return allChosen(scene, "InstallationDWH",
                     {{"radioUnderFloorNotUse", "radioUnderFloorUse"},
                      {"radioDisinfectionNotUse", "radioDisinfectionUse"}});
}
