#pragma once

#include "pages/installation/watersection.h"

#include <memory>

namespace Ui {
class InstallationHeat;
}

/// Heating: the water temperature that the control follows, the limits, automatic or constant water
/// temperature, the thermo criteria and the cycling of the water pump. Temperatures are in °C.
class InstallationHeat : public WaterSection
{
    Q_OBJECT

public:
    explicit InstallationHeat(QWidget *parent = nullptr);
    ~InstallationHeat() override;

signals:
    /// The water basis or a limit has changed.
    void refreshInstallationPageSignal();

private slots:
    void initUi();
    void initDefaultTempRange();

public slots:
    /// Loads the section anew, as showing it does.
    void refresh();

private slots:
    void saveJsonData(const QString &path, const QJsonValue &value) override;
    QJsonValue parseJsonData(const QString &path);
    void loadJsonData();
    void setloadJsonValue();
    void enableWaterPumpOperationTimer();
    void enableTemperatureControl();
    void setControlWaterTempRange();
    QString setOpacity(bool isEnabled);
    void setHeatWaterTempRange();
    void on_hideButton_clicked();
    void on_comboReferenceWater_currentTextChanged(const QString &text);
    void on_comboTemperatureIndoorMin_currentTextChanged(const QString &text);
    void on_comboTemperatureIndoorMax_currentTextChanged(const QString &text);
    void on_comboTemperatureWaterMin_currentTextChanged(const QString &text);
    void on_comboTemperatureWaterMax_currentTextChanged(const QString &text);
    void on_comboTNIndoorAirTemp_currentTextChanged(const QString &text);
    void on_comboTNIndoorWaterTemp_currentTextChanged(const QString &text);
    void on_comboWaterPumpOnTimer_currentIndexChanged(int index);
    void on_comboWaterPumpOffTimer_currentIndexChanged(int index);
    void on_radioWaterPumpUse_clicked();
    void on_radioWaterPumpNotuse_clicked();
    void on_radioControlTypeAuto_clicked();
    void on_radioControlTypeManual_clicked();
    void on_comboControlWaterTemp_currentTextChanged(const QString &text);
    void on_comboControlMainZoneTemp_currentTextChanged(const QString &text);
    void validationCheck() override;

public slots:
    /// Sets the section's texts from the language in force; one of them depends on the number of circuits.
    void changeLanguage();

private slots:
    void changeLanguageInCombobox();
    void initSeasonalAutoRange();

protected:
    void showEvent(QShowEvent *event) override;

private:
    void announceChange() override;
    void choosePump(const QRadioButton *radio);

    std::unique_ptr<Ui::InstallationHeat> ui;
};
