#include "pages/installation/installationsystemaquabox.h"

#include "app/maindialog.h"
#include "pages/style.h"
#include "ui_installationsystemaquabox.h"

#include <QDebug>

InstallationSystemAquabox::InstallationSystemAquabox(QWidget *parent)
    : Page(parent)
    , ui(std::make_unique<Ui::InstallationSystemAquabox>())
{
    ui->setupUi(this);
    initUi();
}

InstallationSystemAquabox::~InstallationSystemAquabox() = default;

void InstallationSystemAquabox::showEvent(QShowEvent *event)
{
    Page::showEvent(event);
    refresh();
}

// The keys stay untranslated until changeLanguageInCombobox() replaces them.
void InstallationSystemAquabox::initUi()
{
    mainDialog->setRangeValueInComboBox(ui->comboWater, 15, 92, MainDialog::PlainNumber, 1);
    mainDialog->setComboItems(
        ui->comboKnightType,
        {QStringLiteral("STEP0"), QStringLiteral("STEP1"), QStringLiteral("STEP2"), QStringLiteral("STEP3")},
        -1);
}

void InstallationSystemAquabox::refresh()
{
    loadJsonData();
    setLoadJsonValue();
    validationCheck();
}

QJsonValue InstallationSystemAquabox::parseJsonData(const QString &path) { return read(path); }

void InstallationSystemAquabox::saveJsonData(const QString &path, const QJsonValue &value)
{
    emit saveJsonValue(path, value);
}

void InstallationSystemAquabox::loadJsonData()
{
    const QString standby = word(installation("modePriority.modeStandby"));
    const bool hasStandby = flag("isModeStandby");
    ui->groupBoxModeStandby->setVisible(hasStandby);
    if (hasStandby) {
        checkPair(standby, {ui->radioStandbyNotuse, "CLR", ui->radioStandbyUse, "SET"});
    }
    // Oddity 28: this row stays visible without its flag: only a click can satisfy it then.
    const QString hsMode = word(installation("hsSetting"));
    if (flag("isHsModel")) {
        checkPair(hsMode, {ui->radioHsmodeNotuse, "CLR", ui->radioHsmodeUse, "SET"});
    }
    loadCombination();
    enableOilRecovery();
    ui->groupBoxTimerOfNight->setVisible(flag("isKnightModel"));
    ui->groupBoxWaterFlow->setVisible(flag("isWaterFlowRate"));
    const QString leakSensor = word(installation("leakRefrigerant"));
    const bool hasLeakSensor = flag("isLeakRefrigerant");
    ui->groupBoxRefrigerant->setVisible(hasLeakSensor);
    if (hasLeakSensor) {
        checkPair(leakSensor, {ui->radioRefrigerantNotuse, "CLR", ui->radioRefrigerantUse, "SET"});
    }
}

void InstallationSystemAquabox::loadCombination()
{
    const QString combination = word(installation("combination200.combiValue"));
    const QString oilRecovery = word(installation("combination200.combiOilRecover"));
    const bool available = flag("is_200Combination");
    ui->groupBoxCombination->setVisible(available);
    if (!available) {
        return;
    }
    ui->groupBoxCombinationSub->setVisible(flag("is200CombinationOp2"));
    if (combination != QLatin1String("SET")) {
        ui->radioCombinationNotuse->setChecked(true);
        ui->radioOpt1->setEnabled(false);
        ui->radioOpt2->setEnabled(false);
        ui->groupBoxCombinationSub->setEnabled(false);
        return;
    }
    ui->radioCombinationUse->setChecked(true);
    if (oilRecovery == QLatin1String("CLR")) {
        ui->radioOpt1->setChecked(true);
    } else {
        // Oddity 27: a stored "SET" loads unchecked: the user has to choose again.
        uncheck({ui->radioOpt2});
    }
}

// The night type runs its slot where its index changes; the flow rate doesn't.
void InstallationSystemAquabox::setLoadJsonValue()
{
    mainDialog->setComboByKey(ui->comboKnightType, text(installation("kNightType")));
    mainDialog->setComboByValue(ui->comboWater, number(installation("waterFlowRate")),
                                MainDialog::PlainNumber);
}

void InstallationSystemAquabox::enableOilRecovery()
{
    const bool used = !ui->radioCombinationNotuse->isChecked();
    style::apply(ui->labelOilrecovery, style::labelText(used));
    ui->groupBoxCombinationSub->setEnabled(used);
    for (QRadioButton *option : {ui->radioOpt1, ui->radioOpt2}) {
        option->setEnabled(used);
        style::apply(option, setRadioTextOpacity(used));
    }
    if (!used) {
        uncheck({ui->radioOpt1, ui->radioOpt2});
    }
}

QString InstallationSystemAquabox::setRadioTextOpacity(bool isEnabled) { return style::radioText(isEnabled); }

// Oddity 39: unlike in the other sections the check comes before the save, in every slot.
void InstallationSystemAquabox::choose(const QAbstractButton *button)
{
    validationCheck();
    saveChoice({{ui->radioStandbyNotuse, "SettingInfo.installation.modePriority.modeStandby", "CLR"},
                {ui->radioStandbyUse, "SettingInfo.installation.modePriority.modeStandby", "SET"},
                {ui->radioHsmodeNotuse, "SettingInfo.installation.hsSetting", "CLR"},
                {ui->radioHsmodeUse, "SettingInfo.installation.hsSetting", "SET"},
                {ui->radioCombinationNotuse, "SettingInfo.installation.combination200.combiValue", "CLR"},
                {ui->radioCombinationUse, "SettingInfo.installation.combination200.combiValue", "SET"},
                {ui->radioOpt1, "SettingInfo.installation.combination200.combiOilRecover", "CLR"},
                {ui->radioOpt2, "SettingInfo.installation.combination200.combiOilRecover", "SET"},
                {ui->radioRefrigerantNotuse, "SettingInfo.installation.leakRefrigerant", "CLR"},
                {ui->radioRefrigerantUse, "SettingInfo.installation.leakRefrigerant", "SET"}},
               button);
}

void InstallationSystemAquabox::on_radioStandbyNotuse_clicked() { choose(ui->radioStandbyNotuse); }

void InstallationSystemAquabox::on_radioStandbyUse_clicked() { choose(ui->radioStandbyUse); }

void InstallationSystemAquabox::on_radioHsmodeNotuse_clicked() { choose(ui->radioHsmodeNotuse); }

void InstallationSystemAquabox::on_radioHsmodeUse_clicked() { choose(ui->radioHsmodeUse); }

void InstallationSystemAquabox::on_comboKnightType_currentTextChanged(const QString &text)
{
    validationCheck();
    saveJsonData(installation("kNightType"), shownValue(Shown::Key, text));
}

void InstallationSystemAquabox::on_comboWater_currentTextChanged(const QString &text)
{
    validationCheck();
    saveJsonData(installation("waterFlowRate"), text.toInt());
}

void InstallationSystemAquabox::on_radioRefrigerantNotuse_clicked() { choose(ui->radioRefrigerantNotuse); }

void InstallationSystemAquabox::on_radioRefrigerantUse_clicked() { choose(ui->radioRefrigerantUse); }

void InstallationSystemAquabox::on_radioOpt1_clicked() { choose(ui->radioOpt1); }

void InstallationSystemAquabox::on_radioOpt2_clicked() { choose(ui->radioOpt2); }

void InstallationSystemAquabox::on_radioCombinationNotuse_clicked()
{
    enableOilRecovery();
    choose(ui->radioCombinationNotuse);
}

void InstallationSystemAquabox::on_radioCombinationUse_clicked()
{
    enableOilRecovery();
    choose(ui->radioCombinationUse);
}

void InstallationSystemAquabox::validationCheck()
{
    const MainDialog *dialog = mainDialog;
    const bool result = dialog->checkValidationRadio(ui->radioStandbyNotuse, ui->radioStandbyUse, nullptr)
        && dialog->checkValidationRadio(ui->radioHsmodeNotuse, ui->radioHsmodeUse, nullptr)
        && dialog->checkValidationRadio(ui->radioCombinationNotuse, ui->radioCombinationUse, nullptr)
        && dialog->checkValidationRadio(ui->radioOpt1, ui->radioOpt2, nullptr)
        && dialog->checkValidationRadio(ui->radioRefrigerantNotuse, ui->radioRefrigerantUse, nullptr);
    qDebug() << (result ? "InstallationSystemAquabox::validationCheck succeed!!"
                        : "InstallationSystemAquabox::validationCheck failed!!");
    emit validationCheckSignals(result, QStringLiteral("AQUABOX"));
}

void InstallationSystemAquabox::changeLanguage()
{
    setCaptions(*ui);
    changeLanguageInCombobox();
}

void InstallationSystemAquabox::changeLanguageInCombobox()
{
    mainDialog->refillComboItems(ui->comboKnightType, languageTexts({"STEP0", "STEP1", "STEP2", "STEP3"}),
                                 ui->comboKnightType->currentIndex());
}
