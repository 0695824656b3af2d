#include "pages/installation/watersection.h"

#include "app/maindialog.h"
#include "document/paths.h"

#include <QComboBox>
#include <QRadioButton>

WaterSection::WaterSection(const WaterRules &sectionRules, QWidget *parent)
    : Section(parent)
    , rules(sectionRules)
{
}

void WaterSection::adopt(const WaterControls &form)
{
    controls = form;
    choices = {{rules.controlType, {{controls.controlAuto, "AUTO"}, {controls.controlManual, "MANUAL"}}},
               // Oddity 2: "SET" is the running through: no timers.
               {rules.pumpOption, {{controls.pumpNotuse, "SET"}, {controls.pumpUse, "CLR"}}}};
    lists = {{controls.indoorMin, rules.airLow, Shown::Temperature},
             {controls.indoorMax, rules.airHigh, Shown::Temperature},
             {controls.waterMin, rules.waterLow, Shown::Temperature},
             {controls.waterMax, rules.waterHigh, Shown::Temperature},
             {controls.constant, rules.constant, Shown::Temperature},
             {controls.mainZone, rules.constantMainZone, Shown::Temperature},
             {controls.airThermo, rules.airThermo, Shown::Key},
             {controls.waterThermo, rules.waterThermo, Shown::Key},
             {controls.onTimer, rules.pumpOnTime, Shown::Index, 1},
             {controls.offTimer, rules.pumpOffTime, Shown::Index, 1}};
}

void WaterSection::fillLists()
{
    const QStringList steps{QStringLiteral("STEP0"), QStringLiteral("STEP1"), QStringLiteral("STEP2"),
                            QStringLiteral("STEP3")};
    const QStringList minutes = numbered(1, 60, 1, QStringLiteral("min"));
    fill(controls.reference, {QStringLiteral("Outlet"), QStringLiteral("Inlet")});
    fill(controls.airThermo, steps);
    fill(controls.waterThermo, steps);
    fill(controls.onTimer, minutes);
    fill(controls.offTimer, minutes);
}

void WaterSection::refillLists()
{
    refill(controls.reference, languageTexts({"Outlet", "Inlet"}));
    const QStringList steps = languageTexts({"STEP0", "STEP1", "STEP2", "STEP3"});
    refill(controls.airThermo, steps);
    refill(controls.waterThermo, steps);
    const QStringList minutes = numbered(1, 60, 1,
                                         mainDialog->languageValue(QStringLiteral("OperationMinute")));
    refill(controls.onTimer, minutes);
    refill(controls.offTimer, minutes);
}

QString WaterSection::captionOf(const QString &key) const
{
    const bool second = key == QLatin1String("ConstantWaterTemp") && twoCircuits();
    return Section::captionOf(second ? QStringLiteral("WaterTempRoom2") : key);
}

void WaterSection::showOrHide(std::initializer_list<QWidget *> widgets, bool shown)
{
    for (QWidget *widget : widgets) {
        widget->setVisible(shown);
    }
}

bool WaterSection::twoCircuits() { return isSet(paths::enableMainZone); }

waterranges::Circuits WaterSection::circuits() const
{
    return twoCircuits() ? rules.circuits : waterranges::Circuits::One;
}

Range WaterSection::waterLimits() const { return {number(rules.waterLow), number(rules.waterHigh)}; }

waterranges::Constants WaterSection::constants() const
{
    return {number(rules.constant), number(rules.constantMainZone)};
}

void WaterSection::showControlBasis()
{
    const QString sensed = word(paths::settempSelect);
    const bool byWater = sensed == QLatin1String("WATER") && isSet(rules.basisFlag);
    const bool byBoth = sensed == QLatin1String("AIR") && isSet(paths::airAndWaterUse);
    controls.basisGroup->setVisible(isSet(flags::r32) && (byWater || byBoth));
}

void WaterSection::applyWaterLimits(Range low, Range high)
{
    offer(controls.waterMax, high);
    offer(controls.waterMin, low);
    const Range stored = waterLimits();
    const Range kept{waterranges::clamp(stored.low, low), waterranges::clamp(stored.high, high)};
    mainDialog->setComboByValue(controls.waterMin, kept.low, MainDialog::Temperature);
    mainDialog->setComboByValue(controls.waterMax, kept.high, MainDialog::Temperature);
    save(rules.waterLow, kept.low);
    save(rules.waterHigh, kept.high);
}

void WaterSection::offerConstants(const waterranges::Constants &stored)
{
    const waterranges::ConstantLists offered = waterranges::lists(stored, waterLimits(), circuits());
    offer(controls.constant, offered.other);
    offer(controls.mainZone, offered.mainZone);
}

void WaterSection::showTemperatureControl()
{
    // Where the other circuit's value leaves no range, the list keeps the whole one.
    offer(controls.constant, waterLimits());
    offer(controls.mainZone, waterLimits());
    const bool shown = isSet(flags::waterCtrBasisAir) && word(paths::settempSelect) == QLatin1String("AIR")
        && isSet(paths::airAndWaterUse);
    controls.controlGroup->setVisible(shown);
    if (!shown) {
        return;
    }
    controls.mainZoneGroup->setVisible(twoCircuits());
    if (twoCircuits()) {
        offerConstants(constants());
    }
    if (checkStored(controls.controlManual)) {
        enableConstants(controls.controlManual->isChecked());
    }
}

void WaterSection::enableConstants(bool enabled)
{
    controls.constantGroup->setEnabled(enabled);
    controls.mainZoneGroup->setEnabled(enabled);
}

void WaterSection::showWaterPump()
{
    controls.pumpGroup->setVisible(isSet(rules.pumpFlag) && isSet(rules.pumpOnFlag));
}

void WaterSection::showStored(const std::vector<const QComboBox *> &temperatures)
{
    for (const QComboBox *list : temperatures) {
        loadList(list);
    }
    const QString basis = word(rules.controlBasis);
    if (basis == QLatin1String("EXIT")) {
        controls.reference->setCurrentIndex(0);
    } else if (basis == QLatin1String("ENTRANCE")) {
        controls.reference->setCurrentIndex(1);
    }
    for (const QComboBox *list :
         {controls.airThermo, controls.waterThermo, controls.onTimer, controls.offTimer}) {
        loadList(list);
    }
    if (checkStored(controls.pumpUse)) {
        enableTimers();
    }
}

void WaterSection::enableTimers()
{
    const bool timed = controls.pumpUse->isChecked();
    controls.onGroup->setEnabled(timed);
    controls.offGroup->setEnabled(timed);
}

void WaterSection::saveControlBasis(const QString &shown)
{
    QString basis = QLatin1String("");
    if (shown == mainDialog->languageValue(QStringLiteral("Outlet"))) {
        basis = QStringLiteral("EXIT");
    } else if (shown == mainDialog->languageValue(QStringLiteral("Inlet"))) {
        basis = QStringLiteral("ENTRANCE");
    }
    save(rules.controlBasis, basis);
}

void WaterSection::chooseAirLimit(const QComboBox *limit, const QString &shown)
{
    change(limit, shown);
    announceChange();
}

void WaterSection::chooseWaterLimit(const QComboBox *limit, const QString &shown)
{
    save(limit, shown);
    keepConstantsInLimits();
    validationCheck();
    announceChange();
}

void WaterSection::chooseControlType(const QRadioButton *radio)
{
    save(radio);
    enableConstants(radio == controls.controlManual);
    validationCheck();
}

void WaterSection::chooseConstant(const QString &shown)
{
    save(controls.constant, shown);
    // With one circuit the main zone goes along.
    if (word(paths::enableMainZone) == QLatin1String("CLR")) {
        save(controls.mainZone, shown);
    }
    keepConstantsInLimits();
    validationCheck();
}

void WaterSection::chooseConstantMainZone(const QString &shown)
{
    save(controls.mainZone, shown);
    keepConstantsInLimits();
    validationCheck();
}

void WaterSection::keepConstantsInLimits()
{
    const waterranges::Constants stored = constants();
    const waterranges::Constants kept = waterranges::kept(stored, waterLimits(), circuits());
    if (kept.other != stored.other || kept.mainZone != stored.mainZone) {
        save(rules.constant, kept.other);
        save(rules.constantMainZone, kept.mainZone);
    }
    offerConstants(kept);
    mainDialog->setComboByValue(controls.constant, kept.other, MainDialog::Temperature);
    mainDialog->setComboByValue(controls.mainZone, kept.mainZone, MainDialog::Temperature);
}

void WaterSection::saveSeasonalDefaults(const seasonal::WaterDefaults &defaults)
{
    seasonal::saveWaterDefaults(
        defaults, [this](const QString &path, const QJsonValue &value) { saveJsonData(path, value); });
}
