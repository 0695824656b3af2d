#pragma once

#include "pages/installation/section.h"

#include <memory>

namespace Ui {
class InstallationDWH;
}

/// The section of the hot water tank: temperatures, heating priority, heating timer, thermo criterion and
/// disinfection. Its paths stand under SettingInfo.installation.
class InstallationDWH : public Section
{
    Q_OBJECT

public:
    explicit InstallationDWH(QWidget *parent = nullptr);
    ~InstallationDWH() override;

protected:
    void showEvent(QShowEvent *event) override;

private slots:
    void initUi();
    void initDefaultTempRange();

public slots:
    /// Loads the section anew from the document, as showing it does.
    void refresh();

private slots:
    void saveJsonData(const QString &path, const QJsonValue &value) override;
    QJsonValue parseJsonData(const QString &path);
    void loadJsonData();
    void setloadJsonValue();
    void setHotWaterTempRange();
    void enableDisinfection();
    void on_hideButton_clicked();
    void on_comboHotWaterMin_currentTextChanged(const QString &text);
    void on_comboHotWaterMax_currentTextChanged(const QString &text);
    void on_comboTankWaterMin_currentTextChanged(const QString &text);
    void on_comboInletWaterMax_currentTextChanged(const QString &text);
    void on_comboHeatPump_currentTextChanged(const QString &text);
    void on_comboTankHeatingHysterisis_currentTextChanged(const QString &text);
    void on_radioUnderFloorNotUse_clicked();
    void on_radioUnderFloorUse_clicked();
    void on_radioDisinfectionNotUse_clicked();
    void on_radioDisinfectionUse_clicked();
    void on_comboSchedule1_currentIndexChanged(int index);
    void on_comboSchedule2_currentIndexChanged(int index);
    void on_comboMaxTemp_currentTextChanged(const QString &text);
    void on_comboCutOffDuration_currentIndexChanged(int index);
    void on_comboMaxTempDuration_currentIndexChanged(int index);
    void validationCheck() override;

public slots:
    /// Sets the section's texts from the language in force.
    void changeLanguage();

private slots:
    void changeLanguageInCombobox();
    void on_comboHeatingDurationTime_currentIndexChanged(int index);
    void on_comboStopDurationTime_currentIndexChanged(int index);

private:
    void loadTargetTemperatures();
    void loadTankTemperatures();
    void loadTimer();
    void loadTankHeating();
    void loadDisinfection();
    static bool isDisinfectionOffered(const QString &tankHeaterUse);
    void chooseDisinfection(const QRadioButton *radio);

    std::unique_ptr<Ui::InstallationDWH> ui;
};
