#pragma once

#include "pages/installation/section.h"
#include "pages/installation/waterform.h"
#include "rules/seasonaldefaults.h"
#include "rules/waterranges.h"

/// Where a section keeps its values, and the flags that show its groups: paths of the document.
struct WaterRules {
    QString basisFlag;
    QString controlBasis;
    QString airLow;
    QString airHigh;
    QString waterLow;
    QString waterHigh;
    QString controlType;
    QString constant;
    QString constantMainZone;
    QString thermoFlag;
    QString airThermo;
    QString waterThermo;
    QString pumpFlag;
    QString pumpOnFlag;
    QString pumpOption;
    QString pumpOnTime;
    QString pumpOffTime;
    /// How the constant temperatures stand to each other when there are two circuits.
    waterranges::Circuits circuits = waterranges::Circuits::One;
};

/// The plan on which the cooling and the heating section are built. It has no slots of its own; the two
/// classes declare theirs and say which step of the plan they are.
class WaterSection : public Section
{
public:
    explicit WaterSection(WaterRules rules, QWidget *parent = nullptr);

protected:
    /// A list of temperatures and the path of the value that it shows.
    struct TemperatureRow {
        QComboBox *combo;
        QString path;
    };

    /// Tells the auto mode section, whose lists follow the water basis and the limits.
    virtual void announceChange() = 0;
    /// The constant temperature is that of circuit 2 where there is one.
    QString captionOf(const QString &key) const override;

    // Loading
    /// Fills the lists of words and times; no language is in force yet.
    void fillLists();
    /// Puts the lists of words and times into the language in force, each on the item it stood on.
    void refillLists();
    void showControlBasis();
    /// Offers the limits, brings the stored ones into them, shows them and writes them back.
    void applyWaterLimits(Range low, Range high);
    void showTemperatureControl();
    void showWaterPump();
    /// Shows what is stored: the temperatures quietly, all else with the signals live.
    void showStored(const std::vector<TemperatureRow> &temperatures);
    static void showOrHide(std::initializer_list<QWidget *> widgets, bool shown);
    static bool twoCircuits();

    // Changes by the user; `shown` is the text of an item
    void saveTemperature(const QString &path, const QString &shown);
    /// "Outlet" or "Inlet" in the language in force; any other text saves an empty word.
    void saveControlBasis(const QString &shown);
    void chooseAirLimit(const QString &path, const QString &shown);
    void chooseWaterLimit(const QString &path, const QString &shown);
    /// "AUTO" or "MANUAL".
    void chooseControlType(const QString &type);
    void chooseConstant(const QString &shown);
    void chooseConstantMainZone(const QString &shown);
    void chooseThermo(const QString &path, const QString &shown);
    void chooseTime(const QString &path, int index);
    /// Brings the constant temperatures into the limits and in line with each other, and shows them.
    void keepConstantsInLimits();
    void enableTimers();
    void saveSeasonalDefaults(const seasonal::WaterDefaults &defaults);

    const WaterRules rules;
    WaterControls controls{};

private:
    Range waterLimits() const;
    waterranges::Constants constants() const;
    waterranges::Circuits circuits() const;
    void offerConstants(const waterranges::Constants &stored);
    void enableConstants(bool enabled);
};
