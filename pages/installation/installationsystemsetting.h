#pragma once

#include "pages/installation/section.h"

#include <memory>

class QComboBox;
namespace Ui {
class InstallationSystemSetting;
}

/// First section of the Installation tab: what belongs to the whole system. It hosts the section of the heat
/// pump and that of the hydronic module, shows the one of the document's product, and passes on their saves,
/// their results and their requests to refresh the other sections.
class InstallationSystemSetting : public Section
{
    Q_OBJECT

public:
    explicit InstallationSystemSetting(QWidget *parent = nullptr);
    ~InstallationSystemSetting() override;

signals:
    /// The other sections of the tab have to read the document again.
    void refreshInstallationPageSignal();
    void refreshAwhpCategory();
    /// Never emitted; leads to the heat pump section as well.
    void refreshAquaboxCategory();

protected:
    void showEvent(QShowEvent *event) override;

private slots:
    void initUi();
    void initDefaultRange();
    void blockComboBoxSignal(bool isBlock);
    void saveJsonData(const QString &path, const QJsonValue &value) override;
    QJsonValue parseJsonData(const QString &path);
    void loadJsonData();
    void refreshAwhpWidget();
    void refreshAquaboxWidget();
    void refreshInstallationPage();
    void enableEnforcedCirculation();
    void on_hideButton_clicked();
    void setTempValue(QComboBox *comboBox, int value);
    void on_radioDryManual_clicked();
    void on_radioDryAuto_clicked();
    void on_radioEnforcedNotuse_clicked();
    void on_radioEnforcedUse_clicked();
    void on_comboBoxSensingTemp_currentTextChanged(const QString &text);
    void on_comboBoxAirTemp_currentTextChanged(const QString &text);
    void on_comboWaterRpmDuty_currentTextChanged(const QString &text);
    void on_comboWaterpumpRPM_currentTextChanged(const QString &text);
    void on_comboDryContactInstallation_currentTextChanged(const QString &text);
    void on_comboCnEXT_currentIndexChanged(int index);
    void on_comboCentral_currentTextChanged(const QString &text);
    void on_comboModbus_currentTextChanged(const QString &text);
    void validationCheck() override;
    void validationCheckByProductType(bool isChecked, const QString &type);

public slots:
    /// Sets the texts of this section and of both product sections from the language in force.
    void changeLanguage();

private slots:
    void changeLanguageInCombobox();
    void on_comboBoxScreedStep_currentTextChanged(const QString &arg1);
    void on_comboBoxScreedMaxTemp_currentTextChanged(const QString &arg1);
    void on_comboOperationTime_currentIndexChanged(int index);
    void on_comboBoxScreedHolding_currentIndexChanged(int index);
    void on_comboOperationPeriod_currentIndexChanged(int index);

private:
    void chooseEnforced(const QRadioButton *radio);

    void loadProduct(const QString &product);
    void loadSensing();
    void loadCentralAddress();
    void loadModbusAddress();
    void loadScreedDrying();
    void loadPump();
    void loadEnforcedCirculation();
    void loadDigitalInput();

    // The items that flags of the document decide on, in the language in force.
    static QStringList sensingTexts();
    static QStringList airTempTexts();
    static QStringList digitalInputTexts();
    static QStringList centralAddresses();
    static QStringList modbusAddresses();
    /// The document's words for the dry contact installation.
    static QStringList dryContactWords();

    std::unique_ptr<Ui::InstallationSystemSetting> ui;
    /// Last results of the product sections.
    bool awhpValid = false;
    bool aquaboxValid = false;
    /// No load has finished yet.
    bool firstLoad = true;
};
