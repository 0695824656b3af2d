#include "walk/exceptions.h"

#include "walk/effects.h"
#include "walk/scene.h"

#include <functional>
#include <vector>

namespace {

/// Needed by the code that asks for it.
struct General {
    const char *name;
    const char *reason;
};

const General generals[] = {
    {"below a missing group", "a write below a group that isn't there puts the value into the group's place"},
    {"shown below a missing group", "what was written there is read nowhere"},
    {"listed below a missing group", "a bound that was written there holds for the list and is read nowhere"},
    {"crossed limits", "a list whose limits have crossed stays as it was"},
    {"no month", "the list of days stays while no month is chosen"},
    {"seasonal blank", "a seasonal box that its neighbours leave no room goes blank, and blank counts as 0"},
    {"seasonal neighbours of a blank", "the lists beside such a box are narrowed by that 0"},
    {"New keeps styles",
     "New on the product page doesn't show the page again, so the step buttons keep their look"},
    {"New keeps marks", "New takes back the steps and leaves their error marks until the next report"},
    {"New finds old choices",
     "New shows the product page before it takes back its choices, and the page reports them"},
    {"start without marks", "the error marks are hidden at the start though no step is done"},
    {"product is never marked", "nothing reports the first step as not done, so it has no error mark"},
    {"focus out of place", "a report that fails gives its step the look of the current step on any page"},
    {"tab without highlight", "only the Function tab paints the steps when the Setting step is shown"},
    {"tabs reset", "New and the refrigerants take back the tabs and leave the results of the sections"},
    {"summer time isn't checked", "switching summer time on reports nothing"},
    {"language isn't checked",
     "a box that a change of language takes from blank to its first item reports nothing"},
    {"header isn't checked", "opening or closing a section reports nothing"},
    {"product section isn't joined", "a product section that fails doesn't reach the tab's result at once"},
};

/// With the index that the rule gives, for a combo box.
using Applies = std::function<bool(const Scene &, const QWidget &, int)>;

/// Holds whenever its condition does.
struct Standing {
    const char *name;
    const char *reason;
    const char *controls;
    Applies applies;
};

/// Holds after one of the triggers has been touched, until the control is loaded or touched.
struct Trace {
    const char *name;
    const char *reason;
    const char *triggers;
    const char *controls;
    bool ofList;
};

QString installation(const char *key)
{
    return QStringLiteral("SettingInfo.installation.") + QLatin1String(key);
}

const QComboBox &combo(const QWidget &widget) { return *qobject_cast<const QComboBox *>(&widget); }

Applies convertedDifference(const char *key)
{
    return [key](const Scene &scene, const QWidget &widget, int) {
        const int shown = combo(widget).currentText().chopped(1).toInt();
        return scene.fahrenheit() && scene.number(installation(key)) == degrees::celsius(shown);
    };
}

Applies isEmpty(const char *key)
{
    return
        [key](const Scene &scene, const QWidget &, int) { return scene.text(installation(key)).isEmpty(); };
}

bool blankSpeed(const Scene &scene, const QWidget &widget, int)
{
    return combo(widget).currentIndex() < 0 && scene.number(installation("pumpRPM.pumpRPMValue")) == 0;
}

bool decimalAddress(const Scene &scene, const QWidget &widget, int)
{
    return scene.number(installation("modbusAddress")) == combo(widget).currentText().toInt();
}

bool valveByPlace(const Scene &scene, const QWidget &widget, int)
{
    return combo(widget).currentIndex()
        == scene.number(installation("circuitMainZone.controlTimeMainZone")) - 60
        && scene.speak(QStringLiteral("OperationSecond")) != QLatin1String("s");
}

bool monthTakenBack(const Scene &scene, const QWidget &widget, int)
{
    return combo(widget).currentIndex() == 0
        && scene.number(QStringLiteral("SettingInfo.user.DateInfo.mday")) == -9999;
}

bool dayWithoutMonth(const Scene &scene, const QWidget &widget, int)
{
    const QString date = QStringLiteral("SettingInfo.user.DateInfo.");
    return combo(widget).currentIndex() < 0 && scene.number(date + QStringLiteral("mday")) == -9999
        && scene.number(date + QStringLiteral("month")) == -9999;
}

bool firstForBlank(const Scene &, const QWidget &widget, int expected)
{
    return expected < 0 && combo(widget).currentIndex() == 0;
}

/// Chosen in the list of the timer, an inlet temperature loses two of its digits.
bool inletInTimerList(const Scene &scene, const QWidget &widget, int)
{
    const QString shown = combo(widget).currentText();
    bool isNumber = false;
    shown.toInt(&isNumber);
    return isNumber && scene.number(installation("hotwater_logic.compMaxTemp")) == degrees::of(scene, shown);
}

bool tankOnlyWithoutHeater(const Scene &scene, const QWidget &widget, int)
{
    return qobject_cast<const QRadioButton *>(&widget)->isChecked()
        && !scene.has(QStringLiteral("is_boosterht_onlyMode"));
}

bool tankOnlyOfAnotherProduct(const Scene &scene, const QWidget &widget, int)
{
    return qobject_cast<const QRadioButton *>(&widget)->isChecked()
        && scene.word(QStringLiteral("product")) != QLatin1String("AQUABOX");
}

const std::vector<Standing> &standings()
{
    static const std::vector<Standing> rows{
        {"K under °F", "differences in K go through the °F table though the list shows K",
         "InstallationSystemAWHP/combo3rdHysterisis",
         convertedDifference("boilerOfThirdParty.thirdPartyHysterisis")},
        {"K of the tank under °F", "the same", "InstallationDWH/comboTankWaterMin",
         convertedDifference("hotwater_logic.hysterisis")},
        {"K of the boost heater under °F", "the same", "InstallationDWH/comboTankHeatingHysterisis",
         convertedDifference("hotwater_addData.hysterisis")},
        {"anti-freeze without a step", "under °F, or from a blank box, the temperature stands for no step",
         "InstallationSystemAWHP/comboAntiFreezingTemp", isEmpty("antiFreezeTemp")},
        {"blank central address", "a blank box saves an empty address, which comes up as the first",
         "InstallationSystemSetting/comboCentral", isEmpty("cc_address")},
        {"blank pump speed", "a blank box saves 0, which its list has",
         "InstallationSystemSetting/comboWaterpumpRPM", blankSpeed},
        {"Modbus address", "read as hexadecimal and saved as decimal",
         "InstallationSystemSetting/comboModbus", decimalAddress},
        {"valve closing time", "found only where a second is called s; in other languages its place counts",
         "InstallationSystemAWHP/comboValveClosingTime", valveByPlace},
        {"first for a blank",
         "a translated list that shows nothing shows its first item once the language is applied",
         "InstallationCool/comboWaterPumpOnTimer InstallationCool/comboWaterPumpOffTimer "
         "InstallationHeat/comboWaterPumpOnTimer InstallationHeat/comboWaterPumpOffTimer "
         "InstallationSystemSetting/comboCnEXT InstallationSystemSetting/comboBoxScreedHolding "
         "InstallationSystemSetting/comboOperationPeriod InstallationSystemSetting/comboOperationTime "
         "InstallationSystemAWHP/comboPreRun InstallationSystemAWHP/comboOverRun "
         "InstallationSystemAWHP/comboDelayTime InstallationSystemAWHP/comboStep "
         "InstallationDWH/comboMaxTempDuration InstallationDWH/comboHeatingDurationTime "
         "InstallationDWH/comboStopDurationTime InstallationDWH/comboCutOffDuration "
         "InstallationDWH/comboSchedule1 "
         "SettingUser/comboDateYear SettingUser/comboDateMonth SettingUser/comboDateDay "
         "SettingUser/comboScreenSaverTimer",
         firstForBlank},
        {"month taken back", "going back to no month keeps the number of the month",
         "SettingUser/comboDateMonth", monthTakenBack},
        {"day without a month", "a load that finds no month takes back the day, and shows it where it can",
         "SettingUser/comboDateDay", dayWithoutMonth},
        {"inlet in the list of the timer", "the timer's list lands in the box of the inlet temperature",
         "InstallationDWH/comboInletWaterMax", inletInTimerList},
        {"hot water only for another product", "it is shown as it was, and loaded for a module alone",
         "DipSwitchSettingStatus/radioDhwOnly", tankOnlyOfAnotherProduct},
        {"hot water only without heater",
         "without a heater the page's load takes the flag back and leaves the radio",
         "DipSwitchSettingStatus/radioDhwOnly", tankOnlyWithoutHeater},
    };
    return rows;
}

const Trace traces[] = {
    {"day after month", "a new month shows no day and leaves the old one in the document",
     "SettingUser/comboDateMonth", "SettingUser/comboDateDay", false},
    {"start day after month", "the same", "SettingUser/comboStartMonth", "SettingUser/comboStartDay", false},
    {"end day after month", "the same", "SettingUser/comboEndMonth", "SettingUser/comboEndDay", false},
    {"locks under all lock",
     "the three locks aren't loaded under All lock, and Release leaves them as they are",
     "SettingFunction/radioAllButtonNone",
     "SettingFunction/radioOnOffButtonNone SettingFunction/radioOnOffButtonUse "
     "SettingFunction/radioOperationModeButtonNone SettingFunction/radioOperationModeButtonUse "
     "SettingFunction/radioDhwOnOffNone SettingFunction/radioDhwOnOffUse",
     false},
    {"circulation times", "the times of a circulation that isn't in use aren't loaded",
     "InstallationSystemSetting/radioEnforcedUse InstallationSystemSetting/radioEnforcedNotuse",
     "InstallationSystemSetting/comboOperationPeriod InstallationSystemSetting/comboOperationTime", false},
    {"oil recovery", "a combination that is switched on waits for a choice, whatever is stored",
     "InstallationSystemAquabox/radioCombinationUse",
     "InstallationSystemAquabox/radioOpt1 InstallationSystemAquabox/radioOpt2", false},
    {"boiler mode", "the mode of a boiler that isn't in use isn't loaded",
     "InstallationSystemAWHP/radio3rdUse", "InstallationSystemAWHP/comboControlMode", false},
    {"valve closing time after a language change", "its place is kept, found or not", "language",
     "InstallationSystemAWHP/comboValveClosingTime", false},
    {"constant cooling lists",
     "limits that the reference or the fan coil moves don't reach these lists until a load",
     "InstallationCool/comboReferenceWater InstallationCool/radioFanCoilNotuse "
     "InstallationCool/radioFanCoilUse",
     "InstallationCool/comboControlWaterTemp InstallationCool/comboControlMainZoneTemp", true},
    {"constant heating lists", "the same of the reference", "InstallationHeat/comboReferenceWater",
     "InstallationHeat/comboControlWaterTemp InstallationHeat/comboControlMainZoneTemp", true},
};

QStringList words(const char *text) { return QString::fromUtf8(text).split(QLatin1Char(' ')); }

QMap<QString, int> &tally()
{
    static QMap<QString, int> counts;
    return counts;
}

void forget(QHash<QString, const char *> &marks, const QString &prefix)
{
    for (auto mark = marks.begin(); mark != marks.end();) {
        mark = mark.key().startsWith(prefix) ? marks.erase(mark) : std::next(mark);
    }
}

bool take(const QHash<QString, const char *> &marks, const QString &control)
{
    const char *name = marks.value(control, nullptr);
    return name != nullptr && exceptions::note(name);
}

} // namespace

bool exceptions::note(const char *name)
{
    ++tally()[QString::fromUtf8(name)];
    return true;
}

QMap<QString, int> exceptions::counts()
{
    QMap<QString, int> result = tally();
    const auto add = [&result](const char *name) { result[QString::fromUtf8(name)] += 0; };
    for (const General &row : generals) {
        add(row.name);
    }
    for (const Standing &row : standings()) {
        add(row.name);
    }
    for (const Trace &row : traces) {
        add(row.name);
    }
    return result;
}

bool exceptions::excuse(const Scene &scene, const QString &control, int expected)
{
    for (const Standing &row : standings()) {
        if (words(row.controls).contains(control) && row.applies(scene, *scene.control(control), expected)) {
            return note(row.name);
        }
    }
    return effects::isBelowMissingGroup(control, scene) && note("shown below a missing group");
}

bool exceptions::excuseList(const Scene &scene, const QString &control)
{
    return effects::isBelowMissingGroup(control, scene) && note("listed below a missing group");
}

void exceptions::Traces::touched(const QString &name)
{
    selections.remove(name);
    for (const Trace &row : traces) {
        if (words(row.triggers).contains(name)) {
            for (const QString &control : words(row.controls)) {
                (row.ofList ? lists : selections).insert(control, row.name);
            }
        }
    }
}

void exceptions::Traces::loaded(const QString &page)
{
    forget(selections, page + QLatin1Char('/'));
    forget(lists, page + QLatin1Char('/'));
}

bool exceptions::Traces::excuseSelection(const QString &control) const { return take(selections, control); }

bool exceptions::Traces::excuseList(const QString &control) const { return take(lists, control); }
