#pragma once

#include "pages/page.h"

#include <memory>

namespace Ui {
class InstallationSystemAWHP;
}

/// The settings of the heat pump itself, at the bottom of the system section, for a document of the product
/// "AWHP". It writes nothing itself: its saves are signals that pass the system section's gate.
class InstallationSystemAWHP : public Page
{
    Q_OBJECT

public:
    explicit InstallationSystemAWHP(QWidget *parent = nullptr);
    ~InstallationSystemAWHP() override;

    /// Sets the texts of the section from the language in force; the lists keep their positions.
    void changeLanguage();
    void changeLanguageInCombobox();

signals:
    /// The result of the section's check; the type is "AWHP".
    void validationCheckSignals(bool isChecked, const QString &type);
    void saveJsonValue(const QString &path, const QJsonValue &value);
    /// The other sections of the tab have to read the document again.
    void refreshInstallationPage();

protected:
    void showEvent(QShowEvent *event) override;

private slots:
    void initUi();
    void initDefaultTempRange();

public slots:
    /// Loads the section from the document.
    void refresh();

private slots:
    void loadJsonData();
    QJsonValue parseJsonData(const QString &path);
    void saveJsonData(const QString &path, const QJsonValue &value) override;
    void conversionToFahrenheit();
    void setloadJsonValue();
    QString setOpacity(bool isEnabled);
    void refreshInstallation();
    void enable2ndCircuit();
    void enableSmartGrid();
    void enableWaterTankHeater();
    void enable3rdPartyBoiler();
    void on_radio2ndNotuse_clicked();
    void on_radio2ndUse_clicked();
    void on_radioSgNotuse_clicked();
    void on_radioSgUse_clicked();
    void on_radioHeaterPriorityNotuse_clicked();
    void on_radioHeaterPriorityUse_clicked();
    void on_radioWaterTankHeaterNotuse_clicked();
    void on_radioWaterTankHeaterUse_clicked();
    void on_radioWaterTankHeaterMode_clicked();
    void on_radioExternalPumpNotuse_clicked();
    void on_radioExternalPumpUse_clicked();
    void on_radio3rdNotUse_clicked();
    void on_radio3rdUse_clicked();
    void on_comboHysterisis_currentIndexChanged(int index);
    void on_comboValveClosingTime_currentTextChanged(const QString &text);
    void on_comboStep_currentIndexChanged(int index);
    void on_comboHeaterOnTemperature_currentTextChanged(const QString &text);
    void on_comboAntiFreezingTemp_currentTextChanged(const QString &text);
    void on_comboPreRun_currentIndexChanged(int index);
    void on_comboOverRun_currentIndexChanged(int index);
    void on_comboDelayTime_currentIndexChanged(int index);
    void on_comboControlMode_currentTextChanged(const QString &text);
    void on_comboControlTemp_currentTextChanged(const QString &text);
    void on_combo3rdHysterisis_currentTextChanged(const QString &text);
    void validataionCheck();
    void on_comboHeatingPriority_currentIndexChanged(int index);

private:
    void validationCheck() override { validataionCheck(); }
    void choose2ndCircuit(const QRadioButton *radio);
    void chooseWaterTankHeater(const QRadioButton *radio);
    void choose3rdPartyBoiler(const QRadioButton *radio);
    void loadHeaters();
    void loadWaterTankHeater();
    void loadTankPriority();
    void loadPumps();
    void load3rdPartyBoiler();
    void setControlledByTemperature(bool controlled);

    std::unique_ptr<Ui::InstallationSystemAWHP> ui;
};
