#pragma once

#include "pages/installation/section.h"
#include "rules/autoranges.h"

#include <array>
#include <memory>

class QComboBox;
namespace Ui {
class InstallationaAuto;
}

/// The section of auto mode. A flag of the document decides between two forms: six independent lists for the
/// mode that depends on the outdoor temperature, or twenty lists for seasonal auto mode, which narrow one
/// another after each change. All values in the document are °C.
class InstallationaAuto : public Section
{
    Q_OBJECT

public:
    explicit InstallationaAuto(QWidget *parent = nullptr);
    ~InstallationaAuto() override;

private slots:
    void initUi();
    /// The lists of the outdoor mode. Outdoor and water limits are clamped to them, and written back.
    void initDefaultTempRange();

public slots:
    /// Loads the section anew, as showing it does.
    void refresh();

private slots:
    void saveJsonData(const QString &path, const QJsonValue &value) override;
    QJsonValue parseJsonData(const QString &path);
    void loadJsonData();
    void setVisibleMode();
    void setVisibleMainZone();
    void setVisibleIndoorWaterView();
    /// "AIR", "WATER" or "AIR_WATER"; nothing calls it.
    void setVisibleIndoorWaterView(const QString &value);
    /// Selects the item of a number in the shown unit, signals blocked; blank when the list doesn't hold it.
    void setTempValue(QComboBox *comboBox, int value);
    void setloadJsonValue();
    void setVisibleSeasonalAutoView();
    /// The limits by the flags, and the twenty lists as wide as they.
    void setTempRangeValue();
    /// Narrows the list of a seasonal box (autoengine::ModelName) by its neighbours and selects a number in
    /// the shown unit; then, when asked, the lists of its group. Any other `modelName` changes nothing.
    void valueChanged(int modelName, int selectedTemp, bool isRefreshRange = false);
    /// Narrows the lists of the outdoor (1), water (2) or indoor boxes (3), each by those before it.
    void refreshTempRange(int type);
    void on_hideButton_clicked();
    void on_radioHeatingOnly_clicked();
    void on_radioCoolingOnly_clicked();
    void on_radioBoth_clicked();
    void on_comboOutdoorOutdoorMax_currentTextChanged(const QString &text);
    void on_comboOutdoorOutdoorMin_currentTextChanged(const QString &text);
    void on_comboOutdoorIndoorMax_currentTextChanged(const QString &text);
    void on_comboOutdoorIndoorMin_currentTextChanged(const QString &text);
    void on_comboOutdoorWaterMax_currentTextChanged(const QString &text);
    void on_comboOutdoorWaterMin_currentTextChanged(const QString &text);
    void on_comboHeatingOutdoorMax_currentTextChanged(const QString &text);
    void on_comboHeatingOutdoorMin_currentTextChanged(const QString &text);
    void on_comboCoolingOutdoorMax_currentTextChanged(const QString &text);
    void on_comboCoolingOutdoorMin_currentTextChanged(const QString &text);
    void on_comboHeatingIndoorMax_currentTextChanged(const QString &text);
    void on_comboHeatingIndoorMin_currentTextChanged(const QString &text);
    void on_comboCoolingIndoorMax_currentTextChanged(const QString &text);
    void on_comboCoolingIndoorMin_currentTextChanged(const QString &text);
    void on_comboHeatingWaterMax_currentTextChanged(const QString &text);
    void on_comboHeatingWaterMin_currentTextChanged(const QString &text);
    void on_comboCoolingWaterMax_currentTextChanged(const QString &text);
    void on_comboCoolingWaterMin_currentTextChanged(const QString &text);
    void on_comboMainZoneHeatingIndoorMax_currentTextChanged(const QString &text);
    void on_comboMainZoneHeatingIndoorMin_currentTextChanged(const QString &text);
    void on_comboMainZoneIndoorMax_currentTextChanged(const QString &text);
    void on_comboMainZoneIndoorMin_currentTextChanged(const QString &text);
    void on_comboMainZoneHeatingWaterMax_currentTextChanged(const QString &text);
    void on_comboMainZoneHeatingWaterMin_currentTextChanged(const QString &text);
    void on_comboMainZoneWaterMax_currentTextChanged(const QString &text);
    void on_comboMainZoneWaterMin_currentTextChanged(const QString &text);
    void validationCheck() override;

public slots:
    /// Sets the section's texts. A refresh doesn't, so the second circuit's captions keep their form until
    /// then.
    void changeLanguage();

protected:
    void showEvent(QShowEvent *event) override;

private:
    static bool mainZoneOff();
    QComboBox *box(int modelName) const;
    int current(int modelName) const;
    /// Shows the one, the other or both by what the unit senses: indoor air or water.
    static void showControlled(QWidget *indoor, QWidget *water);
    /// Brings two stored limits of the outdoor mode into what their lists offer, shows them and writes them
    /// back.
    void showClamped(const QComboBox *high, Range highRange, const QComboBox *low, Range lowRange);
    void choose(int modelName, const QString &text);
    void captionOutdoorMode();
    void captionSeasonalMode();
    void captionEnds();

    std::unique_ptr<Ui::InstallationaAuto> ui;
    /// Limits of the seasonal boxes, °C, in an order of their own (autoengine::Row::slot).
    std::array<Range, 20> tempRange{};
};
