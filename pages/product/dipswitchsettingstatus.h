#pragma once

#include "pages/page.h"

#include <cstddef>
#include <initializer_list>
#include <memory>
#include <utility>

class ChoiceRows;
class QLineEdit;
class QPushButton;
namespace Ui {
class DipSwitchSettingStatus;
}

/// Wizard step 2: how the heat pump is equipped. Each choice writes flags of the indoor unit and shows how
/// the dip switches of the real board must be set for it. The drawn switches can't be operated.
///
/// A drawn switch holds its own state: its text, which is invisible, reads "true" or "false".
class DipSwitchSettingStatus : public Page
{
    Q_OBJECT

public:
    explicit DipSwitchSettingStatus(QWidget *parent = nullptr);
    ~DipSwitchSettingStatus() override;

    bool eventFilter(QObject *watched, QEvent *event) override;

protected:
    bool event(QEvent *event) override;
    void showEvent(QShowEvent *event) override;

private slots:
    void initUi();
    void saveJsonData(const QString &path, const QJsonValue &value) override;
    QJsonValue parseJsonData(const QString &path);
    void loadJsonData();
    bool enableSolarThermalKit();
    void enableOrvoMeterSubCategory();
    void enableOduFunctionMaster();
    void enableOduFunctionMasterSubCategory();

public slots:
    /// Shows the board of a refrigerant, "R32" or "R410" in any case; any other text changes nothing.
    void changeImage(const QString &product);

private slots:
    QString setDipSwitchButton(bool onCheck);
    QString setRadioTextOpacity(bool isEnabled);
    QString setOpacity(bool isEnabled);
    void setPowerHotWater();
    void setElectricHeater(const QString &isHeater1, const QString &isHeater2);
    void setOrvoSubCategory();
    void initSeasonalAutoRange();
    void validationCheck() override;

public slots:
    /// Sets the page's texts from the language in force.
    void changeLanguage();

private slots:
    void on_radioDhwNotUse_clicked();
    void on_radioDhwUse_clicked();
    void on_radioDhwOnly_clicked();
    void on_radioSolarThermalKitNotuse_clicked();
    void on_radioSolarThermalKitUse_clicked();
    void on_radioOperationHeating_clicked();
    void on_radioOperationBoth_clicked();
    void on_radioFlowAlways_clicked();
    void on_radioFlowOnlyPump_clicked();
    void on_radioElectricHeaterNotuse_clicked();
    void on_radioElectricHeater1_clicked();
    void on_radioElectricHeaterBoth_clicked();
    void on_radioThermostatNone_clicked();
    void on_radioThermostatUse_clicked();
    void on_radioOrvometerInterfaceNotuse_clicked();
    void on_radioOrvoAddressB0_clicked();
    void on_radioOrvoAddressB1_clicked();
    void on_lineEditWHM1_textEdited(const QString &text);
    void on_lineEditWHM2_textEdited(const QString &text);
    void on_lineEditWHM3_textEdited(const QString &text);
    void on_lineEditWHM4_textEdited(const QString &text);
    void on_radioOduMaster_clicked();
    void on_radioOduSlave_clicked();
    void on_radioSilentODU_clicked();
    void on_radioSilentRemote_clicked();
    void on_radioAdditionalAirNotUse_clicked();
    void on_radioAdditionalAirUse_clicked();
    void on_radioAntifreezeNotuse_clicked();
    void on_radioAntifreezeUse_clicked();

private:
    using Switch = std::pair<QPushButton *, bool>;
    using Flag = std::pair<const char *, const char *>;

    void makeChoiceRows();
    void endTogether(int options);
    void placeRows();
    void turn(std::initializer_list<Switch> switches);
    void saveFlags(std::initializer_list<Flag> flags);
    void choose(std::initializer_list<Switch> switches, std::initializer_list<Flag> flags);
    void choose(const QRadioButton *radio, std::initializer_list<Switch> switches);
    void chooseTank(std::initializer_list<Switch> switches, std::initializer_list<Flag> flags);
    void chooseHeater(const char *heater1, const char *heater2);
    void chooseAddress(int address);
    void chooseAirSensor(const QRadioButton *radio, bool used);
    void savePulses(std::size_t meter, const QString &pulses);
    std::vector<QLineEdit *> pulseEdits() const;

    void loadProduct(const QString &product);
    void loadHotWater(bool aquabox);
    void showSolarThermalKit();
    void loadOperationMode();
    bool loadPair(QRadioButton *set, QRadioButton *notSet) const;
    void loadElectricHeater();
    void showBankC(bool shown);
    void loadOduFunction(bool awhp);
    void loadSilentModePriority(bool master);

    std::unique_ptr<Ui::DipSwitchSettingStatus> ui;
    std::unique_ptr<ChoiceRows> choiceRows;
    bool pageShown = false;
};
