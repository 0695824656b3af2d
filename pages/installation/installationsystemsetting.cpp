#include "pages/installation/installationsystemsetting.h"

#include "app/maindialog.h"
#include "pages/style.h"
#include "ui_installationsystemsetting.h"

#include <QDebug>

#include <array>
#include <type_traits>

namespace {

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

void InstallationSystemSetting::saveJsonData(const QString &path, const QJsonValue &value)
{
    writeWhileExpanded(path, value);
}

QJsonValue InstallationSystemSetting::parseJsonData(const QString &path) { return read(path); }

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

void InstallationSystemSetting::choose(const QAbstractButton *button)
{
    saveChoice(
        {{ui->radioDryManual, "SettingInfo.installation.drycontactAuto", "AUTO_OFF"},
         {ui->radioDryAuto, "SettingInfo.installation.drycontactAuto", "AUTO_ON"},
         {ui->radioEnforcedNotuse, "SettingInfo.installation.pumpOperationByForce.ByForceUse", "NOTUSE"},
         {ui->radioEnforcedUse, "SettingInfo.installation.pumpOperationByForce.ByForceUse", "USE"}},
        button);
}

void InstallationSystemSetting::save(const char *key, const QJsonValue &value)
{
    saveJsonData(installation(key), value);
    validationCheck();
}

void InstallationSystemSetting::on_radioDryManual_clicked()
{
    choose(ui->radioDryManual);
    validationCheck();
}

void InstallationSystemSetting::on_radioDryAuto_clicked()
{
    choose(ui->radioDryAuto);
    validationCheck();
}

void InstallationSystemSetting::on_radioEnforcedNotuse_clicked()
{
    choose(ui->radioEnforcedNotuse);
    enableEnforcedCirculation();
    validationCheck();
}

void InstallationSystemSetting::on_radioEnforcedUse_clicked()
{
    choose(ui->radioEnforcedUse);
    enableEnforcedCirculation();
    validationCheck();
}

// The one control of the section that refreshes the others.
void InstallationSystemSetting::on_comboBoxSensingTemp_currentTextChanged(const QString &text)
{
    const QString key = mainDialog->languageKeyOrText(text).toUpper();
    for (const Sensing &method : sensingMethods) {
        if (key == QLatin1String(method.key)) {
            saveJsonData(installation("sensorDefine.settemp_select"), QLatin1String(method.basis));
            saveJsonData(installation("sensorDefine.airAndWaterUse"), QLatin1String(method.airAndWater));
            saveJsonData(installation("sensorDefine.remote_sensor"), QLatin1String(method.remoteSensor));
        }
    }
    if (flag("isIduAirTempSW")) {
        ui->groupBoxAirTempSensor->setEnabled(key != QLatin1String("WATER"));
    }
    validationCheck();
    emit refreshInstallationPageSignal();
}

void InstallationSystemSetting::on_comboBoxAirTemp_currentTextChanged(const QString &text)
{
    save("sensorDefine.airTempLocation", shownValue(Shown::Key, text));
}

void InstallationSystemSetting::on_comboWaterRpmDuty_currentTextChanged(const QString &text)
{
    save("pumpRPM.pumpRPMValue", QString(text).remove(QLatin1Char('%')).toInt());
}

void InstallationSystemSetting::on_comboWaterpumpRPM_currentTextChanged(const QString &text)
{
    save("pumpRPM.pumpRPMValue", text.toInt() / 10);
}

void InstallationSystemSetting::on_comboDryContactInstallation_currentTextChanged(const QString &)
{
    const QString chosen = dryContactWords().value(ui->comboDryContactInstallation->currentIndex());
    if (!chosen.isEmpty()) {
        saveJsonData(installation("dryContactInstallation"), chosen);
    }
    validationCheck();
}

void InstallationSystemSetting::on_comboCnEXT_currentIndexChanged(int index)
{
    save("digitalInput", QStringLiteral("STEP") + QString::number(index));
}

void InstallationSystemSetting::on_comboCentral_currentTextChanged(const QString &text)
{
    save("cc_address", text.toUpper());
}

// Oddity 8: the text is read as decimal though it shows hexadecimal digits: "10" stores 10 and "0a" 0.
void InstallationSystemSetting::on_comboModbus_currentTextChanged(const QString &text)
{
    save("modbusAddress", text.toInt());
}

void InstallationSystemSetting::on_comboBoxScreedStep_currentTextChanged(const QString &arg1)
{
    save("cement_cure.cmt_step", arg1.toInt());
}

void InstallationSystemSetting::on_comboBoxScreedMaxTemp_currentTextChanged(const QString &arg1)
{
    save("cement_cure.cmt_maxTemp", shownValue(Shown::Temperature, arg1));
}

void InstallationSystemSetting::on_comboOperationTime_currentIndexChanged(int index)
{
    save("pumpOperationByForce.ByForceRuntime", index + firstRuntime);
}

void InstallationSystemSetting::on_comboBoxScreedHolding_currentIndexChanged(int index)
{
    save("cement_cure.cmt_holding", index + firstHolding);
}

void InstallationSystemSetting::on_comboOperationPeriod_currentIndexChanged(int index)
{
    save("pumpOperationByForce.ByForcePeriod", index + firstPeriod);
}

// Oddity 36: a failed product section ends the check before the tab's result is joined.
void InstallationSystemSetting::validationCheck()
{
    bool result = mainDialog->checkValidationRadio(ui->radioDryAuto, ui->radioDryManual, nullptr)
        && mainDialog->checkValidationRadio(ui->radioEnforcedNotuse, ui->radioEnforcedUse, nullptr);
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
