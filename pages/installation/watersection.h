#pragma once

#include "pages/installation/section.h"
#include "pages/installation/waterform.h"
#include "rules/seasonaldefaults.h"
#include "rules/waterranges.h"

/// Where a section keeps its values, and the flags that show its groups: paths of the document.
struct WaterRules {
    const char *basisFlag = nullptr;
    const char *controlBasis = nullptr;
    const char *airLow = nullptr;
    const char *airHigh = nullptr;
    const char *waterLow = nullptr;
    const char *waterHigh = nullptr;
    const char *controlType = nullptr;
    const char *constant = nullptr;
    const char *constantMainZone = nullptr;
    const char *thermoFlag = nullptr;
    const char *airThermo = nullptr;
    const char *waterThermo = nullptr;
    const char *pumpFlag = nullptr;
    const char *pumpOnFlag = nullptr;
    const char *pumpOption = nullptr;
    const char *pumpOnTime = nullptr;
    const char *pumpOffTime = nullptr;
    /// How the constant temperatures stand to each other when there are two circuits.
    waterranges::Circuits circuits = waterranges::Circuits::One;
};

/// The plan on which the cooling and the heating section are built. It has no slots of its own; the two
/// classes declare theirs and say which step of the plan they are.
class WaterSection : public Section
{
public:
    explicit WaterSection(const WaterRules &rules, QWidget *parent = nullptr);

protected:
    /// Tells the auto mode section, whose lists follow the water basis and the limits.
    virtual void announceChange() = 0;
    /// The constant temperature is that of circuit 2 where there is one.
    QString captionOf(const QString &key) const override;

    /// Takes the controls of the form over, and says the rows of those that both sections have.
    void adopt(const WaterControls &form);

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
    void showStored(const std::vector<const QComboBox *> &temperatures);
    static void showOrHide(std::initializer_list<QWidget *> widgets, bool shown);
    static bool twoCircuits();

    // Changes by the user; `shown` is the text of an item
    /// "Outlet" or "Inlet" in the language in force; any other text saves an empty word.
    void saveControlBasis(const QString &shown);
    void chooseAirLimit(const QComboBox *limit, const QString &shown);
    void chooseWaterLimit(const QComboBox *limit, const QString &shown);
    void chooseControlType(const QRadioButton *radio);
    void chooseConstant(const QString &shown);
    void chooseConstantMainZone(const QString &shown);
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
