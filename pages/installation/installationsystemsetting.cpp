#include "pages/installation/installationsystemsetting.h"

#include "app/maindialog.h"
#include "document/paths.h"
#include "pages/style.h"
#include "ui_installationsystemsetting.h"

#include <QDebug>

#include <array>
#include <type_traits>

namespace {

constexpr const char *pumpValue = "SettingInfo.installation.pumpRPM.pumpRPMValue";
constexpr const char *screedStep = "SettingInfo.installation.cement_cure.cmt_step";

// What item 0 stands for: hours, minutes and days.
constexpr int firstPeriod = 20;
constexpr int firstRuntime = 1;
constexpr int firstHolding = 1;

// Items of the control method, in the order of the list.
constexpr int waterItem = 0;
constexpr int airItem = 1;
constexpr int airWaterItem = 2;

/// What a control method stores, by the key of its text.
struct Sensing {
    const char *key;
    const char *basis;
    const char *airAndWater;
    const char *remoteSensor;
};

constexpr std::array<Sensing, 3> sensingMethods{
    {{"AIR", "AIR", "CLR", "SET"}, {"WATER", "WATER", "CLR", "CLR"}, {"AIR_WATER", "AIR", "SET", "SET"}}};

} // namespace

InstallationSystemSetting::InstallationSystemSetting(QWidget *parent)
    : Section(parent)
    , ui(std::make_unique<Ui::InstallationSystemSetting>())
{
    ui->setupUi(this);
    choices = {{"SettingInfo.installation.drycontactAuto",
                {{ui->radioDryAuto, "AUTO_ON"}, {ui->radioDryManual, "AUTO_OFF"}}},
               {"SettingInfo.installation.pumpOperationByForce.ByForceUse",
                {{ui->radioEnforcedNotuse, "NOTUSE"}, {ui->radioEnforcedUse, "USE"}}}};
    lists = {
        {ui->comboBoxScreedMaxTemp, "SettingInfo.installation.cement_cure.cmt_maxTemp", Shown::Temperature},
        {ui->comboBoxScreedHolding, "SettingInfo.installation.cement_cure.cmt_holding", Shown::Index,
         firstHolding},
        {ui->comboOperationPeriod, "SettingInfo.installation.pumpOperationByForce.ByForcePeriod",
         Shown::Index, firstPeriod},
        {ui->comboOperationTime, "SettingInfo.installation.pumpOperationByForce.ByForceRuntime", Shown::Index,
         firstRuntime}};
    const auto connectProduct = [this](auto *product) {
        using Product = std::remove_pointer_t<decltype(product)>;
        connect(product, &Product::validationCheckSignals, this,
                &InstallationSystemSetting::validationCheckByProductType);
        connect(product, &Product::saveJsonValue, this, &InstallationSystemSetting::saveJsonData);
        connect(product, &Product::refreshInstallationPage, this,
                &InstallationSystemSetting::refreshInstallationPage);
    };
    connectProduct(ui->widgetAwhp);
    connectProduct(ui->widgetAquabox);
    connect(this, &InstallationSystemSetting::refreshAwhpCategory, ui->widgetAwhp,
            &InstallationSystemAWHP::refresh);
    // Oddity 37: the heat pump section here too.
    connect(this, &InstallationSystemSetting::refreshAquaboxCategory, ui->widgetAwhp,
            &InstallationSystemAWHP::refresh);
    startCollapsed(ui->hideButton, ui->frame);
    ui->widgetAwhp->hide();
    ui->widgetAquabox->hide();
    initDefaultRange();
}

InstallationSystemSetting::~InstallationSystemSetting() = default;

void InstallationSystemSetting::showEvent(QShowEvent *event)
{
    Section::showEvent(event);
    initDefaultRange();
    loadJsonData();
    changeLanguage();
    validationCheck();
}

void InstallationSystemSetting::initUi()
{
    ui->frame->hide();
    ui->widgetAwhp->hide();
    ui->widgetAquabox->hide();
    initDefaultRange();
}

void InstallationSystemSetting::blockComboBoxSignal(bool isBlock)
{
    for (QComboBox *combo : {ui->comboBoxAirTemp, ui->comboBoxSensingTemp, ui->comboCentral, ui->comboCnEXT,
                             ui->comboDryContactInstallation, ui->comboModbus, ui->comboOperationPeriod,
                             ui->comboOperationTime, ui->comboWaterpumpRPM, ui->comboWaterRpmDuty,
                             ui->comboBoxScreedStep, ui->comboBoxScreedMaxTemp, ui->comboBoxScreedHolding}) {
        combo->blockSignals(isBlock);
    }
}

// The suffixes and words stay untranslated until changeLanguageInCombobox() replaces them.
void InstallationSystemSetting::initDefaultRange()
{
    mainDialog->setRangeValueInComboBox(ui->comboWaterpumpRPM, 0, 3700, MainDialog::PlainNumber, 10);
    fill(ui->comboOperationPeriod, numbered(firstPeriod, 180, 1, QStringLiteral("hour")));
    fill(ui->comboOperationTime, numbered(firstRuntime, 10, 1, QStringLiteral("min")));
    fill(ui->comboDryContactInstallation,
         {QStringLiteral("Auto"), QStringLiteral("NOTINSTALL"), QStringLiteral("INSTALL")});
    fill(ui->comboWaterRpmDuty, numbered(10, 100, 5, QStringLiteral("%")));
    fill(ui->comboCentral, centralAddresses());
    fill(ui->comboModbus, modbusAddresses());
    mainDialog->setRangeValueInComboBox(ui->comboBoxScreedStep, 1, 11, MainDialog::PlainNumber, 1);
    offer(ui->comboBoxScreedMaxTemp, {35, 55});
    fill(ui->comboBoxScreedHolding, numbered(firstHolding, 30, 1, QStringLiteral("stepDay")));
}

void InstallationSystemSetting::changeLanguageInCombobox()
{
    const auto suffix = [](const char *key) { return mainDialog->languageValue(QLatin1String(key)); };
    refill(ui->comboCnEXT, digitalInputTexts());
    refill(ui->comboBoxScreedHolding, numbered(firstHolding, 30, 1, suffix("day")));
    refill(ui->comboOperationPeriod, numbered(firstPeriod, 180, 1, suffix("Hour")));
    refill(ui->comboOperationTime, numbered(firstRuntime, 10, 1, suffix("OperationMinute")));
    refill(ui->comboDryContactInstallation, languageTexts({"Auto", "NOTINSTALL", "INSTALL"}));
    refill(ui->comboBoxSensingTemp, sensingTexts());
    refill(ui->comboBoxAirTemp, airTempTexts());
}

QStringList InstallationSystemSetting::sensingTexts()
{
    return isSet(flags::waterCtrBasisAir) ? languageTexts({"WATER", "AIR", "AIR_WATER"})
                                          : languageTexts({"WATER", "AIR"});
}

QStringList InstallationSystemSetting::airTempTexts()
{
    return isSet(flags::iduAirTempSw) ? languageTexts({"IDU", "RemoteController"})
                                      : languageTexts({"RemoteController"});
}

void InstallationSystemSetting::saveJsonData(const QString &path, const QJsonValue &value)
{
    writeWhileExpanded(path, value);
}

QJsonValue InstallationSystemSetting::parseJsonData(const QString &path) { return read(path); }

// Selections run with the signals live: in an open section each writes back what it shows. None writes what a
// later one reads.
void InstallationSystemSetting::loadJsonData()
{
    const QString product = word(paths::product);
    loadProduct(product);
    loadSensing();
    loadChoice(ui->radioDryAuto);
    loadCentralAddress();
    fill(ui->comboCnEXT, digitalInputTexts());
    loadModbusAddress();
    loadScreedDrying();
    loadPump();
    loadEnforcedCirculation();
    loadDigitalInput();
    if (firstLoad) {
        // The hydronic module comes up through its own show event.
        if (product == QLatin1String("AWHP")) {
            emit refreshAwhpCategory();
        }
        firstLoad = false;
    }
}

void InstallationSystemSetting::loadProduct(const QString &product)
{
    if (product == QLatin1String("AQUABOX")) {
        ui->widgetAquabox->show();
        ui->widgetAwhp->hide();
    } else if (product == QLatin1String("AWHP")) {
        ui->widgetAwhp->show();
        ui->widgetAquabox->hide();
    }
}

void InstallationSystemSetting::loadSensing()
{
    const bool indoorSensor = isSet(flags::iduAirTempSw);
    const QString basis = word(paths::settempSelect);
    const QString location = word(paths::airTempLocation);
    const QString airAndWater = word(paths::airAndWaterUse);
    const bool threeMethods = isSet(flags::waterCtrBasisAir);

    fill(ui->comboBoxSensingTemp, sensingTexts());
    int item = waterItem;
    if (basis != QLatin1String("WATER")) {
        item = threeMethods && airAndWater != QLatin1String("CLR") ? airWaterItem : airItem;
    }
    ui->comboBoxSensingTemp->setCurrentIndex(item);

    ui->groupBoxAirTempSensor->setEnabled(indoorSensor);
    fill(ui->comboBoxAirTemp, airTempTexts());
    if (indoorSensor) {
        ui->comboBoxAirTemp->setCurrentIndex(location == QLatin1String("IDU") ? 0 : 1);
        ui->groupBoxAirTempSensor->setEnabled(ui->comboBoxSensingTemp->currentIndex() != waterItem);
    }
}

void InstallationSystemSetting::loadScreedDrying()
{
    selectText(ui->comboBoxScreedStep, QString::number(number(screedStep)));
    loadList(ui->comboBoxScreedMaxTemp);
    loadList(ui->comboBoxScreedHolding);
    ui->groupBoxCementCuring->setVisible(isSet("IduFuncList.is_cement_Curing"));
}

void InstallationSystemSetting::loadPump()
{
    const bool bySpeed = isSet("IduFuncList.is_PumpRpmOption") || isSet("IduFuncList.isMotorDuty");
    const int value = number(pumpValue);
    ui->groupBoxPumpRPM->setVisible(bySpeed);
    ui->groupBoxPumpCapacity->setVisible(!bySpeed);
    if (bySpeed) {
        selectText(ui->comboWaterpumpRPM, QString::number(qint64{value} * 10));
    } else {
        selectText(ui->comboWaterRpmDuty, QString::number(value) + QLatin1Char('%'));
    }
}

void InstallationSystemSetting::loadEnforcedCirculation()
{
    ui->groupBoxEnforced->setVisible(isSet("IduFuncList.isWaterPumpOperationByForce"));
    ui->groupBoxEnforcedSub->show();
    if (isSet("IduFuncList.isWaterPumpOperationByForceAdv")) {
        loadChoice(ui->radioEnforcedUse);
        if (ui->radioEnforcedUse->isChecked()) {
            loadList(ui->comboOperationPeriod);
            loadList(ui->comboOperationTime);
        }
    }
    enableEnforcedCirculation();
}

void InstallationSystemSetting::refreshAwhpWidget() { emit refreshAwhpCategory(); }

void InstallationSystemSetting::refreshAquaboxWidget() {}

void InstallationSystemSetting::refreshInstallationPage() { emit refreshInstallationPageSignal(); }

void InstallationSystemSetting::enableEnforcedCirculation()
{
    const bool used = ui->radioEnforcedUse->isChecked();
    const QString look = used ? QStringLiteral("color : #555555")
                              : QStringLiteral("color : rgba(55,55,55,30%)");
    style::apply(ui->labelOperationPeriod, look);
    style::apply(ui->labelOperationTime, look);
    ui->bulletSystem12->setEnabled(used);
    ui->comboOperationPeriod->setEnabled(used);
    ui->bulletSystem13->setEnabled(used);
    ui->comboOperationTime->setEnabled(used);
}

void InstallationSystemSetting::on_hideButton_clicked() { toggle(ui->hideButton, ui->frame); }

void InstallationSystemSetting::setTempValue(QComboBox *comboBox, int value)
{
    selectTemperature(comboBox, value);
}

void InstallationSystemSetting::chooseEnforced(const QRadioButton *radio)
{
    save(radio);
    enableEnforcedCirculation();
    validationCheck();
}

void InstallationSystemSetting::on_radioEnforcedNotuse_clicked() { chooseEnforced(ui->radioEnforcedNotuse); }

void InstallationSystemSetting::on_radioEnforcedUse_clicked() { chooseEnforced(ui->radioEnforcedUse); }

// The one control of the section that refreshes the others.
void InstallationSystemSetting::on_comboBoxSensingTemp_currentTextChanged(const QString &text)
{
    const QString key = mainDialog->languageKeyOrText(text).toUpper();
    for (const Sensing &method : sensingMethods) {
        if (key == QLatin1String(method.key)) {
            save(paths::settempSelect, QLatin1String(method.basis));
            save(paths::airAndWaterUse, QLatin1String(method.airAndWater));
            save("SettingInfo.installation.sensorDefine.remote_sensor", QLatin1String(method.remoteSensor));
        }
    }
    if (isSet(flags::iduAirTempSw)) {
        ui->groupBoxAirTempSensor->setEnabled(key != QLatin1String("WATER"));
    }
    validationCheck();
    emit refreshInstallationPageSignal();
}

void InstallationSystemSetting::on_comboBoxAirTemp_currentTextChanged(const QString &text)
{
    change(paths::airTempLocation, shownValue(Shown::Key, text));
}

void InstallationSystemSetting::on_comboWaterRpmDuty_currentTextChanged(const QString &text)
{
    change(pumpValue, QString(text).remove(QLatin1Char('%')).toInt());
}

void InstallationSystemSetting::on_comboWaterpumpRPM_currentTextChanged(const QString &text)
{
    change(pumpValue, text.toInt() / 10);
}

void InstallationSystemSetting::on_comboBoxScreedStep_currentTextChanged(const QString &arg1)
{
    change(screedStep, arg1.toInt());
}

void InstallationSystemSetting::on_comboBoxScreedMaxTemp_currentTextChanged(const QString &arg1)
{
    change(ui->comboBoxScreedMaxTemp, arg1);
}

void InstallationSystemSetting::on_comboOperationTime_currentIndexChanged(int index)
{
    change(ui->comboOperationTime, index);
}

void InstallationSystemSetting::on_comboBoxScreedHolding_currentIndexChanged(int index)
{
    change(ui->comboBoxScreedHolding, index);
}

void InstallationSystemSetting::on_comboOperationPeriod_currentIndexChanged(int index)
{
    change(ui->comboOperationPeriod, index);
}

// Oddity 36: a failed product section ends the check before the tab's result is joined.
void InstallationSystemSetting::validationCheck()
{
    bool result = choicesMade();
    qDebug() << (result ? "InstallationSystemSetting::validationCheck succeed!!"
                        : "InstallationSystemSetting::validationCheck failed!!");
    mainDialog->setSystemSectionValid(result);

    const bool awhpShown = !ui->widgetAwhp->isHidden();
    if (awhpShown || !ui->widgetAquabox->isHidden()) {
        result = result && (awhpShown ? awhpValid : aquaboxValid);
        if (!result) {
            mainDialog->setSystemSectionValid(false);
            return;
        }
    }
    qDebug() << "InstallationSystemSetting::validationCheck" << result;
    mainDialog->setSystemSectionValid(result);
    mainDialog->updateInstallationValid();
}

void InstallationSystemSetting::validationCheckByProductType(bool isChecked, const QString &type)
{
    const QString product = type.toUpper();
    if (product == QLatin1String("AWHP")) {
        awhpValid = isChecked;
    } else if (product == QLatin1String("AQUABOX")) {
        aquaboxValid = isChecked;
    }
    validationCheck();
}

void InstallationSystemSetting::changeLanguage()
{
    setCaptions(*ui);
    ui->widgetAwhp->changeLanguage();
    ui->widgetAquabox->changeLanguage();
    changeLanguageInCombobox();
}
