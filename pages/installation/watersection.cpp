#include "pages/installation/watersection.h"

#include "app/maindialog.h"

#include <QComboBox>
#include <QRadioButton>

#include <utility>

WaterSection::WaterSection(WaterRules sectionRules, QWidget *parent)
    : Section(parent)
    , rules(std::move(sectionRules))
{
}

void WaterSection::fillLists()
{
    const QStringList steps{QStringLiteral("STEP0"), QStringLiteral("STEP1"), QStringLiteral("STEP2"),
                            QStringLiteral("STEP3")};
    const QStringList minutes = numbered(1, 60, 1, QStringLiteral("min"));
    mainDialog->setComboItems(controls.reference, {QStringLiteral("Outlet"), QStringLiteral("Inlet")}, -1);
    mainDialog->setComboItems(controls.airThermo, steps, -1);
    mainDialog->setComboItems(controls.waterThermo, steps, -1);
    mainDialog->setComboItems(controls.onTimer, minutes, -1);
    mainDialog->setComboItems(controls.offTimer, minutes, -1);
}

void WaterSection::refillLists()
{
    const auto refill = [](QComboBox *combo, const QStringList &items) {
        mainDialog->refillComboItems(combo, items, combo->currentIndex());
    };
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

bool WaterSection::twoCircuits() { return isSet(installation("circuitMainZone.enableMainZone")); }

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
    const QString sensed = word(installation("sensorDefine.settemp_select"));
    const bool byWater = sensed == QLatin1String("WATER") && isSet(rules.basisFlag);
    const bool byBoth = sensed == QLatin1String("AIR") && isSet(installation("sensorDefine.airAndWaterUse"));
    controls.basisGroup->setVisible(flag("isR32") && (byWater || byBoth));
}

void WaterSection::applyWaterLimits(Range low, Range high)
{
    offer(controls.waterMax, high);
    offer(controls.waterMin, low);
    const Range stored = waterLimits();
    const Range kept{waterranges::clamp(stored.low, low), waterranges::clamp(stored.high, high)};
    mainDialog->setComboByValue(controls.waterMin, kept.low, MainDialog::Temperature);
    mainDialog->setComboByValue(controls.waterMax, kept.high, MainDialog::Temperature);
    saveJsonData(rules.waterLow, kept.low);
    saveJsonData(rules.waterHigh, kept.high);
}

void WaterSection::offerConstants(const waterranges::Constants &stored)
{
    const waterranges::ConstantLists offered = waterranges::lists(stored, waterLimits(), circuits());
    offer(controls.constant, offered.other);
    offer(controls.mainZone, offered.mainZone);
}

void WaterSection::showTemperatureControl()
{
    const QString type = word(rules.controlType);
    // Where the other circuit's value leaves no range, the list keeps the whole one.
    offer(controls.constant, waterLimits());
    offer(controls.mainZone, waterLimits());
    const bool shown = flag("isWaterCtrBasisAir")
        && word(installation("sensorDefine.settemp_select")) == QLatin1String("AIR")
        && isSet(installation("sensorDefine.airAndWaterUse"));
    controls.controlGroup->setVisible(shown);
    if (!shown) {
        return;
    }
    controls.mainZoneGroup->setVisible(twoCircuits());
    if (twoCircuits()) {
        offerConstants(constants());
    }
    if (type == QLatin1String("MANUAL")) {
        controls.controlManual->setChecked(true);
        enableConstants(true);
    } else if (type == QLatin1String("AUTO")) {
        controls.controlAuto->setChecked(true);
        enableConstants(false);
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

void WaterSection::showStored(const std::vector<TemperatureRow> &temperatures)
{
    // All is read before a list moves: with its signals live it runs its slot.
    const QString basis = word(rules.controlBasis);
    const QString airThermo = text(rules.airThermo);
    const QString waterThermo = text(rules.waterThermo);
    const int onTime = number(rules.pumpOnTime);
    const int offTime = number(rules.pumpOffTime);
    const QString pump = word(rules.pumpOption);
    for (const TemperatureRow &row : temperatures) {
        mainDialog->setComboByValue(row.combo, number(row.path), MainDialog::Temperature);
    }
    if (basis == QLatin1String("EXIT")) {
        controls.reference->setCurrentIndex(0);
    } else if (basis == QLatin1String("ENTRANCE")) {
        controls.reference->setCurrentIndex(1);
    }
    mainDialog->setComboByKey(controls.airThermo, airThermo);
    mainDialog->setComboByKey(controls.waterThermo, waterThermo);
    controls.onTimer->setCurrentIndex(indexOf(onTime, 1));
    controls.offTimer->setCurrentIndex(indexOf(offTime, 1));
    // Oddity 2: "SET" is the running through: no timers.
    if (pump == QLatin1String("CLR") || pump == QLatin1String("SET")) {
        QRadioButton *radio = pump == QLatin1String("CLR") ? controls.pumpUse : controls.pumpNotuse;
        radio->setChecked(true);
        enableTimers();
    }
}

void WaterSection::enableTimers()
{
    const bool timed = controls.pumpUse->isChecked();
    controls.onGroup->setEnabled(timed);
    controls.offGroup->setEnabled(timed);
}

void WaterSection::saveTemperature(const QString &path, const QString &shown)
{
    saveJsonData(path, shownValue(Shown::Temperature, shown));
}

void WaterSection::saveControlBasis(const QString &shown)
{
    QString basis = QLatin1String("");
    if (shown == mainDialog->languageValue(QStringLiteral("Outlet"))) {
        basis = QStringLiteral("EXIT");
    } else if (shown == mainDialog->languageValue(QStringLiteral("Inlet"))) {
        basis = QStringLiteral("ENTRANCE");
    }
    saveJsonData(rules.controlBasis, basis);
}

void WaterSection::chooseAirLimit(const QString &path, const QString &shown)
{
    saveTemperature(path, shown);
    validationCheck();
    announceChange();
}

void WaterSection::chooseWaterLimit(const QString &path, const QString &shown)
{
    saveTemperature(path, shown);
    keepConstantsInLimits();
    validationCheck();
    announceChange();
}

void WaterSection::chooseControlType(const QString &type)
{
    saveJsonData(rules.controlType, type);
    enableConstants(type == QLatin1String("MANUAL"));
    validationCheck();
}

void WaterSection::chooseConstant(const QString &shown)
{
    saveTemperature(rules.constant, shown);
    // With one circuit the main zone goes along.
    if (word(installation("circuitMainZone.enableMainZone")) == QLatin1String("CLR")) {
        saveTemperature(rules.constantMainZone, shown);
    }
    keepConstantsInLimits();
    validationCheck();
}

void WaterSection::chooseConstantMainZone(const QString &shown)
{
    saveTemperature(rules.constantMainZone, shown);
    keepConstantsInLimits();
    validationCheck();
}

void WaterSection::chooseThermo(const QString &path, const QString &shown)
{
    saveJsonData(path, mainDialog->languageKeyOrText(shown));
    validationCheck();
}

void WaterSection::chooseTime(const QString &path, int index)
{
    saveJsonData(path, index + 1);
    validationCheck();
}

void WaterSection::keepConstantsInLimits()
{
    const waterranges::Constants stored = constants();
    const waterranges::Constants kept = waterranges::kept(stored, waterLimits(), circuits());
    if (kept.other != stored.other || kept.mainZone != stored.mainZone) {
        saveJsonData(rules.constant, kept.other);
        saveJsonData(rules.constantMainZone, kept.mainZone);
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
