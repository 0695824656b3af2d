#include "pages/installation/installationsystemaquabox.h"

#include "app/maindialog.h"
#include "document/paths.h"
#include "pages/style.h"
#include "ui_installationsystemaquabox.h"

#include <QDebug>

InstallationSystemAquabox::InstallationSystemAquabox(QWidget *parent)
    : Page(parent)
    , ui(std::make_unique<Ui::InstallationSystemAquabox>())
{
    ui->setupUi(this);
    choices = {{"SettingInfo.installation.modePriority.modeStandby",
                {{ui->radioStandbyNotuse, "CLR"}, {ui->radioStandbyUse, "SET"}}},
               {paths::hsSetting, {{ui->radioHsmodeNotuse, "CLR"}, {ui->radioHsmodeUse, "SET"}}},
               {"SettingInfo.installation.combination200.combiValue",
                {{ui->radioCombinationNotuse, "CLR"}, {ui->radioCombinationUse, "SET"}}},
               {"SettingInfo.installation.combination200.combiOilRecover",
                {{ui->radioOpt1, "CLR"}, {ui->radioOpt2, "SET"}}},
               {"SettingInfo.installation.leakRefrigerant",
                {{ui->radioRefrigerantNotuse, "CLR"}, {ui->radioRefrigerantUse, "SET"}}}};
    lists = {{ui->comboKnightType, "SettingInfo.installation.kNightType", Shown::Key},
             {ui->comboWater, "SettingInfo.installation.waterFlowRate", Shown::Number}};
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
    fill(
        ui->comboKnightType,
        {QStringLiteral("STEP0"), QStringLiteral("STEP1"), QStringLiteral("STEP2"), QStringLiteral("STEP3")});
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
    loadOffered(ui->groupBoxModeStandby, "IduFuncList.isModeStandby", ui->radioStandbyUse);
    // Oddity 28: this row stays visible without its flag: only a click can satisfy it then.
    if (isSet(flags::hsModel)) {
        loadChoice(ui->radioHsmodeUse);
    }
    loadCombination();
    enableOilRecovery();
    ui->groupBoxTimerOfNight->setVisible(isSet("IduFuncList.isKnightModel"));
    ui->groupBoxWaterFlow->setVisible(isSet("IduFuncList.isWaterFlowRate"));
    loadOffered(ui->groupBoxRefrigerant, "IduFuncList.isLeakRefrigerant", ui->radioRefrigerantUse);
}

void InstallationSystemAquabox::loadCombination()
{
    const bool available = isSet("IduFuncList.is_200Combination");
    ui->groupBoxCombination->setVisible(available);
    if (!available) {
        return;
    }
    ui->groupBoxCombinationSub->setVisible(isSet("IduFuncList.is200CombinationOp2"));
    if (!isSet(choiceOf(ui->radioCombinationUse).path)) {
        ui->radioCombinationNotuse->setChecked(true);
        ui->radioOpt1->setEnabled(false);
        ui->radioOpt2->setEnabled(false);
        ui->groupBoxCombinationSub->setEnabled(false);
        return;
    }
    ui->radioCombinationUse->setChecked(true);
    if (word(choiceOf(ui->radioOpt1).path) == QLatin1String("CLR")) {
        ui->radioOpt1->setChecked(true);
    } else {
        // Oddity 27: a stored "SET" loads unchecked: the user has to choose again.
        uncheck({ui->radioOpt2});
    }
}

// The night type runs its slot where its index changes; the flow rate doesn't.
void InstallationSystemAquabox::setLoadJsonValue() { loadLists(lists); }

void InstallationSystemAquabox::enableOilRecovery()
{
    const bool used = !ui->radioCombinationNotuse->isChecked();
    enable(used, {ui->labelOilrecovery}, {ui->groupBoxCombinationSub, ui->radioOpt1, ui->radioOpt2});
    for (QRadioButton *option : {ui->radioOpt1, ui->radioOpt2}) {
        style::apply(option, setRadioTextOpacity(used));
    }
    if (!used) {
        uncheck({ui->radioOpt1, ui->radioOpt2});
    }
}

QString InstallationSystemAquabox::setRadioTextOpacity(bool isEnabled) { return style::radioText(isEnabled); }

// Oddity 39: unlike in the other sections the check comes before the save, in every slot.
void InstallationSystemAquabox::choose(const QRadioButton *radio)
{
    validationCheck();
    save(radio);
}

void InstallationSystemAquabox::on_radioStandbyNotuse_clicked() { choose(ui->radioStandbyNotuse); }

void InstallationSystemAquabox::on_radioStandbyUse_clicked() { choose(ui->radioStandbyUse); }

void InstallationSystemAquabox::on_radioHsmodeNotuse_clicked() { choose(ui->radioHsmodeNotuse); }

void InstallationSystemAquabox::on_radioHsmodeUse_clicked() { choose(ui->radioHsmodeUse); }

void InstallationSystemAquabox::on_comboKnightType_currentTextChanged(const QString &text)
{
    validationCheck();
    save(ui->comboKnightType, text);
}

void InstallationSystemAquabox::on_comboWater_currentTextChanged(const QString &text)
{
    validationCheck();
    save(ui->comboWater, text);
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
    const bool result = choicesMade();
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
    refill(ui->comboKnightType, languageTexts({"STEP0", "STEP1", "STEP2", "STEP3"}));
}
